// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "program/setup_user.h"

#include "app/kernix.h"
#include "app/kernixwindow.h"

#include <Bitmap.h>
#include <QImage>
#include <View.h>

// The count's place in the panel, as far as the button beside it.
static const QRect count_place(400, 480, 100, 31);
static const BPoint set_button = in_panel(520, 497);


void
begin_font(robot& user)
{
	user.choose_menu("File", "New");
}


void
make_font(robot& user)
{
	user.click(set_button);
}


void
new_font_of(robot& user, const std::vector<std::string>& blocks)
{
	begin_font(user);
	for (const std::string& block : blocks)
		ASSERT_TRUE(user.tick(block)) << block;
	make_font(user);
}


static QImage
drawn(const char* text)
{
	BRect bounds(0, 0, 561, 511);
	BBitmap bitmap(bounds, B_RGB32, true);
	auto* view = new BView(bounds, "count", B_FOLLOW_NONE, B_WILL_DRAW);
	bitmap.Lock();
	bitmap.AddChild(view);
	view->SetHighColor(255, 255, 255);
	view->SetLowColor(0, 0, 0);
	view->FillRect(bounds, B_SOLID_LOW);
	view->DrawString(text, BPoint(400, 508));
	view->Sync();
	bitmap.Unlock();
	auto* bits = static_cast<const uchar*>(bitmap.Bits());
	return QImage(bits, 562, 512, bitmap.BytesPerRow(), QImage::Format_RGB32).copy(count_place);
}


testing::AssertionResult
counts(robot& user, const char* text)
{
	const BPoint corner = in_panel(0, 0);
	const QImage expected = drawn(text);
	const QImage seen = user.picture().copy(count_place.translated((int)corner.x, (int)corner.y));
	for (int y = 0; y < expected.height(); y++) {
		for (int x = 0; x < expected.width(); x++) {
			if ((expected.pixel(x, y) ^ seen.pixel(x, y)) & 0xFFFFFF)
				return testing::AssertionFailure() << "another pixel at " << x << ", " << y;
		}
	}
	return testing::AssertionSuccess();
}


bool
in_setup(kernix& app)
{
	bool shown = false;
	looking(app, [&] { shown = app.window->setupview != nullptr; });
	return shown;
}
