// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The user among windows: waits, looks, and works their frames.
#include "support/robot.h"

#include "app/activity.h"
#include "display/display.h"

#include <AppDefs.h>
#include <atomic>
#include <Messenger.h>
#include <ostream>
#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <semaphore>

using namespace kits;


namespace {

// Does the user's work as an event of the display's own, not as one of its commands: what the user
// does may open loops and grabs that a command must not. The work is handed over beside Qt's queue,
// whose ordering the thread sanitizer cannot see.
class event_worker : public QObject {
public:
	void run(const std::function<void()>& work)
	{
		std::binary_semaphore done(0);
		errand mine{work, done};
		activity::begin();
		fErrand = &mine;
		QCoreApplication::postEvent(this, new QEvent(QEvent::User));
		done.acquire();
	}

	bool event(QEvent* event) override
	{
		if (event->type() != QEvent::User)
			return QObject::event(event);
		errand* next = fErrand;
		next->work();
		activity::end();
		next->done.release();
		return true;
	}

private:
	struct errand {
		const std::function<void()>& work;
		std::binary_semaphore& done;
	};
	// One user at a time.
	std::atomic<errand*> fErrand = nullptr;
};


// Made by the display thread before any user starts; never destroyed.
event_worker* worker = nullptr;

}


std::ostream&
operator<<(std::ostream& out, rgb_color color)
{
	return out << "(" << int(color.red) << ", " << int(color.green) << ", " << int(color.blue)
			   << ")";
}


void
robot::settle()
{
	for (;;) {
		while (activity::pending() != 0)
			snooze(100);
		int64 before = activity::generation();
		display::call([] { QCoreApplication::sendPostedEvents(); });
		// That call was one thing under way; anything more has to be waited for.
		if (activity::pending() == 0 && activity::generation() == before + 1)
			return;
	}
}


bool
robot::wait_for(const std::function<bool()>& condition)
{
	for (int tries = 0; tries < 1000; tries++) {
		settle();
		if (condition())
			return true;
		snooze(10000);
	}
	return false;
}


void
robot::on_display(const std::function<void()>& look)
{
	settle();
	display::call(look);
}


void
robot::_Act(const std::function<void()>& work)
{
	worker->run(work);
}


void
robot::act(const std::function<void(QWidget& window)>& work)
{
	_Act([&] {
		if (QWidget* window = _Window())
			work(*window);
	});
}


// Display thread only.
QWidget*
robot::_Window()
{
	for (QWidget* widget : QApplication::topLevelWidgets()) {
		bool named = fTitle.empty() || widget->windowTitle().toStdString() == fTitle;
		if (!named || !widget->isVisible())
			continue;
		if (!dynamic_cast<QDialog*>(widget) && !dynamic_cast<QMenu*>(widget))
			return widget;
	}
	return nullptr;
}


bool
robot::window_is_shown()
{
	bool shown = false;
	on_display([&] { shown = _Window() != nullptr; });
	return shown;
}


std::string
robot::window_title()
{
	std::string title;
	on_display([&] {
		if (QWidget* window = _Window())
			title = window->windowTitle().toStdString();
	});
	return title;
}


BPoint
robot::window_size()
{
	BPoint size(0, 0);
	on_display([&] {
		if (QWidget* window = _Window())
			size = BPoint((float)window->width(), (float)window->height());
	});
	return size;
}


void
robot::resize_window(float width, float height)
{
	settle();
	_Act([&] {
		if (QWidget* window = _Window())
			window->resize((int)width, (int)height);
	});
	settle();
}


void
robot::press_close_box()
{
	settle();
	_Act([&] {
		if (QWidget* window = _Window())
			window->close();
	});
	settle();
}


void
robot::press_zoom_box()
{
	settle();
	_Act([&] {
		if (QWidget* window = _Window())
			window->setWindowState(window->windowState() | Qt::WindowMaximized);
	});
	settle();
}


QImage
robot::picture()
{
	QImage image;
	on_display([&] {
		if (QWidget* window = _Window())
			image = window->grab().toImage().convertToFormat(QImage::Format_RGB32);
	});
	return image;
}


rgb_color
robot::pixel(BPoint where)
{
	QRgb found = picture().pixel((int)where.x, (int)where.y);
	return {(uint8)qRed(found), (uint8)qGreen(found), (uint8)qBlue(found), 255};
}


int
robot::count(BRect place, rgb_color color)
{
	QImage image = picture();
	QRgb wanted = qRgb(color.red, color.green, color.blue);
	int found = 0;
	for (int y = (int)place.top; y <= (int)place.bottom; y++) {
		for (int x = (int)place.left; x <= (int)place.right; x++)
			found += image.valid(x, y) && (image.pixel(x, y) | 0xFF000000) == wanted;
	}
	return found;
}


void
run_with_user(BApplication& application, const std::function<void(robot&)>& user)
{
	if (worker == nullptr)
		worker = new event_worker;
	std::atomic<bool> gone = false;
	std::thread hand([&] {
		robot mine;
		user(mine);
		be_app_messenger.SendMessage(B_QUIT_REQUESTED);
		gone = true;
	});
	application.Run();
	// A user who has quit the program may still be looking at the display.
	while (!gone) {
		QCoreApplication::processEvents();
		snooze(100);
	}
	hand.join();
}
