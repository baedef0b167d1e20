// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/view_widget.h"

#include "display/input.h"

#include <QImage>
#include <QPainter>
#include <QPaintEvent>

using namespace kits;


view_widget::view_widget(QWidget* parent, report_address report, std::shared_ptr<front_image> front)
	: QWidget(parent),
	  fReport(report),
	  fFront(std::move(front))
{
	setMouseTracking(true);
	setTabletTracking(true);
	setAttribute(Qt::WA_OpaquePaintEvent);
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


bool
view_widget::event(QEvent* event)
{
	return take_pointer(fReport.looper, *this, *event) || QWidget::event(event);
}
