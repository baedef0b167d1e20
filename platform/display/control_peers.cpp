// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/control_peers.h"

#include "display/display.h"
#include "display/input.h"
#include "display/view_widget.h"

#include <cmath>
#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QScrollBar>
#include <QSignalBlocker>

using namespace kits;


namespace {

void
send_report(report_address report, uint32 what, const char* field, int32 value)
{
	BMessage message(what);
	message.AddInt32(field, value);
	post_to(report.looper, report.handler, message);
}


// Qt's thumb is pageStep of range + pageStep; the kit's is a given part of the bar, and its large
// step is its own. The thumb wins, since it is what one sees.
int
page_of(const scroll_bar_look& look)
{
	float part = std::min(look.proportion, 0.999F);
	return std::max(1, (int)std::lround((float)(look.max - look.min) * part / (1 - part)));
}


// Clicks beside the thumb move by the kit's large step, whatever the thumb's length says.
class scroll_bar_widget : public QScrollBar {
public:
	scroll_bar_widget(Qt::Orientation posture, QWidget* parent) : QScrollBar(posture, parent)
	{
		connect(this, &QScrollBar::actionTriggered, [this](int action) {
			if (action == SliderPageStepAdd)
				setSliderPosition(value() + fLargeStep);
			else if (action == SliderPageStepSub)
				setSliderPosition(value() - fLargeStep);
		});
	}

	void set(const scroll_bar_look& look)
	{
		QSignalBlocker quiet(this);
		fLargeStep = look.large_step;
		setRange(look.min, look.max);
		setPageStep(page_of(look));
		setSingleStep(look.small_step);
		setValue(look.value);
		setEnabled(look.min < look.max);
	}

private:
	int fLargeStep = 0;
};


void
fill(QWidget* menu, const std::vector<menu_entry>& entries, report_address report)
{
	for (const menu_entry& entry : entries) {
		QString label = QString::fromStdString(entry.label);
		label.replace('&', "&&");
		if (entry.opens) {
			auto* submenu = new QMenu(label, menu);
			fill(submenu, entry.entries, report);
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
			send_report(report, menu_chosen, "id", entry.id);
		});
		menu->addAction(action);
	}
}


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


peer_ref
control_peers::make_scroll_bar(const peer_ref& parent, BRect frame, bool shown, bool vertical,
	const scroll_bar_look& look, report_address report)
{
	auto made = std::make_shared<peer>();
	display::post([=] {
		if (!parent->widget)
			return;
		auto* bar = new scroll_bar_widget(vertical ? Qt::Vertical : Qt::Horizontal, parent->widget);
		bar->set(look);
		QObject::connect(bar, &QScrollBar::valueChanged,
			[=](int value) { send_report(report, scrolled, "value", value); });
		adopt(made, bar, frame, shown);
	});
	return made;
}


void
control_peers::set_scroll_bar(const peer_ref& bar, const scroll_bar_look& look)
{
	display::post([=] {
		if (bar->widget)
			static_cast<scroll_bar_widget*>(bar->widget)->set(look);
	});
}


peer_ref
control_peers::make_menu_bar(const peer_ref& parent, BRect frame, bool shown,
	const std::vector<menu_entry>& entries, report_address report)
{
	auto made = std::make_shared<peer>();
	display::post([=] {
		if (!parent->widget)
			return;
		auto* bar = new QMenuBar(parent->widget);
		bar->setNativeMenuBar(false);
		fill(bar, entries, report);
		adopt(made, bar, frame, shown);
	});
	return made;
}


void
control_peers::set_menu_bar(
	const peer_ref& bar, const std::vector<menu_entry>& entries, report_address report)
{
	display::post([=] {
		if (!bar->widget)
			return;
		auto* widget = static_cast<QMenuBar*>(bar->widget);
		for (QAction* action : widget->actions()) {
			QObject* old = action->menu() ? static_cast<QObject*>(action->menu()) : action;
			old->deleteLater();
		}
		widget->clear();
		fill(widget, entries, report);
	});
}


void
control_peers::set_menu_entry(const peer_ref& bar, int32 id, bool marked, bool enabled)
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
