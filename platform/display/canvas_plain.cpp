// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
// Small fills without a painter. Setting one up costs many times what a marker of a few pixels does,
// and there are thousands of markers in a rich outline.
#include "display/canvas.h"
#include "display/convert.h"
#include "display/ink.h"

#include <algorithm>
#include <array>
#include <map>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <vector>

using namespace kits;


namespace {

// Pixels on a side; beyond that a painter does as well.
constexpr int small = 32;

// The pixels of a row, first and behind the last.
using span = std::array<int, 2>;


// The rows of an ellipse as Qt fills it, found once for each size.
const std::vector<span>&
rows_of_ellipse(int width, int height)
{
	static thread_local std::map<std::array<int, 2>, std::vector<span>> known;
	std::vector<span>& rows = known[{width, height}];
	if (!rows.empty())
		return rows;
	QImage picture(width, height, QImage::Format_RGB32);
	picture.fill(Qt::black);
	QPainterPath path;
	path.addEllipse(picture.rect());
	QPainter(&picture).fillPath(path, Qt::white);
	for (int y = 0; y < height; y++) {
		auto* row = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
		auto is_inked = [](QRgb pixel) { return (pixel & 0xFFFFFF) != 0; };
		const QRgb* first = std::find_if(row, row + width, is_inked);
		rows.push_back(
			{int(first - row), int(first - row + std::count_if(first, row + width, is_inked))});
	}
	return rows;
}

}


bool
canvas::_FillSmall(const drawing_context& context, BRect rect, const pattern& p, bool round)
{
	const drawing_state& state = *context.state;
	bool inverts = state.mode == B_OP_INVERT;
	bool plain = inverts || state.mode == B_OP_COPY;
	if (!plain || !uniform(p, 0xFF) || context.update || context.covered)
		return false;
	QRect place = device_pixels(to_qrect(rect), fRatio);
	place.translate(device_origin(context.offset, fRatio));
	if (place.isEmpty() || place.width() > small || place.height() > small)
		return false;
	QRect within = place & device_pixels(to_qrect(context.clip), fRatio) & fImage->rect();
	QRgb ink = qRgb(state.high.red, state.high.green, state.high.blue);
	for (int y = within.top(); y <= within.bottom(); y++) {
		span all = {0, place.width()};
		span row = round ? rows_of_ellipse(place.width(), place.height())[y - place.top()] : all;
		int first = std::max(within.left(), place.left() + row[0]);
		int end = std::min(within.right() + 1, place.left() + row[1]);
		auto* pixel = reinterpret_cast<QRgb*>(fImage->scanLine(y));
		for (int x = first; x < end; x++)
			pixel[x] = inverts ? ~pixel[x] | 0xFF000000 : ink;
	}
	return true;
}
