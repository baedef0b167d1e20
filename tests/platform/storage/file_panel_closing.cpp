// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// When file panels close, and what they say then.
#include "platform/storage/desk.h"

#include <AppDefs.h>
#include <gtest/gtest.h>


TEST(file_panel, closed_without_a_choice_says_what_it_would_have_sent)
{
	with_desk([](desk& of) {
		auto panel = of.panel(B_OPEN_PANEL);
		panel->Show();
		of.user.cancel_panel();
		const BMessage answer = of.window.last_dispatched(B_CANCEL);
		EXPECT_EQ(answer.FindInt32("old_what"), (int32)B_REFS_RECEIVED);
		void* source = nullptr;
		answer.FindPointer("source", &source);
		EXPECT_EQ(source, panel.get());
		EXPECT_FALSE(panel->IsShowing());
		EXPECT_EQ(of.window.dispatched(B_REFS_RECEIVED).size(), 0U);
	});
}


TEST(file_panel, to_save_closed_without_a_choice_says_so_too)
{
	with_desk([](desk& of) {
		auto panel = of.panel(B_SAVE_PANEL);
		panel->Show();
		of.user.cancel_panel();
		EXPECT_EQ(
			of.window.last_dispatched(B_CANCEL).FindInt32("old_what"), (int32)B_SAVE_REQUESTED);
	});
}


TEST(file_panel, with_a_message_of_its_own_names_that_when_closed)
{
	with_desk([](desk& of) {
		BMessage mine('mine');
		auto panel = of.panel(B_OPEN_PANEL, &mine);
		panel->Show();
		of.user.cancel_panel();
		EXPECT_EQ(of.window.last_dispatched(B_CANCEL).FindInt32("old_what"), (int32)'mine');
	});
}


TEST(file_panel, sends_no_cancel_after_a_choice)
{
	with_desk([](desk& of) {
		auto panel = of.panel(B_OPEN_PANEL);
		panel->Show();
		of.user.answer_panel(of.folder.path("one.ttf"));
		EXPECT_EQ(of.window.dispatched(B_CANCEL).size(), 0U);
	});
}


TEST(file_panel, can_be_shown_again)
{
	with_desk([](desk& of) {
		auto panel = of.panel(B_OPEN_PANEL);
		panel->Show();
		of.user.cancel_panel();
		panel->Show();
		EXPECT_TRUE(of.user.panel_is_open());
		of.user.answer_panel("two.ttf");
		EXPECT_EQ(
			path_of(of.window.last_dispatched(B_REFS_RECEIVED), "refs"), of.folder.path("two.ttf"));
	});
}


TEST(file_panel, stays_open_after_a_choice_when_told_to)
{
	with_desk([](desk& of) {
		auto panel = of.panel(B_OPEN_PANEL, nullptr, true, false);
		panel->Show();
		of.user.answer_panel("one.ttf");
		EXPECT_TRUE(panel->IsShowing());
		EXPECT_TRUE(of.user.panel_is_open());
		of.user.answer_panel("two.ttf");
		EXPECT_EQ(of.window.dispatched(B_REFS_RECEIVED).size(), 2U);
	});
}


TEST(file_panel, deleted_closes_and_sends_nothing)
{
	with_desk([](desk& of) {
		auto panel = of.panel(B_OPEN_PANEL);
		panel->Show();
		of.user.settle();
		panel.reset();
		EXPECT_TRUE(of.user.wait_for([&] { return of.user.count_panels() == 0; }));
		of.user.cancel_panel();
		EXPECT_EQ(of.window.dispatched(B_CANCEL).size(), 0U);
		EXPECT_EQ(of.window.dispatched(B_REFS_RECEIVED).size(), 0U);
	});
}


TEST(file_panel, deleted_with_its_question_open_sends_nothing)
{
	with_desk([](desk& of) {
		auto panel = of.panel(B_SAVE_PANEL);
		panel->Show();
		of.user.answer_panel("one.ttf");
		panel.reset();
		EXPECT_TRUE(of.user.wait_for([&] { return of.user.count_panels() == 0; }));
		EXPECT_FALSE(of.user.press_question("Replace"));
		EXPECT_EQ(of.window.dispatched(B_SAVE_REQUESTED).size(), 0U);
	});
}


TEST(file_panel, survives_a_target_that_has_gone)
{
	with_desk([](desk& of) {
		auto panel = of.panel(B_OPEN_PANEL);
		panel->Show();
		of.user.use_window("test");
		of.user.press_close_box();
		of.user.answer_panel("one.ttf");
		EXPECT_FALSE(panel->IsShowing());
	});
}


TEST(file_panel, two_are_open_side_by_side)
{
	with_desk([](desk& of) {
		auto first = of.panel(B_OPEN_PANEL);
		auto second = of.panel(B_SAVE_PANEL);
		first->Show();
		second->Show();
		EXPECT_EQ(of.user.count_panels(), 2);
		of.user.cancel_panel();
		EXPECT_EQ(of.user.count_panels(), 1);
		of.user.cancel_panel();
		EXPECT_EQ(of.window.dispatched(B_CANCEL).size(), 2U);
	});
}
