// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/key_filter.h"

#include "app/activity.h"

using namespace kits;


namespace {

// Milliseconds: how long a release waits, and how late the press of a repeat may be by the server's
// own clock.
constexpr int patience = 12;
constexpr ulong same_moment = 1;


quint32
code_of(const QKeyEvent& event)
{
	return event.nativeScanCode() ? event.nativeScanCode() : 0x10000 + (quint32)event.key();
}

}


key_filter::~key_filter()
{
	for (auto& [code, key] : fHeld) {
		if (key.release)
			activity::end();
	}
}


void
key_filter::press(const QKeyEvent& event)
{
	quint32 code = code_of(event);
	auto found = fHeld.find(code);
	if (found != fHeld.end() && found->second.release) {
		held_key& key = found->second;
		if (event.timestamp() - key.release->timestamp() > same_moment && !event.isAutoRepeat()) {
			_LetGo(code);
			found = fHeld.end();
		} else {
			key.timer->stop();
			key.release = nullptr;
			activity::end();
		}
	}
	bool again = found != fHeld.end();
	held_key& key = fHeld[code];
	fReport(true, event, again ? ++key.repeats : 0);
}


void
key_filter::release(const QKeyEvent& event)
{
	quint32 code = code_of(event);
	auto found = fHeld.find(code);
	if (event.isAutoRepeat() || found == fHeld.end() || found->second.release)
		return;
	held_key& key = found->second;
	key.release.reset(event.clone());
	key.timer = std::make_unique<QTimer>();
	key.timer->setSingleShot(true);
	QObject::connect(key.timer.get(), &QTimer::timeout, [this, code] { _LetGo(code); });
	activity::begin();
	key.timer->start(patience);
}


void
key_filter::_LetGo(quint32 code)
{
	auto found = fHeld.find(code);
	std::unique_ptr<QKeyEvent> event = std::move(found->second.release);
	// The timer may be the caller.
	found->second.timer.release()->deleteLater();
	fHeld.erase(found);
	fReport(false, *event, 0);
	activity::end();
}
