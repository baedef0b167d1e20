// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_CONVERT_H
#define KITS_CONVERT_H

#include <GraphicsDefs.h>
#include <QColor>
#include <QRect>
#include <QString>
#include <Rect.h>
#include <string>

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

// The kits' texts are UTF-8. Each byte that is not becomes half a surrogate pair, DC80 to DCFF, which
// the screen shows as a replacement mark and which turns back into that byte. Text of Qt's that is
// neither becomes the replacement character.
QString to_qstring(const std::string& text);
std::string to_bytes(const QString& text);

}

#endif
