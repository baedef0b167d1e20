// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "program/outline_stage.h"

#include "app/kernixview.h"
#include "program/panel_user.h"
#include "support/opened.h"

#include <Application.h>
#include <cstdio>
#include <Messenger.h>
#include <Window.h>


namespace {

// One field of a message, and how it is written.
struct field {
	const char* name;
	type_code type;
	const char* format;
};


const field fields[] = {{"gno", B_INT16_TYPE, "%04x"}, {"chr", B_INT16_TYPE, "%04x"},
	{"compo", B_INT16_TYPE, "%04x"}, {"sub", B_INT16_TYPE, "%04x"}, {"no", B_INT8_TYPE, "%d"},
	{"empty", B_BOOL_TYPE, "%d"}, {"psize", B_INT8_TYPE, "%d"}, {"scale", B_FLOAT_TYPE, "%.7g"},
	{"mode", B_INT8_TYPE, "%d"}};


std::string
value_text(const BMessage& message, const field& each, int32 index)
{
	char text[32];
	switch (each.type) {
		case B_INT16_TYPE:
			snprintf(text, sizeof text, each.format, (uint16)message.FindInt16(each.name, index));
			break;
		case B_INT8_TYPE:
			snprintf(text, sizeof text, each.format, message.FindInt8(each.name, index));
			break;
		case B_BOOL_TYPE:
			snprintf(text, sizeof text, each.format, message.FindBool(each.name, index));
			break;
		default:
			snprintf(text, sizeof text, each.format, message.FindFloat(each.name, index));
	}
	return text;
}


std::string
text_of(const BMessage& message)
{
	std::string text;
	for (int shift = 24; shift >= 0; shift -= 8)
		text += (char)(message.what >> shift);
	for (const field& each : fields) {
		type_code type;
		int32 count = 0;
		if (message.GetInfo(each.name, &type, &count) != B_OK)
			continue;
		for (int32 i = 0; i < count; i++) {
			text += std::string(" ") + each.name + "=";
			text += type == each.type ? value_text(message, each, i) : "?";
		}
	}
	return text;
}


// What an editor's two views send each other.
bool
is_ours(uint32 code)
{
	for (uint32 known : {'Vchg', 'Gset', 'Gclr', 'Cadd', 'Cdel', 'drpi', 'drfr', 'drre', 'drel',
			 'drpo', 'drro', 'edrd'}) {
		if (code == known)
			return true;
	}
	return false;
}


texts
taken(texts& from)
{
	texts all;
	all.swap(from);
	return all;
}

}


class stage_window : public BWindow {
public:
	stage_window() : BWindow(BRect(40, 30, 601, 541), "outlines", B_DOCUMENT_WINDOW, 0) {}

	void DispatchMessage(BMessage* message, BHandler* handler) override
	{
		if (curttf != nullptr && is_ours(message->what)) {
			if (handler == curttf->glyf->tools)
				heard.push_back(text_of(*message));
			else if (handler == curttf->glyf->edit)
				sent.push_back(text_of(*message));
		}
		BWindow::DispatchMessage(message, handler);
	}

	using BWindow::Zoom;
	// A new font makes its window a panel's size; this one is.
	void Zoom(BPoint, float, float) override {}

	texts heard;
	texts sent;
};


namespace {

class stage_application : public BApplication {
public:
	stage_application()
		: BApplication("application/x-vnd.kernix-outline-stage"),
		  window(new stage_window)
	{
		window->Show();
	}

	stage_window* window;
};

}


font_file
outlines_font()
{
	return tiny_font()
		.with("cmap",
			"0000 0001 0003 0001 0000000c 0004 0048 0000 000e 0008 0002 0006"
			"0041 0061 00e9 3042 9000 f000 ffff 0000"
			"0041 0061 00e9 3042 9000 f000 ffff"
			"ffc0 ffa0 ff19 cfc1 7004 1300 0001"
			"0000 0000 0000 0000 0000 0000 0000")
		.with("glyf",
			"0001 0000 0000 01ff 01ff 0002 0000 01 01 01 0000 01ff ff00 0000 0000 01ff 00 00 00"
			"0002 0040 0040 01c0 01c0 0003 0007 0000 01 01 01 01 01 01 01 01"
			"0040 0000 0180 0000 ff00 0080 0000 ff80 0040 0180 0000 fe80 0080 0000 0080 0000"
			"ffff 0000 0000 01ff 01ff 0023 0001 0000 0000 0003 0002 000a ffec 0000"
			"ffff 0000 0000 01ff 01ff 0003 0001 0000 0000 0000"
			"0001 0064 0064 012c 012c 0003 0000 01 01 01 01"
			"0064 0000 00c8 0000 0064 00c8 0000 ff38 0000"
			"ffff 0000 0000 01ff 01ff 0023 0005 0000 0000 0023 0005 0001 0000 0023 0005 0002 0000"
			"0023 0005 0003 0000 0023 0005 0004 0000 0023 0005 0005 0000 0023 0005 0006 0000"
			"0003 0005 0007 0000 0000")
		.with("hmtx", "0200 0000 0200 0000 0000 0000 0000 0000 0000")
		.with("loca", "00000000 00000000 00000020 00000058 00000074 00000088 000000ac 000000f8")
		.with("maxp",
			"00010000 0007 0008 0002 0018 0008 0002 0000 0000 0000 0000 0000 0000 0008 0001");
}


