// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Windows as their program and their user see them: showing, closing, zooming, views.
#include "platform/interface/stage.h"

#include <AppDefs.h>
#include <gtest/gtest.h>
#include <QApplication>
#include <QWidget>

namespace {

// The place on the screen of the content of the window with that title.
BRect
place_on_screen(robot& user, const std::string& title)
{
	BRect place;
	user.on_display([&] {
		for (const QWidget* widget : QApplication::topLevelWidgets()) {
			if (widget->windowTitle().toStdString() != title)
				continue;
			QRect found = widget->geometry();
			place = BRect((float)found.left(), (float)found.top(), (float)found.right(),
				(float)found.bottom());
		}
	});
	return place;
}

}


TEST(window, is_born_locked_and_hidden)
{
	with_window([](test_window&, robot& user) {
		auto* window = new test_window(BRect(10, 20, 109, 69), "second");
		user.use_window("second");
		EXPECT_TRUE(window->IsLocked());
		EXPECT_TRUE(window->IsHidden());
		EXPECT_FALSE(user.window_is_shown());
		window->Unlock();
	});
}


TEST(window, the_first_show_gives_the_lock_up_and_brings_it_to_the_screen)
{
	with_window([](test_window&, robot& user) {
		auto* window = new test_window(BRect(10, 20, 109, 69), "second");
		user.use_window("second");
		window->Show();
		EXPECT_FALSE(window->IsLocked());
		EXPECT_FALSE(window->IsHidden());
		EXPECT_TRUE(user.window_is_shown());
		EXPECT_EQ(place_on_screen(user, "second"), BRect(10, 20, 109, 69));
	});
}


TEST(window, one_that_is_never_shown_goes_with_the_application)
{
	bool told = false;
	with_window([&](test_window&, robot&) {
		auto* window = new test_window(BRect(10, 20, 109, 69), "second");
		window->add(new test_view(BRect(0, 0, 9, 9))).on_detached = [&] { told = true; };
		window->Unlock();
	});
	EXPECT_TRUE(told);
}


TEST(window, the_frame_is_that_of_the_content)
{
	with_window([](test_window& window, robot& user) {
		EXPECT_EQ(window.Frame(), BRect(40, 30, 239, 129));
		EXPECT_EQ(window.Bounds(), BRect(0, 0, 199, 99));
		EXPECT_EQ(user.window_size(), BPoint(200, 100));
		EXPECT_EQ(place_on_screen(user, "test"), BRect(40, 30, 239, 129));
	});
}


TEST(window, has_its_title)
{
	with_window([](test_window& window, robot& user) {
		EXPECT_STREQ(window.Title(), "test");
		EXPECT_EQ(user.window_title(), "test");
	});
}


TEST(window, moves_to_a_place)
{
	with_window([](test_window& window, robot& user) {
		window.MoveTo(70, 80);
		EXPECT_EQ(window.Frame(), BRect(70, 80, 269, 179));
		EXPECT_EQ(place_on_screen(user, "test"), BRect(70, 80, 269, 179));
	});
}


TEST(window, knows_where_the_user_has_moved_it)
{
	with_window([](test_window& window, robot& user) {
		// The content, without the border that a desktop may draw.
		user.act([](QWidget& widget) { widget.setGeometry(90, 60, 200, 100); });
		user.settle();
		EXPECT_EQ(window.Frame(), BRect(90, 60, 289, 159));
	});
}


TEST(window, hiding_is_counted)
{
	with_window([](test_window& window, robot& user) {
		window.Hide();
		window.Hide();
		EXPECT_FALSE(user.window_is_shown());
		window.Show();
		EXPECT_TRUE(window.IsHidden());
		EXPECT_FALSE(user.window_is_shown());
		window.Show();
		EXPECT_FALSE(window.IsHidden());
		EXPECT_TRUE(user.window_is_shown());
	});
}


TEST(window, showing_is_counted)
{
	with_window([](test_window& window, robot& user) {
		window.Show();
		window.Hide();
		EXPECT_FALSE(window.IsHidden());
		EXPECT_TRUE(user.window_is_shown());
	});
}


TEST(window, a_hidden_one_still_handles_messages)
{
	with_window([](test_window& window, robot& user) {
		window.Hide();
		window.PostMessage('news');
		user.settle();
		EXPECT_EQ(window.dispatched('news').size(), 1U);
	});
}


TEST(window, holds_views_in_order)
{
	with_window([](test_window& window, robot&) {
		auto& last = window.add(new test_view(BRect(0, 0, 9, 9), "last"));
		auto* first = new test_view(BRect(0, 0, 9, 9), "first");
		window.AddChild(first, &last);
		EXPECT_EQ(window.CountChildren(), 2);
		EXPECT_EQ(window.ChildAt(0), first);
		EXPECT_EQ(window.ChildAt(1), &last);
		EXPECT_EQ(window.ChildAt(2), nullptr);
		EXPECT_EQ(window.FindView("last"), &last);
		EXPECT_EQ(window.FindView("nobody"), nullptr);
		EXPECT_EQ(last.Window(), &window);
		EXPECT_EQ(last.Parent(), nullptr);
	});
}


