// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_CONVERT_H
#define KITS_CONVERT_H

#include <GraphicsDefs.h>
#include <QColor>
#include <QRect>
#include <Rect.h>

// Between the kits' types and Qt's; nothing else mixes the two.
namespace kits {

// The pixels that the rectangle touches. Coordinates beyond what a screen can have are clamped.
QRect to_qrect(BRect rect);
BRect to_brect(const QRect& rect);

inline QColor
to_qcolor(rgb_color color)
{
	return QColor(color.red, color.green, color.blue);
}

}

#endif
