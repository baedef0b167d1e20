// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_DESKTOP_SWAY_DESKTOP_H
#define KERNIX_DESKTOP_SWAY_DESKTOP_H

#include "desktop/support/child.h"
#include "desktop/support/desktop.h"
#include "desktop/support/wayland_devices.h"

// A Wayland server without a screen. The program's main window floats; any other is a tile unless it
// belongs to another window or has a fixed size.
class sway_desktop : public desktop {
public:
	sway_desktop(const desktop_kind& kind, const std::string& folder);

	void move_to(QPointF where) override;
	void button(mouse_button which, bool down) override;
	void notch(direction where) override;
	void key(uint32_t symbol, bool down) override;
	bool needs_shift(uint32_t symbol) override;
	void flush() override;
	std::vector<shown_window> windows() override;
	void activate(const shown_window& window) override;
	void resize(const shown_window& window, QSizeF contents) override;
	// There is nothing to minimise to: throws journey_failed.
	void minimise(const shown_window& window) override;
	void close(const shown_window& window) override;
	QImage picture(QRectF part) override;
	QImage picture() override;

private:
	// Has the server do something, or answer a question; throws journey_failed when it refuses.
	QByteArray ask(uint32_t what, const std::string& text);
	void command(const std::string& text);

	std::string fFolder;
	std::string fSocket;
	std::unique_ptr<child> fServer;
	std::unique_ptr<wayland_devices> fDevices;
};

#endif
