// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "display/display.h"

#include "display/command_queue.h"
#include "display/key_filter.h"
#include "display/look.h"
#include "display/pointer_watch.h"
#include "display/type_ahead.h"
#include "display/x_keyboard.h"

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <QApplication>
#include <QFontInfo>
#include <QSettings>
#include <QWindow>
#include <semaphore>
#include <unistd.h>

using namespace kits;


namespace {

// Made once and never destroyed: other threads may still run while a lost display ends the process.
command_queue* commands = nullptr;
std::atomic<bool> is_running{false};
std::atomic<bool> is_serving{false};
std::thread::id display_thread;
QString* first_complaint = nullptr;
QtMessageHandler say_as_usual = nullptr;
// Set before other threads run.
bool places_are_the_servers = false;


// Qt aborts when it finds no display. This turns that into one line and a plain end.
void
end_without_display(QtMsgType type, const QMessageLogContext&, const QString& text)
{
	if (type == QtFatalMsg) {
		QString reason = first_complaint->isEmpty() ? text : *first_complaint;
		fprintf(stderr, "%s: no display to open a window on: %s\n", program_invocation_short_name,
			qPrintable(reason.section('\n', 0, 0).trimmed()));
		_exit(1);
	}
	if (first_complaint->isEmpty())
		*first_complaint = text;
}


// When the connection breaks, Qt says so and calls exit(), which tears down what the other threads
// are still using. Nothing is left to be done then but to end.
void
end_with_display(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
	if (text.contains("connection broke")) {
		fprintf(stderr, "%s: the display has gone\n", program_invocation_short_name);
		_exit(1);
	}
	say_as_usual(type, context, text);
}


// What Qt's file dialog was left with is not kept: no file can be made there. What the font library
// finds out goes where the files of the session are.
void
leave_home_alone()
{
	QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, "/dev/null");
	const QByteArray session = qgetenv("XDG_RUNTIME_DIR");
	if (!session.isEmpty())
		qputenv("XDG_CACHE_HOME", session + '/' + program_invocation_short_name);
}


void
make_application()
{
	static int count = 1;
	static char* arguments[] = {program_invocation_short_name, nullptr};
	first_complaint = new QString;
	say_as_usual = qInstallMessageHandler(end_without_display);
	QCoreApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents, false);
	QCoreApplication::setAttribute(Qt::AA_CompressTabletEvents, false);
	// How a desktop finds a window's icon, and its launcher, where windows bring none.
	QGuiApplication::setDesktopFileName(KITS_DESKTOP_ID);
	auto* application = new QApplication(count, arguments);
	qInstallMessageHandler(end_with_display);
	application->setQuitOnLastWindowClosed(false);
	set_look(*application);
	if (QFontInfo(application->font()).family().isEmpty())
		fprintf(stderr, "%s: no fonts are installed, so no text can be shown\n",
			program_invocation_short_name);
}


void
watch_keys(QApplication& application)
{
	// The one installed last has the first look.
	application.installEventFilter(&keyboard());
	application.installEventFilter(new input_gate);
	QObject::connect(
		&application, &QGuiApplication::focusWindowChanged, &keyboard(), &key_filter::moved_to);
	x_keyboard::watch_grabs([] { keyboard().look_again(); });
}

}


void
display::start()
{
	if (is_running)
		return;
	display_thread = std::this_thread::get_id();
	commands = new command_queue;
	leave_home_alone();
	make_application();
	watch_keys(*qApp);
	places_are_the_servers = QGuiApplication::platformName().startsWith("wayland");
	qApp->installEventFilter(new pointer_watch);
	is_running = true;
}


bool
display::running()
{
	return is_running;
}


bool
display::serving()
{
	return is_serving;
}


bool
display::serving_here()
{
	return is_serving && std::this_thread::get_id() == display_thread;
}


bool
display::server_places_windows()
{
	return places_are_the_servers;
}


void
display::post(command work)
{
	commands->post(std::move(work));
}


void
display::call(const command& work)
{
	if (std::this_thread::get_id() == display_thread) {
		commands->drain();
		work();
		return;
	}
	std::binary_semaphore done(0);
	commands->post([&] {
		work();
		done.release();
	});
	done.acquire();
}


void
display::serve()
{
	is_serving = true;
	QApplication::exec();
	is_serving = false;
}


void
display::stop()
{
	post([] { QCoreApplication::exit(0); });
}


void
display::drain()
{
	commands->drain();
	// A dialog whose threads still read folders must not outlive what they use.
	if (!is_serving)
		QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}
