// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "desktop/squares.h"

constexpr int unit_count = 1024, side = 160, square_count = 5;

// Left tops on the canvas.
static const struct {
	int x, y;
} squares[square_count] = {{100, 100}, {400, 100}, {700, 100}, {100, 600}, {600, 600}};

// Where the canvas begins in the window, and its scale.
static constexpr QPointF canvas_place = in_panel(50, 0);
constexpr double scale = 0.5;


static void
append(octets& to, std::initializer_list<int> values)
{
	for (int value : values) {
		to.push_back(uint8_t(value >> 8));
		to.push_back(uint8_t(value));
	}
}


// In the font y goes up.
static octets
squares_glyph()
{
	octets record;
	append(record, {square_count, 0, 0, unit_count - 1, unit_count - 1});
	for (int i = 0; i < square_count; i++)
		append(record, {4 * i + 3});
	append(record, {0});
	record.insert(record.end(), 4 * square_count, 1);
	octets ys;
	int x = 0, y = 0;
	for (const auto& each : squares) {
		int bottom = unit_count - 1 - each.y - side;
		append(record, {each.x - x, 0, side, 0});
		append(ys, {bottom - y, side, 0, -side});
		x = each.x + side;
		y = bottom;
	}
	record.insert(record.end(), ys.begin(), ys.end());
	record.resize((record.size() + 3) / 4 * 4);
	return record;
}


font_file
squares_font()
{
	octets glyph = squares_glyph();
	font_file plain = tiny_font();
	octets head = plain.table("head"), loca = zeros(12), maxp = plain.table("maxp");
	put_be16(head, 18, unit_count);
	put_be16(head, 40, unit_count - 1);
	put_be16(head, 42, unit_count - 1);
	put_be32(loca, 8, (uint32_t)glyph.size());
	put_be16(maxp, 6, 4 * square_count);
	put_be16(maxp, 8, square_count);
	return plain.with("glyf", glyph).with("head", head).with("loca", loca).with("maxp", maxp);
}


void
outline_journey::at_squares()
{
	start({font("squares.ttf", squares_font())});
	tag("glyf");
	enter(in_panel(30, 80), "1");
	drawn("01234");
	press_on_canvas();
	stand_aside();
	at_rest();
	fUnselected = canvas();
}


// A press on the canvas before, so that the field has something to leave.
void
outline_journey::choose_again()
{
	press_on_canvas();
	enter(in_panel(30, 80), "1");
	at_rest();
	press_on_canvas();
	stand_aside();
	canvas_is(fUnselected);
}


QPointF
outline_journey::unit(double x, double y)
{
	return canvas_place + QPointF(x, y) * scale;
}


QRectF
outline_journey::area_of(int square)
{
	constexpr int marks = 20;
	return {unit(squares[square].x - marks, squares[square].y - marks),
		QSizeF(side + 2 * marks, side + 2 * marks) * scale};
}


bool
outline_journey::is_drawn(int square)
{
	return count_other(black, area_of(square)) > 100;
}


void
outline_journey::drawn(const std::string& wanted)
{
	auto seen = [&] {
		std::string numbers;
		for (int i = 0; i < square_count; i++)
			numbers += is_drawn(i) ? std::to_string(i) : "";
		return numbers;
	};
	until("the squares that are drawn are not " + wanted, [&] { return seen() == wanted; });
}


QRectF
outline_journey::canvas_area()
{
	constexpr QSizeF bars(14, 14);
	QSizeF shown = window().contents.size() - bars - QSizeF(canvas_place.x(), canvas_place.y());
	return {canvas_place, shown};
}


void
outline_journey::press_on_canvas()
{
	click(unit(500, 500));
}


void
outline_journey::band(int square)
{
	QRectF around = area_of(square);
	drag(around.topLeft(), around.bottomRight());
}


void
outline_journey::select_first()
{
	QImage before = canvas();
	key("Left");
	changes_from(before);
}


void
outline_journey::changes_from(const QImage& before)
{
	until("the canvas does not change", [&] { return canvas() != before; });
}
