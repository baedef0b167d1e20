// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "desktop/support/x11_desktop.h"

#include "desktop/support/until.h"
#include "desktop/support/window_managers.h"

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>
#include <X11/extensions/XTest.h>
#include <X11/Xatom.h>
#include <X11/XKBlib.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>

// A window may go while it is asked about: that is no failure.
static int
ignore(Display*, XErrorEvent*)
{
	return 0;
}


x11_desktop::x11_desktop(const desktop_kind& kind, const std::string& folder) : desktop(kind.scale)
{
	XSetErrorHandler(ignore);
	start_server(folder);
	start_manager(kind, folder);
}


x11_desktop::~x11_desktop()
{
	// The manager ends with its server, also where it has a session bus of its own.
	if (fDisplay != nullptr)
		XCloseDisplay(fDisplay);
	fServer.reset();
}


void
x11_desktop::start_server(const std::string& folder)
{
	std::string number = folder + "/display";
	// The server chooses a number that is free and writes it there.
	std::string size = std::to_string((int)(screen_size.width() * scale())) + "x"
		+ std::to_string((int)(screen_size.height() * scale())) + "x24";
	std::string command = "exec Xvfb -displayfd 3 -nolisten tcp -noreset -screen 0 " + size;
	fServer = std::make_unique<child>(
		std::vector<std::string>{"sh", "-c", command + " 3>'" + number + "'"}, folder + "/server",
		folder + "/server");
	until("the X server does not start", [&] { return text_of(number).ends_with('\n'); });
	std::string name = ":" + std::to_string(std::stoi(text_of(number)));
	setenv("DISPLAY", name.c_str(), 1);
	setenv("QT_QPA_PLATFORM", "xcb", 1);
	until("the X server does not answer", [&] {
		fDisplay = XOpenDisplay(name.c_str());
		return fDisplay != nullptr;
	});
	// What a desktop's settings say of its screen.
	std::string settings = "Xft.dpi:\t" + std::to_string(std::lround(96 * scale())) + "\n";
	XChangeProperty(fDisplay, DefaultRootWindow(fDisplay), XA_RESOURCE_MANAGER, XA_STRING, 8,
		PropModeReplace, (const unsigned char*)settings.data(), (int)settings.size());
}


void
x11_desktop::start_manager(const desktop_kind& kind, const std::string& folder)
{
	fManager = std::make_unique<child>(
		manager_command(kind, folder), folder + "/manager", folder + "/manager");
	unsigned long root = DefaultRootWindow(fDisplay);
	until("the window manager does not start",
		[&] { return !property(root, "_NET_SUPPORTING_WM_CHECK").empty(); });
}


void
x11_desktop::move_to(QPointF where)
{
	XTestFakeMotionEvent(fDisplay, -1, (int)std::lround(where.x() * scale()),
		(int)std::lround(where.y() * scale()), CurrentTime);
	XFlush(fDisplay);
}


void
x11_desktop::button(mouse_button which, bool down)
{
	XTestFakeButtonEvent(fDisplay, which, down, CurrentTime);
	XFlush(fDisplay);
}


void
x11_desktop::notch(direction where)
{
	unsigned int number = 4 + (unsigned int)where;
	XTestFakeButtonEvent(fDisplay, number, True, CurrentTime);
	XTestFakeButtonEvent(fDisplay, number, False, CurrentTime);
	XFlush(fDisplay);
}


void
x11_desktop::key(uint32_t symbol, bool down)
{
	KeyCode code = XKeysymToKeycode(fDisplay, symbol);
	if (code == 0)
		throw journey_failed("the keyboard has no key for symbol " + std::to_string(symbol));
	XTestFakeKeyEvent(fDisplay, code, down, CurrentTime);
	XFlush(fDisplay);
}


bool
x11_desktop::needs_shift(uint32_t symbol)
{
	return XkbKeycodeToKeysym(fDisplay, XKeysymToKeycode(fDisplay, symbol), 0, 0) != symbol;
}


void
x11_desktop::flush()
{
	XSync(fDisplay, False);
}


std::vector<unsigned long>
x11_desktop::property(unsigned long window, const char* name)
{
	Atom type;
	int format = 0;
	unsigned long count = 0, left;
	unsigned char* data = nullptr;
	std::vector<unsigned long> values;
	if (XGetWindowProperty(fDisplay, window, XInternAtom(fDisplay, name, False), 0, 1024, False,
			AnyPropertyType, &type, &format, &count, &left, &data)
			== Success
		&& data != nullptr) {
		// Numbers of 32 bits come as long, whatever its size.
		if (format == 32)
			values.assign((unsigned long*)data, (unsigned long*)data + count);
		XFree(data);
	}
	return values;
}


