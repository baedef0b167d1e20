// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The user's hand on menus, scroll bars, lists and other controls.
#include "display/convert.h"
#include "display/menu_widgets.h"
#include "support/robot.h"

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QMouseEvent>
#include <QScrollBar>
#include <QWindow>

using namespace kits;


namespace {

// The control of that class which is at the place or holds what is.
template <typename Control>
Control*
control_at(QWidget* window, BPoint where)
{
	QWidget* found = window ? window->childAt((int)where.x, (int)where.y) : nullptr;
	while (found && !dynamic_cast<Control*>(found))
		found = found->parentWidget();
	return dynamic_cast<Control*>(found);
}


std::string
label_of(QString text)
{
	return text.replace("&&", "&").toStdString();
}


QCheckBox*
box_of(QWidget* window, const std::string& label)
{
	for (QCheckBox* box : window ? window->findChildren<QCheckBox*>() : QList<QCheckBox*>()) {
		if (box->isVisible() && label_of(box->text()) == label)
			return box;
	}
	return nullptr;
}


BPoint
to_window(const QWidget& widget, QPoint place)
{
	QPoint found = widget.mapTo(widget.window(), place);
	return BPoint((float)found.x(), (float)found.y());
}


void
click_at(QWidget& window, QPointF place)
{
	QPointF screen = window.windowHandle()->mapToGlobal(place);
	for (auto type : {QEvent::MouseMove, QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
		bool moves = type == QEvent::MouseMove;
		bool down = type == QEvent::MouseButtonPress;
		QMouseEvent event(type, place, place, screen, moves ? Qt::NoButton : Qt::LeftButton,
			down ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
		QCoreApplication::sendEvent(window.windowHandle(), &event);
	}
}


// A hand gets to a place by several moves. A press on a menu to which the pointer has not moved
// closes the menu.
void
reach(QWidget& window, QPointF place)
{
	for (int step = 8; step > 0; step--) {
		const QPointF there = place + QPointF(step, 0);
		QMouseEvent event(QEvent::MouseMove, there, there,
			window.windowHandle()->mapToGlobal(there), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
		QCoreApplication::sendEvent(window.windowHandle(), &event);
	}
}


// Chooses from the menu that is open, or closes it.
bool
choose_from_popup(const std::string& item)
{
	auto* menu = dynamic_cast<QMenu*>(QApplication::activePopupWidget());
	if (!menu)
		return false;
	for (QAction* action : menu->actions()) {
		if (label_of(action->text()) == item && action->isEnabled()) {
			const QPoint place = menu->actionGeometry(action).center();
			reach(*menu, place);
			click_at(*menu, place);
			return true;
		}
	}
	menu->close();
	return false;
}


// Lists have bars that nobody sees.
bool
is_meant(const QScrollBar& bar, orientation posture)
{
	return bar.isVisible() && (bar.orientation() == Qt::Vertical) == (posture == B_VERTICAL);
}


QAction*
find_item(const QWidget* window, const std::string& menu, const std::string& item)
{
	const auto* bar = window ? window->findChild<QMenuBar*>() : nullptr;
	if (!bar)
		return nullptr;
	for (QAction* top : bar->actions()) {
		if (top->text().toStdString() != menu || !top->menu())
			continue;
		for (QAction* action : top->menu()->actions()) {
			if (action->text().toStdString() == item)
				return action;
		}
	}
	return nullptr;
}

}


std::vector<std::string>
robot::list_rows(BPoint where)
{
	std::vector<std::string> rows;
	on_display([&] {
		auto* list = control_at<QListWidget>(_Window(), where);
		for (int row = 0; list && row < list->count(); row++)
			rows.push_back(list->item(row)->text().toStdString());
	});
	return rows;
}


std::vector<int>
robot::selected_rows(BPoint where)
{
	std::vector<int> rows;
	on_display([&] {
		auto* list = control_at<QListWidget>(_Window(), where);
		for (int row = 0; list && row < list->count(); row++) {
			if (list->item(row)->isSelected())
				rows.push_back(row);
		}
	});
	return rows;
}


bool
robot::choose_row(BPoint where, int row, int32 modifiers)
{
	BPoint place;
	bool found = false;
	settle();
	act([&](QWidget& window) {
		auto* list = control_at<QListWidget>(&window, where);
		QListWidgetItem* item = list ? list->item(row) : nullptr;
		if (!item)
			return;
		found = true;
		list->scrollToItem(item);
		place = to_window(*list->viewport(), list->visualItemRect(item).center());
	});
	if (found)
		click(place, B_PRIMARY_MOUSE_BUTTON, modifiers);
	return found;
}


bool
robot::tick(const std::string& label)
{
	BPoint place;
	bool found = false;
	on_display([&] {
		if (QCheckBox* box = box_of(_Window(), label)) {
			found = true;
			place = to_window(*box, box->rect().center());
		}
	});
	if (found)
		click(place);
	return found;
}


bool
robot::is_ticked(const std::string& label)
{
	bool ticked = false;
	on_display([&] {
		QCheckBox* box = box_of(_Window(), label);
		ticked = box && box->isChecked();
	});
	return ticked;
}


std::string
robot::menu_field_text(BPoint where)
{
	std::string text;
	on_display([&] {
		if (auto* button = control_at<menu_button>(_Window(), where))
			text = label_of(button->text());
	});
	return text;
}


std::vector<std::string>
robot::menu_field_items(BPoint where)
{
	std::vector<std::string> labels;
	on_display([&] {
		auto* button = control_at<menu_button>(_Window(), where);
		for (QAction* action : button ? button->findChild<QMenu*>()->actions() : QList<QAction*>())
			labels.push_back(label_of(action->text()));
	});
	return labels;
}


bool
robot::choose_menu_field(BPoint where, const std::string& item)
{
	bool found = false;
	click(where);
	act([&](QWidget&) { found = choose_from_popup(item); });
	settle();
	return found;
}


std::string
robot::field_text(BPoint where)
{
	std::string text;
	on_display([&] {
		QWidget* found = _Window()->childAt((int)where.x, (int)where.y);
		if (auto* line = dynamic_cast<QLineEdit*>(found))
			text = to_bytes(line->text());
	});
	return text;
}


bool
robot::has_keyboard(BPoint where)
{
	bool has = false;
	on_display([&] {
		QWidget* found = _Window()->childAt((int)where.x, (int)where.y);
		// The face of a list is a part of it.
		while (found && found->focusProxy())
			found = found->focusProxy();
		has = found && _Window()->focusWidget() == found;
	});
	return has;
}


std::string
robot::tooltip(BPoint where)
{
	std::string text;
	on_display([&] {
		if (QWidget* found = _Window()->childAt((int)where.x, (int)where.y))
			text = found->toolTip().toStdString();
	});
	return text;
}


bool
robot::choose_menu(const std::string& menu, const std::string& item)
{
	bool found = false;
	settle();
	_Act([&] {
		QAction* action = find_item(_Window(), menu, item);
		found = action && action->isEnabled();
		if (found)
			action->trigger();
	});
	settle();
	return found;
}


bool
robot::menu_is_marked(const std::string& menu, const std::string& item)
{
	bool marked = false;
	on_display([&] {
		QAction* action = find_item(_Window(), menu, item);
		marked = action && action->isChecked();
	});
	return marked;
}


std::vector<int>
robot::scroll_bar(orientation posture)
{
	std::vector<int> values;
	on_display([&] {
		for (QScrollBar* bar : _Window()->findChildren<QScrollBar*>()) {
			if (is_meant(*bar, posture))
				values = {bar->minimum(), bar->maximum(), bar->value(), bar->pageStep()};
		}
	});
	return values;
}


void
robot::drag_scroll_bar(orientation posture, int value)
{
	settle();
	_Act([&] {
		for (QScrollBar* bar : _Window()->findChildren<QScrollBar*>()) {
			if (is_meant(*bar, posture))
				bar->setValue(value);
		}
	});
	settle();
}
