// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "program/panel_user.h"

#include <Bitmap.h>
#include <QImage>
#include <View.h>

#include "support/sfnt.h"
#include "support/temp_files.h"

// Where panels start below the menu and the strip, how wide they are, and where their controls do.
static const int panel_top = 53;
static const int panel_width = 562;
static const int listing_height = 400;


BPoint
in_panel(float x, float y)
{
	return BPoint(x, y + panel_top);
}


void
enter(robot& user, BPoint field, const std::string& text)
{
	user.click(field);
	size_t length = user.field_text(field).size();
	user.key(Qt::Key_End);
	for (size_t i = 0; i < length; i++)
		user.key(Qt::Key_Backspace, "\b");
	user.type(text);
	user.key(Qt::Key_Return, "\r");
}


static QImage
drawn(const std::vector<line>& lines)
{
	BRect bounds(0, 0, panel_width - 1, listing_height - 1);
	BBitmap bitmap(bounds, B_RGB32, true);
	auto* view = new BView(bounds, "lines", B_FOLLOW_NONE, B_WILL_DRAW);
	bitmap.Lock();
	bitmap.AddChild(view);
	view->SetHighColor(255, 255, 255);
	view->SetLowColor(0, 0, 0);
	view->FillRect(bounds, B_SOLID_LOW);
	float baseline = 20;
	for (const line& each : lines) {
		view->DrawString(each.label, BPoint(20, baseline));
		view->DrawString(each.value, BPoint(170, baseline));
		baseline += 15;
	}
	view->Sync();
	bitmap.Unlock();
	auto* bits = static_cast<const uchar*>(bitmap.Bits());
	return QImage(bits, panel_width, listing_height, bitmap.BytesPerRow(), QImage::Format_RGB32)
		.copy();
}


testing::AssertionResult
shows(robot& user, const std::vector<line>& lines)
{
	QImage expected = drawn(lines);
	QImage seen = user.picture().copy(0, panel_top, panel_width, listing_height);
	for (int y = 0; y < listing_height; y++) {
		for (int x = 0; x < panel_width; x++) {
			if ((expected.pixel(x, y) ^ seen.pixel(x, y)) & 0xFFFFFF)
				return testing::AssertionFailure() << "another pixel at " << x << ", " << y;
		}
	}
	return testing::AssertionSuccess();
}


octets
saved_table(robot& user, const std::string& tag)
{
	temp_folder folder;
	save_file(user, folder.path(), "saved.ttf");
	return sfnt(read_file(folder.path("saved.ttf"))).table(tag);
}
