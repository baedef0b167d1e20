// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "platform/interface/form.h"

#include <gtest/gtest.h>

namespace {

constexpr BPoint place(10, 10);
constexpr BPoint outside(150, 80);

}


TEST(button, is_invoked_by_a_release_inside)
{
	with_form([](form& page, robot& user) {
		BButton& button = page.button(place, "push");
		user.press(middle(button));
		EXPECT_EQ(page.senders(), journal());
		user.release(middle(button));
		EXPECT_EQ(page.senders(), journal{"push"});
	});
}


TEST(button, is_not_invoked_by_a_release_outside)
{
	with_form([](form& page, robot& user) {
		BButton& button = page.button(place, "push");
		user.press(middle(button));
		user.move(outside);
		user.release(outside);
		EXPECT_EQ(page.senders(), journal());
	});
}


TEST(button, is_invoked_when_the_pointer_has_come_back_inside)
{
	with_form([](form& page, robot& user) {
		BButton& button = page.button(place, "push");
		user.press(middle(button));
		user.move(outside);
		user.move(middle(button));
		user.release(middle(button));
		EXPECT_EQ(page.senders(), journal{"push"});
	});
}


TEST(button, is_not_invoked_by_a_press_that_began_outside)
{
	with_form([](form& page, robot& user) {
		BButton& button = page.button(place, "push");
		user.press(outside);
		user.move(middle(button));
		user.release(middle(button));
		EXPECT_EQ(page.senders(), journal());
	});
}


TEST(button, is_not_invoked_by_the_other_mouse_buttons)
{
	with_form([](form& page, robot& user) {
		BButton& button = page.button(place, "push");
		user.click(middle(button), B_SECONDARY_MOUSE_BUTTON);
		user.click(middle(button), B_TERTIARY_MOUSE_BUTTON);
		EXPECT_EQ(page.senders(), journal());
	});
}


TEST(button, is_invoked_by_each_of_two_quick_clicks)
{
	with_form([](form& page, robot& user) {
		BButton& button = page.button(place, "push");
		user.settle();
		user.act([](QWidget& window) {
			click_into(window, BPoint(30, 20));
			click_into(window, BPoint(30, 20));
		});
		user.settle();
		EXPECT_EQ(page.senders(), (journal{"push", "push"}));
		EXPECT_EQ(button.Value(), B_CONTROL_OFF);
	});
}


TEST(button, has_the_value_1_in_its_message_and_0_otherwise)
{
	with_form([](form& page, robot& user) {
		BButton& button = page.button(place, "push");
		int32 at_receipt = -1;
		page.on_sent = [&](BMessage&) { at_receipt = button.Value(); };
		EXPECT_EQ(button.Value(), 0);
		user.click(middle(button));
		EXPECT_EQ(page.messages().at(0).FindInt32("be:value"), 1);
		EXPECT_EQ(at_receipt, 0);
	});
}


TEST(button, says_when_and_who)
{
	with_form([](form& page, robot& user) {
		BButton& button = page.button(place, "push");
		user.click(middle(button));
		BMessage sent = page.messages().at(0);
		EXPECT_TRUE(sent.HasInt64("when"));
		void* source = nullptr;
		EXPECT_EQ(sent.FindPointer("source", &source), B_OK);
		EXPECT_EQ(source, (void*)&button);
		BMessenger sender;
		EXPECT_EQ(sent.FindMessenger("be:sender", &sender), B_OK);
		EXPECT_EQ(sender, BMessenger(&button));
	});
}


TEST(button, does_not_take_the_keyboard_when_clicked)
{
	with_form([](form& page, robot& user) {
		BButton& button = page.button(place, "push");
		page.locked([&] { page.MakeFocus(); });
		user.click(middle(button));
		EXPECT_EQ(page.focus(), "form");
		EXPECT_FALSE(user.has_keyboard(middle(button)));
	});
}


TEST(button, is_invoked_by_space_and_enter_with_the_keyboard)
{
	with_form([](form& page, robot& user) {
		BButton& button = page.button(place, "push");
		press_tab(user);
		EXPECT_TRUE(user.has_keyboard(middle(button)));
		user.key(Qt::Key_Space, " ");
		EXPECT_EQ(page.senders().size(), 1u);
		press_return(user);
		EXPECT_EQ(page.senders().size(), 2u);
		user.key(Qt::Key_Enter, "\r");
		EXPECT_EQ(page.senders().size(), 3u);
	});
}


TEST(button, is_not_invoked_by_keys_without_the_keyboard)
{
	with_form([](form& page, robot& user) {
		page.button(place, "push");
		user.key(Qt::Key_Space, " ");
		press_return(user);
		EXPECT_EQ(page.senders(), journal());
	});
}


TEST(button, is_not_invoked_by_other_keys)
{
	with_form([](form& page, robot& user) {
		page.button(place, "push");
		press_tab(user);
		user.type("a");
		user.key(Qt::Key_Escape, "\x1b");
		user.key(Qt::Key_Down);
		EXPECT_EQ(page.senders(), journal());
		EXPECT_EQ(page.focus(), "push");
	});
}


TEST(button, that_is_disabled_is_not_invoked)
{
	with_form([](form& page, robot& user) {
		BButton& button = page.button(place, "push");
		page.locked([&] { button.SetEnabled(false); });
		user.click(middle(button));
		EXPECT_EQ(page.senders(), journal());
		page.locked([&] { button.SetEnabled(true); });
		user.click(middle(button));
		EXPECT_EQ(page.senders(), journal{"push"});
	});
}


TEST(button, without_a_message_is_pressed_in_vain)
{
	with_form([](form& page, robot& user) {
		auto& button = page.put(new BButton(BRect(10, 10, 69, 32), "push", "push", nullptr));
		user.click(middle(button));
		EXPECT_EQ(button.Value(), 0);
		EXPECT_EQ(page.senders(), journal());
	});
}


TEST(button, removed_by_its_own_message_does_no_harm)
{
	with_form([](form& page, robot& user) {
		BButton& button = page.button(place, "push");
		page.on_sent = [&](BMessage&) {
			if (page.RemoveChild(page.FindView("push")))
				delete &button;
		};
		user.settle();
		user.act([](QWidget& window) {
			click_into(window, BPoint(30, 20));
			click_into(window, BPoint(30, 20));
		});
		user.settle();
		EXPECT_GE(page.senders().size(), 1u);
		page.locked([&] { EXPECT_EQ(page.CountChildren(), 0); });
	});
}
