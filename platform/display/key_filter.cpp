// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/key_filter.h"

#include "display/x_keyboard.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>
#include <QWindow>

using namespace kits;


namespace {

quint32
code_of(const QKeyEvent& event)
{
	return event.nativeScanCode() ? event.nativeScanCode() : 0x10000 + (quint32)event.key();
}


// Whom the toolkit would give a key of the window.
QObject*
receiver_in(const QWindow& window)
{
	if (QWidget* popup = QApplication::activePopupWidget())
		return popup->focusWidget() ? popup->focusWidget() : popup;
	return window.focusObject();
}


// Whose keys those are: a list of suggestions takes them for its field.
QObject*
owner_in(const QWindow& window)
{
	QObject* receiver = receiver_in(window);
	auto* widget = qobject_cast<QWidget*>(receiver);
	return widget && widget->focusProxy() ? widget->focusProxy() : receiver;
}


const QWidget*
window_of(const QObject* owner)
{
	auto* widget = qobject_cast<const QWidget*>(owner);
	return widget ? widget->window() : nullptr;
}


// The walk goes on while the key is held, though each step has another owner.
bool
walks_on(const QKeyEvent& event, const QObject* from, const QObject* to)
{
	bool walks = event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab;
	return walks && window_of(from) && window_of(from) == window_of(to);
}


void
send(QObject* receiver, QEvent::Type type, const QKeyEvent& key, bool repeat)
{
	if (!receiver)
		return;
	QKeyEvent event(type, key.key(), key.modifiers(), key.nativeScanCode(), key.nativeVirtualKey(),
		key.nativeModifiers(), key.text(), repeat, (quint16)key.count());
	event.setTimestamp(key.timestamp());
	QCoreApplication::sendEvent(receiver, &event);
}

}


key_filter&
kits::keyboard()
{
	// Never destroyed, as the display is not.
	static auto* const filter =
		new key_filter(x_keyboard::tells_releases() ? x_keyboard::is_down : nullptr);
	return *filter;
}


int32
key_filter::repeats_of(const QKeyEvent& press) const
{
	auto found = fHeld.find(code_of(press));
	return found == fHeld.end() ? 0 : found->second.repeats;
}


bool
key_filter::eventFilter(QObject* watched, QEvent* event)
{
	bool press = event->type() == QEvent::KeyPress;
	if ((!press && event->type() != QEvent::KeyRelease) || !watched->isWindowType())
		return false;
	auto& window = static_cast<QWindow&>(*watched);
	auto& key = static_cast<QKeyEvent&>(*event);
	return press ? _Press(window, key) : _Release(window, key);
}


// True when the toolkit is not to deal with the event; so also below.
bool
key_filter::_Press(const QWindow& window, QKeyEvent& event)
{
	QObject* owner = owner_in(window);
	auto found = fHeld.find(code_of(event));
	bool again = fIsDown ? found != fHeld.end() : event.isAutoRepeat();
	if (!again) {
		// Its release was missed.
		if (found != fHeld.end())
			_Forget(code_of(event));
		held_key& key = fHeld[code_of(event)];
		key.owner = owner;
		key.press.reset(event.clone());
	} else {
		// It went down elsewhere.
		if (found == fHeld.end())
			return true;
		held_key& key = found->second;
		if (key.spent && walks_on(event, key.owner, owner)) {
			key.owner = owner;
			key.spent = false;
		}
		if (key.spent || key.owner != owner)
			return true;
		key.repeats++;
	}
	if (event.isAutoRepeat() == again)
		return false;
	send(receiver_in(window), QEvent::KeyPress, event, again);
	return true;
}


bool
key_filter::_Release(const QWindow& window, QKeyEvent& event)
{
	auto found = fHeld.find(code_of(event));
	// A marked one is half of a repeat.
	if (found == fHeld.end() || (!fIsDown && event.isAutoRepeat()))
		return true;
	held_key key = found->second;
	fHeld.erase(found);
	if (key.spent)
		return true;
	if (key.owner == owner_in(window) && !event.isAutoRepeat())
		return false;
	send(key.owner, QEvent::KeyRelease, event, false);
	return true;
}


void
key_filter::let_go(const QWidget& owner)
{
	_LetGo([&](const held_key& key) { return key.owner == &owner; });
}


void
key_filter::moved_to(const QWindow* window)
{
	_LetGo([=](const held_key& key) {
		const QWidget* around = window_of(key.owner);
		return !around || !window || around->windowHandle() != window;
	});
	look_again();
}


// What is still down goes on to repeat, wherever the keyboard is now.
void
key_filter::look_again()
{
	std::vector<quint32> gone;
	for (const auto& [code, key] : fHeld) {
		if (fIsDown ? !fIsDown(code) : key.spent)
			gone.push_back(code);
	}
	for (quint32 code : gone)
		_Forget(code);
}


// Whoever is told may change what is held.
void
key_filter::_LetGo(const std::function<bool(const held_key&)>& condition)
{
	std::vector<held_key> told;
	for (auto& [code, key] : fHeld) {
		if (key.spent || !condition(key))
			continue;
		key.spent = true;
		told.push_back(key);
	}
	for (const held_key& key : told)
		send(key.owner, QEvent::KeyRelease, *key.press, false);
}


void
key_filter::_Forget(quint32 code)
{
	auto found = fHeld.find(code);
	if (found == fHeld.end())
		return;
	held_key key = found->second;
	fHeld.erase(found);
	if (!key.spent)
		send(key.owner, QEvent::KeyRelease, *key.press, false);
}
