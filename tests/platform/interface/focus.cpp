// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The keyboard on the display and the focus of the window keep to each other.
#include "platform/interface/form.h"

#include <gtest/gtest.h>

#include <QWidget>

namespace {

constexpr BPoint upper(10, 10);
constexpr BPoint lower(10, 40);


// A press and a release, as one event of the display.
void
click_now(robot& user, BPoint where)
{
	user.act([&](QWidget& window) { click_into(window, where); });
}

}


TEST(focus, belongs_to_one_view)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field");
		BTextControl& other = page.field(lower, "other");
		user.click(middle(field));
		user.click(middle(other));
		page.locked([&] {
			EXPECT_FALSE(field.IsFocus());
			EXPECT_TRUE(other.IsFocus());
			EXPECT_FALSE(page.IsFocus());
		});
		EXPECT_FALSE(user.has_keyboard(middle(field)));
		EXPECT_TRUE(user.has_keyboard(middle(other)));
	});
}


TEST(focus, that_a_user_takes_is_taken_from_the_view_before)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field");
		journal notes;
		page.locked([&] {
			page.MakeFocus();
			page.notes = &notes;
		});
		user.click(middle(field));
		page.locked([&] {
			EXPECT_EQ(notes, journal{"form no focus"});
			page.notes = nullptr;
		});
	});
}


TEST(focus, makes_its_view_the_preferred_handler_whoever_gave_it)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field");
		user.click(middle(field));
		page.locked([&] { EXPECT_EQ(page.Window()->PreferredHandler(), &field); });
		page.locked([&] { page.MakeFocus(); });
		page.locked([&] { EXPECT_EQ(page.Window()->PreferredHandler(), &page); });
	});
}


TEST(focus, given_twice_in_a_row_stays_with_the_last)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field");
		BTextControl& other = page.field(lower, "other");
		page.locked([&] {
			field.MakeFocus();
			page.MakeFocus();
		});
		user.settle();
		EXPECT_EQ(page.focus(), "form");
		EXPECT_FALSE(user.has_keyboard(middle(field)));
		page.locked([&] {
			field.MakeFocus();
			other.MakeFocus();
		});
		user.settle();
		EXPECT_EQ(page.focus(), "other");
		EXPECT_TRUE(user.has_keyboard(middle(other)));
	});
}


TEST(focus, that_the_user_takes_is_the_users_when_the_program_moves_it_without_knowing)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field");
		page.locked([&] {
			click_now(user, BPoint(30, 20));
			page.MakeFocus();
		});
		user.settle();
		EXPECT_EQ(page.focus(), "field");
		EXPECT_TRUE(user.has_keyboard(middle(field)));
	});
}


TEST(focus, that_the_program_gives_another_field_without_knowing_of_the_user_confirms_nothing)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field");
		BTextControl& other = page.field(lower, "other");
		page.locked([&] {
			click_now(user, BPoint(30, 20));
			other.MakeFocus();
		});
		user.settle();
		EXPECT_EQ(page.focus(), "field");
		EXPECT_TRUE(user.has_keyboard(middle(field)));
		EXPECT_FALSE(user.has_keyboard(middle(other)));
		EXPECT_EQ(page.senders(), journal());
	});
}


TEST(focus, that_the_program_moves_after_it_has_heard_of_the_user_is_where_the_program_put_it)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field");
		user.click(middle(field));
		page.locked([&] { page.MakeFocus(); });
		user.settle();
		EXPECT_EQ(page.focus(), "form");
		EXPECT_FALSE(user.has_keyboard(middle(field)));
	});
}


TEST(focus, of_a_clicked_field_stays_there_when_another_view_is_hidden_or_shown)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field");
		auto& other = page.put(new test_view(BRect(120, 0, 199, 99), "other"));
		page.locked([&] {
			page.MakeFocus();
			// The display's next command is carried out before the next event.
			user.act([](QWidget&) {});
			click_now(user, BPoint(30, 20));
			other.Hide();
		});
		user.settle();
		EXPECT_EQ(page.focus(), "field");
		EXPECT_TRUE(user.has_keyboard(middle(field)));
		page.locked([&] { other.Show(); });
		user.settle();
		EXPECT_TRUE(user.has_keyboard(middle(field)));
	});
}


TEST(focus, goes_to_a_third_when_the_view_that_loses_it_gives_it_there)
{
	class generous : public test_view {
	public:
		using test_view::test_view;
		BView* heir = nullptr;
		void MakeFocus(bool focus = true) override
		{
			test_view::MakeFocus(focus);
			if (!focus && heir)
				heir->MakeFocus();
		}
	};
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field");
		BTextControl& other = page.field(lower, "other");
		auto& view = page.put(new generous(BRect(120, 0, 199, 99), "view"));
		page.locked([&] {
			view.heir = &other;
			view.MakeFocus();
		});
		user.click(middle(field));
		EXPECT_EQ(page.focus(), "other");
		EXPECT_TRUE(user.has_keyboard(middle(other)));
		page.locked([&] { view.heir = nullptr; });
	});
}


TEST(focus, taken_by_the_user_from_a_view_that_is_switched_off_meanwhile_stays_where_it_was)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field");
		BTextControl& other = page.field(lower, "other");
		user.click(middle(other));
		page.locked([&] {
			click_now(user, BPoint(30, 20));
			field.SetEnabled(false);
		});
		user.settle();
		EXPECT_EQ(page.focus(), "other");
		EXPECT_TRUE(user.has_keyboard(middle(other)));
	});
}


