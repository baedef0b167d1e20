// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "draw/stroke_reference.h"

#include <Bitmap.h>
#include <cstdio>
#include <map>
#include <utility>
#include <View.h>

namespace {

// A corner of pixels: row, then column, so that maps go through them as one reads.
using corner = std::pair<int, int>;
using edges = std::multimap<corner, corner>;

}


ink_rows
inked(const std::vector<BPoint>& path, int width, int columns, int rows)
{
	BBitmap picture(BRect(0, 0, (float)columns - 1, (float)rows - 1), B_RGB32, true);
	BView* view = new BView(picture.Bounds(), "reference", B_FOLLOW_NONE, B_WILL_DRAW);
	picture.Lock();
	picture.AddChild(view);
	view->SetHighColor(255, 255, 255);
	const int pen = width / 2;
	view->SetPenSize((float)pen);
	view->SetLineMode(B_ROUND_CAP, B_ROUND_JOIN, 10);
	for (size_t i = 1; i < path.size(); i++)
		view->StrokeLine(
			BPoint(path[i - 1].x / 2, path[i - 1].y / 2), BPoint(path[i].x / 2, path[i].y / 2));
	picture.RemoveChild(view);
	delete view;
	picture.Unlock();
	ink_rows ink;
	for (int y = 0; y < rows; y++) {
		const unsigned char* pixel =
			(unsigned char*)picture.Bits() + (size_t)y * (size_t)picture.BytesPerRow();
		ink.emplace_back();
		for (int x = 0; x < columns; x++, pixel += 4)
			ink[y] += pixel[0] + pixel[1] + pixel[2] > 384 ? '#' : ' ';
	}
	return ink;
}


static bool
is_ink(const ink_rows& ink, int x, int y)
{
	return y >= 0 && y < (int)ink.size() && x >= 0 && x < (int)ink[y].size() && ink[y][x] == '#';
}


// Each side of a pixel that has background beyond it, clockwise round the pixel.
static edges
sides(const ink_rows& ink)
{
	edges all;
	for (int y = 0; y < (int)ink.size(); y++) {
		for (int x = 0; x < (int)ink[y].size(); x++) {
			if (!is_ink(ink, x, y))
				continue;
			if (!is_ink(ink, x, y - 1))
				all.insert({{y, x}, {y, x + 1}});
			if (!is_ink(ink, x + 1, y))
				all.insert({{y, x + 1}, {y + 1, x + 1}});
			if (!is_ink(ink, x, y + 1))
				all.insert({{y + 1, x + 1}, {y + 1, x}});
			if (!is_ink(ink, x - 1, y))
				all.insert({{y + 1, x}, {y, x}});
		}
	}
	return all;
}


// Above 0 when b turns to the left of a on the screen.
static int
leftness(corner a0, corner a1, corner b1)
{
	const int ax = a1.second - a0.second;
	const int ay = a1.first - a0.first;
	const int bx = b1.second - a1.second;
	const int by = b1.first - a1.first;
	return ay * bx - ax * by;
}


static edges::iterator
leftmost(edges& all, corner from, corner at)
{
	auto [first, last] = all.equal_range(at);
	auto best = first == last ? all.end() : first;
	for (auto each = first; each != last; ++each) {
		if (leftness(from, at, each->second) > leftness(from, at, best->second))
			best = each;
	}
	return best;
}


static std::vector<BPoint>
loop(edges& all, edges::iterator next)
{
	std::vector<BPoint> middles;
	while (next != all.end()) {
		const auto [from, to] = *next;
		middles.emplace_back((float)(from.second + to.second), (float)(from.first + to.first));
		all.erase(next);
		next = leftmost(all, from, to);
	}
	return middles;
}


// The horizontal edge that one reads first: its upper left end is its start when there is ink
// below it, its end when there is ink above.
static edges::iterator
first_read(edges& all)
{
	auto best = all.end();
	corner place;
	for (auto each = all.begin(); each != all.end(); ++each) {
		const auto [from, to] = *each;
		if (from.first != to.first)
			continue;
		const corner left = std::min(from, to);
		if (best == all.end() || left < place) {
			best = each;
			place = left;
		}
		// Nothing further down can come before.
		if (from.first > place.first)
			break;
	}
	return best;
}


std::vector<std::vector<BPoint>>
boundaries(const ink_rows& ink)
{
	edges all = sides(ink);
	std::vector<std::vector<BPoint>> found;
	while (!all.empty())
		found.push_back(loop(all, first_read(all)));
	return found;
}


static size_t
every(size_t length)
{
	if (length < 100)
		return length / 3;
	return length < 2100 ? 20 : length / 100;
}


std::string
outlines(const ink_rows& ink)
{
	std::string text;
	for (const auto& boundary : boundaries(ink)) {
		for (size_t i = 0; i < boundary.size(); i++) {
			char point[64];
			snprintf(
				point, sizeof point, "%s%g,%g*", i > 0 ? " " : "", boundary[i].x, boundary[i].y);
			if (i % every(boundary.size()) == 0)
				text += point;
		}
		text += '\n';
	}
	return text;
}
