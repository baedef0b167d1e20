// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_KEY_FILTER_H
#define KITS_KEY_FILTER_H

#include <functional>
#include <map>
#include <memory>
#include <QObject>
#include <QPointer>
#include <SupportDefs.h>

class QKeyEvent;
class QWindow;

namespace kits {

// Stands between the display's server and everything that takes keys, and makes of a held key the
// same everywhere: one press, repeats that are marked as such, one release, all for its owner, who
// had the keyboard at the press. An owner who loses the keyboard hears of the release then; what the
// key still does after that is nobody's. Display thread.
class key_filter : public QObject {
public:
	// Whether the server holds the key down; by its number there.
	using key_state = std::function<bool(quint32 code)>;

	// With a key state the server tells each release as it happens, and a press of a key that is
	// down repeats it. Without one the toolkit's marks tell what is a repeat.
	explicit key_filter(key_state is_down = nullptr) : fIsDown(std::move(is_down)) {}

	// Which repeat the press is, counted from 1; 0 is none.
	int32 repeats_of(const QKeyEvent& press) const;
	// The owner of keys loses the keyboard.
	void let_go(const QWidget& owner);
	// The keyboard has come to that window of the program, or to none.
	void moved_to(const QWindow* window);
	// Keys may have gone up unseen.
	void look_again();

	bool eventFilter(QObject* watched, QEvent* event) override;

private:
	struct held_key {
		// Null when it has gone.
		QPointer<QObject> owner;
		std::shared_ptr<const QKeyEvent> press;
		int32 repeats = 0;
		// The owner has been told of the release.
		bool spent = false;
	};

	bool _Press(const QWindow& window, QKeyEvent& event);
	bool _Release(const QWindow& window, QKeyEvent& event);
	// All keys that the condition holds for.
	void _LetGo(const std::function<bool(const held_key&)>& condition);
	void _Forget(quint32 code);

	const key_state fIsDown;
	// By native scan code.
	std::map<quint32, held_key> fHeld;
};

// The one of the display.
key_filter& keyboard();

}

#endif