TEST(focus, that_the_user_takes_later_than_the_program_is_the_users)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field");
		page.locked([&] {
			page.MakeFocus();
			// The display's next command is carried out before the next event.
			user.act([](QWidget&) {});
			click_now(user, BPoint(30, 20));
		});
		user.settle();
		EXPECT_EQ(page.focus(), "field");
		EXPECT_TRUE(user.has_keyboard(middle(field)));
	});
}


TEST(focus, reports_of_a_field_that_has_gone_do_no_harm)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field");
		page.locked([&] {
			page.MakeFocus();
			user.act([](QWidget&) {});
			click_now(user, BPoint(30, 20));
			field.RemoveSelf();
			delete &field;
		});
		user.settle();
		EXPECT_EQ(page.focus(), "form");
	});
}


TEST(focus, keys_without_it_go_nowhere)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field", "old");
		user.type("x");
		press_return(user);
		user.key(Qt::Key_Escape, "\x1b");
		EXPECT_EQ(page.text_of(field), "old");
		EXPECT_EQ(page.focus(), "");
		EXPECT_EQ(page.senders(), journal());
		page.locked([&] { EXPECT_EQ(page.received, std::vector<uint32>()); });
	});
}


TEST(focus, walks_with_tab_in_the_order_of_the_tree_and_round)
{
	with_form([](form& page, robot& user) {
		page.field(lower, "one");
		page.field(upper, "two");
		page.button(BPoint(120, 10), "three");
		for (const char* next : {"one", "two", "three", "one"}) {
			press_tab(user);
			EXPECT_EQ(page.focus(), next);
		}
	});
}


TEST(focus, walks_back_with_shift_tab)
{
	with_form([](form& page, robot& user) {
		page.field(upper, "one");
		page.button(BPoint(120, 10), "two");
		page.field(lower, "three");
		for (const char* next : {"three", "two", "one", "three"}) {
			press_shift_tab(user);
			EXPECT_EQ(page.focus(), next);
		}
	});
}


TEST(focus, walks_through_plain_views_that_take_part)
{
	with_form([](form& page, robot& user) {
		page.field(upper, "one");
		page.put(new test_view(BRect(120, 10, 139, 29), "two", B_FOLLOW_NONE, B_NAVIGABLE));
		page.button(BPoint(120, 40), "three");
		for (const char* next : {"one", "two", "three", "one"}) {
			press_tab(user);
			EXPECT_EQ(page.focus(), next);
		}
		press_shift_tab(user);
		press_shift_tab(user);
		EXPECT_EQ(page.focus(), "two");
	});
}


TEST(focus, walks_into_views_within_views)
{
	with_form([](form& page, robot& user) {
		auto& box = page.put(new test_view(BRect(100, 0, 199, 99), "box"));
		page.field(upper, "last");
		page.locked([&] {
			for (const char* name : {"inner", "second inner"})
				box.AddChild(new test_view(BRect(0, 0, 9, 9), name, B_FOLLOW_NONE, B_NAVIGABLE));
		});
		for (const char* next : {"inner", "second inner", "last", "inner"}) {
			press_tab(user);
			EXPECT_EQ(page.focus(), next);
		}
	});
}


TEST(focus, walks_past_what_is_hidden_switched_off_or_takes_no_part)
{
	with_form([](form& page, robot& user) {
		page.field(upper, "first");
		BTextControl& hidden = page.field(lower, "hidden");
		BButton& off = page.button(BPoint(120, 10), "off");
		BTextControl& idle = page.field(lower, "idle");
		auto& box = page.put(new test_view(BRect(100, 0, 199, 99), "box"));
		page.button(BPoint(120, 40), "last");
		page.locked([&] {
			hidden.Hide();
			off.SetEnabled(false);
			idle.SetFlags(B_WILL_DRAW);
			box.AddChild(new test_view(BRect(0, 0, 9, 9), "inner", B_FOLLOW_NONE, B_NAVIGABLE));
			box.Hide();
		});
		for (const char* next : {"first", "last", "first"}) {
			press_tab(user);
			EXPECT_EQ(page.focus(), next);
		}
	});
}


TEST(focus, walks_on_to_the_first_view_from_one_that_takes_no_part)
{
	with_form([](form& page, robot& user) {
		page.field(upper, "one");
		page.field(lower, "two");
		page.locked([&] { page.MakeFocus(); });
		press_tab(user);
		EXPECT_EQ(page.focus(), "one");
	});
}


TEST(focus, stays_where_it_is_when_there_is_nowhere_to_walk)
{
	with_form([](form& page, robot& user) {
		page.locked([&] { page.MakeFocus(); });
		press_tab(user);
		EXPECT_EQ(page.focus(), "form");
	});
}


TEST(focus, of_a_field_that_takes_no_part_in_the_walk_comes_by_a_click)
{
	with_form([](form& page, robot& user) {
		page.field(upper, "one");
		auto& field = page.put(new BTextControl(
			BRect(10, 40, 109, 60), "idle", nullptr, "", nullptr, B_FOLLOW_NONE, B_WILL_DRAW));
		user.click(middle(field));
		EXPECT_EQ(page.focus(), "idle");
		press_tab(user);
		EXPECT_EQ(page.focus(), "one");
	});
}


TEST(focus, is_shown_again_with_its_window)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field");
		user.click(middle(field));
		page.locked([&] { page.Window()->Hide(); });
		user.settle();
		page.locked([&] { page.Window()->Show(); });
		user.settle();
		EXPECT_EQ(page.focus(), "field");
		EXPECT_TRUE(user.has_keyboard(middle(field)));
	});
}
