// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_DESKTOP_WAYLAND_DEVICES_H
#define KERNIX_DESKTOP_WAYLAND_DEVICES_H

#include <cstdint>
#include <QPointF>
#include <QSizeF>
#include <string>

struct wl_display;
struct wl_proxy;
struct xkb_keymap;

// A keyboard and a pointer that are plugged into a Wayland server through the protocols for virtual
// devices, and stay so. The server is the one that the environment names.
class wayland_devices {
public:
	// The size of all screens together. The keymap is written to a file in `folder`.
	wayland_devices(QSizeF screens, const std::string& folder);
	~wayland_devices();
	wayland_devices(const wayland_devices&) = delete;
	wayland_devices& operator=(const wayland_devices&) = delete;

	void move_to(QPointF where);
	// 1 primary, 2 middle, 3 secondary.
	void button(int which, bool down);
	// One notch; positive is down or right.
	void notch(int amount, bool sideways);
	void key(uint32_t symbol, bool down);
	bool needs_shift(uint32_t symbol);
	// Returns when the server has taken everything.
	void flush();

private:
	struct place_of_key {
		uint32_t code;
		bool shifted;
	};

	static void announce(
		void* devices, wl_proxy* registry, uint32_t name, const char* interface, uint32_t version);
	void plug_in(const std::string& folder);
	place_of_key find(uint32_t symbol);
	uint32_t now() const;

	QSizeF fScreens;
	wl_display* fServer;
	wl_proxy* fRegistry = nullptr;
	wl_proxy* fSeat = nullptr;
	wl_proxy* fPointers = nullptr;
	wl_proxy* fKeyboards = nullptr;
	wl_proxy* fPointer = nullptr;
	wl_proxy* fKeyboard = nullptr;
	xkb_keymap* fKeymap = nullptr;
	uint32_t fModifiers = 0;
};

#endif
