// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_VIEW_WIDGET_H
#define KITS_VIEW_WIDGET_H

#include "display/focus.h"
#include "display/peer.h"

#include <QWidget>

namespace kits {

// The widget of a view: shows its front image and hands pointer events to the window's looper, in
// window coordinates. Which view an event is for, the looper decides.
class view_widget : public QWidget, public focus_holder {
public:
	view_widget(QWidget* parent, report_address report, std::shared_ptr<front_image> front);

	int32 view() const override { return fReport.handler; }

	// From now on; nothing of the one before is kept.
	void show_front(std::shared_ptr<front_image> front) { fFront = std::move(front); }

protected:
	void paintEvent(QPaintEvent* event) override;
	bool event(QEvent* event) override;

private:
	const report_address fReport;
	std::shared_ptr<front_image> fFront;
};

// Makes the widget the peer's, in its place. Display thread.
void adopt(const peer_ref& owner, QWidget* widget, BRect frame, bool shown);

}

#endif
