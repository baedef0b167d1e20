// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/field_peers.h"

#include "display/button_widgets.h"
#include "display/display.h"
#include "display/text_widget.h"
#include "display/view_widget.h"
#include "display/window_widget.h"

using namespace kits;


peer_ref
field_peers::make_button(const peer_ref& parent, BRect frame, bool shown, const control_look& look,
	report_address report)
{
	auto made = std::make_shared<peer>();
	display::post([=] {
		if (!parent->widget)
			return;
		auto* button = new button_widget(parent->widget, report);
		button->set(look);
		adopt(made, button, frame, shown);
	});
	return made;
}


void
field_peers::set_button(const peer_ref& button, const control_look& look)
{
	display::post([=] {
		if (button->widget)
			static_cast<button_widget*>(button->widget)->set(look);
	});
}


peer_ref
field_peers::make_check_box(const peer_ref& parent, BRect frame, bool shown,
	const control_look& look, report_address report)
{
	auto made = std::make_shared<peer>();
	display::post([=] {
		if (!parent->widget)
			return;
		auto* box = new check_widget(parent->widget, report);
		adopt(made, box, frame, shown);
		box->set(look);
	});
	return made;
}


void
field_peers::set_check_box(const peer_ref& box, const control_look& look)
{
	display::post([=] {
		if (box->widget)
			static_cast<check_widget*>(box->widget)->set(look);
	});
}


peer_ref
field_peers::make_text(const peer_ref& parent, BRect frame, bool shown, const control_look& look,
	float divider, report_address report)
{
	auto made = std::make_shared<peer>();
	display::post([=] {
		if (!parent->widget)
			return;
		auto* field = new text_widget(parent->widget, report);
		adopt(made, field, frame, shown);
		field->set(look, divider);
	});
	return made;
}


void
field_peers::set_text_look(const peer_ref& field, const control_look& look, float divider)
{
	display::post([=] {
		if (field->widget)
			static_cast<text_widget*>(field->widget)->set(look, divider);
	});
}


void
field_peers::set_text(const peer_ref& field, const std::string& text, int32 seen)
{
	display::post([=] {
		if (field->widget)
			static_cast<text_widget*>(field->widget)->set_text(text, seen);
	});
}


void
field_peers::focus(const peer_ref& window, const peer_ref& view, int32 seen)
{
	display::post([=] {
		if (window->widget)
			static_cast<window_widget*>(window->widget)
				->focus()
				.give(view ? view->widget : nullptr, seen);
	});
}


void
field_peers::press_answered(const peer_ref& window)
{
	display::post([=] {
		if (window->widget)
			static_cast<window_widget*>(window->widget)->ahead().answered();
	});
}
