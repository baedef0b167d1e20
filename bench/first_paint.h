// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_BENCH_FIRST_PAINT_H
#define KERNIX_BENCH_FIRST_PAINT_H

#include <functional>
#include <QObject>

// Watches every widget of the application and tells when something was painted, from the moment on
// at which the event for it had been dealt with. Lives on the display thread.
class paint_watch : public QObject {
public:
	// Calls seen(seconds) after each painting of a top-level widget and what lies in it.
	explicit paint_watch(std::function<void(double)> seen);

protected:
	bool eventFilter(QObject* object, QEvent* event) override;

private:
	const std::function<void(double)> fSeen;
	bool fAsked = false;
};

// The clock all processes of this machine share, in seconds.
double now();

// The resident size of this process, in bytes.
double resident();

#endif
