// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// What scrolling and resizing do to pixels that are on the screen.
#include "platform/interface/stage.h"

#include <gtest/gtest.h>

namespace {

constexpr BRect patch(0, 0, 7, 3);

// A view whose Draw() paints nothing, with one black pixel row and column drawn by hand at (2, 1).
test_view&
add_marked(test_window& window, robot& user, uint32 flags = B_WILL_DRAW)
{
	auto* view = new test_view(patch, "view", B_FOLLOW_NONE, flags);
	window.AddChild(view);
	user.settle();
	window.locked([&] {
		view->StrokeLine(BPoint(2, 1), BPoint(5, 1));
		view->StrokeLine(BPoint(2, 1), BPoint(2, 3));
		view->SetViewColor(red);
		view->draws.clear();
	});
	return *view;
}

}


TEST(view_scrolling, moves_what_was_drawn_and_invalidates_what_comes_in_below)
{
	with_window([](test_window& window, robot& user) {
		test_view& view = add_marked(window, user);
		window.locked([&] { view.ScrollTo(0, 1); });
		EXPECT_EQ(picture(user, patch),
			"..####..\n"
			"..#.....\n"
			"..#.....\n"
			"rrrrrrrr\n");
		window.locked([&] { EXPECT_EQ(view.draws, std::vector<BRect>{BRect(0, 4, 7, 4)}); });
	});
}


TEST(view_scrolling, moves_what_was_drawn_and_invalidates_what_comes_in_above)
{
	with_window([](test_window& window, robot& user) {
		test_view& view = add_marked(window, user);
		window.locked([&] { view.ScrollBy(0, -2); });
		EXPECT_EQ(picture(user, patch),
			"rrrrrrrr\n"
			"rrrrrrrr\n"
			"........\n"
			"..####..\n");
		window.locked([&] { EXPECT_EQ(view.draws, std::vector<BRect>{BRect(0, -2, 7, -1)}); });
	});
}


TEST(view_scrolling, moves_sideways)
{
	with_window([](test_window& window, robot& user) {
		test_view& view = add_marked(window, user);
		window.locked([&] { view.ScrollTo(3, 0); });
		EXPECT_EQ(picture(user, patch),
			".....rrr\n"
			"###..rrr\n"
			".....rrr\n"
			".....rrr\n");
		window.locked([&] { EXPECT_EQ(view.draws, std::vector<BRect>{BRect(8, 0, 10, 3)}); });
	});
}


TEST(view_scrolling, both_ways_at_once_uncovers_an_angle)
{
	with_window([](test_window& window, robot& user) {
		test_view& view = add_marked(window, user);
		window.locked([&] { view.ScrollTo(-2, 1); });
		EXPECT_EQ(picture(user, patch),
			"rr..####\n"
			"rr..#...\n"
			"rr..#...\n"
			"rrrrrrrr\n");
	});
}


TEST(view_scrolling, by_more_than_the_view_repaints_it_all)
{
	with_window([](test_window& window, robot& user) {
		test_view& view = add_marked(window, user);
		window.locked([&] { view.ScrollTo(0, 400); });
		EXPECT_EQ(picture(user, patch),
			"rrrrrrrr\n"
			"rrrrrrrr\n"
			"rrrrrrrr\n"
			"rrrrrrrr\n");
		window.locked([&] { EXPECT_EQ(view.draws, std::vector<BRect>{BRect(0, 400, 7, 403)}); });
	});
}


TEST(view_scrolling, there_and_back_repaints_what_was_out_of_sight)
{
	with_window([](test_window& window, robot& user) {
		test_view& view = add_marked(window, user);
		window.locked([&] {
			view.ScrollTo(0, 2);
			view.ScrollTo(0, 0);
		});
		EXPECT_EQ(picture(user, patch),
			"rrrrrrrr\n"
			"rrrrrrrr\n"
			"..#.....\n"
			"..#.....\n");
	});
}


