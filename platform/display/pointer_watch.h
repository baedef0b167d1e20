// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_POINTER_WATCH_H
#define KITS_POINTER_WATCH_H

#include <QEvent>
#include <QObject>
#include <QPointF>

class QMouseEvent;

namespace kits {

// Filter of the application: what the pointer does over a control, the window hears too, as it does
// of its other views. The control goes on with the event as ever. Display thread.
class pointer_watch : public QObject {
public:
	bool eventFilter(QObject* watched, QEvent* event) override;

private:
	bool _IsNew(const QMouseEvent& event);

	// The last event that was posted.
	QEvent::Type fType = QEvent::None;
	quint64 fTime = 0;
	QPointF fPlace;
	Qt::MouseButtons fHeld;
};

}

#endif