std::string
x11_desktop::text_property(unsigned long window, const char* name)
{
	Atom type;
	int format = 0;
	unsigned long count = 0, left;
	unsigned char* data = nullptr;
	std::string text;
	if (XGetWindowProperty(fDisplay, window, XInternAtom(fDisplay, name, False), 0, 1024, False,
			AnyPropertyType, &type, &format, &count, &left, &data)
			== Success
		&& data != nullptr) {
		if (format == 8)
			text.assign((char*)data, count);
		XFree(data);
	}
	return text;
}


std::optional<shown_window>
x11_desktop::describe(unsigned long window)
{
	Window root = DefaultRootWindow(fDisplay), other;
	XWindowAttributes place;
	int x = 0, y = 0;
	if (!XGetWindowAttributes(fDisplay, window, &place)
		|| !XTranslateCoordinates(fDisplay, window, root, 0, 0, &x, &y, &other))
		return {};
	shown_window shown = {};
	shown.id = window;
	shown.title = text_property(window, "_NET_WM_NAME");
	// Two strings, each with a zero at its end: the instance's name and the class.
	shown.program = text_property(window, "WM_CLASS").c_str();
	shown.contents = {x / scale(), y / scale(), place.width / scale(), place.height / scale()};
	std::vector<unsigned long> frame = property(window, "_NET_FRAME_EXTENTS");
	if (frame.size() == 4) {
		shown.frame =
			QMarginsF((double)frame[0], (double)frame[2], (double)frame[1], (double)frame[3])
			/ scale();
	}
	std::vector<unsigned long> active = property(root, "_NET_ACTIVE_WINDOW");
	shown.active = !active.empty() && active[0] == window;
	Window parent = 0;
	shown.has_parent = XGetTransientForHint(fDisplay, window, &parent) && parent != 0;
	shown.visible = place.map_state == IsViewable;
	return shown;
}


std::vector<shown_window>
x11_desktop::windows()
{
	std::vector<shown_window> all;
	for (unsigned long each : property(DefaultRootWindow(fDisplay), "_NET_CLIENT_LIST")) {
		if (auto shown = describe(each))
			all.push_back(*shown);
	}
	return all;
}


// As a pager asks, which no manager refuses.
void
x11_desktop::ask_manager(unsigned long window, const char* what, long first, long second)
{
	XEvent event = {};
	event.xclient.type = ClientMessage;
	event.xclient.window = window;
	event.xclient.message_type = XInternAtom(fDisplay, what, False);
	event.xclient.format = 32;
	event.xclient.data.l[0] = first;
	event.xclient.data.l[1] = second;
	XSendEvent(fDisplay, DefaultRootWindow(fDisplay), False,
		SubstructureNotifyMask | SubstructureRedirectMask, &event);
	XFlush(fDisplay);
}


constexpr long from_a_pager = 2;


void
x11_desktop::activate(const shown_window& window)
{
	ask_manager(window.id, "_NET_ACTIVE_WINDOW", from_a_pager, CurrentTime);
}


void
x11_desktop::close(const shown_window& window)
{
	ask_manager(window.id, "_NET_CLOSE_WINDOW", CurrentTime, from_a_pager);
}


void
x11_desktop::resize(const shown_window& window, QSizeF contents)
{
	XResizeWindow(fDisplay, window.id, (unsigned int)std::lround(contents.width() * scale()),
		(unsigned int)std::lround(contents.height() * scale()));
	XFlush(fDisplay);
}


void
x11_desktop::minimise(const shown_window& window)
{
	XIconifyWindow(fDisplay, window.id, DefaultScreen(fDisplay));
	XFlush(fDisplay);
}


QImage
x11_desktop::picture(QRectF part)
{
	QRect all(QPoint(), (screen_size * scale()).toSize());
	QRectF device(part.topLeft() * scale(), part.size() * scale());
	QRect wanted = device.toRect().intersected(all);
	XImage* image = nullptr;
	if (!wanted.isEmpty())
		image = XGetImage(fDisplay, DefaultRootWindow(fDisplay), wanted.x(), wanted.y(),
			(unsigned int)wanted.width(), (unsigned int)wanted.height(), AllPlanes, ZPixmap);
	if (image == nullptr)
		throw journey_failed("no picture of the screen");
	const QImage seen((const uchar*)image->data, image->width, image->height, image->bytes_per_line,
		QImage::Format_RGB32);
	QImage copy = seen.copy();
	XDestroyImage(image);
	return copy;
}


QImage
x11_desktop::picture()
{
	return picture({QPointF(), screen_size});
}
