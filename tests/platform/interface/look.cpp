// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Layouts given in pixels hold what they are meant for.
#include "platform/interface/form.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFontMetricsF>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QScrollBar>
#include <QStyle>
#include <QWidget>

namespace {

// The line of a field of that width, with its text in it and the cursor behind the text.
void
with_line(float width, float divider, const char* label, const char* text,
	const std::function<void(QLineEdit&, robot&)>& look)
{
	with_form([&](form& page, robot& user) {
		auto* field =
			new BTextControl(BRect(10, 10, 10 + width - 1, 30), "field", label, text, nullptr);
		field->SetDivider(divider);
		page.put(field);
		user.settle();
		user.act([&](QWidget& window) {
			auto* line = window.findChild<QLineEdit*>();
			ASSERT_NE(line, nullptr);
			line->end(false);
			look(*line, user);
		});
	});
}


// All of the line's text can be seen at once.
void
expect_all_seen(const QLineEdit& line)
{
	int middle = line.height() / 2;
	int letters = (int)line.text().size();
	EXPECT_EQ(const_cast<QLineEdit&>(line).cursorPositionAt(QPoint(2, middle)), 0);
	EXPECT_EQ(
		const_cast<QLineEdit&>(line).cursorPositionAt(QPoint(line.width() - 3, middle)), letters);
	// One pixel of frame on either side.
	EXPECT_LE(QFontMetricsF(line.font()).horizontalAdvance(line.text()), line.width() - 2);
}


// 0 is black and 255 white.
int
darkest(robot& user, BRect place)
{
	QImage image = user.picture();
	int found = 255;
	for (int y = (int)place.top; y <= (int)place.bottom; y++) {
		for (int x = (int)place.left; x <= (int)place.right; x++)
			found = std::min(found, qGray(image.pixel(x, y)));
	}
	return found;
}


QFont
font_of_label(float divider, const char* label)
{
	QFont font;
	with_form([&](form& page, robot& user) {
		auto* field = new BTextControl(BRect(10, 10, 109, 30), "field", label, "", nullptr);
		field->SetDivider(divider);
		page.put(field);
		user.on_display([&] {
			for (QWidget* window : QApplication::topLevelWidgets()) {
				if (auto* found = window->findChild<QLabel*>())
					font = found->font();
			}
		});
	});
	return font;
}

}


TEST(look, four_digits_fit_a_field_of_45_pixels_with_a_label_of_15)
{
	for (const char* digits : {"0000", "8888", "ffff", "dddd", "-999"})
		with_line(45, 15, "gno.", digits, [](QLineEdit& line, robot&) { expect_all_seen(line); });
}


TEST(look, eight_digits_fit_a_field_of_60_pixels)
{
	for (const char* digits : {"00000000", "88888888", "dddddddd"})
		with_line(
			180, 120, "Label", digits, [](QLineEdit& line, robot&) { expect_all_seen(line); });
}


TEST(look, letters_get_no_narrower_than_they_must)
{
	with_line(100, 0, "", "0000", [](QLineEdit& line, robot&) {
		EXPECT_EQ(line.font().stretch(), QFont().stretch());
		EXPECT_EQ(line.font().pixelSize(), 12);
	});
	with_line(45, 15, "x", "0000", [](QLineEdit& line, robot&) {
		EXPECT_LT(line.font().stretch(), 100);
		EXPECT_GE(line.font().stretch(), 65);
		EXPECT_EQ(line.font().pixelSize(), 12);
	});
}


TEST(look, digits_get_their_width_back_when_there_are_fewer)
{
	with_form([](form& page, robot& user) {
		auto& field =
			page.put(new BTextControl(BRect(10, 10, 54, 30), "field", "x", "0000", nullptr));
		page.locked([&] { field.SetDivider(15); });
		page.locked([&] { field.SetText("0"); });
		user.settle();
		user.act([](QWidget& window) {
			EXPECT_EQ(window.findChild<QLineEdit*>()->font().stretch(), QFont().stretch());
		});
	});
}


TEST(look, a_label_gets_narrower_before_it_is_cut)
{
	EXPECT_EQ(font_of_label(60, "label").stretch(), QFont().stretch());
	EXPECT_LT(font_of_label(26, "label").stretch(), 100);
	EXPECT_GE(font_of_label(15, "label").stretch(), 65);
}


TEST(look, a_line_is_white_with_one_pixel_around_it)
{
	with_form([](form& page, robot& user) {
		page.field(BPoint(10, 10), "field");
		// The frame of 100 x 21 pixels and all within.
		EXPECT_EQ(user.count(BRect(11, 11, 108, 29), white), 98 * 19);
		EXPECT_EQ(user.count(BRect(10, 10, 109, 10), white), 0);
		EXPECT_EQ(user.count(BRect(10, 30, 109, 30), white), 0);
		EXPECT_EQ(user.count(BRect(10, 10, 10, 30), white), 0);
		EXPECT_EQ(user.count(BRect(109, 10, 109, 30), white), 0);
	});
}


TEST(look, a_line_shows_that_it_has_the_keyboard)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(BPoint(10, 10), "field");
		rgb_color before = user.pixel(BPoint(10, 10));
		user.click(middle(field));
		EXPECT_FALSE(user.pixel(BPoint(10, 10)) == before);
	});
}


TEST(look, a_button_is_lighter_than_its_parent_and_darker_while_it_is_pressed)
{
	with_form([](form& page, robot& user) {
		page.locked([&] { page.SetViewColor(160, 160, 180); });
		BButton& button = page.button(BPoint(10, 10), "push");
		BPoint face(13, 13);
		EXPECT_EQ(user.pixel(face), (rgb_color{200, 200, 225, 255}));
		user.press(middle(button));
		EXPECT_EQ(user.pixel(face), (rgb_color{128, 128, 144, 255}));
		user.release(middle(button));
		EXPECT_EQ(user.pixel(face), (rgb_color{200, 200, 225, 255}));
	});
}


TEST(look, what_is_switched_off_has_paler_letters)
{
	with_form([](form& page, robot& user) {
		BButton& button = page.button(BPoint(10, 10), "push");
		int before = darkest(user, BRect(12, 12, 67, 30));
		page.locked([&] { button.SetEnabled(false); });
		EXPECT_GT(darkest(user, BRect(12, 12, 67, 30)), before + 50);
	});
}


TEST(look, bars_and_menus_have_the_measures_of_the_layout)
{
	with_window([](test_window&, robot& user) {
		user.on_display([] {
			QStyle& style = *QApplication::style();
			EXPECT_EQ(style.pixelMetric(QStyle::PM_ScrollBarExtent), 14);
			EXPECT_EQ(style.pixelMetric(QStyle::PM_ScrollBarSliderMin), 12);
			EXPECT_EQ(style.pixelMetric(QStyle::PM_IndicatorWidth), 11);
			EXPECT_EQ(style.pixelMetric(QStyle::PM_IndicatorHeight), 11);
			EXPECT_EQ(style.pixelMetric(QStyle::PM_MenuBarHMargin), 0);
			EXPECT_EQ(style.pixelMetric(QStyle::PM_MenuBarVMargin), 0);
			EXPECT_EQ(style.styleHint(QStyle::SH_Widget_Animate), 0);
			EXPECT_EQ(style.styleHint(QStyle::SH_MenuBar_AltKeyNavigation), 0);
		});
	});
}
