// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "desktop/support/wayland_devices.h"

#include "desktop/support/child.h"
#include "desktop/support/until.h"

#include <chrono>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <linux/input-event-codes.h>
#include <unistd.h>
#include <wayland-client.h>
#include <xkbcommon/xkbcommon.h>

// The protocols of virtual devices are not installed with the library, so the part that is used
// stands here: of each interface the requests up to the last one needed, in their order, with
// their arguments' types (u unsigned, i signed, f fixed point, h file, o object, n new object).

static const wl_interface* no_types[8] = {};

static const wl_message pointer_requests[] = {
	{"motion", "uff", no_types},
	{"motion_absolute", "uuuuu", no_types},
	{"button", "uuu", no_types},
	{"axis", "uuf", no_types},
	{"frame", "", no_types},
	{"axis_source", "u", no_types},
	{"axis_stop", "uu", no_types},
	{"axis_discrete", "uufi", no_types},
	{"destroy", "", no_types},
};
enum {
	pointer_motion_absolute = 1,
	pointer_button,
	pointer_frame = 4,
	pointer_source,
	pointer_discrete = 7,
	pointer_destroy
};

static const wl_interface pointer_interface = {
	"zwlr_virtual_pointer_v1", 1, 9, pointer_requests, 0, nullptr};

static const wl_interface* make_pointer[] = {&wl_seat_interface, &pointer_interface};

static const wl_message pointers_requests[] = {{"create_virtual_pointer", "?on", make_pointer}};

static const wl_interface pointers_interface = {
	"zwlr_virtual_pointer_manager_v1", 1, 1, pointers_requests, 0, nullptr};

static const wl_message keyboard_requests[] = {
	{"keymap", "uhu", no_types},
	{"key", "uuu", no_types},
	{"modifiers", "uuuu", no_types},
	{"destroy", "", no_types},
};
enum { keyboard_keymap, keyboard_key, keyboard_modifiers, keyboard_destroy };

static const wl_interface keyboard_interface = {
	"zwp_virtual_keyboard_v1", 1, 4, keyboard_requests, 0, nullptr};

static const wl_interface* make_keyboard[] = {&wl_seat_interface, &keyboard_interface};

static const wl_message keyboards_requests[] = {{"create_virtual_keyboard", "on", make_keyboard}};

static const wl_interface keyboards_interface = {
	"zwp_virtual_keyboard_manager_v1", 1, 1, keyboards_requests, 0, nullptr};

// Key codes of the format are by 8 larger than the kernel's, which the protocol takes.
constexpr uint32_t xkb_offset = 8;

// Positions are told as whole parts of the screens' size; this fine.
constexpr double parts = 16;


void
wayland_devices::announce(
	void* data, wl_proxy* registry, uint32_t name, const char* interface, uint32_t)
{
	auto* devices = static_cast<wayland_devices*>(data);
	auto bind = [&](const wl_interface* wanted, wl_proxy*& proxy) {
		if (strcmp(interface, wanted->name) == 0 && proxy == nullptr) {
			proxy = (wl_proxy*)wl_registry_bind((wl_registry*)registry, name, wanted, 1);
		}
	};
	bind(&wl_seat_interface, devices->fSeat);
	bind(&pointers_interface, devices->fPointers);
	bind(&keyboards_interface, devices->fKeyboards);
}


wayland_devices::wayland_devices(QSizeF screens, const std::string& folder)
	: fScreens(screens),
	  fServer(wl_display_connect(nullptr))
{
	if (fServer == nullptr)
		throw journey_failed("the Wayland server does not answer");
	static const wl_registry_listener listener = {
		[](void* data, wl_registry* registry, uint32_t name, const char* interface,
			uint32_t version) { announce(data, (wl_proxy*)registry, name, interface, version); },
		[](void*, wl_registry*, uint32_t) {}};
	fRegistry = (wl_proxy*)wl_display_get_registry(fServer);
	wl_registry_add_listener((wl_registry*)fRegistry, &listener, this);
	flush();
	if (fSeat == nullptr || fPointers == nullptr || fKeyboards == nullptr)
		throw journey_failed("the Wayland server takes no virtual devices");
	plug_in(folder);
}


