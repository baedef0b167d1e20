// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The check boxes that choose what a new font has.
#include "app/initview.h"
#include "app/kernix.h"
#include "app/kernixwindow.h"
#include "program/setup_user.h"
#include "tables/unicode_ranges.h"

#include <CheckBox.h>
#include <gtest/gtest.h>
#include <InterfaceDefs.h>
#include <Messenger.h>
#include <QImage>

static const BPoint first_box = in_panel(8, 18);
static const BPoint second_box = in_panel(8, 38);
static const BPoint set_button = in_panel(520, 497);


// The place of a box in the window: three columns of 24, 200 wide and 20 apart.
static BPoint
place_of_box(int index)
{
	return in_panel((float)(index / 24 * 200 + 8), (float)(index % 24 * 20 + 18));
}


TEST(boxes_of_a_new_font, are_71_in_three_columns)
{
	journey([](kernix& app, robot& user) {
		begin_font(user);
		looking(app, [&] {
			const BView* view = app.window->setupview;
			EXPECT_STREQ(view->Name(), "initview");
			EXPECT_EQ(view->Frame().LeftTop(), BPoint(0, 0));
			ASSERT_EQ(view->CountChildren(), 72);
			EXPECT_STREQ(view->ChildAt(0)->Name(), "set");
			EXPECT_EQ(view->ChildAt(0)->Frame(), BRect(500, 485, 540, 510));
			for (int32 i = 0; i < 71; i++) {
				auto* box = dynamic_cast<BCheckBox*>(view->ChildAt(i + 1));
				ASSERT_NE(box, nullptr);
				EXPECT_STREQ(box->Name(), "unicode");
				EXPECT_STREQ(box->Label(), unicode_ranges[i].name);
				EXPECT_EQ(box->Value(), 0);
			}
			EXPECT_EQ(view->ChildAt(1)->Frame(), BRect(0, 10, 160, 25));
			EXPECT_EQ(view->ChildAt(24)->Frame(), BRect(0, 470, 160, 485));
			EXPECT_EQ(view->ChildAt(25)->Frame(), BRect(200, 10, 360, 25));
			EXPECT_EQ(view->ChildAt(71)->Frame(), BRect(400, 450, 560, 465));
			EXPECT_TRUE(view->IsFocus());
		});
	});
}


TEST(boxes_of_a_new_font, tell_a_name_that_does_not_fit)
{
	journey([](kernix&, robot& user) {
		begin_font(user);
		EXPECT_EQ(user.tooltip(place_of_box(6)), "COMBINING_DIACRITICAL_MARKS");
		EXPECT_EQ(user.tooltip(place_of_box(54)), "ENCLOSED_CJK_LETTERS_AND_MONTHS");
		EXPECT_EQ(user.tooltip(place_of_box(24)), "");
		for (int i = 0; i < 71; i++) {
			const std::string name = unicode_ranges[i].name;
			const std::string told = user.tooltip(place_of_box(i));
			// Which of the names of 19 letters fit depends on the letters.
			const std::string expected = name.size() < 19 ? "" : name;
			EXPECT_TRUE(told == expected || (told == "" && name.size() == 19)) << name;
		}
	});
}


TEST(boxes_of_a_new_font, end_a_name_that_does_not_fit_inside)
{
	journey([](kernix&, robot& user) {
		begin_font(user);
		const rgb_color light = user.pixel(in_panel(159, 58));
		// Letters that are cut through would reach the last pixels.
		for (int i = 0; i < 71; i++) {
			const BPoint place = place_of_box(i);
			const BRect end(place.x + 151, place.y - 8, place.x + 152, place.y + 7);
			EXPECT_EQ(user.count(end, light), 32) << unicode_ranges[i].name;
		}
	});
}


TEST(boxes_of_a_new_font, can_be_ticked_where_their_names_are)
{
	journey([](kernix&, robot& user) {
		begin_font(user);
		user.click(place_of_box(0));
		EXPECT_TRUE(counts(user, "0080chrs."));
		user.click(in_panel(120, 18));
		EXPECT_TRUE(counts(user, "0001chrs."));
		user.click(place_of_box(70));
		EXPECT_TRUE(user.is_ticked("TIBETAN"));
		EXPECT_TRUE(counts(user, "00c1chrs."));
	});
}


TEST(boxes_of_a_new_font, all_ticked_make_49504_characters)
{
	journey([](kernix& app, robot& user) {
		begin_font(user);
		for (int i = 0; i < 71; i++)
			user.click(place_of_box(i));
		EXPECT_TRUE(counts(user, "c160chrs."));
		make_font(user);
		EXPECT_EQ(listed(app).size(), 10u);
	});
}


TEST(boxes_of_a_new_font, are_reached_with_the_tab_key_and_ticked_with_the_space_bar)
{
	journey([](kernix& app, robot& user) {
		begin_font(user);
		user.key(Qt::Key_Tab, "\t");
		EXPECT_TRUE(user.has_keyboard(set_button));
		user.key(Qt::Key_Tab, "\t");
		EXPECT_TRUE(user.has_keyboard(first_box));
		user.key(Qt::Key_Space, " ");
		EXPECT_TRUE(user.is_ticked("BASIC_LATIN"));
		EXPECT_TRUE(counts(user, "0080chrs."));
		user.key(Qt::Key_Tab, "\t");
		EXPECT_TRUE(user.has_keyboard(second_box));
		user.key(Qt::Key_Space, " ");
		EXPECT_TRUE(counts(user, "0100chrs."));
		user.key(Qt::Key_Backtab, "", B_SHIFT_KEY);
		user.key(Qt::Key_Space, " ");
		EXPECT_TRUE(counts(user, "0081chrs."));
		user.key(Qt::Key_Backtab, "", B_SHIFT_KEY);
		user.key(Qt::Key_Space, " ");
		EXPECT_FALSE(in_setup(app));
		EXPECT_EQ(listed(app).size(), 10u);
	});
}


TEST(boxes_of_a_new_font, leave_the_set_up_alone_for_other_messages)
{
	journey([](kernix& app, robot& user) {
		begin_font(user);
		user.tick("BASIC_LATIN");
		BMessenger(app.window->setupview).SendMessage('Vchg');
		user.settle();
		EXPECT_TRUE(counts(user, "0080chrs."));
	});
}


TEST(boxes_of_a_new_font, stand_on_black_that_is_painted_afresh)
{
	journey([](kernix&, robot& user) {
		begin_font(user);
		user.tick("BASIC_LATIN");
		const QImage before = user.picture();
		user.resize_window(420, 400);
		user.choose_menu("File", "About");
		user.press_alert("Thank you");
		user.resize_window(576, 579);
		EXPECT_TRUE(counts(user, "0080chrs."));
		EXPECT_EQ(user.pixel(in_panel(180, 300)), (rgb_color{0, 0, 0, 255}));
		EXPECT_EQ(before, user.picture());
	});
}
