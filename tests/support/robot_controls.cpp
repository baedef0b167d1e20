// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The user's hand on lists, check boxes and menu fields.
#include "display/menu_widgets.h"
#include "support/robot.h"

#include <QApplication>
#include <QCheckBox>
#include <QListWidget>
#include <QMouseEvent>
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


// Chooses from the menu that is open, or closes it.
bool
choose_from_popup(const std::string& item)
{
	auto* menu = dynamic_cast<QMenu*>(QApplication::activePopupWidget());
	if (!menu)
		return false;
	for (QAction* action : menu->actions()) {
		if (label_of(action->text()) == item && action->isEnabled()) {
			click_at(*menu, menu->actionGeometry(action).center());
			return true;
		}
	}
	menu->close();
	return false;
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
