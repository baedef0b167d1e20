// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The title's zoom button and a double click on the title: always the one size, at the window's
// place.
#include "desktop/squares.h"

#include <cmath>

class zoom : public journey {
protected:
	void press_button();
	void double_click_title();
	// Several times from several sizes.
	void always_gives_one_size(const std::function<void()>& zooming);
};

INSTANTIATE_TEST_SUITE_P(, zoom, testing::ValuesIn(x11_desktops), name_of);


// Half the title's height from the right end of the frame, where the managers are told to put it.
void
zoom::press_button()
{
	shown_window shown = window();
	double middle = shown.frame.top() / 2;
	click({shown.contents.width() + shown.frame.right() - middle, -middle});
}


void
zoom::double_click_title()
{
	shown_window shown = window();
	QPointF middle(shown.contents.width() / 2, -shown.frame.top() / 2);
	click(middle);
	click(middle);
}


static bool
is_size(const shown_window& window, QSizeF size)
{
	return std::abs(window.contents.width() - size.width()) < 1
		&& std::abs(window.contents.height() - size.height()) < 1;
}


void
zoom::always_gives_one_size(const std::function<void()>& zooming)
{
	for (QSizeF size : {QSizeF(450, 350), QSizeF(402, 302), QSizeF(500, 560), QSizeF(450, 350)}) {
		screen().resize(window(), size);
		until("the window does not take a size", [&] { return is_size(window(), size); });
		at_rest();
		QPointF place = window().contents.topLeft();
		zooming();
		stand_aside();
		bool zoomed = comes_within(3'000, [&] { return is_size(window(), {576, 579}); });
		at_rest();
		QRectF now = window().contents;
		EXPECT_TRUE(zoomed && is_size(window(), {576, 579}))
			<< "from " << size.width() << " x " << size.height() << " to " << now.width() << " x "
			<< now.height();
		EXPECT_LE(std::abs(now.x() - place.x()), 2) << "from " << place.x();
		EXPECT_LE(std::abs(now.y() - place.y()), 2) << "from " << place.y();
	}
}


TEST_P(zoom, by_the_button_gives_one_size)
{
	start();
	always_gives_one_size([&] { press_button(); });
}


TEST_P(zoom, by_the_button_gives_one_size_when_a_table_limits_it)
{
	start({font("squares.ttf", squares_font())});
	tag("head");
	always_gives_one_size([&] { press_button(); });
}


TEST_P(zoom, by_the_title_gives_one_size)
{
	start();
	always_gives_one_size([&] { double_click_title(); });
}


TEST_P(zoom, by_the_title_gives_one_size_when_a_table_limits_it)
{
	start({font("squares.ttf", squares_font())});
	tag("head");
	always_gives_one_size([&] { double_click_title(); });
}
