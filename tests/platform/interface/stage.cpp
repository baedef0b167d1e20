// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "platform/interface/stage.h"

#include <cstring>
#include <ostream>


namespace {

char
letter(uint32 pixel)
{
	switch (pixel & 0xFFFFFF) {
		case 0xFFFFFF:
			return '.';
		case 0x000000:
			return '#';
		case 0xFF0000:
			return 'r';
		case 0x00FF00:
			return 'g';
		case 0x0000FF:
			return 'b';
		default:
			return '?';
	}
}


std::string
text_of(BPoint point)
{
	return std::to_string((int)point.x) + " " + std::to_string((int)point.y);
}


class one_window : public plain_application {
public:
	one_window() : window(new test_window(BRect(40, 30, 239, 129))) { window->Show(); }

	test_window* window;
};

}


test_view::test_view(BRect frame, const char* name, uint32 mode, uint32 flags)
	: BView(frame, name, mode, flags)
{
}


void
test_view::_Note(const char* event)
{
	if (notes)
		notes->push_back(std::string(Name()) + " " + event);
}


void
test_view::AttachedToWindow()
{
	_Note("attached");
	if (on_attached)
		on_attached();
}


void
test_view::AllAttached()
{
	_Note("all attached");
}


void
test_view::DetachedFromWindow()
{
	_Note("detached");
	if (on_detached)
		on_detached();
}


void
test_view::AllDetached()
{
	_Note("all detached");
}


void
test_view::MakeFocus(bool focus)
{
	_Note(focus ? "focus" : "no focus");
	BView::MakeFocus(focus);
}


void
test_view::MessageReceived(BMessage* message)
{
	received.push_back(message->what);
	if (on_message)
		on_message(*message);
	BView::MessageReceived(message);
}


void
test_view::Draw(BRect updateRect)
{
	draws.push_back(updateRect);
	if (on_draw)
		on_draw(updateRect);
}


void
test_view::MouseDown(BPoint where)
{
	pointer.push_back("down " + text_of(where));
}


void
test_view::MouseUp(BPoint where)
{
	pointer.push_back("up " + text_of(where));
}


void
test_view::MouseMoved(BPoint where, uint32 transit, const BMessage*)
{
	const char* names[] = {"entered", "inside", "exited", "outside"};
	pointer.push_back("moved " + text_of(where) + " " + names[transit & 3]);
}


sheet::sheet(int32 width, int32 height)
	: bitmap(BRect(0, 0, (float)width - 1, (float)height - 1), B_RGB32, true)
{
	bitmap.Lock();
	memset(bitmap.Bits(), 0xFF, (size_t)bitmap.BitsLength());
}


BView&
sheet::whole()
{
	return add(new BView(bitmap.Bounds(), "whole", B_FOLLOW_ALL, B_WILL_DRAW));
}


std::string
sheet::picture() const
{
	std::string text;
	for (int y = 0; y <= (int)bitmap.Bounds().Height(); y++) {
		const auto* row = static_cast<const char*>(bitmap.Bits()) + y * bitmap.BytesPerRow();
		for (int x = 0; x <= (int)bitmap.Bounds().Width(); x++) {
			uint32 pixel;
			memcpy(&pixel, row + 4 * x, sizeof pixel);
			text += letter(pixel);
		}
		text += '\n';
	}
	return text;
}


std::string
picture(robot& user, BRect place)
{
	QImage image = user.picture();
	std::string text;
	for (int y = (int)place.top; y <= (int)place.bottom; y++) {
		for (int x = (int)place.left; x <= (int)place.right; x++)
			text += image.valid(x, y) ? letter(image.pixel(x, y)) : ' ';
		text += '\n';
	}
	return text;
}


test_window::test_window(BRect frame, const char* title)
	: BWindow(frame, title, B_DOCUMENT_WINDOW, 0)
{
}


void
test_window::locked(const std::function<void()>& work)
{
	bool held = Lock();
	work();
	if (held)
		Unlock();
}


std::vector<BMessage>
test_window::dispatched(uint32 what)
{
	std::vector<BMessage> found;
	locked([&] {
		for (const BMessage& message : fDispatched) {
			if (message.what == what)
				found.push_back(message);
		}
	});
	return found;
}


BMessage
test_window::last_dispatched(uint32 what)
{
	std::vector<BMessage> found = dispatched(what);
	return found.empty() ? BMessage() : found.back();
}


journal
test_window::handlers_of(uint32 what)
{
	journal names;
	locked([&] {
		for (size_t i = 0; i < fDispatched.size(); i++) {
			if (fDispatched[i].what == what)
				names.push_back(fHandlers[i]);
		}
	});
	return names;
}


void
test_window::DispatchMessage(BMessage* message, BHandler* handler)
{
	fDispatched.push_back(*message);
	fHandlers.push_back(handler->Name());
	BWindow::DispatchMessage(message, handler);
}


void
test_window::FrameResized(float newWidth, float newHeight)
{
	resized.emplace_back(newWidth, newHeight);
}


void
test_window::Zoom(BPoint leftTop, float width, float height)
{
	zoomed.emplace_back(leftTop.x, leftTop.y, leftTop.x + width, leftTop.y + height);
	if (may_zoom)
		BWindow::Zoom(leftTop, width, height);
}


bool
test_window::QuitRequested()
{
	quit_questions++;
	return may_quit;
}


plain_application::plain_application() : BApplication("application/x-vnd.kernix-kits-test") {}


void
with_window(const std::function<void(test_window&, robot&)>& user)
{
	with_application<one_window>([&](one_window& app, robot& hand) {
		hand.settle();
		user(*app.window, hand);
		app.window->locked([&] { app.window->may_quit = true; });
	});
}


std::ostream&
operator<<(std::ostream& out, const BRect& rect)
{
	return out << "(" << rect.left << ", " << rect.top << ", " << rect.right << ", " << rect.bottom
			   << ")";
}


std::ostream&
operator<<(std::ostream& out, const BPoint& point)
{
	return out << "(" << point.x << ", " << point.y << ")";
}
