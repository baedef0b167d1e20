// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/menu_peers.h"

#include "display/display.h"
#include "display/input.h"
#include "display/menu_widgets.h"
#include "display/view_widget.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

using namespace kits;


namespace {

QAction*
find_action(const QWidget* menu, int32 id)
{
	for (QAction* action : menu->actions()) {
		if (action->data().toInt() == id)
			return action;
		if (QAction* found = action->menu() ? find_action(action->menu(), id) : nullptr)
			return found;
	}
	return nullptr;
}

}


void
kits::fill_menu(QWidget* menu, const std::vector<menu_entry>& entries, report_address report)
{
	for (const menu_entry& entry : entries) {
		QString label = QString::fromStdString(entry.label);
		label.replace('&', "&&");
		if (entry.opens) {
			auto* submenu = new QMenu(label, menu);
			fill_menu(submenu, entry.entries, report);
			submenu->menuAction()->setData(entry.id);
			submenu->menuAction()->setEnabled(entry.enabled);
			menu->addAction(submenu->menuAction());
			continue;
		}
		auto* action = new QAction(label, menu);
		action->setData(entry.id);
		action->setCheckable(entry.marked);
		action->setChecked(entry.marked);
		action->setEnabled(entry.enabled);
		QObject::connect(action, &QAction::triggered, [=] {
			// Choosing has turned a mark off here, which is the program's to do.
			action->setChecked(action->isCheckable());
			BMessage message(menu_chosen);
			message.AddInt32("id", entry.id);
			post_to(report.looper, report.handler, message);
		});
		menu->addAction(action);
	}
}


void
kits::empty_menu(QWidget* menu)
{
	for (QAction* action : menu->actions()) {
		menu->removeAction(action);
		QObject* old = action->menu() ? static_cast<QObject*>(action->menu()) : action;
		old->deleteLater();
	}
}


peer_ref
menu_peers::make_menu_bar(const peer_ref& parent, BRect frame, bool shown,
	const std::vector<menu_entry>& entries, report_address report)
{
	auto made = std::make_shared<peer>();
	display::post([=] {
		if (!parent->widget)
			return;
		auto* bar = new QMenuBar(parent->widget);
		bar->setNativeMenuBar(false);
		fill_menu(bar, entries, report);
		adopt(made, bar, frame, shown);
	});
	return made;
}


void
menu_peers::set_menu_bar(
	const peer_ref& bar, const std::vector<menu_entry>& entries, report_address report)
{
	display::post([=] {
		if (!bar->widget)
			return;
		empty_menu(bar->widget);
		fill_menu(bar->widget, entries, report);
	});
}


void
menu_peers::set_menu_entry(const peer_ref& bar, int32 id, bool marked, bool enabled)
{
	display::post([=] {
		QAction* action = bar->widget ? find_action(bar->widget, id) : nullptr;
		if (!action)
			return;
		action->setCheckable(marked);
		action->setChecked(marked);
		action->setEnabled(enabled);
	});
}


peer_ref
menu_peers::make_menu_field(const peer_ref& parent, BRect frame, bool shown,
	const control_look& look, const menu_field_look& field, report_address report)
{
	auto made = std::make_shared<peer>();
	display::post([=] {
		if (!parent->widget)
			return;
		auto* widget = new menu_field_widget(parent->widget, report);
		adopt(made, widget, frame, shown);
		widget->set(look, field);
	});
	return made;
}


void
menu_peers::set_menu_field(
	const peer_ref& field, const control_look& look, const menu_field_look& content)
{
	display::post([=] {
		if (field->widget)
			static_cast<menu_field_widget*>(field->widget)->set(look, content);
	});
}
