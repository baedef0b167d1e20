// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "platform/interface/form.h"

#include <cctype>
#include <InterfaceDefs.h>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>
#include <QWindow>


form::form() : test_view(BRect(0, 0, 199, 99), "form") {}


BTextControl&
form::field(BPoint at, const char* name, const char* text)
{
	BRect frame(at.x, at.y, at.x + 99, at.y);
	auto* control = new BTextControl(frame, name, nullptr, text, _Model(name));
	locked([&] {
		AddChild(control);
		control->SetTarget(this);
	});
	return *control;
}


BButton&
form::button(BPoint at, const char* name)
{
	auto* control = new BButton(BRect(at.x, at.y, at.x + 59, at.y + 22), name, name, _Model(name));
	locked([&] {
		AddChild(control);
		control->SetTarget(this);
	});
	return *control;
}


BMessage*
form::_Model(const char* name)
{
	auto* model = new BMessage('sent');
	model->AddString("from", name);
	return model;
}


void
form::locked(const std::function<void()>& work)
{
	static_cast<test_window*>(Window())->locked(work);
}


journal
form::senders()
{
	journal names;
	for (const BMessage& message : messages())
		names.push_back(message.FindString("from"));
	return names;
}


std::vector<BMessage>
form::messages()
{
	std::vector<BMessage> copy;
	locked([&] { copy = fSent; });
	return copy;
}


std::string
form::text_of(BTextControl& field)
{
	std::string text;
	locked([&] { text = field.Text(); });
	return text;
}


std::string
form::focus()
{
	std::string name;
	locked([&] {
		if (BView* view = Window()->CurrentFocus())
			name = view->Name();
	});
	return name;
}


void
form::MessageReceived(BMessage* message)
{
	if (message->what == 'sent') {
		fSent.push_back(*message);
		if (on_sent)
			on_sent(*message);
	} else
		test_view::MessageReceived(message);
}


void
with_form(const std::function<void(form&, robot&)>& user)
{
	with_window([&](test_window& window, robot& hand) {
		form& page = window.add(new form);
		hand.settle();
		user(page, hand);
	});
}


BPoint
middle(BView& view)
{
	BPoint found;
	auto& window = *static_cast<test_window*>(view.Window());
	window.locked([&] {
		BRect bounds = view.Bounds();
		BPoint screen = view.ConvertToScreen(BPoint(bounds.right / 2, bounds.bottom / 2));
		found = screen - window.Frame().LeftTop();
	});
	return found;
}


void
press_return(robot& user)
{
	user.key(Qt::Key_Return, "\r");
}


void
press_tab(robot& user)
{
	user.key(Qt::Key_Tab, "\t");
}


void
press_shift_tab(robot& user)
{
	user.key(Qt::Key_Backtab, "", B_SHIFT_KEY);
}


void
press_key(QWidget& window, Qt::Key key, const char* text, Qt::KeyboardModifiers held)
{
	for (auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
		QKeyEvent event(type, key, held, QString::fromUtf8(text));
		QCoreApplication::sendEvent(window.windowHandle(), &event);
	}
}


void
type_into(QWidget& window, const char* text)
{
	for (; *text != 0; text++)
		press_key(window, (Qt::Key)toupper((unsigned char)*text), std::string(1, *text).c_str());
}


void
click_into(QWidget& window, BPoint where)
{
	QPointF local(where.x, where.y);
	QPointF screen = window.windowHandle()->mapToGlobal(local);
	QMouseEvent press(QEvent::MouseButtonPress, local, local, screen, Qt::LeftButton,
		Qt::LeftButton, Qt::NoModifier);
	QCoreApplication::sendEvent(window.windowHandle(), &press);
	QMouseEvent release(QEvent::MouseButtonRelease, local, local, screen, Qt::LeftButton,
		Qt::NoButton, Qt::NoModifier);
	QCoreApplication::sendEvent(window.windowHandle(), &release);
}


void
close_popup()
{
	if (QWidget* popup = QApplication::activePopupWidget())
		popup->close();
}
