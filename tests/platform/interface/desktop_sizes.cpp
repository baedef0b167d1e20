// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// What becomes of a window's size when its program, its user and the desktop all have their say.
#include "platform/interface/stage.h"

#include <AppDefs.h>
#include <atomic>
#include <gtest/gtest.h>
#include <memory>
#include <QApplication>
#include <QDialog>
#include <QResizeEvent>
#include <QTimer>
#include <QWidget>

namespace {

// A desktop that answers late when a maximized window wants to be small again.
class slow_desktop : public QObject {
public:
	// The answer is given on the display thread, which also makes and ends the desktop.
	slow_desktop(QWidget& window, std::function<void(QWidget&)> answer)
		: fWindow(window),
		  fAnswer(std::move(answer))
	{
		window.installEventFilter(this);
	}

	bool eventFilter(QObject*, QEvent* event) override
	{
		if (event->type() == QEvent::WindowStateChange && !fWindow.isMaximized()) {
			fWindow.setGeometry(0, 0, 700, 600);
			QTimer::singleShot(20, this, [this] { fAnswer(fWindow); });
		}
		return false;
	}

private:
	QWidget& fWindow;
	const std::function<void(QWidget&)> fAnswer;
};


// Runs the user's part on a desktop with this answer.
void
on_slow_desktop(
	robot& user, const std::function<void(QWidget&)>& answer, const std::function<void()>& work)
{
	std::unique_ptr<slow_desktop> desktop;
	user.act([&](QWidget& window) { desktop = std::make_unique<slow_desktop>(window, answer); });
	work();
	user.act([&](QWidget&) { desktop.reset(); });
	user.settle();
}


void
restore(QWidget& window)
{
	window.setGeometry(40, 30, 200, 100);
}


// Hides the next change of size from the widget.
class event_eater : public QObject {
public:
	bool eventFilter(QObject*, QEvent* event) override { return event->type() == QEvent::Resize; }
};

}


TEST(desktop_size, is_that_of_the_screen_when_an_event_tells_an_older_one)
{
	with_window([](test_window& window, robot& user) {
		user.act([](QWidget& widget) {
			event_eater eater;
			widget.installEventFilter(&eater);
			widget.resize(300, 250);
			widget.removeEventFilter(&eater);
			QResizeEvent older(QSize(200, 100), QSize(200, 100));
			QApplication::sendEvent(&widget, &older);
		});
		user.settle();
		EXPECT_EQ(user.window_size(), BPoint(300, 250));
		EXPECT_EQ(window.Bounds(), BRect(0, 0, 299, 249));
	});
}


TEST(desktop_size, counts_on_a_full_screen)
{
	with_window([](test_window& window, robot& user) {
		user.act([](QWidget& widget) { widget.setWindowState(Qt::WindowFullScreen); });
		user.settle();
		BPoint screen = user.window_size();
		EXPECT_EQ(window.Bounds().RightBottom(), screen - BPoint(1, 1));
		window.ResizeTo(299, 249);
		user.settle();
		EXPECT_EQ(user.window_size(), screen);
		EXPECT_EQ(window.Bounds().RightBottom(), screen - BPoint(1, 1));
	});
}


TEST(desktop_size, the_zoom_box_asks_when_the_desktop_has_restored_the_window)
{
	with_window([](test_window& window, robot& user) {
		window.locked([&] {
			window.may_zoom = true;
			window.SetZoomLimits(300, 250);
		});
		on_slow_desktop(user, restore, [&] { user.press_zoom_box(); });
		EXPECT_EQ(user.window_size(), BPoint(301, 251));
		EXPECT_EQ(window.Frame(), BRect(40, 30, 340, 280));
		window.locked(
			[&] { EXPECT_EQ(window.zoomed, std::vector<BRect>{BRect(40, 30, 340, 280)}); });
	});
}


TEST(desktop_size, chosen_by_the_program_during_a_press_of_the_zoom_box_counts)
{
	with_window([](test_window& window, robot& user) {
		on_slow_desktop(user, restore, [&] {
			user.act([](QWidget& widget) { widget.setWindowState(Qt::WindowMaximized); });
			window.ResizeTo(249, 149);
			user.settle();
		});
		EXPECT_EQ(user.window_size(), BPoint(250, 150));
		EXPECT_EQ(window.Frame(), BRect(40, 30, 289, 179));
	});
}


TEST(desktop_size, counts_where_the_desktop_keeps_the_window_maximized)
{
	with_window([](test_window& window, robot& user) {
		auto again = [](QWidget& widget) { widget.setWindowState(Qt::WindowMaximized); };
		on_slow_desktop(user, again, [&] { user.press_zoom_box(); });
		bool maximized = false;
		user.act([&](QWidget& widget) { maximized = widget.isMaximized(); });
		EXPECT_TRUE(maximized);
		EXPECT_NE(user.window_size(), BPoint(200, 100));
		EXPECT_EQ(window.Bounds().RightBottom(), user.window_size() - BPoint(1, 1));
		window.locked([&] { EXPECT_TRUE(window.zoomed.empty()); });
	});
}


TEST(first_show, has_the_size_that_the_files_of_the_start_give)
{
	// Shown by its constructor, resized when the files come, as main windows are.
	class application : public plain_application {
	public:
		application() : window(new test_window(BRect(40, 30, 239, 129)))
		{
			window->Show();
			PostMessage(B_REFS_RECEIVED);
		}

		void RefsReceived(BMessage*) override { window->ResizeTo(299, 249); }

		test_window* const window;
	};
	// Sizes at each moment that the window came to the screen.
	class watcher : public QObject {
	public:
		bool eventFilter(QObject* object, QEvent* event) override
		{
			auto* widget = dynamic_cast<QWidget*>(object);
			if (event->type() == QEvent::Show && widget && widget->isWindow())
				seen.push_back(widget->size());
			return false;
		}

		std::vector<QSize> seen;
	};
	application app;
	watcher eyes;
	qApp->installEventFilter(&eyes);
	run_with_user(app, [&](robot& user) {
		EXPECT_EQ(user.window_size(), BPoint(300, 250));
		EXPECT_EQ(eyes.seen, std::vector<QSize>{QSize(300, 250)});
	});
	qApp->removeEventFilter(&eyes);
}


TEST(first_show, comes_while_the_program_is_still_busy_with_the_files_of_the_start)
{
	class application : public plain_application {
	public:
		application()
		{
			(new test_window(BRect(40, 30, 239, 129)))->Show();
			PostMessage(B_REFS_RECEIVED);
		}

		// Waits for the window, as for a file on a slow disk.
		void RefsReceived(BMessage*) override
		{
			while (!shown)
				snooze(1000);
		}

		std::atomic<bool> shown{false};
	};
	class watcher : public QObject {
	public:
		explicit watcher(std::atomic<bool>& shown) : fShown(shown) {}

		bool eventFilter(QObject* object, QEvent* event) override
		{
			if (event->type() == QEvent::Show && object->isWidgetType())
				fShown = true;
			return false;
		}

	private:
		std::atomic<bool>& fShown;
	};
	application app;
	watcher eyes(app.shown);
	qApp->installEventFilter(&eyes);
	run_with_user(app, [&](robot& user) { EXPECT_TRUE(user.window_is_shown()); });
	qApp->removeEventFilter(&eyes);
}
