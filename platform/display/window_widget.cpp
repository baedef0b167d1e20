// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/window_widget.h"

#include "display/display.h"
#include "display/input.h"
#include "display/key_filter.h"
#include "display/menu_widgets.h"
#include "display/window_peer.h"

#include <AppDefs.h>
#include <QCloseEvent>
#include <QCursor>
#include <QDragEnterEvent>
#include <QGuiApplication>
#include <QMimeData>
#include <QMouseEvent>
#include <QResizeEvent>
#include <QWindow>

using namespace kits;

// Milliseconds that a window waits for its first size.
static const int latest_show = 500;


window_widget::window_widget(int32 looper, std::shared_ptr<pointer_record> pointer)
	: fLooper(looper),
	  fPointer(std::move(pointer)),
	  fZoom(*this, [this](bool restored) { _ZoomEnded(restored); }),
	  fRatio(devicePixelRatio()),
	  fFocus(*this, looper),
	  fAhead(*this)
{
	// The only widget that takes drops, so that they all come here with their place.
	setAcceptDrops(true);
	fLateShow.setSingleShot(true);
	fLateShow.setInterval(latest_show);
	connect(&fLateShow, &QTimer::timeout, this, [this] { setVisible(true); });
	setFocusPolicy(Qt::NoFocus);
	setMouseTracking(true);
	setTabletTracking(true);
}


void
window_widget::set_shown(bool shown)
{
	fLateShow.stop();
	setVisible(shown);
}


void
window_widget::show_late()
{
	fLateShow.start();
}


void
window_widget::set_size(int32 width, int32 height, int32 serial)
{
	fSerial = serial;
	QSize chosen(width, height);
	// A window that has not been shown has told nobody of its size.
	if (isVisible() && display::server_places_windows())
		fLeft.leave(size(), chosen);
	fAgreed = chosen;
	if (fZoom.under_way())
		fZoom.restore_to(chosen);
	else
		_Resize(chosen);
}


void
window_widget::set_limits(size_limits limits)
{
	setMinimumSize(limits.min_width, limits.min_height);
	setMaximumSize(limits.max_width, limits.max_height);
	fLimitedFrame = QMargins();
	_TellLimits();
}


// Wayland servers limit the window with its frame, which Qt draws where the server does not. Qt
// tells them the limits of the content.
void
window_widget::_TellLimits()
{
	if (!windowHandle() || !display::server_places_windows())
		return;
	QMargins frame = windowHandle()->frameMargins();
	if (frame == fLimitedFrame)
		return;
	fLimitedFrame = frame;
	QSize unlimited(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
	windowHandle()->setMinimumSize(minimumSize().grownBy(frame));
	windowHandle()->setMaximumSize(maximumSize().grownBy(frame).boundedTo(unlimited));
}


void
window_widget::_Resize(QSize size)
{
	if (!isMaximized() && !isFullScreen()) {
		fResizing = true;
		resize(size);
		fResizing = false;
	}
	_Settle();
}


void
window_widget::resizeEvent(QResizeEvent* event)
{
	fZoom.geometry_changed(event->spontaneous());
	_TellLimits();
	if (!fZoom.under_way() && !fResizing)
		_Settle();
}


// The looper and the widget are to have the same size in the end. The event of a change is no guide:
// when two changes meet, it tells of the first while the widget has the second already.
void
window_widget::_Settle()
{
	if (size() == fAgreed)
		return;
	bool free = !isMaximized() && !isFullScreen();
	if (free && fLeft.repeats(size(), std::chrono::steady_clock::now())) {
		_Resize(fAgreed);
		return;
	}
	fLeft.forget();
	fAgreed = size();
	BMessage resized(B_WINDOW_RESIZED);
	resized.AddInt32(width_field, fAgreed.width());
	resized.AddInt32(height_field, fAgreed.height());
	resized.AddInt32(serial_field, fSerial);
	post_to(fLooper, resized);
}


void
window_widget::_ZoomEnded(bool restored)
{
	_Settle();
	_ReportPlace();
	if (restored)
		post_to(fLooper, BMessage(B_ZOOM));
}


void
window_widget::moveEvent(QMoveEvent* event)
{
	QWidget::moveEvent(event);
	fZoom.geometry_changed(event->spontaneous());
	if (!isMaximized() && !fZoom.under_way())
		_ReportPlace();
}


void
window_widget::_ReportPlace()
{
	// The content's place, not that of its border, which the event tells.
	QPoint place = geometry().topLeft();
	BMessage moved(B_WINDOW_MOVED);
	moved.AddPoint(place_field, BPoint((float)place.x(), (float)place.y()));
	moved.AddInt32(serial_field, fMoveSerial);
	post_to(fLooper, moved);
}


void
window_widget::set_position(int32 left, int32 top, int32 serial)
{
	fMoveSerial = serial;
	setGeometry(left, top, width(), height());
}


// Nothing more is heard of the pointer: the view that it was over has to be told.
void
window_widget::leaveEvent(QEvent*)
{
	QPoint screen = QCursor::pos();
	QMouseEvent moved(QEvent::MouseMove, mapFromGlobal(screen), screen, Qt::NoButton,
		QGuiApplication::mouseButtons(), QGuiApplication::keyboardModifiers());
	post_pointer(fLooper, pointer_left, *this, moved);
}


void
window_widget::closeEvent(QCloseEvent* event)
{
	event->ignore();
	post_to(fLooper, BMessage(B_QUIT_REQUESTED));
}


void
window_widget::changeEvent(QEvent* event)
{
	QWidget::changeEvent(event);
	if (event->type() == QEvent::WindowStateChange)
		fZoom.state_changed();
}


bool
window_widget::event(QEvent* event)
{
	// Whatever changes the scale, the toolkit repaints the window then, if it tells nothing else.
	_ReportRatio();
	// Where no view is: the one that the pointer was over has to be told.
	return take_pointer(fLooper, *this, *event) || QWidget::event(event);
}


void
window_widget::_ReportRatio()
{
	if (fRatio == devicePixelRatio())
		return;
	fRatio = devicePixelRatio();
	BMessage changed(ratio_changed);
	changed.AddFloat("ratio", (float)fRatio);
	post_to(fLooper, changed);
}


// Controls have first choice; what is left is the kit's.
void
window_widget::keyPressEvent(QKeyEvent* event)
{
	bool for_menu = event->key() == Qt::Key_F10 && event->modifiers() == Qt::NoModifier;
	if (for_menu && open_menu_bar(*this))
		return;
	int32 repeat = event->isAutoRepeat() ? keyboard().repeats_of(*event) : 0;
	post_key(fLooper, true, *event, repeat);
}


void
window_widget::keyReleaseEvent(QKeyEvent* event)
{
	post_key(fLooper, false, *event, 0);
}


// Tab is a key like others; where it leads the kit decides.
bool
window_widget::focusNextPrevChild(bool)
{
	return false;
}


void
window_widget::dragEnterEvent(QDragEnterEvent* event)
{
	if (event->mimeData()->hasUrls())
		event->acceptProposedAction();
}


void
window_widget::dragMoveEvent(QDragMoveEvent* event)
{
	event->acceptProposedAction();
}


void
window_widget::dropEvent(QDropEvent* event)
{
	post_drop(fLooper, *this, *event);
	event->acceptProposedAction();
}
