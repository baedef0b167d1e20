// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include <StringItem.h>


BStringItem::BStringItem(const char* text, uint32, bool) : fText(text ? text : "") {}


const char*
BStringItem::Text() const
{
	return fText.c_str();
}


void
BStringItem::SetText(const char* text)
{
	fText = text ? text : "";
}


const char*
BStringItem::_Text() const
{
	return fText.c_str();
}
