// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_FILE_DIALOG_WIDGET_H
#define KITS_FILE_DIALOG_WIDGET_H

#include "display/file_dialog.h"

#include <QFileDialog>

class QAbstractItemView;

namespace kits {

// Qt's dialog with boxes and menus of our own. Qt runs loops inside of its own ones, in which the
// dialog cannot go away and which stop every other window.
class file_dialog_widget : public QFileDialog {
public:
	file_dialog_widget(const dialog_options& options, dialog_answer answer);

protected:
	void accept() override;
	void done(int result) override;

private:
	void _TakeOverMenus();
	void _ShowMenu(QAbstractItemView* view, const QPoint& place);
	void _AskToDelete();
	void _Delete(const QStringList& paths);
	void _Tell(const QString& text);
	void _Ask(const QString& text, const QString& label, const std::function<void()>& agreed,
		bool by_default = true);
	void _Finish(int result);
	void _EndSuggestions();

	const dialog_answer fAnswer;
	const bool fSaving;
};

}

#endif
