// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "outline/shape.h"

#include <algorithm>
#include <new>


namespace {

#ifdef KERNIX_SANITIZE
// What watches over memory is to see every contour come and go.
constexpr size_t most_spare = 0;
#else
constexpr size_t most_spare = 64;
#endif

// Contours' memory that is free, the last one freed first: it is still in the processor's cache.
// Nine kilobytes are more than the system hands out quickly, and a font is looked through by making
// and destroying its contours by the thousand. One for each thread; a contour made in one and
// destroyed in another just changes over.
class spare_memory {
public:
	spare_memory() = default;
	spare_memory(const spare_memory&) = delete;
	spare_memory& operator=(const spare_memory&) = delete;
	~spare_memory()
	{
		while (fCount > 0)
			::operator delete(fSpare[--fCount]);
	}

	void* take(size_t size) { return fCount > 0 ? fSpare[--fCount] : ::operator new(size); }
	void give(void* memory)
	{
		if (fCount < most_spare)
			fSpare[fCount++] = memory;
		else
			::operator delete(memory);
	}

private:
	void* fSpare[most_spare + 1];
	size_t fCount = 0;
};

thread_local spare_memory spare;

}


void*
shape::operator new(size_t size)
{
	return spare.take(size);
}


void
shape::operator delete(void* memory)
{
	spare.give(memory);
}


// The points stay unset: filling eight kilobytes would cost more than decoding the few points that
// most contours have.
shape::shape(int n)
	: sel(0),
	  armed(0),
	  num(std::clamp<int>(n, 0, max_points)),
	  pts(reinterpret_cast<BPoint*>(fPoints)),
	  onoff(reinterpret_cast<char*>(pts + max_points))
{
}


shape*
shape::copy() const
{
	shape* other = new shape(num);
	std::copy_n(pts, num, other->pts);
	std::copy_n(onoff, num, other->onoff);
	other->sel = sel;
	other->frame = frame;
	return other;
}


shape*
shape::transcopy(short dx, short dy, short a, short b, short c, short d) const
{
	const int one = 16384;
	const int xx = a / one;
	const int xy = b / one;
	const int yx = c / one;
	const int yy = d / one;
	shape* other = new shape(num);
	for (int32 i = 0; i < num; i++) {
		const BPoint p = pts[i];
		other->pts[i] = BPoint(xx * p.x + xy * p.y + dx, yx * p.x + yy * p.y + dy);
	}
	std::copy_n(onoff, num, other->onoff);
	return other;
}


void
shape::set(const int& i, const BPoint& p, const char& f)
{
	if (i < 0 || i >= max_points)
		return;
	pts[i] = p;
	onoff[i] = f;
}


bool
shape::get(const int& i, BPoint& p, char& f) const
{
	if (i < 0 || i >= num)
		return false;
	p = pts[i];
	f = onoff[i];
	return true;
}


void
shape::ctrlp2form()
{
	if (num < 1) {
		frame = BRect();
		return;
	}
	frame = BRect(pts[0], pts[0]);
	for (int32 i = 1; i < num; i++) {
		frame.left = std::min(frame.left, pts[i].x);
		frame.top = std::min(frame.top, pts[i].y);
		frame.right = std::max(frame.right, pts[i].x);
		frame.bottom = std::max(frame.bottom, pts[i].y);
	}
}


// The distance of two edges as pixels, both edges counted, with its sign; never 0.
static float
inclusive(float distance)
{
	return distance >= 0 ? distance + 1 : distance - 1;
}


void
shape::trans(const BRect& src, const BRect& dst)
{
	const float sx = inclusive(dst.right - dst.left) / inclusive(src.right - src.left);
	const float sy = inclusive(dst.bottom - dst.top) / inclusive(src.bottom - src.top);
	const BPoint offset(dst.left - src.left * sx, dst.top - src.top * sy);
	for (int32 i = 0; i < num; i++)
		pts[i] = BPoint(pts[i].x * sx, pts[i].y * sy) + offset;
	ctrlp2form();
}


bool
shape::ispositive() const
{
	if (num < 1)
		return true;
	int32 m = 0;
	for (int32 i = 1; i < num; i++) {
		if (pts[i].y < pts[m].y)
			m = i;
	}
	const BPoint in = pts[m] - pts[m > 0 ? m - 1 : num - 1];
	const BPoint out = pts[next_of(m)] - pts[m];
	if (in.x >= 0 && out.x >= 0)
		return true;
	if (in.x <= 0 && out.x <= 0)
		return false;
	// A spike: the slopes decide which side of it is inside.
	return in.y / in.x > out.y / out.x;
}


void
shape::reverse()
{
	if (sel >= 0)
		return;
	std::reverse(pts, pts + num);
	std::reverse(onoff, onoff + num);
}


void
shape::tglpoint()
{
	if (has_selected_point())
		onoff[sel - 1] ^= 1;
	if (sel >= 0)
		return;
	for (int32 i = 0; i < num; i++)
		onoff[i] ^= 1;
}


bool
shape::delpoint()
{
	if (sel <= 0 || num < 1)
		return false;
	num--;
	if (num < 3)
		return true;
	for (int32 i = sel; i <= num; i++)
		set(i - 1, pts[i], onoff[i]);
	ctrlp2form();
	return false;
}


static float
squared(const BPoint& distance)
{
	return distance.x * distance.x + distance.y * distance.y;
}


bool
shape::belongs_after(int32 i, const BPoint& point) const
{
	const BPoint prev = pts[i > 0 ? i - 1 : num - 1];
	const BPoint next = pts[next_of(i)];
	const float before = squared(next - pts[i]) + squared(prev - point);
	const float after = squared(prev - pts[i]) + squared(next - point);
	return after < before;
}


void
shape::inspoint(const BPoint& d)
{
	if (!armed || !has_selected_point() || num >= max_points)
		return;
	const BPoint point = pts[sel - 1] + d;
	const char flag = onoff[sel - 1];
	if (belongs_after(sel - 1, point))
		sel++;
	for (int32 i = num; i >= sel; i--)
		set(i, pts[i - 1], onoff[i - 1]);
	set(sel - 1, point, flag);
	num++;
	ctrlp2form();
	armed = 0;
}


void
shape::move(const BPoint& d)
{
	if (sel == 0)
		return;
	if (has_selected_point())
		pts[sel - 1] += d;
	for (int32 i = 0; sel < 0 && i < num; i++)
		pts[i] += d;
	ctrlp2form();
}


int
shape::select_chk(const BRect& r)
{
	armed = 0;
	// The frame of no points counts as contained by rectangles from (0, 0) on.
	if (num < 1 || (!r.Contains(frame) && !r.Intersects(frame)))
		return 0;
	sel = -1;
	return -1;
}


int
shape::select_chk(const BPoint& p, float t)
{
	int hit = 0;
	for (int32 i = 0; i < num; i++) {
		const BPoint at = pts[i];
		if (BRect(at.x - t, at.y - t, at.x + t, at.y + t).Contains(p))
			hit = i + 1;
	}
	if (hit == 0 && frame.Contains(p))
		hit = -1;
	if (hit != 0)
		sel = hit;
	armed = hit > 0;
	return hit;
}
