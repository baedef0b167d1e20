// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The window's record of what the mouse messages for the drawing view say.
#include "app/kernix.h"
#include "app/kernixview.h"
#include "app/kernixwindow.h"
#include "app/selectview.h"
#include "program/journey.h"
#include "support/temp_files.h"

#include <AppDefs.h>
#include <gtest/gtest.h>


// Runs with a view of its own as the input handler.
static void
recording(const std::function<void(kernix&, robot&, BView*)>& test)
{
	journey([&](kernix& app, robot& user) {
		BView* view = app.window->workview;
		looking(app, [&] { app.window->settarget(BRect(), nullptr, view, 1, 1); });
		test(app, user, view);
	});
}


static void
send(kernix& app, robot& user, BView* view, BMessage message)
{
	app.window->PostMessage(&message, view);
	user.settle();
}


static struct input
recorded(kernix& app)
{
	struct input record = {};
	looking(app, [&] { record = app.window->input; });
	return record;
}


static BMessage
move_with(const char* field, float value)
{
	BMessage message(B_MOUSE_MOVED);
	message.AddFloat(field, value);
	return message;
}


static BMessage
move_with(const char* field, int32 value)
{
	BMessage message(B_MOUSE_MOVED);
	message.AddInt32(field, value);
	return message;
}


// Every field, each with a value of its own.
static BMessage
full(uint32 what)
{
	BMessage message(what);
	message.AddFloat("be:tablet_x", 0.25f);
	message.AddFloat("be:tablet_y", 0.75f);
	message.AddFloat("be:tablet_tilt_x", -0.5f);
	message.AddFloat("be:tablet_tilt_y", 0.5f);
	message.AddFloat("be:tablet_pressure", 0.875f);
	message.AddInt32("be:tablet_eraser", 1);
	message.AddInt32("buttons", 2);
	message.AddInt32("modifiers", 0x43);
	message.AddInt32("be:transit", B_EXITED_VIEW);
	message.AddInt64("when", 0x123456789ALL);
	message.AddPoint("be:view_where", BPoint(12.5f, 34.25f));
	return message;
}


static void
expect_full(const struct input& record)
{
	EXPECT_EQ(record.x, 0.25f);
	EXPECT_EQ(record.y, 0.75f);
	EXPECT_EQ(record.tilt_x, -0.5f);
	EXPECT_EQ(record.tilt_y, 0.5f);
	EXPECT_EQ(record.pressure, 0.875f);
	EXPECT_EQ(record.eraser, 1);
	EXPECT_EQ(record.buttons, 2);
	EXPECT_EQ(record.modifiers, 0x43);
	EXPECT_EQ(record.transit, 2);
	EXPECT_EQ(record.when, 0x123456789ALL);
	EXPECT_EQ(record.where, BPoint(12.5f, 34.25f));
}


static void
expect_untouched(const struct input& record)
{
	EXPECT_EQ(record.flags, 0);
	EXPECT_EQ(record.x, 0.0f);
	EXPECT_EQ(record.pressure, 0.0f);
	EXPECT_EQ(record.buttons, 0);
	EXPECT_EQ(record.when, 0);
	EXPECT_EQ(record.where, BPoint(0, 0));
}


TEST(pointer_record, starts_empty)
{
	journey([](kernix& app, robot&) { expect_untouched(recorded(app)); });
}


TEST(pointer_record, takes_every_field_of_a_press_a_release_and_a_move)
{
	for (uint32 what : {B_MOUSE_DOWN, B_MOUSE_UP, B_MOUSE_MOVED}) {
		recording([&](kernix& app, robot& user, BView* view) {
			send(app, user, view, full(what));
			EXPECT_EQ(recorded(app).flags, 0x073F) << what;
			expect_full(recorded(app));
		});
	}
}


