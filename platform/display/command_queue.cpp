// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "display/command_queue.h"

#include "app/activity.h"

#include <chrono>
#include <QCoreApplication>
#include <QEvent>
#include <QTimer>

using namespace kits;


namespace {

constexpr size_t crowded = 4096;
constexpr std::chrono::milliseconds budget(6);

}


void
command_queue::post(display::command work)
{
	std::unique_lock guard(fLock);
	if (display::serving() && !display::serving_here())
		fShrunk.wait(guard, [this] { return fCommands.size() < crowded; });
	activity::begin();
	fCommands.push_back(std::move(work));
	if (!fWoken) {
		fWoken = true;
		_Wake();
	}
}


void
command_queue::_Wake()
{
	QCoreApplication::postEvent(this, new QEvent(QEvent::User));
}


bool
command_queue::event(QEvent* event)
{
	if (event->type() != QEvent::User)
		return QObject::event(event);
	_Work();
	return true;
}


bool
command_queue::_Next(display::command& work)
{
	std::lock_guard guard(fLock);
	if (fCommands.empty()) {
		fWoken = false;
		return false;
	}
	work = std::move(fCommands.front());
	fCommands.pop_front();
	if (fCommands.size() == crowded / 2)
		fShrunk.notify_all();
	return true;
}


void
command_queue::_Work()
{
	auto end = std::chrono::steady_clock::now() + budget;
	display::command work;
	while (_Next(work)) {
		work();
		work = nullptr;
		activity::end();
		if (std::chrono::steady_clock::now() >= end) {
			QTimer::singleShot(0, this, [this] { _Work(); });
			return;
		}
	}
}


void
command_queue::drain()
{
	display::command work;
	while (_Next(work)) {
		work();
		work = nullptr;
		activity::end();
	}
}
