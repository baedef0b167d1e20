// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_WINDOW_WIDGET_H
#define KITS_WINDOW_WIDGET_H

#include "display/focus.h"
#include "display/left_sizes.h"
#include "display/pointer_record.h"
#include "display/type_ahead.h"
#include "display/window_peer.h"
#include "display/zoom_box.h"

#include <memory>
#include <QWidget>
#include <SupportDefs.h>

namespace kits {

// The widget of a window. Its looper's answer decides everything: a close box only asks.
class window_widget : public QWidget {
public:
	window_widget(int32 looper, std::shared_ptr<pointer_record> pointer);

	void set_shown(bool shown);
	// Shows it when neither is asked for within half a second.
	void show_late();
	// The program's own size. A window that the desktop keeps maximized or full screen has the
	// desktop's, which is then reported.
	void set_size(int32 width, int32 height, int32 serial);
	void set_limits(size_limits limits);
	void set_position(int32 left, int32 top, int32 serial);
	pointer_record& pointer() const { return *fPointer; }
	focus_keeper& focus() { return fFocus; }
	type_ahead& ahead() { return fAhead; }
	int32 looper() const { return fLooper; }

protected:
	void resizeEvent(QResizeEvent* event) override;
	void moveEvent(QMoveEvent* event) override;
	void leaveEvent(QEvent* event) override;
	void closeEvent(QCloseEvent* event) override;
	void changeEvent(QEvent* event) override;
	bool event(QEvent* event) override;
	void keyPressEvent(QKeyEvent* event) override;
	void keyReleaseEvent(QKeyEvent* event) override;
	bool focusNextPrevChild(bool next) override;
	void dragEnterEvent(QDragEnterEvent* event) override;
	void dragMoveEvent(QDragMoveEvent* event) override;
	void dropEvent(QDropEvent* event) override;

private:
	void _ReportRatio();
	void _Resize(QSize size);
	void _Settle();
	void _ReportPlace();
	void _ZoomEnded(bool restored);
	void _TellLimits();

	const int32 fLooper;
	const std::shared_ptr<pointer_record> fPointer;
	int32 fSerial = 0;
	int32 fMoveSerial = 0;
	// The size that the looper knows, or will when it has read what was posted to it.
	QSize fAgreed;
	// The program's size is being set, so that a change is not the desktop's.
	bool fResizing = false;
	left_sizes fLeft;
	zoom_box fZoom;
	QTimer fLateShow;
	// The frame that the limits told to the display include.
	QMargins fLimitedFrame;
	qreal fRatio;
	focus_keeper fFocus;
	type_ahead fAhead;
};

}

#endif
