// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/type_ahead.h"

#include "app/activity.h"
#include "display/window_widget.h"

#include <algorithm>
#include <QCoreApplication>
#include <QEvent>
#include <QTimer>
#include <QWindow>

using namespace kits;


namespace {

bool
is_key(const QEvent& event)
{
	return event.type() == QEvent::KeyPress || event.type() == QEvent::KeyRelease;
}


bool
is_input(const QEvent& event)
{
	switch (event.type()) {
		case QEvent::MouseButtonPress:
		case QEvent::MouseButtonDblClick:
		case QEvent::MouseButtonRelease:
		case QEvent::MouseMove:
		case QEvent::TabletPress:
		case QEvent::TabletRelease:
		case QEvent::TabletMove:
		case QEvent::Wheel:
			return true;
		default:
			return is_key(event);
	}
}

}


type_ahead::~type_ahead()
{
	for (size_t i = 0; i < fWaiting.size(); i++)
		activity::end();
}


void
type_ahead::answered()
{
	fPresses = std::max(fPresses - 1, 0);
	// Not within a command: what the user does may open what runs a loop of its own.
	if (!fWaiting.empty())
		QTimer::singleShot(0, &fWindow, [this] { _Replay(); });
}


bool
type_ahead::keeps(const QEvent& event)
{
	if (fReplaying || (fWaiting.empty() && !_IsUndecided(event)))
		return false;
	activity::begin();
	fWaiting.emplace_back(event.clone());
	return true;
}


// The window's own keys go the same way as the press, in order.
bool
type_ahead::_IsUndecided(const QEvent& event) const
{
	return is_key(event) && fPresses > 0 && fWindow.focusWidget() != &fWindow;
}


void
type_ahead::_Replay()
{
	while (!fWaiting.empty() && !_IsUndecided(*fWaiting.front())) {
		std::unique_ptr<QEvent> event = std::move(fWaiting.front());
		fWaiting.pop_front();
		fReplaying = true;
		QCoreApplication::sendEvent(fWindow.windowHandle(), event.get());
		fReplaying = false;
		activity::end();
	}
}


bool
input_gate::eventFilter(QObject* watched, QEvent* event)
{
	if (!watched->isWindowType() || !is_input(*event))
		return false;
	auto* focus = qobject_cast<QWidget*>(static_cast<QWindow*>(watched)->focusObject());
	auto* window = focus ? dynamic_cast<window_widget*>(focus->window()) : nullptr;
	return window && window->windowHandle() == watched && window->ahead().keeps(*event);
}
