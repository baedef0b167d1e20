// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "program/outline_user.h"

#include <cmath>
#include <cstdio>
#include <QCoreApplication>
#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

#include <Message.h>
#include <Messenger.h>

#include "draw/object.h"
#include "support/temp_files.h"

// Where the edit view starts in the window.
static const BPoint corner(50, 53);


font_file
outlines()
{
	return tiny_font()
		.with("head",
			"00010000 00010000 12345678 5f0f3cf5 0001 0080 00000000 c0000000 00000000 c0000001"
			"0000 0000 007f 007f 0000 0006 0001 0001 0000")
		.with("glyf",
			"0001 0014 0043 003c 006b 0003 0000 01010101"
			"0014 0028 0000 ffd8 006b 0000 ffd8 0000 0000"
			"0003 0008 0067 0068 0077 0003 0007 000b 0000 01010101 01010101 01010101"
			"0008 0010 0000 fff0 0028 0010 0000 fff0 0028 0010 0000 fff0"
			"0077 0000 fff0 0000 0010 0000 fff0 0000 0010 0000 fff0 0000 0000"
			"ffff 0014 001b 0069 006b 0023 0001 0000 0000 0003 0004 0005 fff6"
			"0001 0050 0025 0064 0039 0003 0000 01000100"
			"0050 0014 0000 ffec 0039 0000 ffec 0000")
		.with("loca", "00000000 00000000 00000024 00000074 0000008e 000000b0")
		.with("hmtx", "0080 0000 0080 0000 0000 0000 0000")
		.with("maxp",
			"00010000 0005 000c 0003 0008 0002 0002 0000 0000 0000 0000 0000 0000 0002 0001");
}


font_file
wide_outlines()
{
	return outlines().with("head",
		"00010000 00010000 12345678 5f0f3cf5 0001 0800 00000000 c0000000 00000000 c0000001"
		"0000 0000 07ff 07ff 0000 0006 0001 0001 0000");
}


void
at_outline(const font_file& contents, int16 glyph, const std::function<void(outline_user&)>& work)
{
	temp_file font(contents);
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		user.click(place_of_tag(1));
		outline_user person(app, user);
		person.choose(glyph);
		work(person);
	});
}


void
at_outline(int16 glyph, const std::function<void(outline_user&)>& work)
{
	at_outline(outlines(), glyph, work);
}


BPoint
outline_user::place(BPoint unit)
{
	BPoint there;
	looking(app, [&] {
		float scale = view().scale;
		BPoint scrolled = view().Bounds().LeftTop();
		there = corner - scrolled
			+ BPoint(std::floor((unit.x + 0.5f) * scale), std::floor((unit.y + 0.5f) * scale));
	});
	return there;
}


void
outline_user::tell(BMessage message)
{
	BMessenger to;
	looking(app, [&] { to = BMessenger(&view()); });
	to.SendMessage(&message);
	hand.settle();
}


void
outline_user::choose(int16 glyph)
{
	BMessage message(msg_editor);
	message.AddInt16("gno", glyph);
	tell(message);
}


void
outline_user::take(uint32 tool)
{
	tell(BMessage(tool));
}


void
outline_user::set_scale(float scale)
{
	BMessage message(msg_editor);
	message.AddFloat("scale", scale);
	tell(message);
}


void
outline_user::set_pen(int8 size)
{
	BMessage message(msg_editor);
	message.AddInt8("psize", size);
	tell(message);
}


void
outline_user::press(BPoint unit, int32 button, int32 keys)
{
	hand.press(place(unit), button, keys);
}


void
outline_user::move(BPoint unit, int32 keys)
{
	hand.move(place(unit), keys);
}


void
outline_user::release(BPoint unit, int32 button, int32 keys)
{
	hand.release(place(unit), button, keys);
}


void
outline_user::click(BPoint unit, int32 button, int32 keys)
{
	press(unit, button, keys);
	release(unit, button, keys);
}


void
outline_user::drag(BPoint from, BPoint to, int32 keys)
{
	press(from, B_PRIMARY_MOUSE_BUTTON, keys);
	move(to, keys);
	release(to, B_PRIMARY_MOUSE_BUTTON, keys);
}


void
outline_user::flood(const std::vector<BPoint>& units, bool held)
{
	std::vector<BPoint> places;
	for (BPoint unit : units)
		places.push_back(place(unit));
	Qt::MouseButtons buttons = held ? Qt::LeftButton : Qt::NoButton;
	hand.act([&](QWidget& window) {
		for (BPoint each : places) {
			QPointF local(each.x, each.y);
			QMouseEvent event(QEvent::MouseMove, local, local,
				window.windowHandle()->mapToGlobal(local), Qt::NoButton, buttons, Qt::NoModifier);
			QCoreApplication::sendEvent(window.windowHandle(), &event);
		}
	});
	hand.settle();
}


std::string
outline_user::outline()
{
	std::string text;
	looking(app, [&] {
		for (int32 i = 0; i < cur_glyph->num_shape; i++) {
			const shape& contour = *cur_glyph->shapes[i];
			text += i > 0 ? " |" : "";
			for (int32 k = 0; k < contour.num; k++) {
				char point[64];
				snprintf(point, sizeof point, "%s%g,%g%s", text.empty() ? "" : " ",
					contour.pts[k].x, contour.pts[k].y, contour.onoff[k] ? "*" : "");
				text += point;
			}
		}
	});
	return text;
}


std::string
outline_user::selection()
{
	std::string text;
	looking(app, [&] {
		for (int32 i = cur_glyph->sel_begin(); i < cur_glyph->sel_end(); i++)
			text += (text.empty() ? "" : " ") + std::to_string(cur_glyph->shapes[i]->sel);
	});
	return text;
}


testing::AssertionResult
outline_user::looks_fresh()
{
	QImage seen = hand.picture();
	take(msg_repaint);
	QImage fresh = hand.picture();
	int others = 0;
	QPoint first;
	for (int i = 0; i < fresh.width() * fresh.height(); i++) {
		QPoint at(i % fresh.width(), i / fresh.width());
		if (seen.pixel(at) != fresh.pixel(at) && others++ == 0)
			first = at;
	}
	if (others == 0)
		return testing::AssertionSuccess();
	return testing::AssertionFailure()
		<< others << " other pixels, the first at " << first.x() << ", " << first.y();
}


std::string
points_in(outline_user& user)
{
	std::string text = "none";
	looking(user.app, [&] {
		if (cur_object == nullptr)
			return;
		text = std::to_string(cur_object->state) + ":";
		for (int32 i = 0; i < cur_object->num; i++) {
			char point[64];
			snprintf(point, sizeof point, " %g,%g", cur_object->pts[i].x, cur_object->pts[i].y);
			text += point;
		}
	});
	return text;
}
