// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// What all controls have in common.
#include "platform/interface/form.h"

#include <gtest/gtest.h>

#include <QWidget>

namespace {

constexpr rgb_color light = {200, 200, 220, 255};
constexpr rgb_color shade = {150, 150, 165, 255};


// A panel that makes its controls when it is attached.
class maker : public BView {
public:
	maker() : BView(BRect(0, 0, 199, 99), "maker", B_FOLLOW_NONE, B_WILL_DRAW) {}

	void AttachedToWindow() override
	{
		SetViewColor(light);
		SetLowColor(shade);
		if (button)
			return;
		button = new BButton(BRect(10, 10, 69, 32), "button", "button", new BMessage('push'));
		field = new BTextControl(BRect(10, 50, 109, 70), "field", "Label", "", nullptr);
		for (BControl* control : {static_cast<BControl*>(button), static_cast<BControl*>(field)}) {
			AddChild(control);
			control->SetTarget(this);
		}
	}

	BButton* button = nullptr;
	BTextControl* field = nullptr;
};

}


TEST(control, is_made_and_asked_without_an_application)
{
	BButton button(BRect(0, 0, 59, 22), "push", "Push", new BMessage('push'));
	EXPECT_STREQ(button.Label(), "Push");
	EXPECT_STREQ(button.Name(), "push");
	EXPECT_EQ(button.Value(), 0);
	EXPECT_TRUE(button.IsEnabled());
	EXPECT_EQ(button.Command(), (uint32)'push');
	EXPECT_EQ(button.Flags(), B_WILL_DRAW | B_NAVIGABLE);
	EXPECT_EQ(button.ResizingMode(), B_FOLLOW_LEFT | B_FOLLOW_TOP);
	button.SetLabel(nullptr);
	button.SetValue(1);
	button.SetEnabled(false);
	button.MakeFocus();
	EXPECT_STREQ(button.Label(), "");
	EXPECT_EQ(button.Value(), 1);
	EXPECT_FALSE(button.IsEnabled());
	EXPECT_FALSE(button.IsFocus());
}


TEST(control, invoked_without_a_target_sends_nothing)
{
	BButton button(BRect(0, 0, 59, 22), "push", "Push", new BMessage('push'));
	EXPECT_NE(button.Invoke(), B_OK);
	BButton silent(BRect(0, 0, 59, 22), "push", "Push", nullptr);
	EXPECT_NE(silent.Invoke(), B_OK);
}


TEST(control, attached_by_hand_does_no_harm)
{
	BTextControl field(BRect(0, 0, 99, 20), "field", "Label", "text", new BMessage('sent'));
	field.AttachedToWindow();
	EXPECT_STREQ(field.Text(), "text");
	EXPECT_EQ(field.Window(), nullptr);
}


TEST(control, is_added_by_a_panel_that_is_attached_by_hand)
{
	maker panel;
	panel.AttachedToWindow();
	EXPECT_EQ(panel.CountChildren(), 2);
	panel.field->SetText("text");
	EXPECT_STREQ(panel.field->Text(), "text");
}


TEST(control, made_before_its_window_works_in_it)
{
	with_form([](form& page, robot& user) {
		auto* panel = new maker;
		panel->AttachedToWindow();
		panel->field->SetText("early");
		page.locked([&] { page.AddChild(panel); });
		EXPECT_EQ(user.field_text(middle(*panel->field) + BPoint(40, 0)), "early");
		user.click(middle(*panel->field) + BPoint(40, 0));
		EXPECT_EQ(page.focus(), "field");
	});
}


TEST(control, that_nobody_has_aimed_sends_to_its_window)
{
	with_form([](form& page, robot& user) {
		auto& window = *static_cast<test_window*>(page.Window());
		auto& button =
			page.put(new BButton(BRect(10, 10, 69, 32), "push", "push", new BMessage('push')));
		user.click(middle(button));
		EXPECT_EQ(window.dispatched('push').size(), 1u);
	});
}


TEST(control, aimed_before_it_is_attached_keeps_its_target)
{
	with_form([](form& page, robot& user) {
		auto* button = new BButton(BRect(10, 10, 69, 32), "push", "push", new BMessage('push'));
		page.locked([&] {
			button->SetTarget(&page);
			page.AddChild(button);
		});
		user.click(middle(*button));
		page.locked([&] { EXPECT_EQ(page.received, std::vector<uint32>{'push'}); });
	});
}


TEST(control, sends_another_message_with_the_same_fields)
{
	with_form([](form& page, robot& user) {
		BButton& button = page.button(BPoint(10, 10), "push");
		page.locked([&] {
			BMessage other('sent');
			other.AddString("from", "elsewhere");
			button.SetValue(7);
			EXPECT_EQ(button.Invoke(&other), B_OK);
			EXPECT_FALSE(other.HasInt64("when")) << "a copy is sent";
		});
		user.settle();
		BMessage sent = page.messages().at(0);
		EXPECT_STREQ(sent.FindString("from"), "elsewhere");
		EXPECT_TRUE(sent.HasInt64("when"));
		EXPECT_TRUE(sent.HasPointer("source"));
		EXPECT_EQ(sent.FindInt32("be:value"), 7);
	});
}


