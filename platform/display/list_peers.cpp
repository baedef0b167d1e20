// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/list_peers.h"

#include "display/convert.h"
#include "display/display.h"
#include "display/list_widget.h"
#include "display/view_widget.h"

using namespace kits;


namespace {

// Runs on the display while the list is there.
template <typename Work>
void
with(const peer_ref& list, Work work)
{
	display::post([=] {
		if (list->widget)
			work(*static_cast<list_widget*>(list->widget));
	});
}

}


peer_ref
list_peers::make(const peer_ref& parent, BRect frame, bool shown, const control_look& look,
	rgb_color text, bool multiple, report_address report)
{
	auto made = std::make_shared<peer>();
	display::post([=] {
		if (!parent->widget)
			return;
		auto* list = new list_widget(parent->widget, multiple, report);
		list->set(look, to_qcolor(text));
		adopt(made, list, frame, shown);
	});
	return made;
}


void
list_peers::set_look(const peer_ref& list, const control_look& look, rgb_color text)
{
	with(list, [=](list_widget& widget) { widget.set(look, to_qcolor(text)); });
}


void
list_peers::insert(const peer_ref& list, int32 row, const std::string& text, int32 serial)
{
	with(list, [=](list_widget& widget) { widget.insert(row, row_text(text), serial); });
}


void
list_peers::remove(const peer_ref& list, int32 row, int32 serial)
{
	with(list, [=](list_widget& widget) { widget.remove(row, serial); });
}


void
list_peers::empty(const peer_ref& list, int32 serial)
{
	with(list, [=](list_widget& widget) { widget.empty(serial); });
}


void
list_peers::set_text(const peer_ref& list, int32 row, const std::string& text)
{
	with(list, [=](list_widget& widget) {
		if (QListWidgetItem* item = widget.item(row))
			item->setText(row_text(text));
	});
}


void
list_peers::select(const peer_ref& list, const std::vector<int32>& rows, int32 serial)
{
	with(list, [=](list_widget& widget) { widget.select(rows, serial); });
}
