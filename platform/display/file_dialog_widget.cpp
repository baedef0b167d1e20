// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/file_dialog_widget.h"

#include <QAction>
#include <QCompleter>
#include <QDir>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QShortcut>
#include <QTreeView>

using namespace kits;


namespace {

QString&
last_folder()
{
	static auto* const folder = new QString;
	return *folder;
}


QString
quoted_leaf(const QString& path)
{
	return QString("\"%1\"").arg(QFileInfo(path).fileName());
}


bool
remove(const QString& path)
{
	const QFileInfo found(path);
	if (found.isDir() && !found.isSymLink())
		return QDir(path).removeRecursively();
	return QFile::remove(path);
}

}


file_dialog_widget::file_dialog_widget(const dialog_options& options, dialog_answer answer)
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
	_TakeOverMenus();
	// Wide enough for sizes and dates in full.
	resize(760, 440);
}


void
file_dialog_widget::accept()
{
	for (const QString& path : fSaving ? QStringList() : selectedFiles()) {
		if (!QFileInfo::exists(path)) {
			_Tell(QString("There is no file %1.").arg(quoted_leaf(path)));
			return;
		}
	}
	QFileDialog::accept();
}


void
file_dialog_widget::done(int result)
{
	const QString path = selectedFiles().value(0);
	if (result == Accepted && fSaving && QFileInfo::exists(path)) {
		_Ask(QString("%1 exists already. Replace it?").arg(quoted_leaf(path)), "Replace",
			[this] { _Finish(Accepted); });
		return;
	}
	_Finish(result);
}


void
file_dialog_widget::_TakeOverMenus()
{
	for (const char* name : {"listView", "treeView"}) {
		auto* view = findChild<QAbstractItemView*>(name);
		disconnect(view, SIGNAL(customContextMenuRequested(QPoint)), this, nullptr);
		connect(view, &QWidget::customContextMenuRequested, this,
			[this, view](const QPoint& place) { _ShowMenu(view, place); });
		// The key Delete.
		for (auto* key : view->findChildren<QShortcut*>(Qt::FindDirectChildrenOnly)) {
			key->disconnect(this);
			connect(key, &QShortcut::activated, this, &file_dialog_widget::_AskToDelete);
		}
	}
	findChild<QTreeView*>("treeView")->header()->setContextMenuPolicy(Qt::NoContextMenu);
	findChild<QWidget*>("sidebar")->setContextMenuPolicy(Qt::NoContextMenu);
	auto* action = findChild<QAction*>("qt_delete_action");
	action->disconnect(this);
	connect(action, &QAction::triggered, this, &file_dialog_widget::_AskToDelete);
}


void
file_dialog_widget::_ShowMenu(QAbstractItemView* view, const QPoint& place)
{
	auto* menu = new QMenu(view);
	menu->setAttribute(Qt::WA_DeleteOnClose);
	const QModelIndex chosen = view->indexAt(place);
	for (const char* name : {"qt_rename_action", "qt_delete_action"}) {
		auto* action = findChild<QAction*>(name);
		action->setEnabled(chosen.isValid());
		menu->addAction(action);
	}
	menu->addSeparator();
	for (const char* name : {"qt_show_hidden_action", "qt_new_folder_action"})
		menu->addAction(findChild<QAction*>(name));
	menu->popup(view->viewport()->mapToGlobal(place));
}


void
file_dialog_widget::_AskToDelete()
{
	QStringList paths;
	const auto* view = findChild<QAbstractItemView*>("listView");
	for (const QModelIndex& row : view->selectionModel()->selectedRows())
		paths.push_back(row.data(QFileSystemModel::FilePathRole).toString());
	if (paths.isEmpty())
		return;
	const QString what =
		paths.size() == 1 ? quoted_leaf(paths.front()) : QString("%1 files").arg(paths.size());
	const auto agreed = [this, paths] { _Delete(paths); };
	_Ask(QString("Delete %1?").arg(what), "Delete", agreed, false);
}


void
file_dialog_widget::_Delete(const QStringList& paths)
{
	for (const QString& path : paths) {
		if (!remove(path)) {
			_Tell(QString("%1 cannot be deleted.").arg(quoted_leaf(path)));
			return;
		}
	}
}


void
file_dialog_widget::_Tell(const QString& text)
{
	auto* box = new QMessageBox(QMessageBox::Warning, windowTitle(), text, QMessageBox::Ok, this);
	box->setAttribute(Qt::WA_DeleteOnClose);
	box->open();
}


void
file_dialog_widget::_Ask(
	const QString& text, const QString& label, const std::function<void()>& agreed, bool by_default)
{
	auto* question =
		new QMessageBox(QMessageBox::Warning, windowTitle(), text, QMessageBox::NoButton, this);
	question->setAttribute(Qt::WA_DeleteOnClose);
	auto* no = question->addButton("Cancel", QMessageBox::RejectRole);
	auto* yes = question->addButton(label, QMessageBox::AcceptRole);
	question->setDefaultButton(by_default ? yes : no);
	connect(yes, &QAbstractButton::clicked, this, agreed);
	question->open();
}


void
file_dialog_widget::_Finish(int result)
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
void
file_dialog_widget::_EndSuggestions()
{
	for (auto* field : findChildren<QLineEdit*>())
		field->setCompleter(nullptr);
	for (auto* suggestions : findChildren<QCompleter*>())
		suggestions->popup()->hide();
}
