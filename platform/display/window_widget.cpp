// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/window_widget.h"

#include "app/activity.h"
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
#include <QTimer>

using namespace kits;


window_widget::window_widget(int32 looper, std::shared_ptr<pointer_record> pointer)
	: fLooper(looper),
	  fPointer(std::move(pointer)),
	  fRatio(devicePixelRatio()),
	  fFocus(*this, looper),
	  fAhead(*this)
{
	// The only widget that takes drops, so that they all come here with their place.
	setAcceptDrops(true);
	setFocusPolicy(Qt::NoFocus);
	setMouseTracking(true);
	setTabletTracking(true);
}


void
window_widget::set_size(int32 width, int32 height, int32 serial)
{
	fSerial = serial;
	resize(width, height);
}


void
window_widget::resizeEvent(QResizeEvent* event)
{
	// What the zoom button makes of it is taken back at once.
	if (isMaximized() || fUnzooming)
		return;
	BMessage resized(B_WINDOW_RESIZED);
	resized.AddInt32(width_field, event->size().width());
	resized.AddInt32(height_field, event->size().height());
	resized.AddInt32(serial_field, fSerial);
	post_to(fLooper, resized);
}


void
window_widget::moveEvent(QMoveEvent* event)
{
	QWidget::moveEvent(event);
	if (isMaximized() || fUnzooming)
		return;
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
	if (event->type() != QEvent::WindowStateChange || !isMaximized() || fUnzooming)
		return;
	// The zoom button asks too: the window decides on a size of its own. The display tells of the
	// state a second time, so that it is taken back only after that; and of the size that returns
	// with it, so that the window is asked after that.
	fUnzooming = true;
	activity::begin();
	QTimer::singleShot(0, this, [this] {
		setWindowState(windowState() & ~Qt::WindowMaximized);
		QTimer::singleShot(0, this, [this] {
			post_to(fLooper, BMessage(B_ZOOM));
			fUnzooming = false;
			activity::end();
		});
	});
}


bool
window_widget::event(QEvent* event)
{
	if (event->type() == QEvent::ScreenChangeInternal || event->type() == QEvent::Show)
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
