// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_KEY_FILTER_H
#define KITS_KEY_FILTER_H

#include <functional>
#include <map>
#include <memory>
#include <QKeyEvent>
#include <QTimer>
#include <SupportDefs.h>

namespace kits {

// Tells the repeats of a held key from new presses. The X server sends a repeat as a release and a
// press at the same time, and Qt's mark on them is not reliable; so a release is held back until it
// is clear whether its press follows at once. Display thread.
class key_filter {
public:
	// Called with down or up, the event and which repeat it is (0: none).
	using receiver = std::function<void(bool down, const QKeyEvent& event, int32 repeat)>;

	explicit key_filter(receiver report) : fReport(std::move(report)) {}
	~key_filter();

	void press(const QKeyEvent& event);
	void release(const QKeyEvent& event);

private:
	struct held_key {
		int32 repeats = 0;
		// A release that may turn out to be half of a repeat; counts as activity while it waits.
		std::unique_ptr<QKeyEvent> release;
		std::unique_ptr<QTimer> timer;
	};

	void _LetGo(quint32 code);

	const receiver fReport;
	// By native scan code.
	std::map<quint32, held_key> fHeld;
};

}

#endif
