// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_FOCUS_H
#define KITS_FOCUS_H

#include <QPointer>
#include <SupportDefs.h>
#include <vector>

class QWidget;

namespace kits {

// A widget that can have the keyboard of its window.
class focus_holder {
public:
	virtual ~focus_holder() = default;

	// Token of its view.
	virtual int32 view() const = 0;
	// It has got the keyboard, whoever gave it.
	virtual void entered() {}
};

// Which widget of a window has the keyboard: a focus_holder, or the window itself, whose keys the
// kit hands to a view. The toolkit always knows a widget of the window that has it, so that it never
// chooses one. Display thread.
//
// The user moves the keyboard here, and the looper is told; the program moves it there, and tells
// the display. When both do so at once, the user's move stands: the program's was made without
// knowledge of it.
class focus_keeper {
public:
	focus_keeper(QWidget& window, int32 looper);

	// The program gives it to the widget; to the window when that is null or cannot have it now.
	// Seen is how many of the user's moves the program had heard of: nothing changes when there
	// are more.
	void give(QWidget* widget, int32 seen);
	// The widget has got the focus of the toolkit. When the program did not give it, the user did.
	void got(QWidget& widget);
	// The user moves it to the next widget that takes part in the walk, in the order of the tree.
	void walk(bool forward);
	// The window takes it from the widget and all in it, which is about to be hidden, to be
	// switched off or to go. The kit does not hear of it: it knows.
	void leave(const QWidget& widget);

private:
	void _Move(QWidget& to);
	void _UserMoves(QWidget& to);

	QWidget& fWindow;
	const int32 fLooper;
	QPointer<QWidget> fHolder;
	// How often the user has moved it.
	int32 fMoves = 0;
};

// The keeper of the widget's window; null where no view can be.
focus_keeper* focus_keeper_of(const QWidget& widget);

// Report to the window: int32 "view", a token, has got the keyboard from the user; int32 "moves".
constexpr uint32 focus_taken = '_FTK';

}

#endif
