// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "freehand.h"

#include "draw/obj_free.h"
#include "font/globals.h"
#include "outline/shape.h"
#include <algorithm>
#include <Bitmap.h>
#include <chrono>
#include <cmath>
#include <vector>
#include <View.h>


// From the middle of the canvas outward, in twenty turns at most; whole units, as the pointer has
// them.
static std::vector<BPoint>
spiral(int points)
{
	std::vector<BPoint> path;
	for (int i = 0; i < points; i++) {
		const double part = (double)i / points;
		const double turn = part * std::min(points / 100, 20) * 2 * M_PI;
		const double radius = 50 + 900 * part;
		path.emplace_back((float)std::trunc(1024 + radius * std::cos(turn)),
			(float)std::trunc(1024 + radius * std::sin(turn)));
	}
	return path;
}


static void
record(obj_free& stroke, const std::vector<BPoint>& path, int width)
{
	for (const BPoint& p : path)
		stroke.create(p == path.back() ? object::release : object::drag, p, (unsigned char)width);
}


static int
trace(obj_free& stroke)
{
	int points = 0;
	shape** contours = stroke.to_shape();
	for (int i = 0; contours[i] != nullptr; i++) {
		points += contours[i]->num;
		delete contours[i];
	}
	delete[] contours;
	return points;
}


static void
paint(const obj_free& stroke, int width)
{
	const BRect bounds(0, 0, 1023, 1023);
	BBitmap picture(bounds, B_RGB32, true);
	BView* view = new BView(bounds, "stroke", B_FOLLOW_NONE, B_WILL_DRAW);
	picture.Lock();
	picture.AddChild(view);
	const int pen = width / 2;
	view->SetPenSize((float)pen);
	view->SetLineMode(B_ROUND_CAP, B_ROUND_JOIN, 10);
	for (int i = 1; i < stroke.num; i++) {
		const BPoint from = stroke.pts[i - 1];
		const BPoint to = stroke.pts[i];
		view->StrokeLine(BPoint(from.x / 2, from.y / 2), BPoint(to.x / 2, to.y / 2));
	}
	picture.RemoveChild(view);
	delete view;
	picture.Unlock();
	benchmark::DoNotOptimize(picture.Bits());
}


static double
median(std::vector<double> values)
{
	auto middle = values.begin() + (ptrdiff_t)values.size() / 2;
	std::nth_element(values.begin(), middle, values.end());
	return *middle;
}


template <typename work>
static double
seconds(const work& todo)
{
	using clock = std::chrono::steady_clock;
	const auto start = clock::now();
	todo();
	return std::chrono::duration<double>(clock::now() - start).count();
}


void
trace_stroke(benchmark::State& state, int points, int width)
{
	canvas = BRect(0, 0, 2047, 2047);
	obj_free stroke;
	record(stroke, spiral(points), width);
	std::vector<double> tracing;
	std::vector<double> painting;
	int kept = 0;
	while (state.KeepRunning()) {
		tracing.push_back(seconds([&] { kept = trace(stroke); }));
		painting.push_back(seconds([&] { paint(stroke, width); }));
		state.SetIterationTime(tracing.back());
	}
	if (kept == 0)
		state.SkipWithError("has no contours");
	if (tracing.empty())
		return;
	state.counters["trace_ms"] = median(tracing) * 1e3;
	state.counters["paint_ms"] = median(painting) * 1e3;
	state.counters["x_paint"] = median(tracing) / median(painting);
	state.counters["kept"] = kept;
}
