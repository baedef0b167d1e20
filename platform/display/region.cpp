// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/region.h"

#include "display/convert.h"

#include <QRegion>

using namespace kits;


region::region() : fPixels(new QRegion) {}


region::~region() = default;


void
region::add(BRect rect)
{
	if (rect.IsValid())
		*fPixels += to_qrect(rect);
}


void
region::intersect(BRect rect)
{
	*fPixels &= rect.IsValid() ? to_qrect(rect) : QRect();
}


void
region::move(float dx, float dy)
{
	fPixels->translate((int)dx, (int)dy);
}


void
region::clear()
{
	*fPixels = QRegion();
}


bool
region::empty() const
{
	return fPixels->isEmpty();
}


BRect
region::bounds() const
{
	return to_brect(fPixels->boundingRect());
}
