// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/file_dialog.h"

#include "display/display.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

using namespace kits;


namespace {

QString&
last_folder()
{
	static auto* const folder = new QString;
	return *folder;
}


// Asks before a file is replaced. Qt's own question would run a loop of its own inside a command.
class dialog_widget : public QFileDialog {
public:
	dialog_widget(const dialog_options& options, dialog_answer answer)
		: fAnswer(std::move(answer)),
		  fSaving(options.saving)
	{
		setOption(QFileDialog::DontUseNativeDialog);
		setOption(QFileDialog::DontConfirmOverwrite);
		setAcceptMode(options.saving ? AcceptSave : AcceptOpen);
		setFileMode(options.saving ? AnyFile : options.several ? ExistingFiles : ExistingFile);
		setWindowTitle(options.saving ? "Save as" : "Open");
		QString folder = QString::fromStdString(options.folder);
		if (folder.isEmpty())
			folder = last_folder();
		if (!folder.isEmpty())
			setDirectory(folder);
		// Wide enough for sizes and dates in full.
		resize(760, 440);
	}

protected:
	void done(int result) override
	{
		if (result == Accepted && fSaving && QFileInfo::exists(selectedFiles().value(0))) {
			_Ask();
			return;
		}
		_Finish(result);
	}

private:
	void _Ask()
	{
		auto* question = new QMessageBox(QMessageBox::Warning, windowTitle(),
			QString("\"%1\" exists already. Replace it?")
				.arg(QFileInfo(selectedFiles().value(0)).fileName()),
			QMessageBox::NoButton, this);
		question->setAttribute(Qt::WA_DeleteOnClose);
		question->addButton("Cancel", QMessageBox::RejectRole);
		auto* replace = question->addButton("Replace", QMessageBox::AcceptRole);
		question->setDefaultButton(replace);
		connect(replace, &QAbstractButton::clicked, this, [this] { _Finish(Accepted); });
		question->open();
	}

	void _Finish(int result)
	{
		last_folder() = directory().absolutePath();
		QFileDialog::done(result);
		_EndSuggestions();
		std::vector<std::string> paths;
		if (result == Accepted) {
			for (const QString& path : selectedFiles())
				paths.push_back(path.toStdString());
		}
		fAnswer(paths);
	}

	// They are a window of their own, which would stay, or come late, when the folder has been read.
	void _EndSuggestions()
	{
		for (auto* field : findChildren<QLineEdit*>())
			field->setCompleter(nullptr);
		for (auto* suggestions : findChildren<QCompleter*>())
			suggestions->popup()->hide();
	}

	const dialog_answer fAnswer;
	const bool fSaving;
};

}


std::shared_ptr<file_dialog>
file_dialogs::make(const dialog_options& options, const dialog_answer& answer)
{
	auto made = std::make_shared<file_dialog>();
	display::post([=] { made->widget = new dialog_widget(options, answer); });
	return made;
}


void
file_dialogs::show(const std::shared_ptr<file_dialog>& dialog, bool shown)
{
	display::post([=] {
		if (dialog->widget)
			dialog->widget->setVisible(shown);
	});
}


void
file_dialogs::destroy(const std::shared_ptr<file_dialog>& dialog)
{
	display::post([=] {
		if (dialog->widget)
			dialog->widget->deleteLater();
		dialog->widget = nullptr;
	});
}