// The keymap goes to the server as an open file.
void
wayland_devices::plug_in(const std::string& folder)
{
	fPointer = wl_proxy_marshal_flags(fPointers, 0, &pointer_interface, 1, 0, fSeat, nullptr);
	fKeyboard = wl_proxy_marshal_flags(fKeyboards, 0, &keyboard_interface, 1, 0, fSeat, nullptr);

	xkb_context* context = xkb_context_new(XKB_CONTEXT_NO_FLAGS);
	const xkb_rule_names american = {"evdev", "pc105", "us", "", ""};
	fKeymap = xkb_keymap_new_from_names(context, &american, XKB_KEYMAP_COMPILE_NO_FLAGS);
	xkb_context_unref(context);
	char* text =
		fKeymap == nullptr ? nullptr : xkb_keymap_get_as_string(fKeymap, XKB_KEYMAP_FORMAT_TEXT_V1);
	if (text == nullptr)
		throw journey_failed("no keymap");
	size_t size = strlen(text) + 1;
	int file = open((folder + "/keymap").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
	bool written = write(file, text, size) == (ssize_t)size;
	free(text);
	if (!written)
		throw journey_failed("the keymap cannot be written");
	wl_proxy_marshal_flags(fKeyboard, keyboard_keymap, nullptr, 1, 0,
		(uint32_t)WL_KEYBOARD_KEYMAP_FORMAT_XKB_V1, file, (uint32_t)size);
	flush();
	close(file);
}


wayland_devices::~wayland_devices()
{
	wl_proxy_marshal_flags(fPointer, pointer_destroy, nullptr, 1, WL_MARSHAL_FLAG_DESTROY);
	wl_proxy_marshal_flags(fKeyboard, keyboard_destroy, nullptr, 1, WL_MARSHAL_FLAG_DESTROY);
	for (wl_proxy* each : {fPointers, fKeyboards, fSeat, fRegistry})
		wl_proxy_destroy(each);
	wl_display_disconnect(fServer);
	xkb_keymap_unref(fKeymap);
}


uint32_t
wayland_devices::now() const
{
	using namespace std::chrono;
	return (uint32_t)duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}


void
wayland_devices::move_to(QPointF where)
{
	wl_proxy_marshal_flags(fPointer, pointer_motion_absolute, nullptr, 1, 0, now(),
		(uint32_t)std::lround(where.x() * parts), (uint32_t)std::lround(where.y() * parts),
		(uint32_t)std::lround(fScreens.width() * parts),
		(uint32_t)std::lround(fScreens.height() * parts));
	wl_proxy_marshal_flags(fPointer, pointer_frame, nullptr, 1, 0);
	flush();
}


void
wayland_devices::button(int which, bool down)
{
	const uint32_t codes[] = {BTN_LEFT, BTN_MIDDLE, BTN_RIGHT};
	wl_proxy_marshal_flags(
		fPointer, pointer_button, nullptr, 1, 0, now(), codes[which - 1], (uint32_t)down);
	wl_proxy_marshal_flags(fPointer, pointer_frame, nullptr, 1, 0);
	flush();
}


void
wayland_devices::notch(int amount, bool sideways)
{
	// What a notch is in the protocol's units.
	constexpr int notch_length = 15;
	wl_proxy_marshal_flags(
		fPointer, pointer_source, nullptr, 1, 0, (uint32_t)WL_POINTER_AXIS_SOURCE_WHEEL);
	wl_proxy_marshal_flags(fPointer, pointer_discrete, nullptr, 1, 0, now(), (uint32_t)sideways,
		wl_fixed_from_int(notch_length * amount), amount);
	wl_proxy_marshal_flags(fPointer, pointer_frame, nullptr, 1, 0);
	flush();
}


wayland_devices::place_of_key
wayland_devices::find(uint32_t symbol)
{
	const xkb_keycode_t last = xkb_keymap_max_keycode(fKeymap);
	for (xkb_keycode_t code = xkb_keymap_min_keycode(fKeymap); code <= last; code++) {
		for (uint32_t level = 0; level < 2; level++) {
			const xkb_keysym_t* symbols = nullptr;
			int count = xkb_keymap_key_get_syms_by_level(fKeymap, code, 0, level, &symbols);
			if (count == 1 && symbols[0] == symbol)
				return {code - xkb_offset, level == 1};
		}
	}
	throw journey_failed("the keyboard has no key for symbol " + std::to_string(symbol));
}


bool
wayland_devices::needs_shift(uint32_t symbol)
{
	return find(symbol).shifted;
}


// The server leaves it to the device to tell which modifiers are held.
void
wayland_devices::key(uint32_t symbol, bool down)
{
	wl_proxy_marshal_flags(
		fKeyboard, keyboard_key, nullptr, 1, 0, now(), find(symbol).code, (uint32_t)down);
	uint32_t modifier = 0;
	switch (symbol) {
		case XKB_KEY_Shift_L:
			modifier = 1u << xkb_keymap_mod_get_index(fKeymap, "Shift");
			break;
		case XKB_KEY_Control_L:
			modifier = 1u << xkb_keymap_mod_get_index(fKeymap, "Control");
			break;
		case XKB_KEY_Alt_L:
			modifier = 1u << xkb_keymap_mod_get_index(fKeymap, "Mod1");
			break;
		default:
			break;
	}
	if (modifier != 0) {
		fModifiers = down ? fModifiers | modifier : fModifiers & ~modifier;
		wl_proxy_marshal_flags(
			fKeyboard, keyboard_modifiers, nullptr, 1, 0, fModifiers, 0u, 0u, 0u);
	}
	flush();
}


void
wayland_devices::flush()
{
	if (wl_display_roundtrip(fServer) < 0)
		throw journey_failed("the Wayland server has gone");
}
