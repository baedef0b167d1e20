// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/list_widget.h"

#include "display/list_peers.h"
#include "display/look.h"

#include <algorithm>
#include <QHelpEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QTextDocument>
#include <QToolTip>

using namespace kits;


namespace {

// Left and right of a row's text, as the style has it.
constexpr int margin = 3;


// Keeps its text in UTF-8, in half the room: a list may have many thousands of rows.
class row_item : public QListWidgetItem {
public:
	explicit row_item(const QString& text) : fText(text.toStdString()) {}

	QVariant data(int role) const override
	{
		return role == Qt::DisplayRole ? QString::fromStdString(fText)
									   : QListWidgetItem::data(role);
	}

	void setData(int role, const QVariant& value) override
	{
		if (role != Qt::DisplayRole) {
			QListWidgetItem::setData(role, value);
			return;
		}
		fText = value.toString().toStdString();
		if (listWidget())
			listWidget()->viewport()->update();
	}

private:
	std::string fText;
};


class row_delegate : public QStyledItemDelegate {
public:
	using QStyledItemDelegate::QStyledItemDelegate;

	// A row is as wide as the list, whatever its text.
	QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override
	{
		return QSize(0, option.fontMetrics.height() + 1);
	}

	// What is cut off is told when the pointer rests on it; as it stands, whatever it looks like.
	bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
		const QModelIndex& index) override
	{
		if (event->type() != QEvent::ToolTip)
			return QStyledItemDelegate::helpEvent(event, view, option, index);
		QString text = index.data().toString();
		int room = option.rect.width() - 2 * margin;
		bool fits = option.fontMetrics.horizontalAdvance(text) <= room;
		QToolTip::showText(event->globalPos(),
			fits ? QString() : Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal),
			view->viewport(), option.rect);
		return true;
	}

protected:
	void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
	{
		QStyledItemDelegate::initStyleOption(option, index);
		// The list as a whole has the keyboard, not a row.
		option->state &= ~(QStyle::State_HasFocus | QStyle::State_MouseOver);
	}
};

}


QString
kits::row_text(const std::string& text)
{
	QString line = QString::fromStdString(text);
	for (QChar& letter : line) {
		if (letter.category() == QChar::Other_Control)
			letter = ' ';
	}
	return line;
}


list_widget::list_widget(QWidget* parent, bool multiple, report_address address)
	: keyboard_holder(address, parent)
{
	setFrameShape(QFrame::NoFrame);
	setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
	setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
	setSelectionMode(multiple ? ExtendedSelection : SingleSelection);
	setEditTriggers(NoEditTriggers);
	setDragDropMode(NoDragDrop);
	// Dropped files are for the view behind.
	setAcceptDrops(false);
	viewport()->setAcceptDrops(false);
	setUniformItemSizes(true);
	setItemDelegate(new row_delegate(this));
	connect(selectionModel(), &QItemSelectionModel::selectionChanged, this,
		&list_widget::_SelectionChanged);
	connect(this, &QListWidget::doubleClicked, this, &list_widget::_ReportInvocation);
}


void
list_widget::set(const control_look& look, const QColor& text)
{
	apply(look, *this);
	QPalette colours = palette();
	colours.setColor(QPalette::Base, colours.color(QPalette::Window));
	colours.setColor(QPalette::Text, text);
	setPalette(colours);
	setFocusPolicy(look.navigable ? Qt::StrongFocus : Qt::ClickFocus);
}


// The program changes the rows. What the user selected before is told first, with the old serial.
void
list_widget::_BeginChange(int32 serial)
{
	_ReportHeld();
	fSerial = serial;
	fQuiet = true;
}


void
list_widget::insert(int row, const QString& text, int32 serial)
{
	_BeginChange(serial);
	insertItem(row, new row_item(text));
	fQuiet = false;
}


void
list_widget::remove(int row, int32 serial)
{
	_BeginChange(serial);
	// Else the toolkit would select the row beside.
	selectionModel()->setCurrentIndex(QModelIndex(), QItemSelectionModel::NoUpdate);
	delete takeItem(row);
	fQuiet = false;
}


void
list_widget::empty(int32 serial)
{
	_BeginChange(serial);
	clear();
	fQuiet = false;
}


void
list_widget::select(const std::vector<int32>& rows, int32 serial)
{
	_BeginChange(serial);
	QItemSelection selection;
	for (int32 row : rows) {
		QModelIndex index = model()->index(row, 0);
		selection.select(index, index);
	}
	selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
	_StartFromSelection();
	fQuiet = false;
}


// Where the arrow keys go from.
void
list_widget::_StartFromSelection()
{
	QModelIndexList selected = selectedIndexes();
	if (selected.contains(currentIndex()))
		return;
	selectionModel()->setCurrentIndex(
		selected.isEmpty() ? QModelIndex() : selected.first(), QItemSelectionModel::NoUpdate);
}


// Below the last row nothing happens, and a single row is not let go of.
QItemSelectionModel::SelectionFlags
list_widget::selectionCommand(const QModelIndex& index, const QEvent* event) const
{
	if (!index.isValid())
		return QItemSelectionModel::NoUpdate;
	if (selectionMode() == SingleSelection)
		return QItemSelectionModel::ClearAndSelect;
	return QListWidget::selectionCommand(index, event);
}


void
list_widget::focusInEvent(QFocusEvent* event)
{
	keyboard_holder::focusInEvent(event);
	_StartFromSelection();
}


void
list_widget::keyPressEvent(QKeyEvent* event)
{
	switch (event->key()) {
		case Qt::Key_Up:
		case Qt::Key_Down:
		case Qt::Key_Home:
		case Qt::Key_End:
		case Qt::Key_PageUp:
		case Qt::Key_PageDown:
			fMovingByKey = true;
			QListWidget::keyPressEvent(event);
			fMovingByKey = false;
			event->accept();
			break;
		case Qt::Key_Return:
		case Qt::Key_Enter:
			if (!event->isAutoRepeat()) {
				_ReportHeld();
				_ReportInvocation();
			}
			break;
		default:
			event->ignore();
	}
}


void
list_widget::keyReleaseEvent(QKeyEvent* event)
{
	QListWidget::keyReleaseEvent(event);
	_ReportHeld();
}


void
list_widget::paintEvent(QPaintEvent* event)
{
	keyboard_holder::paintEvent(event);
	if (!hasFocus())
		return;
	QPainter paint(viewport());
	paint.setPen(palette().color(QPalette::Highlight));
	paint.drawRect(viewport()->rect().adjusted(0, 0, -1, -1));
}


// A held key moves on and is reported once, when it is let go.
void
list_widget::_SelectionChanged()
{
	if (fQuiet)
		return;
	fHeldBack = fMovingByKey;
	if (!fHeldBack)
		_ReportSelection();
}


void
list_widget::_ReportHeld()
{
	if (fHeldBack)
		_ReportSelection();
	fHeldBack = false;
}


void
list_widget::_ReportSelection()
{
	std::vector<int> rows;
	for (const QModelIndex& index : selectedIndexes())
		rows.push_back(index.row());
	std::sort(rows.begin(), rows.end());
	BMessage message(list_selected);
	message.AddInt32("serial", fSerial);
	for (int row : rows)
		message.AddInt32("row", row);
	report(message);
}


void
list_widget::_ReportInvocation()
{
	BMessage message(list_invoked);
	message.AddInt32("serial", fSerial);
	report(message);
}