font_file
outlines_font(int xmin, int ymin, int xmax, int ymax)
{
	octets head = outlines_font().table("head");
	put_be16(head, 36, (uint16_t)xmin);
	put_be16(head, 38, (uint16_t)ymin);
	put_be16(head, 40, (uint16_t)xmax);
	put_be16(head, 42, (uint16_t)ymax);
	return outlines_font().with("head", head);
}


outline_stage::outline_stage(stage_window& window, robot& hand)
	: edit(*curttf->glyf->edit),
	  tools(*curttf->glyf->tools),
	  user(hand),
	  fWindow(window)
{
}


void
outline_stage::locked(const std::function<void()>& work)
{
	fWindow.Lock();
	work();
	fWindow.Unlock();
}


void
outline_stage::tell(BMessage message)
{
	BMessenger(&edit).SendMessage(&message);
	user.settle();
}


void
outline_stage::choose(const char* name, int number)
{
	BMessage message('Vchg');
	message.AddInt16(name, (int16)number);
	tell(message);
}


void
outline_stage::add(int glyph)
{
	BMessage message('Cadd');
	message.AddInt16("sub", (int16)glyph);
	tell(message);
}


void
outline_stage::del(int index)
{
	BMessage message('Cdel');
	message.AddInt8("no", (int8)index);
	tell(message);
}


void
outline_stage::key(char which)
{
	locked([&] {
		edit.KeyDown(&which, 1);
		edit.KeyUp(&which, 1);
	});
	user.settle();
}


texts
outline_stage::heard()
{
	texts all;
	locked([&] { all = taken(fWindow.heard); });
	return all;
}


texts
outline_stage::sent()
{
	texts all;
	locked([&] { all = taken(fWindow.sent); });
	return all;
}


std::string
outline_stage::last_heard()
{
	texts all = heard();
	return all.empty() ? "" : all.back();
}


std::string
outline_stage::outline()
{
	std::string text;
	locked([&] {
		for (int32 i = 0; i < cur_glyph->num_shape; i++) {
			const shape& contour = *cur_glyph->shapes[i];
			text += i > 0 ? " |" : "";
			for (int32 k = 0; k < contour.num; k++) {
				char point[64];
				snprintf(point, sizeof point, " %g,%g%s", contour.pts[k].x, contour.pts[k].y,
					contour.onoff[k] ? "*" : "");
				text += point;
			}
		}
	});
	return text.empty() ? text : text.substr(1);
}


std::string
outline_stage::selection()
{
	std::string text;
	locked([&] {
		for (int32 i = cur_glyph->sel_begin(); i < cur_glyph->sel_end(); i++)
			text += " " + std::to_string(cur_glyph->shapes[i]->sel);
	});
	return text.empty() ? text : text.substr(1);
}


std::string
outline_stage::components()
{
	std::string text;
	locked([&] {
		for (int32 i = 0; i < cur_glyph->num_compo; i++) {
			char each[64];
			snprintf(each, sizeof each, "; %04x at %d,%d", cur_glyph->compo[i]->gid,
				cur_glyph->compo_dx[i], cur_glyph->compo_dy[i]);
			text += each;
		}
	});
	return text.empty() ? text : text.substr(2);
}


std::string
outline_stage::state()
{
	char text[80];
	locked([&] {
		snprintf(text, sizeof text, "gno %04x chr %04x mode %d state %d", (uint16)edit.gno,
			(uint16)edit.chr, edit.tool_mode, (int)edit.edit_state);
	});
	return text;
}


// Makes the font the open one and its panel the window's child, and tells the edit view.
static void
set(stage_window& window, const font_file& font)
{
	window.Lock();
	curttf = opened(font).release();
	prepare_clipboard();
	window.AddChild(curttf->glyf);
	BMessage init = init_message(*curttf);
	BMessenger(curttf->glyf->edit).SendMessage(&init);
	window.Unlock();
}


void
at_outlines(const font_file& font, const std::function<void(outline_stage&)>& work)
{
	with_application<stage_application>([&](stage_application& app, robot& user) {
		set(*app.window, font);
		user.settle();
		outline_stage stage(*app.window, user);
		work(stage);
		stage.locked([&] { app.window->RemoveChild(curttf->glyf); });
	});
	delete curttf;
	curttf = nullptr;
}


void
at_outlines(const std::function<void(outline_stage&)>& work)
{
	at_outlines(outlines_font(), work);
}


texts
sent_by(outline_stage& stage, float x, float y)
{
	stage.sent();
	stage.user.click(BPoint(x, y));
	return stage.sent();
}


texts
sent_by(outline_stage& stage, BPoint field, const std::string& text)
{
	stage.sent();
	enter(stage.user, field, text);
	return stage.sent();
}
