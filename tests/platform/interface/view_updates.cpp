// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// When the kit asks views to draw, and what becomes of what they have drawn.
#include "platform/interface/patch.h"

#include <gtest/gtest.h>


TEST(view_updates, a_view_that_appears_is_erased_and_drawn_whole)
{
	with_window([](test_window& window, robot& user) {
		auto* view = new test_view(patch);
		view->SetViewColor(red);
		view->on_draw = [=](BRect) { view->FillRect(BRect(1, 1, 2, 1)); };
		window.AddChild(view);
		EXPECT_EQ(picture(user, patch),
			"rrrrrrrr\n"
			"r##rrrrr\n"
			"rrrrrrrr\n");
		window.locked([&] { EXPECT_EQ(view->draws, std::vector<BRect>{patch}); });
	});
}


TEST(view_updates, an_invalid_part_is_erased_and_offered_to_draw)
{
	with_window([](test_window& window, robot& user) {
		test_view& view = add_patch(window);
		user.settle();
		window.locked([&] {
			view.SetViewColor(blue);
			view.draws.clear();
			view.Invalidate(BRect(2, 1, 4, 2));
		});
		EXPECT_EQ(picture(user, patch),
			"........\n"
			"..bbb...\n"
			"..bbb...\n");
		window.locked([&] { EXPECT_EQ(view.draws, std::vector<BRect>{BRect(2, 1, 4, 2)}); });
	});
}


TEST(view_updates, drawing_in_an_update_reaches_only_the_invalid_part)
{
	with_window([](test_window& window, robot& user) {
		test_view& view = add_patch(window);
		user.settle();
		window.locked([&] {
			view.on_draw = [&](BRect) { view.FillRect(patch); };
			view.Invalidate(BRect(2, 1, 4, 2));
		});
		EXPECT_EQ(picture(user, patch),
			"........\n"
			"..###...\n"
			"..###...\n");
	});
}


TEST(view_updates, invalid_parts_are_merged_into_one_update)
{
	with_window([](test_window& window, robot& user) {
		test_view& view = add_patch(window);
		user.settle();
		window.locked([&] {
			view.draws.clear();
			view.Invalidate(BRect(0, 0, 0, 0));
			view.Invalidate(BRect(6, 2, 6, 2));
			view.Invalidate(BRect(0, 0, 0, 0));
		});
		user.settle();
		window.locked([&] { EXPECT_EQ(view.draws, std::vector<BRect>{BRect(0, 0, 6, 2)}); });
	});
}


TEST(view_updates, what_lies_between_invalid_parts_stays)
{
	with_window([](test_window& window, robot& user) {
		test_view& view = add_patch(window);
		user.settle();
		window.locked([&] {
			view.SetViewColor(green);
			view.Invalidate(BRect(0, 0, 0, 0));
			view.Invalidate(BRect(6, 2, 6, 2));
		});
		EXPECT_EQ(picture(user, patch),
			"g.......\n"
			"........\n"
			"......g.\n");
	});
}


TEST(view_updates, a_part_outside_the_view_is_no_part)
{
	with_window([](test_window& window, robot& user) {
		test_view& view = add_patch(window);
		user.settle();
		window.locked([&] {
			view.draws.clear();
			view.Invalidate(BRect(20, 20, 30, 30));
			view.Invalidate(BRect(5, 0, 4, 2));
		});
		user.settle();
		window.locked([&] { EXPECT_EQ(view.draws, std::vector<BRect>{}); });
	});
}


TEST(view_updates, a_part_is_cut_to_the_view)
{
	with_window([](test_window& window, robot& user) {
		test_view& view = add_patch(window);
		user.settle();
		window.locked([&] {
			view.draws.clear();
			view.Invalidate(BRect(5, -10, 100, 0));
		});
		user.settle();
		window.locked([&] { EXPECT_EQ(view.draws, std::vector<BRect>{BRect(5, 0, 7, 0)}); });
	});
}


TEST(view_updates, parents_draw_before_their_children)
{
	with_window([](test_window& window, robot& user) {
		journal order;
		test_view& parent = add_patch(window);
		auto* first = new test_view(BRect(0, 0, 1, 1));
		auto* second = new test_view(BRect(2, 0, 3, 1));
		window.locked([&] {
			parent.on_draw = [&](BRect) { order.push_back("parent"); };
			first->on_draw = [&](BRect) { order.push_back("first"); };
			second->on_draw = [&](BRect) { order.push_back("second"); };
			parent.AddChild(first);
			parent.AddChild(second);
			parent.Invalidate();
			order.clear();
		});
		user.settle();
		window.locked([&] { EXPECT_EQ(order, (journal{"parent", "first", "second"})); });
	});
}


TEST(view_updates, drawing_outside_an_update_is_seen_at_once_and_stays)
{
	with_window([](test_window& window, robot& user) {
		test_view& view = add_patch(window);
		user.settle();
		window.locked([&] { view.FillRect(BRect(1, 1, 5, 1)); });
		EXPECT_EQ(picture(user, patch),
			"........\n"
			".#####..\n"
			"........\n");
		window.locked([&] { view.Invalidate(BRect(3, 0, 7, 2)); });
		EXPECT_EQ(picture(user, patch),
			"........\n"
			".##.....\n"
			"........\n");
	});
}


