// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// What the user does while the window's thread is busy takes effect where the user put it.
#include "platform/interface/form.h"

#include <gtest/gtest.h>

#include <QWidget>

namespace {

constexpr BPoint upper(10, 10);
constexpr BPoint lower(10, 40);
constexpr BPoint lowest(10, 70);
constexpr BPoint in_upper(30, 20);
constexpr BPoint in_lower(30, 50);
constexpr BPoint on_canvas(170, 50);


// A view that may take the keyboard when it is pressed, and notes presses and keys.
class canvas_view : public test_view {
public:
	explicit canvas_view(bool takes) : test_view(BRect(120, 0, 199, 99), "canvas"), fTakes(takes) {}

	std::string noted;

	void MouseDown(BPoint) override
	{
		noted += '!';
		if (fTakes)
			MakeFocus();
	}

	void KeyDown(const char* bytes, int32 numBytes) override { noted.append(bytes, numBytes); }

private:
	const bool fTakes;
};


// Everything in one go, while the window's thread can do nothing.
void
while_busy(form& page, robot& user, const std::function<void(QWidget&)>& work)
{
	page.locked([&] { user.act(work); });
	user.settle();
}

}


TEST(typing_ahead, after_tab_goes_into_the_next_field)
{
	with_form([](form& page, robot& user) {
		BTextControl& first = page.field(upper, "first");
		BTextControl& second = page.field(lower, "second");
		BTextControl& third = page.field(lowest, "third");
		user.click(middle(first));
		while_busy(page, user, [](QWidget& window) {
			type_into(window, "41");
			press_key(window, Qt::Key_Tab, "\t");
			type_into(window, "5a");
			press_key(window, Qt::Key_Tab, "\t");
			type_into(window, "3");
			press_key(window, Qt::Key_Return, "\r");
		});
		EXPECT_EQ(page.text_of(first), "41");
		EXPECT_EQ(page.text_of(second), "5a");
		EXPECT_EQ(page.text_of(third), "3");
		EXPECT_EQ(page.senders(), (journal{"first", "second", "third"}));
		EXPECT_EQ(page.focus(), "third");
	});
}


TEST(typing_ahead, after_shift_tab_goes_into_the_field_before)
{
	with_form([](form& page, robot& user) {
		BTextControl& first = page.field(upper, "first");
		BTextControl& second = page.field(lower, "second");
		user.click(middle(second));
		while_busy(page, user, [](QWidget& window) {
			press_key(window, Qt::Key_Backtab, "", Qt::ShiftModifier);
			type_into(window, "a");
		});
		EXPECT_EQ(page.text_of(first), "a");
		EXPECT_EQ(page.text_of(second), "");
	});
}


TEST(typing_ahead, presses_the_button_that_tab_has_come_to)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field");
		page.button(BPoint(120, 10), "button");
		user.click(middle(field));
		while_busy(page, user, [](QWidget& window) {
			type_into(window, "x");
			press_key(window, Qt::Key_Tab, "\t");
			press_key(window, Qt::Key_Space, " ");
		});
		EXPECT_EQ(page.senders(), (journal{"field", "button"}));
	});
}


TEST(typing_ahead, selects_what_the_next_field_holds)
{
	with_form([](form& page, robot& user) {
		BTextControl& first = page.field(upper, "first");
		BTextControl& second = page.field(lower, "second", "old");
		user.click(middle(first));
		while_busy(page, user, [](QWidget& window) {
			press_key(window, Qt::Key_Tab, "\t");
			type_into(window, "n");
		});
		EXPECT_EQ(page.text_of(second), "n");
	});
}


TEST(typing_ahead,
	stays_in_the_field_that_the_user_clicked_when_the_program_deals_with_an_older_press)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field");
		auto& canvas = page.put(new canvas_view(true));
		while_busy(page, user, [](QWidget& window) {
			click_into(window, on_canvas);
			click_into(window, in_upper);
			type_into(window, "new");
		});
		EXPECT_EQ(page.text_of(field), "new");
		EXPECT_EQ(page.focus(), "field");
		EXPECT_TRUE(user.has_keyboard(in_upper));
		page.locked([&] { EXPECT_EQ(canvas.noted, "!"); });
		press_return(user);
		EXPECT_EQ(page.senders(), journal{"field"});
	});
}


TEST(typing_ahead, goes_to_the_view_that_takes_the_keyboard_when_it_is_pressed)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field", "old");
		auto& canvas = page.put(new canvas_view(true));
		user.click(in_upper);
		while_busy(page, user, [](QWidget& window) {
			click_into(window, on_canvas);
			type_into(window, "ab");
			press_key(window, Qt::Key_Delete, "\x7f");
		});
		page.locked([&] { EXPECT_EQ(canvas.noted, "!ab\x7f"); });
		EXPECT_EQ(page.text_of(field), "old");
		EXPECT_EQ(user.field_text(in_upper), "old");
	});
}


TEST(typing_ahead, stays_in_the_field_when_the_pressed_view_leaves_it_the_keyboard)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field");
		auto& canvas = page.put(new canvas_view(false));
		user.click(in_upper);
		while_busy(page, user, [](QWidget& window) {
			click_into(window, on_canvas);
			type_into(window, "ab");
			click_into(window, on_canvas);
			type_into(window, "c");
		});
		page.locked([&] { EXPECT_EQ(canvas.noted, "!!"); });
		EXPECT_EQ(page.text_of(field), "abc");
	});
}


TEST(typing_ahead, keeps_its_place_among_presses_and_clicks)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field");
		BTextControl& other = page.field(lower, "other");
		auto& canvas = page.put(new canvas_view(true));
		user.click(in_upper);
		while_busy(page, user, [](QWidget& window) {
			type_into(window, "1");
			click_into(window, on_canvas);
			type_into(window, "2");
			click_into(window, on_canvas);
			type_into(window, "3");
			click_into(window, in_lower);
			type_into(window, "4");
		});
		page.locked([&] { EXPECT_EQ(canvas.noted, "!2!3"); });
		EXPECT_EQ(page.text_of(field), "1");
		EXPECT_EQ(page.text_of(other), "4");
		EXPECT_EQ(page.focus(), "other");
		EXPECT_EQ(page.senders(), journal{"field"});
	});
}


TEST(typing_ahead, that_still_waits_as_the_program_ends_does_no_harm)
{
	with_form([](form& page, robot& user) {
		page.field(upper, "field");
		page.put(new canvas_view(true));
		user.click(in_upper);
		user.act([](QWidget& window) {
			click_into(window, on_canvas);
			type_into(window, "ab");
		});
	});
}
