// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The views of the window as they are before any window has them.
#include "app/kernixview.h"
#include "app/selectview.h"
#include "font/globals.h"
#include "font/ttf.h"
#include "support/font_file.h"
#include "support/opened.h"

#include <gtest/gtest.h>
#include <Message.h>


TEST(init_message, holds_the_design_box_moved_to_the_origin)
{
	octets head = tiny_font().table("head");
	put_be16(head, 36, 0xFFF6); // xMin -10
	put_be16(head, 38, 0xFFEC); // yMin -20
	put_be16(head, 40, 90);
	put_be16(head, 42, 180);
	BMessage message = init_message(*opened(tiny_font().with("head", head)));
	EXPECT_EQ(message.what, (uint32)'init');
	EXPECT_EQ(message.FindRect("bounds"), BRect(0, 0, 100, 200));
}


TEST(init_message, has_the_box_of_a_new_font_for_one_without_head)
{
	BMessage message = init_message(*opened(tiny_font().without("head")));
	EXPECT_EQ(message.FindRect("bounds"), BRect(0, 0, 511, 511));
}


TEST(kernixview, is_a_canvas_that_follows_all_sides)
{
	kernixview view(BRect(1, 2, 30, 40));
	EXPECT_STREQ(view.Name(), "canvas");
	EXPECT_EQ(view.Frame(), BRect(1, 2, 30, 40));
	EXPECT_EQ(view.ResizingMode(), B_FOLLOW_ALL_SIDES);
	EXPECT_EQ(view.Flags(), B_WILL_DRAW);
}


TEST(kernixview, starts_with_no_canvas_on_display)
{
	canvas = BRect(1, 2, 3, 4);
	kernixview view(BRect(0, 0, 9, 9));
	EXPECT_EQ(canvas, BRect(0, 0, 0, 0));
}


TEST(kernixview, lets_go_of_the_panels_without_a_window_too)
{
	auto font = opened(tiny_font());
	kernixview view(BRect(0, 0, 561, 511));
	curttf = font.get();
	font->set_view(&view);
	view.clr();
	EXPECT_EQ(view.CountChildren(), 0);
	curttf = nullptr;
}


static BMessage
tags_message(uint32 what, int32 first, int count)
{
	BMessage message(what);
	for (int i = 0; i < count; i++)
		message.AddInt32("table", first + i);
	return message;
}


TEST(selectview, is_an_empty_strip_that_follows_left_and_right)
{
	selectview view(BRect(0, 20, 399, 52));
	EXPECT_STREQ(view.Name(), "selector");
	EXPECT_EQ(view.ResizingMode(), B_FOLLOW_LEFT_RIGHT);
	EXPECT_EQ(view.Flags(), B_WILL_DRAW);
	EXPECT_EQ(view.count, 0);
	EXPECT_EQ(view.selected, -1);
}


TEST(selectview, takes_its_list_from_a_message)
{
	selectview view(BRect(0, 20, 399, 52));
	BMessage list = tags_message('tset', 'aaa0', 3);
	view.MessageReceived(&list);
	EXPECT_EQ(view.count, 3);
	EXPECT_EQ(view.tags[0], (uint32)'aaa0');
	EXPECT_EQ(view.tags[2], (uint32)'aaa2');
	EXPECT_EQ(view.selected, -1);
}


TEST(selectview, keeps_thirty_two_tags_and_writes_none_beyond)
{
	selectview view(BRect(0, 20, 399, 52));
	BMessage list = tags_message('tset', 'a000', 33);
	view.MessageReceived(&list);
	EXPECT_EQ(view.count, 32);
	EXPECT_EQ(view.tags[31], (uint32)'a000' + 31);
	EXPECT_EQ(view.selected, -1);
}


TEST(selectview, replaces_its_list_and_forgets_what_was_selected)
{
	selectview view(BRect(0, 20, 399, 52));
	BMessage list = tags_message('tset', 'aaa0', 3);
	BMessage choice = tags_message('tsel', 'aaa1', 1);
	BMessage shorter = tags_message('tset', 'bbb0', 1);
	view.MessageReceived(&list);
	view.MessageReceived(&choice);
	EXPECT_EQ(view.selected, 1);
	view.MessageReceived(&shorter);
	EXPECT_EQ(view.count, 1);
	EXPECT_EQ(view.selected, -1);
}


TEST(selectview, is_cleared_by_a_message_without_tags)
{
	selectview view(BRect(0, 20, 399, 52));
	BMessage list = tags_message('tset', 'aaa0', 3);
	BMessage none('tset');
	view.MessageReceived(&list);
	view.MessageReceived(&none);
	EXPECT_EQ(view.count, 0);
	EXPECT_EQ(view.selected, -1);
}


TEST(selectview, does_not_find_the_tags_of_its_last_list)
{
	selectview view(BRect(0, 20, 399, 52));
	BMessage list = tags_message('tset', 'aaa0', 3);
	BMessage shorter = tags_message('tset', 'aaa0', 1);
	BMessage choice = tags_message('tsel', 'aaa2', 1);
	view.MessageReceived(&list);
	view.MessageReceived(&shorter);
	view.MessageReceived(&choice);
	EXPECT_EQ(view.selected, -1);
}


TEST(selectview, keeps_its_selection_for_an_unlisted_or_a_missing_tag)
{
	selectview view(BRect(0, 20, 399, 52));
	BMessage list = tags_message('tset', 'aaa0', 3);
	BMessage choice = tags_message('tsel', 'aaa2', 1);
	BMessage unlisted = tags_message('tsel', 'bbb0', 1);
	BMessage missing('tsel');
	view.MessageReceived(&list);
	view.MessageReceived(&choice);
	view.MessageReceived(&unlisted);
	view.MessageReceived(&missing);
	EXPECT_EQ(view.selected, 2);
}


TEST(selectview, takes_tags_with_the_topmost_bit_set)
{
	selectview view(BRect(0, 20, 399, 52));
	BMessage list = tags_message('tset', (int32)0xFF000001, 1);
	BMessage choice = tags_message('tsel', (int32)0xFF000001, 1);
	view.MessageReceived(&list);
	view.MessageReceived(&choice);
	EXPECT_EQ(view.tags[0], 0xFF000001u);
	EXPECT_EQ(view.selected, 0);
}


TEST(selectview, ignores_a_click_while_no_window_has_it)
{
	selectview view(BRect(0, 20, 399, 52));
	BMessage list = tags_message('tset', 'aaa0', 3);
	view.MessageReceived(&list);
	view.MouseDown(BPoint(15, 25));
	EXPECT_EQ(view.selected, -1);
}
