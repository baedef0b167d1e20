// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
// The values of the interface kit that programs and stored messages were built with. Nearly all is
// decided by the compiler.
#include <Alert.h>
#include <Application.h>
#include <Control.h>
#include <FilePanel.h>
#include <ListView.h>
#include <Menu.h>
#include <ScrollBar.h>
#include <Slider.h>
#include <UTF8.h>
#include <View.h>
#include <Window.h>

#include <gtest/gtest.h>
#include <type_traits>

static_assert(std::is_same_v<decltype(B_WILL_DRAW), const uint32>);
static_assert(B_FULL_UPDATE_ON_RESIZE == 0x80000000);
static_assert(B_WILL_DRAW == 0x20000000);
static_assert(B_PULSE_NEEDED == 0x10000000);
static_assert(B_NAVIGABLE_JUMP == 0x08000000);
static_assert(B_FRAME_EVENTS == 0x04000000);
static_assert(B_NAVIGABLE == 0x02000000);
static_assert(B_SUBPIXEL_PRECISE == 0x01000000);
static_assert(B_DRAW_ON_CHILDREN == 0x00800000);
static_assert(B_INPUT_METHOD_AWARE == 0x00400000);

static_assert(std::is_same_v<decltype(B_FOLLOW_ALL), const uint32>);
static_assert(B_FOLLOW_NONE == 0);
static_assert(B_FOLLOW_ALL == 0x1234);
static_assert(B_FOLLOW_ALL_SIDES == 0x1234);
static_assert(B_FOLLOW_LEFT == 0x0202);
static_assert(B_FOLLOW_RIGHT == 0x0404);
static_assert(B_FOLLOW_LEFT_RIGHT == 0x0204);
static_assert(B_FOLLOW_H_CENTER == 0x0505);
static_assert(B_FOLLOW_TOP == 0x1010);
static_assert(B_FOLLOW_BOTTOM == 0x3030);
static_assert(B_FOLLOW_TOP_BOTTOM == 0x1030);
static_assert(B_FOLLOW_V_CENTER == 0x5050);
static_assert(B_FOLLOW_LEFT_TOP == 0x1212);

static_assert(B_FONT_FAMILY_AND_STYLE == 0x01);
static_assert(B_FONT_SIZE == 0x02);
static_assert(B_FONT_SHEAR == 0x04);
static_assert(B_FONT_ROTATION == 0x08);
static_assert(B_FONT_SPACING == 0x10);
static_assert(B_FONT_ENCODING == 0x20);
static_assert(B_FONT_FACE == 0x40);
static_assert(B_FONT_FLAGS == 0x80);
static_assert(B_FONT_ALL == 0x1FF);

static_assert(B_PRIMARY_MOUSE_BUTTON == 1);
static_assert(B_SECONDARY_MOUSE_BUTTON == 2);
static_assert(B_TERTIARY_MOUSE_BUTTON == 4);
static_assert(B_ENTERED_VIEW == 0);
static_assert(B_INSIDE_VIEW == 1);
static_assert(B_EXITED_VIEW == 2);
static_assert(B_OUTSIDE_VIEW == 3);

static_assert(B_UNTYPED_WINDOW == 0);
static_assert(B_TITLED_WINDOW == 1);
static_assert(B_MODAL_WINDOW == 3);
static_assert(B_DOCUMENT_WINDOW == 11);
static_assert(B_BORDERED_WINDOW == 20);
static_assert(B_FLOATING_WINDOW == 21);
static_assert(B_CURRENT_WORKSPACE == 0);
static_assert(B_NOT_MOVABLE == 0x01);
static_assert(B_NOT_RESIZABLE == 0x02);
static_assert(B_NOT_CLOSABLE == 0x20);
static_assert(B_NOT_ZOOMABLE == 0x40);
static_assert(B_NOT_MINIMIZABLE == 0x4000);
static_assert(B_ASYNCHRONOUS_CONTROLS == 0x80000);

static_assert(B_CONTROL_OFF == 0);
static_assert(B_CONTROL_ON == 1);
static_assert(B_SINGLE_SELECTION_LIST == 0);
static_assert(B_MULTIPLE_SELECTION_LIST == 1);
static_assert(B_ITEMS_IN_ROW == 0);
static_assert(B_ITEMS_IN_COLUMN == 1);
static_assert(B_ITEMS_IN_MATRIX == 2);
static_assert(B_BLOCK_THUMB == 0);
static_assert(B_TRIANGLE_THUMB == 1);
static_assert(B_EMPTY_ALERT == 0);
static_assert(B_INFO_ALERT == 1);
static_assert(B_IDEA_ALERT == 2);
static_assert(B_WARNING_ALERT == 3);
static_assert(B_STOP_ALERT == 4);
static_assert(B_OPEN_PANEL == 0);
static_assert(B_SAVE_PANEL == 1);

static_assert(B_ISO1_CONVERSION == 0);
static_assert(B_ISO10_CONVERSION == 9);
static_assert(B_MAC_ROMAN_CONVERSION == 10);
static_assert(B_SJIS_CONVERSION == 11);
static_assert(B_EUC_CONVERSION == 12);
static_assert(B_JIS_CONVERSION == 13);
static_assert(B_MS_WINDOWS_CONVERSION == 14);
static_assert(B_UNICODE_CONVERSION == 15);

static_assert(std::is_same_v<decltype(be_app), BApplication*>);
static_assert(std::is_same_v<decltype(be_app_messenger), BMessenger>);
static_assert(std::is_same_v<decltype(be_plain_font), const BFont*>);
static_assert(std::is_same_v<decltype(be_bold_font), const BFont*>);


TEST(constants, scroll_bars_are_14_pixels_thick)
{
	EXPECT_EQ(B_V_SCROLL_BAR_WIDTH, 14);
	EXPECT_EQ(B_H_SCROLL_BAR_HEIGHT, 14);
}


// It is the address in "source".
TEST(constants, a_control_has_one_address_whatever_class_it_is_seen_as)
{
	BListView list(BRect(0, 0, 9, 9), "list");
	EXPECT_EQ((void*)(BView*)&list, (void*)&list);
	BSlider slider(BRect(0, 0, 9, 9), "slider", "", nullptr, 0, 1);
	EXPECT_EQ((void*)(BControl*)&slider, (void*)&slider);
	EXPECT_EQ((void*)(BView*)&slider, (void*)&slider);
}
