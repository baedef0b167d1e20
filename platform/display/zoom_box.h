// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_ZOOM_BOX_H
#define KITS_ZOOM_BOX_H

#include <functional>
#include <QElapsedTimer>
#include <QObject>
#include <QRect>
#include <QTimer>

class QWidget;

namespace kits {

// What a press of a window's zoom box comes to. Desktops know no such box: they maximize. That is
// taken back, and only when the window has its old place and size again its program is asked what
// it makes of the press. What comes from the desktop in between is no doing of the user's.
class zoom_box : public QObject {
public:
	// Told when a press is over: whether the window has been restored, or has to stay maximized.
	zoom_box(QWidget& window, std::function<void(bool)> ended);
	~zoom_box() override;

	// The desktop has changed the window's state.
	void state_changed();
	// The window has another size or place, from the desktop or from the program.
	void geometry_changed(bool by_desktop);
	// The program has chosen another size since the press.
	void restore_to(QSize size);
	// From the press until it is over.
	bool under_way() const { return fStage != idle; }

private:
	enum stage { idle, maximized, restoring };

	void _Remember(bool by_desktop);
	bool _IsEnlarged() const;
	void _TakeBackSoon();
	void _TakeBack();
	void _End(bool restored);

	QWidget& fWindow;
	const std::function<void(bool)> fEnded;
	stage fStage = idle;
	int fTries = 0;
	// The desktop insists on the maximized state.
	bool fKept = false;
	// The window's geometry, and the one before the desktop's last changes of it.
	QRect fNow;
	QRect fBefore;
	// Since the first and since the last of these changes.
	QElapsedTimer fFirst;
	QElapsedTimer fLast;
	QTimer fQuiet;
};

}

#endif