TEST(window, gives_back_only_its_own_views)
{
	with_window([](test_window& window, robot&) {
		test_view view(BRect(0, 0, 9, 9));
		window.AddChild(&view);
		EXPECT_TRUE(window.RemoveChild(&view));
		EXPECT_FALSE(window.RemoveChild(&view));
		EXPECT_EQ(view.Window(), nullptr);
	});
}


TEST(window, deletes_its_views_with_itself)
{
	bool told = false;
	with_window([&](test_window& window, robot&) {
		auto& view = window.add(new test_view(BRect(0, 0, 9, 9)));
		window.locked([&] { view.on_detached = [&] { told = true; }; });
	});
	EXPECT_TRUE(told);
}


TEST(window, every_message_passes_its_dispatch)
{
	with_window([](test_window& window, robot& user) {
		auto& view = window.add(new test_view(BRect(0, 0, 9, 9), "view"));
		window.PostMessage('self');
		window.PostMessage('view', &view);
		user.settle();
		EXPECT_EQ(window.handlers_of('self'), journal{"test"});
		EXPECT_EQ(window.handlers_of('view'), journal{"view"});
	});
}


TEST(window, the_close_box_asks_and_closes)
{
	with_window([](test_window& window, robot& user) {
		user.press_close_box();
		EXPECT_EQ(window.quit_questions, 1);
		EXPECT_FALSE(user.window_is_shown());
		EXPECT_EQ(be_app->CountWindows(), 0);
		EXPECT_FALSE(window.Lock());
	});
}


TEST(window, the_close_box_does_nothing_when_it_is_refused)
{
	with_window([](test_window& window, robot& user) {
		window.locked([&] { window.may_quit = false; });
		user.press_close_box();
		EXPECT_TRUE(user.window_is_shown());
		window.locked([&] { EXPECT_EQ(window.quit_questions, 1); });
		user.press_close_box();
		EXPECT_TRUE(user.window_is_shown());
		window.locked([&] { EXPECT_EQ(window.quit_questions, 2); });
	});
}


TEST(window, quits_for_whoever_holds_its_lock)
{
	with_window([](test_window& window, robot& user) {
		window.PostMessage('befo');
		window.Lock();
		window.Quit();
		EXPECT_FALSE(window.IsLocked());
		EXPECT_FALSE(user.window_is_shown());
		EXPECT_EQ(window.quit_questions, 0);
	});
}


TEST(window, zooms_to_its_zoom_limits_by_way_of_the_hook)
{
	with_window([](test_window& window, robot&) {
		window.locked([&] {
			window.SetZoomLimits(300, 250);
			window.Zoom();
			EXPECT_EQ(window.zoomed, std::vector<BRect>{BRect(40, 30, 340, 280)});
			EXPECT_EQ(window.Frame(), BRect(40, 30, 239, 129));
		});
	});
}


TEST(window, zooms_within_its_size_limits)
{
	with_window([](test_window& window, robot&) {
		window.locked([&] {
			window.SetSizeLimits(50, 260, 50, 220);
			window.SetZoomLimits(300, 250);
			window.Zoom();
			EXPECT_EQ(window.zoomed, std::vector<BRect>{BRect(40, 30, 300, 250)});
		});
	});
}


TEST(window, zooms_back_to_where_it_was)
{
	with_window([](test_window& window, robot& user) {
		window.locked([&] {
			window.may_zoom = true;
			window.SetZoomLimits(300, 250);
			window.Zoom();
			EXPECT_EQ(window.Frame(), BRect(40, 30, 340, 280));
			window.Zoom();
		});
		EXPECT_EQ(window.Frame(), BRect(40, 30, 239, 129));
		EXPECT_EQ(user.window_size(), BPoint(200, 100));
	});
}


TEST(window, zooms_again_when_it_was_resized_since)
{
	with_window([](test_window& window, robot&) {
		window.locked([&] {
			window.may_zoom = true;
			window.SetZoomLimits(300, 250);
			window.Zoom();
			window.ResizeTo(99, 98);
			window.Zoom();
			EXPECT_EQ(window.Frame(), BRect(40, 30, 340, 280));
			window.Zoom();
			EXPECT_EQ(window.Frame(), BRect(40, 30, 139, 128));
		});
	});
}


TEST(window, the_zoom_box_asks_the_hook_and_leaves_the_size_to_it)
{
	with_window([](test_window& window, robot& user) {
		window.locked([&] { window.SetZoomLimits(300, 250); });
		user.press_zoom_box();
		window.locked(
			[&] { EXPECT_EQ(window.zoomed, std::vector<BRect>{BRect(40, 30, 340, 280)}); });
		EXPECT_EQ(user.window_size(), BPoint(200, 100));
		EXPECT_EQ(window.Bounds(), BRect(0, 0, 199, 99));
	});
}


TEST(window, the_zoom_box_works_again_and_again)
{
	with_window([](test_window& window, robot& user) {
		window.locked([&] {
			window.may_zoom = true;
			window.SetZoomLimits(300, 250);
		});
		user.press_zoom_box();
		EXPECT_EQ(user.window_size(), BPoint(301, 251));
		user.press_zoom_box();
		EXPECT_EQ(user.window_size(), BPoint(200, 100));
	});
}


TEST(window, keeps_its_pulse_rate)
{
	with_window([](test_window& window, robot&) {
		EXPECT_EQ(window.PulseRate(), 500000);
		window.SetPulseRate(0);
		EXPECT_EQ(window.PulseRate(), 0);
	});
}