TEST(pointer_record, has_one_bit_for_each_field)
{
	recording([](kernix& app, robot& user, BView* view) {
		send(app, user, view, move_with("be:tablet_pressure", 0.5f));
		EXPECT_EQ(recorded(app).flags, 0x0004);
		send(app, user, view, move_with("be:tablet_eraser", int32(1)));
		EXPECT_EQ(recorded(app).flags, 0x0008);
		send(app, user, view, move_with("buttons", int32(1)));
		EXPECT_EQ(recorded(app).flags, 0x0010);
		send(app, user, view, move_with("modifiers", int32(1)));
		EXPECT_EQ(recorded(app).flags, 0x0020);
		send(app, user, view, move_with("be:transit", int32(1)));
		EXPECT_EQ(recorded(app).flags, 0x0400);
		BMessage when(B_MOUSE_MOVED);
		when.AddInt64("when", 1);
		send(app, user, view, when);
		EXPECT_EQ(recorded(app).flags, 0x0100);
		BMessage where(B_MOUSE_MOVED);
		where.AddPoint("be:view_where", BPoint(1, 1));
		send(app, user, view, where);
		EXPECT_EQ(recorded(app).flags, 0x0200);
		BMessage place = move_with("be:tablet_x", 0.5f);
		place.AddFloat("be:tablet_y", 0.5f);
		send(app, user, view, place);
		EXPECT_EQ(recorded(app).flags, 0x0001);
		BMessage tilt = move_with("be:tablet_tilt_x", 0.5f);
		tilt.AddFloat("be:tablet_tilt_y", 0.5f);
		send(app, user, view, tilt);
		EXPECT_EQ(recorded(app).flags, 0x0002);
	});
}


TEST(pointer_record, keeps_missing_fields_with_their_bits_clear)
{
	recording([](kernix& app, robot& user, BView* view) {
		send(app, user, view, full(B_MOUSE_DOWN));
		send(app, user, view, BMessage(B_MOUSE_UP));
		EXPECT_EQ(recorded(app).flags, 0);
		expect_full(recorded(app));
	});
}


TEST(pointer_record, has_no_place_on_the_tablet_with_one_of_the_two)
{
	recording([](kernix& app, robot& user, BView* view) {
		send(app, user, view, full(B_MOUSE_DOWN));
		send(app, user, view, move_with("be:tablet_x", 0.5f));
		EXPECT_EQ(recorded(app).flags, 0);
		EXPECT_EQ(recorded(app).y, 0.75f);
		send(app, user, view, full(B_MOUSE_DOWN));
		send(app, user, view, move_with("be:tablet_y", 0.5f));
		EXPECT_EQ(recorded(app).flags, 0);
		EXPECT_EQ(recorded(app).x, 0.25f);
	});
}


TEST(pointer_record, has_no_tilt_with_one_of_the_two)
{
	recording([](kernix& app, robot& user, BView* view) {
		send(app, user, view, full(B_MOUSE_DOWN));
		send(app, user, view, move_with("be:tablet_tilt_x", 0.125f));
		EXPECT_EQ(recorded(app).flags, 0);
		EXPECT_EQ(recorded(app).tilt_y, 0.5f);
		send(app, user, view, full(B_MOUSE_DOWN));
		send(app, user, view, move_with("be:tablet_tilt_y", 0.125f));
		EXPECT_EQ(recorded(app).flags, 0);
		EXPECT_EQ(recorded(app).tilt_x, -0.5f);
	});
}


TEST(pointer_record, takes_a_field_that_is_zero)
{
	recording([](kernix& app, robot& user, BView* view) {
		send(app, user, view, full(B_MOUSE_DOWN));
		send(app, user, view, move_with("buttons", int32(0)));
		EXPECT_EQ(recorded(app).flags, 0x0010);
		EXPECT_EQ(recorded(app).buttons, 0);
	});
}


TEST(pointer_record, does_not_take_a_field_of_another_type)
{
	recording([](kernix& app, robot& user, BView* view) {
		send(app, user, view, full(B_MOUSE_DOWN));
		BMessage odd(B_MOUSE_MOVED);
		odd.AddInt32("be:tablet_pressure", 1);
		odd.AddFloat("buttons", 1);
		odd.AddInt32("when", 1);
		send(app, user, view, odd);
		EXPECT_EQ(recorded(app).flags, 0);
		expect_full(recorded(app));
	});
}


TEST(pointer_record, ignores_messages_for_another_view)
{
	recording([](kernix& app, robot& user, BView*) {
		send(app, user, app.window->selector, full(B_MOUSE_MOVED));
		expect_untouched(recorded(app));
	});
}


TEST(pointer_record, ignores_every_message_while_no_view_is_recorded)
{
	journey([](kernix& app, robot& user) {
		send(app, user, app.window->workview, full(B_MOUSE_MOVED));
		expect_untouched(recorded(app));
	});
}


TEST(pointer_record, ignores_copies_that_ask_for_a_cursor)
{
	recording([](kernix& app, robot& user, BView* view) {
		BMessage copy = full(B_MOUSE_MOVED);
		copy.AddInt32("be:cursor_needed", 0);
		send(app, user, view, copy);
		expect_untouched(recorded(app));
	});
}


