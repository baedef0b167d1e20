// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "app/port.h"

#include "app/activity.h"

#include <AppDefs.h>
#include <gtest/gtest.h>
#include <thread>
#include <vector>

using namespace kits;

namespace {

constexpr int32 window = 7;

std::unique_ptr<BMessage>
message(uint32 what, float x = 0, int32 buttons = 0)
{
	auto made = std::make_unique<BMessage>(what);
	made->AddPoint("where", BPoint(x, 0));
	made->AddInt32("buttons", buttons);
	return made;
}


std::unique_ptr<BMessage>
move(float x, int32 buttons = 0)
{
	return message(B_MOUSE_MOVED, x, buttons);
}


// Where the pointer was in all that is queued.
std::vector<float>
places(port& queue)
{
	queue.post(message('end '), window);
	std::vector<float> found;
	for (;;) {
		parcel next = queue.next();
		activity::end();
		if (next.message->what == 'end ')
			return found;
		found.push_back(next.message->FindPoint("where").x);
	}
}

using floats = std::vector<float>;

}


TEST(port, hands_out_in_order_with_the_token)
{
	port queue;
	EXPECT_TRUE(queue.post(message('1st '), 3));
	EXPECT_TRUE(queue.post(message('2nd '), preferred_handler));
	parcel first = queue.next();
	EXPECT_EQ(first.message->what, (uint32)'1st ');
	EXPECT_EQ(first.handler, 3);
	parcel second = queue.next();
	EXPECT_EQ(second.message->what, (uint32)'2nd ');
	EXPECT_EQ(second.handler, preferred_handler);
	activity::end();
	activity::end();
}


TEST(port, the_reader_waits_for_what_comes)
{
	port queue;
	std::thread sender([&] { queue.post(message('late'), window); });
	EXPECT_EQ(queue.next().message->what, (uint32)'late');
	sender.join();
	activity::end();
}


TEST(port, of_idle_moves_only_the_latest_stays)
{
	port queue;
	EXPECT_TRUE(queue.post_move(move(1), window));
	EXPECT_TRUE(queue.post_move(move(2), window));
	EXPECT_TRUE(queue.post_move(move(3), window));
	EXPECT_EQ(places(queue), floats({3}));
}


TEST(port, while_a_button_is_held_every_move_counts)
{
	port queue;
	for (float x : {1.0f, 2.0f, 3.0f})
		queue.post_move(move(x, 1), window);
	EXPECT_EQ(places(queue), floats({1, 2, 3}));
}


TEST(port, a_move_with_a_button_neither_replaces_nor_is_replaced)
{
	port queue;
	queue.post_move(move(1), window);
	queue.post_move(move(2, 1), window);
	queue.post_move(move(3), window);
	queue.post_move(move(4), window);
	EXPECT_EQ(places(queue), floats({1, 2, 4}));
}


TEST(port, a_move_replaces_only_what_is_last)
{
	port queue;
	queue.post_move(move(1), window);
	queue.post(message(B_MOUSE_DOWN, 2), window);
	queue.post_move(move(3), window);
	queue.post(message(B_KEY_DOWN, 4), window);
	queue.post_move(move(5), window);
	queue.post_move(move(6), window);
	EXPECT_EQ(places(queue), floats({1, 2, 3, 4, 6}));
}


TEST(port, a_move_replaces_nothing_that_is_no_move)
{
	port queue;
	queue.post(message(B_MOUSE_UP, 1), window);
	queue.post_move(move(2), window);
	EXPECT_EQ(places(queue), floats({1, 2}));
}


TEST(port, a_move_that_was_handed_out_is_not_changed)
{
	port queue;
	queue.post_move(move(1), window);
	parcel taken = queue.next();
	queue.post_move(move(2), window);
	EXPECT_EQ(taken.message->FindPoint("where"), BPoint(1, 0));
	EXPECT_EQ(places(queue), floats({2}));
	activity::end();
}


TEST(port, closed_takes_nothing_and_forgets_what_it_had)
{
	const int64 before = activity::pending();
	port queue;
	queue.post(message('1st '), window);
	queue.post_move(move(1), window);
	EXPECT_EQ(activity::pending(), before + 2);
	queue.close();
	EXPECT_EQ(activity::pending(), before);
	EXPECT_FALSE(queue.post(message('late'), window));
	EXPECT_FALSE(queue.post_move(move(2), window));
	EXPECT_EQ(activity::pending(), before);
}


TEST(port, a_replaced_move_counts_once)
{
	const int64 before = activity::pending();
	port queue;
	queue.post_move(move(1), window);
	queue.post_move(move(2), window);
	EXPECT_EQ(activity::pending(), before + 1);
}