TEST(view_updates, a_draw_called_by_the_program_erases_nothing_and_is_not_clipped)
{
	with_window([](test_window& window, robot& user) {
		test_view& view = add_patch(window);
		user.settle();
		window.locked([&] {
			view.SetViewColor(red);
			view.on_draw = [&](BRect) { view.FillRect(BRect(0, 0, 7, 0)); };
			view.Draw(BRect(0, 0, 0, 0));
		});
		EXPECT_EQ(picture(user, patch),
			"########\n"
			"........\n"
			"........\n");
	});
}


TEST(view_updates, what_draw_changes_is_as_before_afterwards)
{
	with_window([](test_window& window, robot& user) {
		test_view& view = add_patch(window);
		window.locked([&] {
			view.SetHighColor(green);
			view.SetLowColor(blue);
			view.SetFontSize(17);
			view.MovePenTo(3, 1);
			view.on_draw = [&](BRect) {
				view.SetHighColor(red);
				view.SetLowColor(red);
				view.SetFontSize(9);
				view.MovePenTo(6, 2);
			};
			view.Invalidate();
		});
		user.settle();
		window.locked([&] {
			BFont font;
			view.GetFont(&font);
			EXPECT_EQ(view.HighColor(), green);
			EXPECT_EQ(view.LowColor(), blue);
			EXPECT_EQ(font.Size(), 17);
			EXPECT_EQ(view.PenLocation(), BPoint(3, 1));
		});
	});
}


TEST(view_updates, the_view_colour_is_no_part_of_what_is_restored)
{
	with_window([](test_window& window, robot& user) {
		test_view& view = add_patch(window);
		window.locked([&] {
			view.on_draw = [&](BRect) { view.SetViewColor(red); };
			view.Invalidate();
		});
		user.settle();
		window.locked([&] { EXPECT_EQ(view.ViewColor(), red); });
	});
}


TEST(view_updates, draw_starts_with_the_pen_at_the_origin)
{
	with_window([](test_window& window, robot& user) {
		test_view& view = add_patch(window);
		BPoint seen(-1, -1);
		window.locked([&] {
			view.MovePenTo(3, 1);
			view.on_draw = [&](BRect) { seen = view.PenLocation(); };
			view.Invalidate();
		});
		user.settle();
		window.locked([&] { EXPECT_EQ(seen, BPoint(0, 0)); });
	});
}


TEST(view_updates, the_transparent_colour_erases_nothing)
{
	with_window([](test_window& window, robot& user) {
		test_view& view = add_patch(window);
		user.settle();
		window.locked([&] {
			view.FillRect(BRect(0, 0, 7, 0));
			view.SetViewColor(B_TRANSPARENT_COLOR);
			view.draws.clear();
			view.Invalidate();
		});
		EXPECT_EQ(picture(user, patch),
			"########\n"
			"........\n"
			"........\n");
		window.locked([&] { EXPECT_EQ(view.draws, std::vector<BRect>{patch}); });
	});
}


TEST(view_updates, a_view_that_will_not_draw_is_erased_but_not_asked)
{
	with_window([](test_window& window, robot& user) {
		auto* view = new test_view(patch, "view", B_FOLLOW_NONE, 0);
		view->SetViewColor(blue);
		window.AddChild(view);
		EXPECT_EQ(picture(user, patch),
			"bbbbbbbb\n"
			"bbbbbbbb\n"
			"bbbbbbbb\n");
		window.locked([&] { EXPECT_EQ(view->draws, std::vector<BRect>{}); });
	});
}


TEST(view_updates, a_new_view_colour_repaints_nothing_by_itself)
{
	with_window([](test_window& window, robot& user) {
		test_view& view = add_patch(window);
		user.settle();
		window.locked([&] { view.SetViewColor(red); });
		EXPECT_EQ(user.pixel(BPoint(0, 0)), white);
	});
}


TEST(view_updates, what_draw_invalidates_is_drawn_in_a_later_turn)
{
	with_window([](test_window& window, robot& user) {
		test_view& view = add_patch(window);
		user.settle();
		window.locked([&] {
			view.draws.clear();
			view.on_draw = [&](BRect update) {
				if (update == patch)
					view.Invalidate(BRect(0, 0, 1, 1));
			};
			view.Invalidate();
		});
		user.settle();
		const std::vector<BRect> twice{patch, BRect(0, 0, 1, 1)};
		window.locked([&] { EXPECT_EQ(view.draws, twice); });
	});
}


TEST(view_updates, flushing_brings_drawing_to_the_screen_before_the_lock_is_given_up)
{
	with_window([](test_window& window, robot& user) {
		test_view& view = add_patch(window);
		user.settle();
		window.locked([&] {
			view.FillRect(BRect(0, 0, 7, 0));
			view.Sync();
			EXPECT_EQ(user.pixel(BPoint(3, 0)), black);
		});
	});
}
