// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Who has the keyboard, and who is a window's preferred handler.
#include "platform/interface/stage.h"

#include <gtest/gtest.h>

namespace {

constexpr BRect anywhere(0, 0, 9, 9);

// Two views of one window, which note when they are given or lose the focus.
class rivals {
public:
	rivals() : window(page.whole().Window())
	{
		one.notes = other.notes = &notes;
		page.add(&one);
		page.add(&other);
		notes.clear();
	}
	~rivals()
	{
		one.notes = other.notes = nullptr;
		one.RemoveSelf();
		other.RemoveSelf();
	}

	journal notes;
	sheet page{10, 10};
	BWindow* window;
	test_view one{anywhere, "one"};
	test_view other{anywhere, "other"};
};

}


TEST(view_focus, an_unattached_view_cannot_take_the_focus)
{
	BView view(anywhere, "view", B_FOLLOW_NONE, B_NAVIGABLE);
	view.MakeFocus(true);
	EXPECT_FALSE(view.IsFocus());
}


TEST(view_focus, nobody_has_it_at_first)
{
	rivals are;
	EXPECT_EQ(are.window->CurrentFocus(), nullptr);
	EXPECT_EQ(are.window->PreferredHandler(), nullptr);
}


TEST(view_focus, the_focus_view_is_the_preferred_handler)
{
	rivals are;
	are.one.MakeFocus(true);
	EXPECT_TRUE(are.one.IsFocus());
	EXPECT_EQ(are.window->CurrentFocus(), &are.one);
	EXPECT_EQ(are.window->PreferredHandler(), &are.one);
}


TEST(view_focus, the_one_before_is_told_before_another_takes_it)
{
	rivals are;
	are.one.MakeFocus(true);
	are.notes.clear();
	are.other.MakeFocus(true);
	EXPECT_EQ(are.notes, (journal{"other focus", "one no focus"}));
	EXPECT_FALSE(are.one.IsFocus());
	EXPECT_EQ(are.window->CurrentFocus(), &are.other);
	EXPECT_EQ(are.window->PreferredHandler(), &are.other);
}


TEST(view_focus, taking_it_twice_tells_nobody)
{
	rivals are;
	are.one.MakeFocus(true);
	are.notes.clear();
	are.one.MakeFocus(true);
	EXPECT_EQ(are.notes, journal{"one focus"});
	EXPECT_TRUE(are.one.IsFocus());
}


TEST(view_focus, given_up_it_is_nobodys)
{
	rivals are;
	are.one.MakeFocus(true);
	are.one.MakeFocus(false);
	EXPECT_FALSE(are.one.IsFocus());
	EXPECT_EQ(are.window->CurrentFocus(), nullptr);
	EXPECT_EQ(are.window->PreferredHandler(), nullptr);
}


TEST(view_focus, giving_it_up_runs_the_hook_once)
{
	rivals are;
	are.one.MakeFocus(true);
	are.notes.clear();
	are.one.MakeFocus(false);
	EXPECT_EQ(are.notes, journal{"one no focus"});
}


TEST(view_focus, a_view_without_it_cannot_give_it_up)
{
	rivals are;
	are.one.MakeFocus(true);
	are.other.MakeFocus(false);
	EXPECT_EQ(are.window->CurrentFocus(), &are.one);
}


TEST(view_focus, a_hidden_view_may_have_it)
{
	rivals are;
	are.one.Hide();
	are.one.MakeFocus(true);
	EXPECT_TRUE(are.one.IsFocus());
}


TEST(view_focus, a_view_that_is_hidden_keeps_it)
{
	rivals are;
	are.one.MakeFocus(true);
	are.one.Hide();
	EXPECT_TRUE(are.one.IsFocus());
}


TEST(view_focus, a_removed_view_loses_it)
{
	rivals are;
	are.one.MakeFocus(true);
	are.one.RemoveSelf();
	EXPECT_FALSE(are.one.IsFocus());
	EXPECT_EQ(are.window->CurrentFocus(), nullptr);
	EXPECT_EQ(are.window->PreferredHandler(), nullptr);
}


TEST(view_focus, a_view_below_a_removed_one_loses_it)
{
	rivals are;
	auto* child = new test_view(anywhere, "child");
	are.one.AddChild(child);
	child->MakeFocus(true);
	are.one.RemoveSelf();
	EXPECT_EQ(are.window->CurrentFocus(), nullptr);
	EXPECT_EQ(are.window->PreferredHandler(), nullptr);
}


TEST(view_focus, a_removed_view_does_not_get_it_back_with_its_return)
{
	rivals are;
	are.one.MakeFocus(true);
	are.one.RemoveSelf();
	are.page.add(&are.one);
	EXPECT_FALSE(are.one.IsFocus());
}


TEST(view_focus, a_handler_of_another_looper_is_not_preferred)
{
	rivals are;
	are.one.MakeFocus(true);
	BHandler stranger("stranger");
	are.window->SetPreferredHandler(&stranger);
	EXPECT_EQ(are.window->PreferredHandler(), nullptr);
}


TEST(view_focus, messages_for_the_preferred_handler_go_to_the_focus_view)
{
	with_window([](test_window& window, robot& user) {
		auto& view = window.add(new test_view(anywhere));
		window.locked([&] { view.MakeFocus(true); });
		window.PostMessage('pref', (BHandler*)nullptr);
		user.settle();
		window.locked([&] { EXPECT_EQ(view.received, std::vector<uint32>{'pref'}); });
	});
}


TEST(view_focus, a_click_does_not_give_it_to_a_plain_view)
{
	with_window([](test_window& window, robot& user) {
		auto& view = window.add(new test_view(BRect(0, 0, 99, 99)));
		user.click(BPoint(50, 50));
		window.locked([&] {
			EXPECT_EQ(view.pointer.size(), 2U);
			EXPECT_FALSE(view.IsFocus());
		});
	});
}
