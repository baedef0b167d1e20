// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_DESKTOP_X11_DESKTOP_H
#define KERNIX_DESKTOP_X11_DESKTOP_H

#include "desktop/support/child.h"
#include "desktop/support/desktop.h"

#include <optional>

struct _XDisplay;

// An X server in memory, with one of the window managers. Pointer and keys come in through the
// server's test extension, as from devices.
class x11_desktop : public desktop {
public:
	x11_desktop(const desktop_kind& kind, const std::string& folder);
	~x11_desktop() override;

	void move_to(QPointF where) override;
	void button(mouse_button which, bool down) override;
	void notch(direction where) override;
	void key(uint32_t symbol, bool down) override;
	bool needs_shift(uint32_t symbol) override;
	void flush() override;
	std::vector<shown_window> windows() override;
	void activate(const shown_window& window) override;
	void resize(const shown_window& window, QSizeF contents) override;
	void minimise(const shown_window& window) override;
	void close(const shown_window& window) override;
	QImage picture(QRectF part) override;
	QImage picture() override;

private:
	void start_server(const std::string& folder);
	void start_manager(const desktop_kind& kind, const std::string& folder);
	std::vector<unsigned long> property(unsigned long window, const char* name);
	std::string text_property(unsigned long window, const char* name);
	void ask_manager(unsigned long window, const char* what, long first, long second);
	std::optional<shown_window> describe(unsigned long window);

	std::unique_ptr<child> fServer;
	std::unique_ptr<child> fManager;
	_XDisplay* fDisplay = nullptr;
};

#endif
