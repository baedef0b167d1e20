// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_KEYBOARD_HOLDER_H
#define KITS_KEYBOARD_HOLDER_H

#include "display/control_peers.h"
#include "display/focus.h"
#include "display/input.h"

#include <QKeyEvent>
#include <QWidget>

namespace kits {

// A control of the toolkit that can have the keyboard, leaves the walk between controls to the
// window, and lets no pointer event through to what lies behind.
template <typename Control>
class keyboard_holder : public Control, public focus_holder {
public:
	template <typename... Arguments>
	explicit keyboard_holder(report_address report, Arguments... arguments)
		: Control(arguments...),
		  fReport(report)
	{
		this->setAttribute(Qt::WA_NoMousePropagation);
	}

	int32 view() const override { return fReport.handler; }

protected:
	void focusInEvent(QFocusEvent* event) override
	{
		Control::focusInEvent(event);
		if (focus_keeper* keeper = focus_keeper_of(*this))
			keeper->got(*this);
	}

	bool focusNextPrevChild(bool next) override
	{
		if (focus_keeper* keeper = focus_keeper_of(*this))
			keeper->walk(next);
		return true;
	}

	void report(const BMessage& message) { post_to(fReport.looper, fReport.handler, message); }

private:
	const report_address fReport;
};

// What is pressed: a click leaves the keyboard where it is, Tab may bring it, and then Enter and
// Space do what a click does.
template <typename Button>
class pressed_holder : public keyboard_holder<Button> {
public:
	using keyboard_holder<Button>::keyboard_holder;

	void set_navigable(bool navigable)
	{
		this->setFocusPolicy(navigable ? Qt::TabFocus : Qt::NoFocus);
	}

protected:
	void keyPressEvent(QKeyEvent* event) override
	{
		// Arrows would walk between buttons on their own.
		if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
			if (!event->isAutoRepeat())
				this->click();
		} else if (event->key() == Qt::Key_Space)
			Button::keyPressEvent(event);
		else
			event->ignore();
	}
};

}

#endif
