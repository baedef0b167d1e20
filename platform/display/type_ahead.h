// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_TYPE_AHEAD_H
#define KITS_TYPE_AHEAD_H

#include <deque>
#include <memory>
#include <QEvent>
#include <QObject>

class QWidget;

namespace kits {

// What the user does in a window after a press whose outcome is not known: the view that was
// pressed may take the keyboard from the control that has it, so keys wait until the window's
// looper has dealt with the press, and what comes after them waits behind them. Display thread.
class type_ahead {
public:
	explicit type_ahead(QWidget& window) : fWindow(window) {}
	~type_ahead();

	// A press of a view has been posted to the looper; the looper has dealt with one.
	void pressed() { fPresses++; }
	void answered();

	// Keeps a copy of the event when it has to wait, and is true then.
	bool keeps(const QEvent& event);

private:
	bool _IsUndecided(const QEvent& event) const;
	void _Replay();

	QWidget& fWindow;
	int fPresses = 0;
	bool fReplaying = false;
	// Each counts as activity while it waits.
	std::deque<std::unique_ptr<QEvent>> fWaiting;
};

// Filter of the application: has each window keep what has to wait.
class input_gate : public QObject {
public:
	bool eventFilter(QObject* watched, QEvent* event) override;
};

}

#endif
