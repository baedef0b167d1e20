// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_DESKTOP_DESKTOP_H
#define KERNIX_DESKTOP_DESKTOP_H

#include <cstdint>
#include <memory>
#include <QImage>
#include <QMarginsF>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <string>
#include <vector>

#include "desktop/support/kind.h"

// A window as its desktop lists it; menus are none. All measures are a program's pixels, which may
// be fractions on a scaled screen.
struct shown_window {
	uint64_t id;
	std::string title;
	// What the desktop knows the program by: the application id, or the class on X.
	std::string program;
	// The contents, without a frame, on the screen.
	QRectF contents;
	// The frame's widths on the four sides.
	QMarginsF frame;
	// It gets the keys.
	bool active;
	// It belongs to another window and stays above it.
	bool has_parent;
	// Minimised windows are listed and not visible.
	bool visible;
};

// The size of every screen, in a program's pixels.
constexpr QSizeF screen_size(1024, 768);

// A server with a window manager and no screen, of a journey's own. What the journey does to it
// comes to programs as from a user's hands.
class desktop {
public:
	// Starts one, and prepares this process's environment for the programs that are to run on
	// it. Its files go to `folder`, an absolute path. Throws journey_failed when it does not start.
	static std::unique_ptr<desktop> start(const desktop_kind& kind, const std::string& folder);
	virtual ~desktop() = default;

	// Positions are a program's pixels on the screen.
	virtual void move_to(QPointF where) = 0;
	enum mouse_button { primary = 1, middle, secondary };
	virtual void button(mouse_button which, bool down) = 0;
	// One notch of the wheel; sideways of one that can be tilted.
	enum direction { upward, downward, leftward, rightward };
	virtual void notch(direction where) = 0;
	// The key with this symbol; Shift is not added where the symbol needs it.
	virtual void key(uint32_t symbol, bool down) = 0;
	virtual bool needs_shift(uint32_t symbol) = 0;
	// Returns when the server has taken all of the above.
	virtual void flush() = 0;

	virtual std::vector<shown_window> windows() = 0;
	virtual void activate(const shown_window& window) = 0;
	virtual void resize(const shown_window& window, QSizeF contents) = 0;
	virtual void minimise(const shown_window& window) = 0;
	// As by the close box.
	virtual void close(const shown_window& window) = 0;
	// A part of the screen, in the screen's own pixels: scale() times as many each way.
	virtual QImage picture(QRectF part) = 0;
	virtual QImage picture() = 0;
	double scale() const { return fScale; }

protected:
	explicit desktop(double scale) : fScale(scale) {}

private:
	double fScale;
};

// The symbol of a key by its name, "Return" or "F10", or by the character that it writes.
uint32_t key_symbol(const std::string& name);

#endif
