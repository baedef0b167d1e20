// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_APPDEFS_H
#define KITS_APPDEFS_H

#include <SupportDefs.h>

// The codes of messages that the kits send or understand.

enum system_message_code {
	B_ABOUT_REQUESTED = '_ABR',
	B_ARGV_RECEIVED = '_ARG',
	B_CANCEL = '_CNC',
	B_INVALIDATE = '_IVL',
	B_KEY_DOWN = '_KYD',
	B_KEY_UP = '_KYU',
	B_MINIMIZE = '_WMN',
	B_MODIFIERS_CHANGED = '_MCH',
	B_MOUSE_DOWN = '_MDN',
	B_MOUSE_MOVED = '_MMV',
	B_MOUSE_UP = '_MUP',
	B_MOUSE_WHEEL_CHANGED = '_MWC',
	B_PULSE = '_PUL',
	B_QUIT_REQUESTED = '_QRQ',
	B_READY_TO_RUN = '_RTR',
	B_REFS_RECEIVED = '_RRC',
	B_UNMAPPED_KEY_DOWN = '_UKD',
	B_UNMAPPED_KEY_UP = '_UKU',
	B_VALUE_CHANGED = '_VCH',
	B_VIEW_MOVED = '_VMV',
	B_VIEW_RESIZED = '_VRS',
	B_WINDOW_ACTIVATED = '_ACT',
	B_WINDOW_MOVED = '_WMV',
	B_WINDOW_RESIZED = '_WRS',
	B_ZOOM = '_WZM',
	_MESSAGE_DROPPED_ = '_MDP',
	_QUIT_ = '_QIT',
	_UPDATE_ = '_UPD'
};

enum command_code {
	B_CONTROL_INVOKED = 'CIVK',
	B_CONTROL_MODIFIED = 'CMOD',
	B_COPY = 'COPY',
	B_CUT = 'CCUT',
	B_MESSAGE_NOT_UNDERSTOOD = 'MNOT',
	B_NO_REPLY = 'NONE',
	B_PASTE = 'PSTE',
	B_REPLY = 'RPLY',
	B_SAVE_REQUESTED = 'SAVE',
	B_SELECT_ALL = 'SALL',
	B_SIMPLE_DATA = 'DATA'
};

#endif
