// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_TESTS_FORM_H
#define KITS_TESTS_FORM_H

#include "platform/interface/stage.h"

#include <Button.h>
#include <QtCore/qnamespace.h>
#include <TextControl.h>

// A view with controls on it, which keeps what they send. It covers the window.
class form : public test_view {
public:
	form();

	// Controls whose message has the code 'sent' and the string "from", which is their name; aimed
	// at the form. A field is 100 pixels wide and has no label, a button is 60 x 23. For whoever
	// holds no lock.
	BTextControl& field(BPoint at, const char* name, const char* text = "");
	BButton& button(BPoint at, const char* name);
	// Any view, without a target of the form's.
	template <typename View>
	View& put(View* view)
	{
		locked([&] { AddChild(view); });
		return *view;
	}
	void locked(const std::function<void()>& work);

	// The names of those that have sent, in order, and what they have sent.
	journal senders();
	std::vector<BMessage> messages();
	// What the user sees of a field's text is the robot's; this is what the program sees.
	std::string text_of(BTextControl& field);
	// Name of the view that has the keyboard; "" for none.
	std::string focus();

	// Runs in the window's thread, when a control's message has arrived.
	std::function<void(BMessage&)> on_sent;

	void MessageReceived(BMessage* message) override;

private:
	BMessage* _Model(const char* name);

	std::vector<BMessage> fSent;
};

// Runs a program of one window with a form, which has no keyboard yet.
void with_form(const std::function<void(form&, robot&)>& user);

// The middle of the view in the window's content.
BPoint middle(BView& view);

void press_return(robot& user);
void press_tab(robot& user);
void press_shift_tab(robot& user);

// For robot::act(): a key goes down and up, or several that make a text of ASCII letters.
void press_key(
	QWidget& window, Qt::Key key, const char* text = "", Qt::KeyboardModifiers held = {});
void type_into(QWidget& window, const char* text);
// The primary button goes down and up.
void click_into(QWidget& window, BPoint where);
// Closes the menu that a press may have opened.
void close_popup();

#endif
