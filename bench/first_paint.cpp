// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "first_paint.h"

#include <ctime>
#include <fstream>
#include <QApplication>
#include <QEvent>
#include <QMetaObject>
#include <unistd.h>


paint_watch::paint_watch(std::function<void(double)> seen) : fSeen(std::move(seen))
{
	qApp->installEventFilter(this);
}


bool
paint_watch::eventFilter(QObject* object, QEvent* event)
{
	if (event->type() == QEvent::Paint && object->isWidgetType() && !fAsked) {
		fAsked = true;
		// Comes after the events that are under way: all widgets of this frame are painted then.
		auto told = [this] {
			fAsked = false;
			fSeen(now());
		};
		QMetaObject::invokeMethod(this, told, Qt::QueuedConnection);
	}
	return false;
}


double
now()
{
	timespec time;
	clock_gettime(CLOCK_MONOTONIC, &time);
	return (double)time.tv_sec + (double)time.tv_nsec * 1e-9;
}


double
resident()
{
	std::ifstream sizes("/proc/self/statm");
	double whole = 0;
	double held = 0;
	sizes >> whole >> held;
	return held * (double)sysconf(_SC_PAGESIZE);
}
