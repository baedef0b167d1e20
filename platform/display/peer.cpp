// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/peer.h"

#include "display/convert.h"
#include "display/display.h"
#include "display/focus.h"
#include "display/view_widget.h"

using namespace kits;


namespace {

void
leave(const QWidget& widget)
{
	if (focus_keeper* keeper = focus_keeper_of(widget))
		keeper->leave(widget);
}

}


peer_ref
peers::make_view(const peer_ref& parent, BRect frame, bool shown, bool navigable,
	report_address report, const std::shared_ptr<front_image>& front)
{
	auto made = std::make_shared<peer>();
	display::post([=] {
		if (!parent->widget)
			return;
		auto* widget = new view_widget(parent->widget, report, front);
		widget->setFocusPolicy(navigable ? Qt::TabFocus : Qt::NoFocus);
		adopt(made, widget, frame, shown);
	});
	return made;
}


void
kits::adopt(const peer_ref& owner, QWidget* widget, BRect frame, bool shown)
{
	owner->widget = widget;
	QObject::connect(widget, &QObject::destroyed, [owner] { owner->widget = nullptr; });
	widget->setGeometry(to_qrect(frame));
	widget->setVisible(shown);
}


void
peers::set_frame(const peer_ref& view, BRect frame)
{
	display::post([=] {
		if (view->widget)
			view->widget->setGeometry(to_qrect(frame));
	});
}


void
peers::set_shown(const peer_ref& view, bool shown)
{
	display::post([=] {
		if (!view->widget)
			return;
		if (!shown)
			leave(*view->widget);
		view->widget->setVisible(shown);
	});
}


void
peers::set_navigable(const peer_ref& view, bool navigable)
{
	display::post([=] {
		if (!view->widget)
			return;
		QWidget* stop = view->widget->focusProxy() ? view->widget->focusProxy() : view->widget;
		int others = stop->focusPolicy() & ~Qt::TabFocus;
		stop->setFocusPolicy(Qt::FocusPolicy(others | (navigable ? Qt::TabFocus : Qt::NoFocus)));
	});
}


void
peers::set_front(const peer_ref& view, const std::shared_ptr<front_image>& front)
{
	display::post([=] {
		if (view->widget)
			static_cast<view_widget*>(view->widget)->show_front(front);
	});
}


void
peers::stack_under(const peer_ref& view, const peer_ref& other)
{
	display::post([=] {
		if (view->widget && other->widget)
			view->widget->stackUnder(other->widget);
	});
}


void
peers::update(const peer_ref& view, const std::shared_ptr<front_image>& front, BRect dirty)
{
	{
		std::lock_guard guard(front->lock);
		front->dirty = front->asked ? front->dirty | dirty : dirty;
		if (front->asked)
			return;
		front->asked = true;
	}
	display::post([=] {
		BRect place;
		{
			std::lock_guard guard(front->lock);
			front->asked = false;
			place = front->dirty;
		}
		if (view->widget)
			view->widget->update(to_qrect(place));
	});
}


void
peers::destroy(const peer_ref& view)
{
	display::post([=] {
		if (!view->widget)
			return;
		leave(*view->widget);
		view->widget->setVisible(false);
		view->widget->deleteLater();
	});
}
