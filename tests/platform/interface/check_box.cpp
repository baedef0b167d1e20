// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include <CheckBox.h>

#include "platform/interface/form.h"

#include <gtest/gtest.h>

#include <QWidget>

namespace {

constexpr BPoint outside(150, 80);


// A box of the measures of the layouts: 161 x 16 pixels.
BCheckBox&
add_box(form& page, const char* label = "Latin", BPoint at = BPoint(10, 10))
{
	auto* model = new BMessage('sent');
	model->AddString("from", label);
	auto* box = new BCheckBox(BRect(at.x, at.y, at.x + 160, at.y + 15), "unicode", label, model);
	page.locked([&] {
		page.AddChild(box);
		box->SetTarget(&page);
	});
	return *box;
}


int32
value_of(form& page, BCheckBox& box)
{
	int32 value = -1;
	page.locked([&] { value = box.Value(); });
	return value;
}

}


TEST(check_box, is_made_and_asked_without_an_application)
{
	BCheckBox box(BRect(0, 0, 160, 15), "unicode", "Latin", new BMessage('Bchk'));
	EXPECT_STREQ(box.Label(), "Latin");
	EXPECT_EQ(box.Value(), B_CONTROL_OFF);
	EXPECT_EQ(box.Flags(), B_WILL_DRAW | B_NAVIGABLE);
	EXPECT_EQ(box.ResizingMode(), B_FOLLOW_LEFT | B_FOLLOW_TOP);
	box.SetValue(B_CONTROL_ON);
	EXPECT_EQ(box.Value(), B_CONTROL_ON);
}


TEST(check_box, is_toggled_and_invoked_by_a_release_inside)
{
	with_form([](form& page, robot& user) {
		BCheckBox& box = add_box(page);
		user.press(middle(box));
		EXPECT_EQ(value_of(page, box), 0);
		EXPECT_EQ(page.senders(), journal());
		user.release(middle(box));
		EXPECT_EQ(value_of(page, box), 1);
		EXPECT_EQ(page.senders(), journal{"Latin"});
		user.click(middle(box));
		EXPECT_EQ(value_of(page, box), 0);
		EXPECT_EQ(page.senders(), (journal{"Latin", "Latin"}));
	});
}


TEST(check_box, has_its_new_value_when_the_message_arrives_and_in_it)
{
	with_form([](form& page, robot& user) {
		BCheckBox& box = add_box(page);
		std::vector<int32> at_receipt;
		page.on_sent = [&](BMessage& message) {
			at_receipt.push_back(box.Value());
			at_receipt.push_back(message.FindInt32("be:value"));
		};
		user.tick("Latin");
		user.tick("Latin");
		EXPECT_EQ(at_receipt, (std::vector<int32>{1, 1, 0, 0}));
	});
}


TEST(check_box, says_who)
{
	with_form([](form& page, robot& user) {
		BCheckBox& box = add_box(page);
		user.tick("Latin");
		void* source = nullptr;
		EXPECT_EQ(page.messages().at(0).FindPointer("source", &source), B_OK);
		EXPECT_EQ(source, (void*)&box);
		EXPECT_TRUE(page.messages().at(0).HasInt64("when"));
	});
}


TEST(check_box, is_not_toggled_by_a_release_outside)
{
	with_form([](form& page, robot& user) {
		BCheckBox& box = add_box(page);
		user.press(middle(box));
		user.move(outside);
		user.release(outside);
		EXPECT_EQ(value_of(page, box), 0);
		EXPECT_EQ(page.senders(), journal());
	});
}


TEST(check_box, can_be_clicked_all_over_its_frame)
{
	with_form([](form& page, robot& user) {
		BCheckBox& box = add_box(page);
		user.click(BPoint(11, 11));
		EXPECT_EQ(value_of(page, box), 1);
		user.click(BPoint(168, 24));
		EXPECT_EQ(value_of(page, box), 0);
	});
}


TEST(check_box, counts_each_of_two_quick_clicks)
{
	with_form([](form& page, robot& user) {
		BCheckBox& box = add_box(page);
		user.act([](QWidget& window) {
			click_into(window, BPoint(20, 15));
			click_into(window, BPoint(20, 15));
			click_into(window, BPoint(20, 15));
		});
		user.settle();
		EXPECT_EQ(value_of(page, box), 1);
		EXPECT_EQ(page.senders().size(), 3u);
		EXPECT_TRUE(user.is_ticked("Latin"));
	});
}


TEST(check_box, shows_its_value_whoever_set_it)
{
	with_form([](form& page, robot& user) {
		BCheckBox& box = add_box(page);
		EXPECT_FALSE(user.is_ticked("Latin"));
		user.tick("Latin");
		EXPECT_TRUE(user.is_ticked("Latin"));
		page.locked([&] { box.SetValue(B_CONTROL_OFF); });
		EXPECT_FALSE(user.is_ticked("Latin"));
		page.locked([&] { box.SetValue(B_CONTROL_ON); });
		EXPECT_TRUE(user.is_ticked("Latin"));
		EXPECT_EQ(page.senders().size(), 1u) << "setting the value sends nothing";
	});
}


TEST(check_box, shows_a_value_that_its_own_message_takes_back)
{
	with_form([](form& page, robot& user) {
		BCheckBox& box = add_box(page);
		page.on_sent = [&](BMessage&) { box.SetValue(B_CONTROL_OFF); };
		user.tick("Latin");
		EXPECT_EQ(value_of(page, box), 0);
		EXPECT_FALSE(user.is_ticked("Latin"));
	});
}


