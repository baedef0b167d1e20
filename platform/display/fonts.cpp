// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "display/fonts.h"

#include <cmath>


QFont
kits::screen_font(float size, bool bold)
{
	QFont font("DejaVu Sans");
	font.setPixelSize(std::max(1, (int)std::lround(size)));
	font.setBold(bold);
	font.setHintingPreference(QFont::PreferFullHinting);
	font.setStyleStrategy(QFont::NoSubpixelAntialias);
	return font;
}
