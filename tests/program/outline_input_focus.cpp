// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Who has the keyboard, who has the pointer; copy and paste.
#include "app/kernixview.h"
#include "app/kernixwindow.h"
#include "program/outline_user.h"
#include "support/temp_files.h"

#include <AppDefs.h>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

static const int16 square = 1;
static const int16 three_squares = 2;

// The palette's field for a glyph's number, in the window.
static const BPoint number_field(35, 133);
static const BPoint character_field(30, 77);


// The primary button goes down, moves and goes up, as events of the display.
static void
drag(QWidget& window, BPoint from, BPoint to)
{
	auto send = [&](QEvent::Type type, BPoint where, Qt::MouseButton button, bool held) {
		QPointF place(where.x, where.y);
		QMouseEvent event(type, place, place, window.windowHandle()->mapToGlobal(place), button,
			held ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
		QCoreApplication::sendEvent(window.windowHandle(), &event);
	};
	send(QEvent::MouseButtonPress, from, Qt::LeftButton, true);
	send(QEvent::MouseMove, to, Qt::NoButton, true);
	send(QEvent::MouseButtonRelease, to, Qt::LeftButton, false);
}


TEST(outline_input, a_field_keeps_the_arrows_until_the_canvas_is_pressed)
{
	at_outline(three_squares, [](outline_user& user) {
		user.hand.click(number_field);
		EXPECT_TRUE(user.hand.has_keyboard(number_field));
		user.hand.key(Qt::Key_Left);
		user.hand.key(Qt::Key_Up);
		user.hand.key(Qt::Key_Right);
		EXPECT_EQ(user.selection(), "0 0 0");
		user.click({120, 120});
		EXPECT_FALSE(user.hand.has_keyboard(number_field));
		user.hand.key(Qt::Key_Left);
		EXPECT_EQ(user.selection(), "-1 0 0");
	});
}


// "Save as" and its panel, closed or answered: the canvas has the keyboard again.
TEST(outline_input, the_keyboard_is_back_at_the_canvas_after_a_panel)
{
	at_outline(three_squares, [](outline_user& user) {
		temp_folder folder;
		const std::string before = user.hand.field_text(number_field);
		user.click({120, 120});
		user.hand.choose_menu("File", "Save as");
		user.hand.cancel_panel();
		user.hand.key(Qt::Key_Left);
		EXPECT_EQ(user.selection(), "-1 0 0");
		save_file(user.hand, folder.path(), "saved.ttf");
		user.hand.key(Qt::Key_Left);
		EXPECT_EQ(user.selection(), "0 -1 0");
		user.click({120, 120});
		user.band({4, 4}, {30, 30});
		EXPECT_EQ(user.selection(), "-1 0 0");
		user.hand.key(Qt::Key_Delete, "\x7f");
		EXPECT_EQ(user.outline(), "48,8 64,8 64,24 48,24 | 88,8 104,8 104,24 88,24");
		EXPECT_EQ(user.hand.field_text(number_field), before);
		for (BPoint field : {number_field, character_field})
			EXPECT_FALSE(user.hand.has_keyboard(field));
	});
}


// A character is typed into the palette, the canvas pressed and Delete struck while a save goes on.
TEST(outline_input, what_is_typed_ahead_goes_where_the_user_pressed)
{
	at_outline(three_squares, [](outline_user& user) {
		user.hand.click(number_field);
		const BPoint corner = user.place({4, 4});
		const BPoint inside = user.place({30, 30});
		looking(user.app, [&] {
			user.hand.act([&](QWidget& window) {
				drag(window, corner, inside);
				for (auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
					QKeyEvent key(type, Qt::Key_Delete, Qt::NoModifier, "\x7f");
					QCoreApplication::sendEvent(window.windowHandle(), &key);
				}
			});
		});
		user.hand.settle();
		EXPECT_EQ(user.outline(), "48,8 64,8 64,24 48,24 | 88,8 104,8 104,24 88,24");
		EXPECT_EQ(user.hand.field_text(number_field), "0002");
	});
}


TEST(outline_input, the_menu_opens_by_f10_and_leaves_the_keyboard_at_the_canvas)
{
	at_outline(three_squares, [](outline_user& user) {
		user.click({120, 120});
		user.hand.key(Qt::Key_F10);
		user.hand.on_display([] { EXPECT_NE(QApplication::activePopupWidget(), nullptr); });
		user.hand.key(Qt::Key_Down);
		user.hand.key(Qt::Key_Return, "\r");
		EXPECT_TRUE(user.hand.panel_is_open());
		user.hand.cancel_panel();
		user.hand.key(Qt::Key_Left);
		EXPECT_EQ(user.selection(), "-1 0 0");
	});
}


TEST(outline_input, a_press_takes_the_keyboard_with_any_button)
{
	at_outline(three_squares, [](outline_user& user) {
		for (int32 button : {B_SECONDARY_MOUSE_BUTTON, B_TERTIARY_MOUSE_BUTTON}) {
			user.hand.click(number_field);
			user.click({120, 120}, button);
			looking(user.app, [&] { EXPECT_TRUE(user.view().IsFocus()); });
		}
	});
}


TEST(outline_input, a_press_outside_the_canvas_leaves_the_keyboard_where_it_is)
{
	at_outline(three_squares, [](outline_user& user) {
		user.set_scale(2);
		user.hand.click(number_field);
		user.click({200, 200});
		EXPECT_TRUE(user.hand.has_keyboard(number_field));
	});
}


TEST(outline_input, the_tab_key_stays_at_the_canvas)
{
	at_outline(three_squares, [](outline_user& user) {
		user.click({120, 120});
		for (int i = 0; i < 3; i++)
			user.hand.key(Qt::Key_Tab, "\t");
		looking(user.app, [&] { EXPECT_TRUE(user.view().IsFocus()); });
		user.hand.key(Qt::Key_Left);
		EXPECT_EQ(user.selection(), "-1 0 0");
	});
}


TEST(outline_input, the_alt_key_alone_opens_no_menu_and_takes_no_keyboard)
{
	at_outline(three_squares, [](outline_user& user) {
		user.click({120, 120});
		user.hand.key(Qt::Key_Alt);
		user.hand.on_display([] { EXPECT_EQ(QApplication::activePopupWidget(), nullptr); });
		user.hand.key(Qt::Key_Down);
		EXPECT_EQ(user.selection(), "0 0 -1");
		user.hand.on_display([] { EXPECT_EQ(QApplication::activePopupWidget(), nullptr); });
	});
}


TEST(outline_input, control_c_and_control_v_copy_what_is_selected)
{
	at_outline(three_squares, [](outline_user& user) {
		user.click({56, 16});
		user.hand.key(Qt::Key_C, "\x03", B_CONTROL_KEY);
		user.choose(square);
		user.hand.key(Qt::Key_V, "\x16", B_CONTROL_KEY);
		EXPECT_EQ(user.outline(), "20,20 60,20 60,60 20,60 | 48,8 64,8 64,24 48,24");
		EXPECT_EQ(user.selection(), "0 0");
		EXPECT_TRUE(user.looks_fresh());
	});
}


TEST(outline_input, a_field_has_copy_and_paste_to_itself)
{
	at_outline(square, [](outline_user& user) {
		user.click({40, 40});
		user.hand.key(Qt::Key_C, "\x03", B_CONTROL_KEY);
		user.hand.click(number_field);
		user.hand.key(Qt::Key_V, "\x16", B_CONTROL_KEY);
		EXPECT_EQ(user.outline(), "20,20 60,20 60,60 20,60");
	});
}


TEST(outline_input, a_hidden_view_ignores_pointer_and_keys)
{
	at_outline(three_squares, [](outline_user& user) {
		user.click({10, 10});
		BPoint within = user.place({56, 16});
		BPoint beside = user.place({100, 90});
		user.hand.click(place_of_tag(2));
		BPoint before = user.edit(&glyfeditview::last_point);
		user.hand.move(beside);
		user.hand.press(within);
		user.hand.move(beside);
		user.hand.release(beside);
		user.hand.key(Qt::Key_Left);
		EXPECT_EQ(user.selection(), "-1 0 0");
		EXPECT_EQ(user.state(), 1);
		EXPECT_EQ(user.edit(&glyfeditview::button_held), 0);
		EXPECT_EQ(user.edit(&glyfeditview::last_point), before);
		user.hand.click(place_of_tag(1));
		EXPECT_EQ(user.selection(), "-1 0 0");
	});
}


TEST(outline_input, a_hidden_view_neither_copies_nor_pastes)
{
	at_outline(three_squares, [](outline_user& user) {
		user.click({56, 16});
		user.hand.key(Qt::Key_C, "\x03", B_CONTROL_KEY);
		user.hand.click(place_of_tag(2));
		user.hand.key(Qt::Key_V, "\x16", B_CONTROL_KEY);
		user.hand.click(place_of_tag(1));
		user.click({16, 16});
		user.hand.click(place_of_tag(2));
		user.hand.key(Qt::Key_C, "\x03", B_CONTROL_KEY);
		user.hand.click(place_of_tag(1));
		user.choose(square);
		user.hand.key(Qt::Key_V, "\x16", B_CONTROL_KEY);
		EXPECT_EQ(user.outline(), "20,20 60,20 60,60 20,60 | 48,8 64,8 64,24 48,24");
		user.choose(three_squares);
		user.click({120, 120});
		EXPECT_EQ(user.selection(), "0 0 0");
	});
}


TEST(outline_input, a_press_that_makes_a_field_choose_another_glyph_does_nothing_else)
{
	at_outline(three_squares, [](outline_user& user) {
		user.band({0, 0}, {30, 30});
		user.hand.click(number_field);
		user.hand.key(Qt::Key_A, "\x01", B_CONTROL_KEY);
		user.hand.type("1");
		user.press({16, 16});
		EXPECT_EQ(user.edit(&glyfeditview::gno), square);
		user.move({40, 40});
		user.release({40, 40});
		EXPECT_EQ(user.outline(), "20,20 60,20 60,60 20,60");
		EXPECT_EQ(user.selection(), "0");
		EXPECT_EQ(user.state(), 0);
		EXPECT_TRUE(user.looks_fresh());
		user.band({10, 10}, {30, 30});
		EXPECT_EQ(user.selection(), "-1") << "the next press counts";
	});
}


TEST(outline_input, a_press_with_a_tool_that_chooses_another_glyph_draws_nothing)
{
	at_outline(three_squares, [](outline_user& user) {
		user.take('drre');
		user.hand.click(number_field);
		user.hand.key(Qt::Key_A, "\x01", B_CONTROL_KEY);
		user.hand.type("1");
		user.drag({16, 16}, {100, 100});
		EXPECT_EQ(user.outline(), "20,20 60,20 60,60 20,60");
		EXPECT_EQ(points_in(user), "none");
		EXPECT_TRUE(user.looks_fresh());
	});
}


TEST(outline_input, a_view_that_is_shown_again_takes_input_again)
{
	at_outline(three_squares, [](outline_user& user) {
		user.hand.click(place_of_tag(2));
		user.hand.click(user.place({56, 16}));
		user.hand.click(place_of_tag(1));
		user.click({56, 16});
		EXPECT_EQ(user.selection(), "0 -1 0");
	});
}


// Where a scrolled canvas would go on, were the view larger.
TEST(outline_input, a_press_beside_the_view_is_none_on_its_canvas)
{
	at_outline(three_squares, [](outline_user& user) {
		user.click({56, 16});
		user.set_scale(8);
		user.hand.drag_scroll_bar(B_VERTICAL, 200);
		user.hand.drag_scroll_bar(B_HORIZONTAL, 160);
		user.hand.move(BPoint(300, 300));
		// A field, the strip, the menu bar, both scroll bars and the corner between them.
		for (BPoint beside : {number_field, BPoint(500, 40), BPoint(400, 10), BPoint(570, 300),
				 BPoint(300, 570), BPoint(570, 572)}) {
			user.hand.click(beside);
			EXPECT_EQ(user.edit(&glyfeditview::anchor_point), BPoint(56, 16));
			EXPECT_EQ(user.selection(), "0 -1 0");
			EXPECT_EQ(user.state(), 1);
		}
	});
}


TEST(outline_input, a_drag_that_ends_over_the_palette_ends_there)
{
	at_outline(square, [](outline_user& user) {
		user.click({40, 40});
		user.press({40, 40});
		user.move({30, 40});
		user.hand.release(BPoint(20, 300));
		EXPECT_EQ(user.edit(&glyfeditview::button_held), 0);
		EXPECT_EQ(user.state(), 1);
		user.move({50, 50});
		EXPECT_EQ(user.outline(), "10,20 50,20 50,60 10,60");
	});
}