TEST(check_box, shows_a_value_that_was_set_before_it_was_attached)
{
	with_form([](form& page, robot& user) {
		auto* box = new BCheckBox(BRect(10, 10, 170, 25), "unicode", "Latin", nullptr);
		box->SetValue(B_CONTROL_ON);
		page.put(box);
		EXPECT_TRUE(user.is_ticked("Latin"));
	});
}


TEST(check_box, is_reached_by_tab_and_toggled_by_space_and_enter)
{
	with_form([](form& page, robot& user) {
		BCheckBox& box = add_box(page);
		BCheckBox& other = add_box(page, "Greek", BPoint(10, 30));
		press_tab(user);
		EXPECT_TRUE(user.has_keyboard(middle(box)));
		user.key(Qt::Key_Space, " ");
		EXPECT_EQ(value_of(page, box), 1);
		press_return(user);
		EXPECT_EQ(value_of(page, box), 0);
		press_tab(user);
		EXPECT_TRUE(user.has_keyboard(middle(other)));
		user.key(Qt::Key_Space, " ");
		EXPECT_EQ(value_of(page, other), 1);
		EXPECT_EQ(value_of(page, box), 0);
	});
}


TEST(check_box, does_not_take_the_keyboard_when_clicked)
{
	with_form([](form& page, robot& user) {
		BCheckBox& box = add_box(page);
		page.locked([&] { page.MakeFocus(); });
		user.tick("Latin");
		EXPECT_EQ(page.focus(), "form");
		EXPECT_FALSE(user.has_keyboard(middle(box)));
	});
}


TEST(check_box, that_is_disabled_is_not_toggled)
{
	with_form([](form& page, robot& user) {
		BCheckBox& box = add_box(page);
		page.locked([&] { box.SetEnabled(false); });
		user.tick("Latin");
		EXPECT_EQ(value_of(page, box), 0);
		EXPECT_EQ(page.senders(), journal());
	});
}


TEST(check_box, tells_a_label_that_is_too_long_in_a_tooltip)
{
	with_form([](form& page, robot& user) {
		BCheckBox& box = add_box(page, "Unified Canadian Aboriginal Syllabics");
		EXPECT_EQ(user.tooltip(middle(box)), "Unified Canadian Aboriginal Syllabics");
		page.locked([&] { box.SetLabel("Latin"); });
		EXPECT_EQ(user.tooltip(middle(box)), "");
		page.locked([&] { box.ResizeTo(25, 15); });
		EXPECT_EQ(user.tooltip(BPoint(20, 15)), "Latin");
	});
}


TEST(check_box, cuts_a_label_off_within_its_frame)
{
	with_form([](form& page, robot& user) {
		page.locked([&] {
			page.SetViewColor(200, 200, 220);
			page.Invalidate();
		});
		add_box(page, "Unified Canadian Aboriginal Syllabics");
		rgb_color ground = {200, 200, 220, 255};
		EXPECT_LT(user.count(BRect(140, 10, 170, 25), ground), 31 * 16) << "letters to the end";
		EXPECT_EQ(user.count(BRect(171, 0, 199, 99), ground), 29 * 100);
		EXPECT_EQ(user.count(BRect(0, 26, 199, 40), ground), 200 * 15);
	});
}


TEST(check_box, keeps_the_colour_that_its_parent_had_when_it_was_attached)
{
	with_form([](form& page, robot& user) {
		page.locked([&] { page.SetViewColor(200, 200, 220); });
		add_box(page, "i");
		page.locked([&] {
			page.SetViewColor(0, 0, 0);
			page.Invalidate();
		});
		EXPECT_EQ(user.count(BRect(60, 10, 170, 25), rgb_color{200, 200, 220, 255}), 111 * 16);
		EXPECT_EQ(user.pixel(BPoint(180, 20)), black);
	});
}


TEST(check_box, has_a_cross_in_a_box_of_11_pixels)
{
	with_form([](form& page, robot& user) {
		add_box(page, "");
		BRect within(11, 13, 19, 21);
		EXPECT_EQ(user.count(within, white), 9 * 9);
		user.click(BPoint(60, 15));
		EXPECT_LT(user.count(within, white), 9 * 9 - 9);
		EXPECT_LT(user.pixel(BPoint(15, 17)).red, 60) << "where the strokes cross";
	});
}


TEST(check_box, shows_that_it_has_the_keyboard)
{
	with_form([](form& page, robot& user) {
		add_box(page);
		rgb_color before = user.pixel(BPoint(10, 15));
		press_tab(user);
		EXPECT_FALSE(user.pixel(BPoint(10, 15)) == before);
	});
}


TEST(check_box, shows_an_ampersand_as_it_is)
{
	with_form([](form& page, robot& user) {
		BCheckBox& box = add_box(page, "A & B");
		user.act([](QWidget& window) { press_key(window, Qt::Key_B, "b", Qt::AltModifier); });
		user.settle();
		EXPECT_EQ(value_of(page, box), 0);
		EXPECT_TRUE(user.tick("A & B"));
		EXPECT_EQ(value_of(page, box), 1);
	});
}


TEST(check_box, removed_by_its_own_message_does_no_harm)
{
	with_form([](form& page, robot& user) {
		BCheckBox& box = add_box(page);
		page.on_sent = [&](BMessage&) {
			if (page.RemoveChild(page.FindView("unicode")))
				delete &box;
		};
		user.act([](QWidget& window) {
			click_into(window, BPoint(20, 15));
			click_into(window, BPoint(20, 15));
		});
		user.settle();
		page.locked([&] { EXPECT_EQ(page.CountChildren(), 0); });
	});
}