TEST(view_scrolling, to_where_it_is_draws_nothing)
{
	with_window([](test_window& window, robot& user) {
		test_view& view = add_marked(window, user);
		window.locked([&] { view.ScrollTo(0, 0); });
		user.settle();
		window.locked([&] { EXPECT_EQ(view.draws, std::vector<BRect>{}); });
	});
}


TEST(view_scrolling, an_invalid_part_moves_along)
{
	with_window([](test_window& window, robot& user) {
		test_view& view = add_marked(window, user);
		window.locked([&] {
			view.Invalidate(BRect(0, 2, 1, 2));
			view.ScrollTo(0, 1);
		});
		EXPECT_EQ(picture(user, patch),
			"..####..\n"
			"rr#.....\n"
			"..#.....\n"
			"rrrrrrrr\n");
	});
}


TEST(view_scrolling, draw_paints_by_the_bounds)
{
	with_window([](test_window& window, robot& user) {
		test_view& view = add_marked(window, user);
		window.locked([&] {
			view.on_draw = [&](BRect) { view.FillRect(BRect(0, 5, 3, 5)); };
			view.ScrollTo(0, 2);
		});
		EXPECT_EQ(picture(user, patch),
			"..#.....\n"
			"..#.....\n"
			"rrrrrrrr\n"
			"####rrrr\n");
	});
}


TEST(view_growing, keeps_what_was_drawn_and_invalidates_what_is_new)
{
	with_window([](test_window& window, robot& user) {
		test_view& view = add_marked(window, user);
		window.locked([&] { view.ResizeBy(2, 1); });
		EXPECT_EQ(picture(user, BRect(0, 0, 9, 4)),
			"........rr\n"
			"..####..rr\n"
			"..#.....rr\n"
			"..#.....rr\n"
			"rrrrrrrrrr\n");
	});
}


TEST(view_growing, of_one_side_asks_for_that_strip_only)
{
	with_window([](test_window& window, robot& user) {
		test_view& view = add_marked(window, user);
		window.locked([&] { view.ResizeBy(3, 0); });
		user.settle();
		window.locked([&] { EXPECT_EQ(view.draws, std::vector<BRect>{BRect(8, 0, 10, 3)}); });
	});
}


TEST(view_growing, of_a_view_that_wants_full_updates_repaints_it_all)
{
	with_window([](test_window& window, robot& user) {
		test_view& view = add_marked(window, user, B_WILL_DRAW | B_FULL_UPDATE_ON_RESIZE);
		window.locked([&] { view.ResizeBy(1, 0); });
		user.settle();
		window.locked([&] { EXPECT_EQ(view.draws, std::vector<BRect>{BRect(0, 0, 8, 3)}); });
	});
}


TEST(view_growing, smaller_needs_no_update)
{
	with_window([](test_window& window, robot& user) {
		test_view& view = add_marked(window, user);
		window.locked([&] { view.ResizeBy(-3, -1); });
		EXPECT_EQ(picture(user, BRect(0, 0, 4, 2)),
			".....\n"
			"..###\n"
			"..#..\n");
		window.locked([&] { EXPECT_EQ(view.draws, std::vector<BRect>{}); });
	});
}


TEST(view_growing, smaller_repaints_a_view_that_wants_full_updates)
{
	with_window([](test_window& window, robot& user) {
		test_view& view = add_marked(window, user, B_WILL_DRAW | B_FULL_UPDATE_ON_RESIZE);
		window.locked([&] { view.ResizeBy(-3, -1); });
		user.settle();
		window.locked([&] { EXPECT_EQ(view.draws, std::vector<BRect>{BRect(0, 0, 4, 2)}); });
	});
}


TEST(view_moving, takes_the_pixels_along_and_draws_nothing)
{
	with_window([](test_window& window, robot& user) {
		test_view& view = add_marked(window, user);
		window.locked([&] { view.MoveTo(10, 5); });
		EXPECT_EQ(picture(user, BRect(10, 5, 17, 8)),
			"........\n"
			"..####..\n"
			"..#.....\n"
			"..#.....\n");
		window.locked([&] { EXPECT_EQ(view.draws, std::vector<BRect>{}); });
	});
}