TEST(control, sends_nothing_when_the_program_sets_its_value)
{
	with_form([](form& page, robot& user) {
		BButton& button = page.button(BPoint(10, 10), "push");
		page.locked([&] { button.SetValue(1); });
		user.settle();
		EXPECT_EQ(page.senders(), journal());
	});
}


TEST(control, takes_over_the_colours_of_its_parent)
{
	with_form([](form& page, robot& user) {
		auto& panel = page.put(new maker);
		page.locked([&] {
			for (BView* control : {(BView*)panel.button, (BView*)panel.field}) {
				EXPECT_EQ(control->ViewColor(), light);
				EXPECT_EQ(control->LowColor(), shade);
			}
		});
		// Beside the label's letters.
		EXPECT_EQ(user.count(BRect(50, 51, 58, 69), light), 9 * 19);
	});
}


TEST(control, keeps_those_colours_when_its_parent_changes)
{
	with_form([](form& page, robot& user) {
		auto& panel = page.put(new maker);
		page.locked([&] {
			panel.SetViewColor(0, 0, 0);
			panel.Invalidate();
		});
		EXPECT_EQ(user.pixel(BPoint(150, 90)), black);
		EXPECT_EQ(user.count(BRect(50, 51, 58, 69), light), 9 * 19);
	});
}


TEST(control, whose_label_is_too_long_tells_it_all_in_a_tooltip)
{
	with_form([](form& page, robot& user) {
		BButton& button = page.button(BPoint(10, 10), "short");
		EXPECT_EQ(user.tooltip(middle(button)), "");
		page.locked([&] { button.SetLabel("a label that is far too long"); });
		EXPECT_EQ(user.tooltip(middle(button)), "a label that is far too long");
		page.locked([&] { button.SetLabel("short"); });
		EXPECT_EQ(user.tooltip(middle(button)), "");
		page.locked([&] { button.ResizeTo(15, 22); });
		EXPECT_EQ(user.tooltip(BPoint(15, 20)), "short");
	});
}


TEST(control, that_is_a_field_tells_its_long_label_in_a_tooltip)
{
	with_form([](form& page, robot& user) {
		auto& field = page.put(
			new BTextControl(BRect(10, 10, 109, 30), "field", "a label too long", "", nullptr));
		BPoint label(20, 20);
		EXPECT_EQ(user.tooltip(label), "a label too long");
		page.locked([&] { field.SetLabel("fits"); });
		EXPECT_EQ(user.tooltip(label), "");
	});
}


TEST(control, shows_an_ampersand_as_it_is)
{
	with_form([](form& page, robot& user) {
		auto& plain =
			page.put(new BButton(BRect(0, 0, 59, 22), "plain", "A & B", new BMessage('push')));
		auto& none =
			page.put(new BButton(BRect(60, 0, 119, 22), "none", "A  B", new BMessage('push')));
		auto& field =
			page.put(new BTextControl(BRect(0, 50, 99, 70), "field", "A & B", "", nullptr));
		BRect letters(10, 4, 49, 18);
		EXPECT_LT(user.count(letters, user.pixel(BPoint(5, 5))),
			user.count(BRect(70, 4, 109, 18), user.pixel(BPoint(65, 5))))
			<< "more ink than without it";
		user.act([&](QWidget& window) { press_key(window, Qt::Key_B, "b", Qt::AltModifier); });
		user.settle();
		page.locked([&] {
			EXPECT_EQ(plain.Value() + none.Value(), 0);
			EXPECT_FALSE(field.IsFocus());
		});
	});
}


TEST(control, lets_no_press_or_move_through_to_the_view_behind)
{
	with_form([](form& page, robot& user) {
		BButton& button = page.button(BPoint(120, 10), "push");
		BButton& off = page.button(BPoint(120, 40), "off");
		auto& field =
			page.put(new BTextControl(BRect(10, 10, 109, 30), "field", "Label", "text", nullptr));
		auto& dead =
			page.put(new BTextControl(BRect(10, 50, 109, 70), "dead", "Label", "text", nullptr));
		page.locked([&] {
			off.SetEnabled(false);
			dead.SetEnabled(false);
		});
		for (BPoint place : {middle(button), middle(off), BPoint(20, 20), BPoint(80, 20),
				 BPoint(20, 60), BPoint(80, 60)}) {
			for (int32 with : {B_TERTIARY_MOUSE_BUTTON, B_SECONDARY_MOUSE_BUTTON}) {
				user.press(place, with);
				user.move(place + BPoint(1, 1));
				user.release(place + BPoint(1, 1), with);
				user.act([](QWidget&) { close_popup(); });
			}
		}
		page.locked([&] { EXPECT_EQ(page.pointer, journal()); });
		EXPECT_EQ(field.CountChildren(), 0);
	});
}


TEST(control, lets_no_pen_through_to_the_view_behind)
{
	with_form([](form& page, robot& user) {
		BButton& button = page.button(BPoint(120, 10), "push");
		page.field(BPoint(10, 10), "field");
		for (BPoint place : {middle(button), BPoint(60, 20)}) {
			user.pen_down(place, {0.5f});
			user.pen_move(place, {0.5f});
			user.pen_up(place, {});
		}
		page.locked([&] { EXPECT_EQ(page.pointer, journal()); });
	});
}