TEST(pointer_record, ignores_copies_that_carry_another_code)
{
	recording([](kernix& app, robot& user, BView* view) {
		BMessage copy = full(B_MOUSE_MOVED);
		copy.AddInt32("_msg_what_", 0);
		send(app, user, view, copy);
		expect_untouched(recorded(app));
	});
}


TEST(pointer_record, ignores_those_two_fields_only_as_int32)
{
	recording([](kernix& app, robot& user, BView* view) {
		BMessage message = full(B_MOUSE_MOVED);
		message.AddBool("be:cursor_needed", true);
		message.AddInt64("_msg_what_", 1);
		send(app, user, view, message);
		EXPECT_EQ(recorded(app).flags, 0x073F);
	});
}


TEST(pointer_record, ignores_messages_that_are_no_mouse_messages)
{
	recording([](kernix& app, robot& user, BView* view) {
		for (uint32 what :
			std::initializer_list<uint32>{B_KEY_UP, B_MOUSE_WHEEL_CHANGED, B_SIMPLE_DATA})
			send(app, user, view, full(what));
		expect_untouched(recorded(app));
	});
}


namespace {

// Remembers what the window's record said when its own hook ran.
class witness : public BView {
public:
	witness() : BView(BRect(0, 0, 99, 99), "witness", B_FOLLOW_NONE, B_WILL_DRAW) {}

	void MouseDown(BPoint) override { look(); }
	void MouseUp(BPoint) override { look(); }
	void MouseMoved(BPoint, uint32, const BMessage*) override { look(); }

	std::vector<struct input> seen;

private:
	void look() { seen.push_back(static_cast<kernixwindow*>(Window())->input); }
};


// Runs with the witness in the work view's corner and recorded; gives what it has seen.
std::vector<struct input>
seen_by_a_witness(const std::function<void(kernix&, robot&, witness*)>& test)
{
	std::vector<struct input> seen;
	journey([&](kernix& app, robot& user) {
		auto* view = new witness;
		looking(app, [&] {
			app.window->workview->AddChild(view);
			app.window->settarget(BRect(), nullptr, view, 1, 1);
		});
		user.settle();
		test(app, user, view);
		looking(app, [&] { seen = view->seen; });
	});
	return seen;
}

}


TEST(pointer_record, is_filled_before_the_view_handles_the_message)
{
	auto seen = seen_by_a_witness(
		[](kernix& app, robot& user, witness* view) { send(app, user, view, full(B_MOUSE_DOWN)); });
	ASSERT_EQ(seen.size(), 1u);
	EXPECT_EQ(seen[0].flags, 0x073F);
	expect_full(seen[0]);
}


TEST(pointer_record, lets_ignored_messages_go_on_to_the_view)
{
	auto seen = seen_by_a_witness([](kernix& app, robot& user, witness* view) {
		BMessage copy = full(B_MOUSE_DOWN);
		copy.AddInt32("be:cursor_needed", 1);
		send(app, user, view, copy);
	});
	ASSERT_EQ(seen.size(), 1u);
	expect_untouched(seen[0]);
}


TEST(pointer_record, holds_the_place_in_the_view_of_a_real_pointer)
{
	// The work view starts at (0, 53).
	auto seen = seen_by_a_witness([](kernix&, robot& user, witness*) {
		user.move(BPoint(20, 63));
		user.press(BPoint(30, 73), B_SECONDARY_MOUSE_BUTTON, B_SHIFT_KEY);
		user.release(BPoint(30, 73), B_SECONDARY_MOUSE_BUTTON, B_SHIFT_KEY);
	});
	ASSERT_GE(seen.size(), 3u);
	EXPECT_EQ(seen.front().flags, 0x0730);
	EXPECT_EQ(seen.front().where, BPoint(20, 10));
	EXPECT_EQ(seen.front().transit, 0);
	const struct input& press = seen[seen.size() - 2];
	EXPECT_EQ(press.flags & 0x033F, 0x0330);
	EXPECT_EQ(press.where, BPoint(30, 20));
	EXPECT_EQ(press.buttons, 2);
	EXPECT_EQ(press.modifiers & 0x1, 0x1);
	EXPECT_EQ(seen.back().buttons, 0);
	EXPECT_GT(seen.back().when, 0);
}


TEST(pointer_record, goes_on_with_the_same_view_when_a_table_is_chosen_or_the_font_changes)
{
	temp_file font(tiny_font());
	recording([&](kernix& app, robot& user, BView* view) {
		open_file(user, font.path());
		tell_view(app, user, 'tsel', {"maxp"});
		open_file(user, font.path());
		looking(app, [&] { EXPECT_EQ(app.window->inputhandler, view); });
	});
}
