// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// What the display keeps of a view that cannot be seen, and shows of one that is about to be drawn.
#include "platform/interface/patch.h"

#include <gtest/gtest.h>
#include <QWidget>

namespace {

// What the widget of the last view in a window has to show, seen or not; or that of the last view in
// that one, at a depth of 2.
rgb_color
kept(robot& user, QWidget* widget, int depth)
{
	QRgb found = 0;
	user.on_display([&] {
		for (int i = 0; i < depth; i++)
			widget = widget->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly).last();
		found = widget->grab().toImage().pixel(1, 1);
	});
	return {(uint8)qRed(found), (uint8)qGreen(found), (uint8)qBlue(found), 255};
}


QWidget*
shown_window(robot& user)
{
	QWidget* found = nullptr;
	user.act([&](QWidget& shown) { found = &shown; });
	return found;
}


// A view of the background given that draws itself red, with a child that draws itself green.
struct painted_views {
	test_view& parent;
	test_view& child;

	painted_views(test_window& window, robot& user)
		: parent(add_patch(window, blue)),
		  child(*new test_view(BRect(4, 0, 7, 2), "child"))
	{
		parent.on_draw = [this](BRect) { fill(parent, red); };
		child.on_draw = [this](BRect) { fill(child, green); };
		window.locked([&] {
			child.SetViewColor(black);
			parent.AddChild(&child);
			parent.Invalidate();
		});
		user.settle();
	}

	static void fill(BView& view, rgb_color color)
	{
		view.SetHighColor(color);
		view.FillRect(view.Bounds());
	}
};

}


TEST(view_images, of_a_hidden_view_and_its_children_are_gone)
{
	with_window([](test_window& window, robot& user) {
		const painted_views on(window, user);
		QWidget* shown = shown_window(user);
		EXPECT_EQ(kept(user, shown, 2), green);
		window.locked([&] { on.parent.Hide(); });
		EXPECT_EQ(kept(user, shown, 2), black);
		window.locked([&] { on.parent.Show(); });
		EXPECT_EQ(kept(user, shown, 2), green);
	});
}


TEST(view_images, of_a_hidden_window_are_gone)
{
	with_window([](test_window& window, robot& user) {
		const painted_views on(window, user);
		QWidget* shown = shown_window(user);
		EXPECT_EQ(kept(user, shown, 1), red);
		window.Hide();
		EXPECT_EQ(kept(user, shown, 1), blue);
		window.Show();
		EXPECT_EQ(kept(user, shown, 1), red);
	});
}


TEST(view_images, of_a_view_that_is_shown_again_are_never_the_old_ones)
{
	with_window([](test_window& window, robot& user) {
		painted_views on(window, user);
		EXPECT_EQ(user.pixel(BPoint(1, 1)), red);
		window.locked([&] { on.parent.Hide(); });
		user.settle();
		window.locked([&] {
			on.parent.on_draw = [&](BRect) { painted_views::fill(on.parent, white); };
			on.parent.Show();
			// Not drawn before the lock is given up.
			EXPECT_EQ(user.pixel(BPoint(1, 1)), blue);
			EXPECT_EQ(user.pixel(BPoint(5, 1)), black);
		});
		EXPECT_EQ(user.pixel(BPoint(1, 1)), white);
		EXPECT_EQ(user.pixel(BPoint(5, 1)), green);
	});
}
