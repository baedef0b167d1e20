// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/view_widget.h"

#include "display/input.h"

#include <AppDefs.h>
#include <QImage>
#include <QMouseEvent>
#include <QPainter>
#include <QPaintEvent>

using namespace kits;


view_widget::view_widget(QWidget* parent, int32 looper, std::shared_ptr<front_image> front)
	: QWidget(parent),
	  fLooper(looper),
	  fFront(std::move(front))
{
	setMouseTracking(true);
	setTabletTracking(true);
	setAttribute(Qt::WA_OpaquePaintEvent);
	setFocusPolicy(Qt::NoFocus);
}


void
view_widget::paintEvent(QPaintEvent* event)
{
	QPainter paint(this);
	std::lock_guard guard(fFront->lock);
	if (!fFront->image) {
		// Nothing drawn yet: the window's own colour for a frame or two.
		paint.fillRect(event->rect(), palette().window());
		return;
	}
	QRectF place(event->rect());
	qreal ratio = fFront->image->devicePixelRatio();
	paint.drawImage(place, *fFront->image,
		QRectF(
			place.x() * ratio, place.y() * ratio, place.width() * ratio, place.height() * ratio));
}


// Every event is taken: an ignored press would climb to the parent widget and count there again.

void
view_widget::mousePressEvent(QMouseEvent* event)
{
	post_pointer(fLooper, B_MOUSE_DOWN, *this, *event);
	event->accept();
}


void
view_widget::mouseDoubleClickEvent(QMouseEvent* event)
{
	mousePressEvent(event);
}


void
view_widget::mouseReleaseEvent(QMouseEvent* event)
{
	post_pointer(fLooper, B_MOUSE_UP, *this, *event);
	event->accept();
}


void
view_widget::mouseMoveEvent(QMouseEvent* event)
{
	post_pointer(fLooper, B_MOUSE_MOVED, *this, *event);
	event->accept();
}


// Taken too, so that no mouse event is made of it a second time.
void
view_widget::tabletEvent(QTabletEvent* event)
{
	uint32 what = event->type() == QEvent::TabletPress ? B_MOUSE_DOWN
		: event->type() == QEvent::TabletRelease       ? B_MOUSE_UP
													   : B_MOUSE_MOVED;
	post_tablet(fLooper, what, *this, *event);
	event->accept();
}


void
view_widget::wheelEvent(QWheelEvent* event)
{
	post_wheel(fLooper, *this, *event);
	event->accept();
}
