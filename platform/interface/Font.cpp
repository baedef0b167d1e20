// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/canvas.h"

#include <cmath>
#include <cstring>
#include <Font.h>


namespace {

BFont
bold()
{
	BFont font;
	font.SetFace(B_BOLD_FACE);
	return font;
}

// Never destroyed: threads may draw until the process ends.
const BFont* const plain_font = new BFont;
const BFont* const bold_font = new BFont(bold());

}

const BFont* be_plain_font = plain_font;
const BFont* be_bold_font = bold_font;


BFont::BFont() : fSize(12), fFace(B_REGULAR_FACE) {}


BFont::BFont(const BFont& font) = default;


BFont::BFont(const BFont* font) : BFont()
{
	if (font)
		*this = *font;
}


BFont& BFont::operator=(const BFont& font) = default;


void
BFont::SetSize(float size)
{
	if (std::isfinite(size) && size > 0)
		fSize = size;
}


float
BFont::Size() const
{
	return fSize;
}


void
BFont::SetFace(uint16 face)
{
	fFace = face;
}


uint16
BFont::Face() const
{
	return fFace;
}


float
BFont::StringWidth(const char* text) const
{
	return text ? kits::text_width(*this, text, (int32)strlen(text)) : 0;
}


void
BFont::GetHeight(font_height* height) const
{
	*height = kits::text_height(*this);
}
