// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/file_dialog.h"

#include "display/display.h"
#include "display/file_dialog_widget.h"
#include "display/owner.h"

#include <QApplication>
#include <QThread>
#include <QTimer>

using namespace kits;

// Milliseconds.
static constexpr int retry = 5;


// Qt may still be running a loop of its own below a call from the dialog, for a box that says that a
// folder has gone, for instance. That has to end first: it returns into the dialog.
static void
end(QFileDialog* widget)
{
	widget->hide();
	if (QThread::currentThread()->loopLevel() <= 1) {
		widget->deleteLater();
		return;
	}
	for (QWidget* box : {QApplication::activePopupWidget(), QApplication::activeModalWidget()}) {
		if (box)
			box->close();
	}
	QTimer::singleShot(retry, widget, [widget] { end(widget); });
	QObject::connect(
		qApp, &QCoreApplication::aboutToQuit, widget, &QObject::deleteLater, Qt::UniqueConnection);
}


std::shared_ptr<file_dialog>
file_dialogs::make(const dialog_options& options, const dialog_answer& answer)
{
	auto made = std::make_shared<file_dialog>();
	display::post([=] { made->widget = new file_dialog_widget(options, answer); });
	return made;
}


void
file_dialogs::show(const std::shared_ptr<file_dialog>& dialog, bool shown)
{
	display::post([=] {
		if (!dialog->widget)
			return;
		if (shown && dialog->widget->isVisible()) {
			dialog->widget->raise();
			dialog->widget->activateWindow();
			return;
		}
		if (shown)
			tie_to_window(*dialog->widget);
		dialog->widget->setVisible(shown);
	});
}


void
file_dialogs::destroy(const std::shared_ptr<file_dialog>& dialog)
{
	display::post([=] {
		if (dialog->widget)
			end(dialog->widget);
		dialog->widget = nullptr;
	});
}
