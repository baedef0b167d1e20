// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/view_widget.h"

#include "display/convert.h"
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
		// Nothing drawn yet: what the view will be erased with, for a frame or two.
		bool opaque = fFront->background.alpha != B_TRANSPARENT_COLOR.alpha;
		paint.fillRect(
			event->rect(), opaque ? QBrush(to_qcolor(fFront->background)) : palette().window());
		return;
	}
	// All of it, whatever has to be repainted: a part would begin within a pixel where a kit pixel
	// does not end with one of the screen's.
	paint.drawImage(QPointF(0, 0), *fFront->image);
}


bool
view_widget::event(QEvent* event)
{
	return take_pointer(fReport.looper, *this, *event) || QWidget::event(event);
}
