// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/zoom_box.h"

#include "app/activity.h"

#include <QWidget>

using namespace kits;

// Milliseconds. A desktop that has told nothing for so long has restored the window, or will not.
static const int quiet_time = 300;
// Some desktops enlarge the window first, in steps, and tell of its state then. The steps come closer
// together than the first of these times and take less than the second, unlike a user's dragging; the
// state follows within the third.
static const int between_steps = 100;
static const int all_steps = 150;
static const int before_state = 500;
// How often the state is taken back before the desktop has its way.
static const int most_tries = 3;


zoom_box::zoom_box(QWidget& window, std::function<void(bool)> ended)
	: fWindow(window),
	  fEnded(std::move(ended))
{
	fQuiet.setSingleShot(true);
	fQuiet.setInterval(quiet_time);
	connect(&fQuiet, &QTimer::timeout, this, [this] { _End(true); });
}


zoom_box::~zoom_box()
{
	if (under_way())
		activity::end();
}


void
zoom_box::state_changed()
{
	if (!fWindow.isMaximized()) {
		// While restoring that is our own doing.
		if (fStage == idle)
			fKept = false;
		return;
	}
	if (fStage == idle && !fKept) {
		activity::begin();
		if (!_IsEnlarged())
			fBefore = fNow;
		fTries = 0;
		_TakeBackSoon();
	} else if (fStage == restoring) {
		_TakeBackSoon();
	}
}


void
zoom_box::geometry_changed(bool by_desktop)
{
	// A place comes after the size: both are one change.
	if (fStage == restoring)
		fQuiet.start(fWindow.geometry() == fBefore ? 0 : quiet_time);
	if (fStage != idle)
		return;
	_Remember(by_desktop);
}


void
zoom_box::_Remember(bool by_desktop)
{
	if (!by_desktop) {
		fLast.invalidate();
	} else {
		if (!fLast.isValid() || fLast.hasExpired(between_steps)) {
			fBefore = fNow;
			fFirst.start();
		}
		fLast.start();
	}
	fNow = fWindow.geometry();
}


// Whether the desktop's last changes belong to the state that it tells of now.
bool
zoom_box::_IsEnlarged() const
{
	return fLast.isValid() && !fLast.hasExpired(before_state)
		&& fFirst.elapsed() - fLast.elapsed() < all_steps;
}


void
zoom_box::restore_to(QSize size)
{
	fBefore.setSize(size);
}


// The display may tell of the state twice, so that it is taken back only after that.
void
zoom_box::_TakeBackSoon()
{
	fStage = maximized;
	fQuiet.stop();
	QTimer::singleShot(0, this, [this] { _TakeBack(); });
}


void
zoom_box::_TakeBack()
{
	// A kiosk, or a desktop that tiles: the window is as large as the desktop has it.
	fKept = ++fTries > most_tries;
	if (fKept) {
		_End(false);
		return;
	}
	fStage = restoring;
	fWindow.setWindowState(fWindow.windowState() & ~Qt::WindowMaximized);
	fQuiet.start(quiet_time);
}


void
zoom_box::_End(bool restored)
{
	fQuiet.stop();
	fStage = idle;
	// A desktop that has not answered yet gets this request after the one to restore, so that it ends
	// with this geometry all the same.
	if (restored)
		fWindow.setGeometry(fBefore);
	_Remember(false);
	fEnded(restored);
	activity::end();
}
