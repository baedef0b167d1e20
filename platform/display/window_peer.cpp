// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/window_peer.h"

#include "display/convert.h"
#include "display/display.h"
#include "display/view_widget.h"
#include "display/window_widget.h"

#include <QApplication>

using namespace kits;


namespace {

// Runs with the widget, if it is there.
template <typename Work>
void
with_window(const peer_ref& window, Work work)
{
	display::post([=] {
		if (window->widget)
			work(*static_cast<window_widget*>(window->widget));
	});
}

}


peer_ref
window_peers::make(BRect frame, const std::string& title, int32 looper,
	const std::shared_ptr<pointer_record>& pointer)
{
	auto made = std::make_shared<peer>();
	display::post([=] {
		auto* widget = new window_widget(looper, pointer);
		widget->setWindowTitle(QString::fromStdString(title));
		adopt(made, widget, frame, false);
	});
	return made;
}


float
window_peers::ratio(const peer_ref& window)
{
	qreal found = 1;
	display::call([&] {
		if (window->widget)
			found = window->widget->devicePixelRatio();
	});
	return (float)found;
}


BPoint
window_peers::position(const peer_ref& window)
{
	QPoint found;
	display::call([&] {
		if (window->widget)
			found = window->widget->mapToGlobal(QPoint(0, 0));
	});
	return BPoint((float)found.x(), (float)found.y());
}


void
window_peers::show(const peer_ref& window, bool shown)
{
	with_window(window, [=](window_widget& widget) { widget.set_shown(shown); });
}


void
window_peers::show_late(const peer_ref& window)
{
	with_window(window, [](window_widget& widget) { widget.show_late(); });
}


void
window_peers::set_position(const peer_ref& window, BPoint leftTop, int32 serial)
{
	QPoint place = to_qrect(BRect(leftTop, leftTop)).topLeft();
	with_window(
		window, [=](window_widget& widget) { widget.set_position(place.x(), place.y(), serial); });
}


void
window_peers::set_size(const peer_ref& window, int32 width, int32 height, int32 serial)
{
	with_window(window, [=](window_widget& widget) { widget.set_size(width, height, serial); });
}


void
window_peers::set_limits(const peer_ref& window, size_limits limits)
{
	with_window(window, [=](window_widget& widget) { widget.set_limits(limits); });
}
