// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Keys of a server that tells every release as it happens.
#include "display/key_filter.h"
#include "platform/interface/stage.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>
#include <QWindow>
#include <set>

using namespace kits;

namespace {

constexpr quint32 a_code = 38;
constexpr quint32 b_code = 56;


// Notes its keys: "+" or "-", the letter, and "r" for a repeat.
class key_taker : public QWidget {
public:
	key_taker(QWidget* parent, journal& notes) : QWidget(parent), fNotes(notes) { show(); }

protected:
	void keyPressEvent(QKeyEvent* event) override
	{
		fNotes.push_back("+" + event->text().toStdString() + (event->isAutoRepeat() ? "r" : ""));
	}

	void keyReleaseEvent(QKeyEvent* event) override
	{
		fNotes.push_back("-" + event->text().toStdString());
	}

private:
	journal& fNotes;
};


// A server's keyboard, a filter, and a window with two takers of keys. On the display.
struct keys {
	explicit keys(QWidget& around) : window(around), first(&around, notes), second(&around, others)
	{
		first.setFocus();
	}

	void strike(bool press, quint32 code, bool marked)
	{
		if (press)
			held.insert(code);
		else
			held.erase(code);
		QKeyEvent event(press ? QEvent::KeyPress : QEvent::KeyRelease,
			code == a_code ? Qt::Key_A : Qt::Key_B, Qt::NoModifier, code, 0, 0,
			code == a_code ? "a" : "b", marked);
		if (!filter.eventFilter(window.windowHandle(), &event))
			QCoreApplication::sendEvent(window.focusWidget(), &event);
	}

	void down(quint32 code, bool marked = false) { strike(true, code, marked); }
	void up(quint32 code, bool marked = false) { strike(false, code, marked); }

	QWidget& window;
	journal notes;
	journal others;
	std::set<quint32> held;
	key_filter filter{[this](quint32 code) { return held.count(code) != 0; }};
	key_taker first;
	key_taker second;
};


void
with_keys(const std::function<void(keys&)>& user)
{
	with_window([&](test_window&, robot& hand) {
		hand.settle();
		hand.act([&](QWidget& window) {
			keys of(window);
			user(of);
			window.setFocus();
		});
	});
}

}


TEST(key_filter, takes_strokes_of_one_moment_for_strokes)
{
	with_keys([](keys& of) {
		for (int i = 0; i < 3; i++) {
			of.down(a_code);
			of.up(a_code);
		}
		EXPECT_EQ(of.notes, (journal{"+a", "-a", "+a", "-a", "+a", "-a"}));
	});
}


TEST(key_filter, takes_them_for_strokes_also_where_the_toolkit_marks_them)
{
	with_keys([](keys& of) {
		of.down(a_code);
		of.up(a_code, true);
		of.down(a_code, true);
		of.up(a_code);
		EXPECT_EQ(of.notes, (journal{"+a", "-a", "+a", "-a"}));
	});
}


TEST(key_filter, keeps_the_order_of_keys_that_overlap)
{
	with_keys([](keys& of) {
		of.down(a_code);
		of.down(b_code);
		of.up(a_code);
		of.down(a_code);
		of.up(b_code);
		of.up(a_code);
		EXPECT_EQ(of.notes, (journal{"+a", "+b", "-a", "+a", "-b", "-a"}));
	});
}


TEST(key_filter, marks_the_presses_of_a_key_that_is_down)
{
	with_keys([](keys& of) {
		of.down(a_code);
		of.down(a_code);
		of.down(a_code, true);
		of.up(a_code);
		EXPECT_EQ(of.notes, (journal{"+a", "+ar", "+ar", "-a"}));
	});
}


TEST(key_filter, counts_repeats_anew_with_each_press)
{
	with_keys([](keys& of) {
		QKeyEvent event(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, a_code, 0, 0, "a");
		EXPECT_EQ(of.filter.repeats_of(event), 0);
		for (int repeat : {0, 1, 2}) {
			of.down(a_code);
			EXPECT_EQ(of.filter.repeats_of(event), repeat);
		}
		of.up(a_code);
		of.down(a_code);
		EXPECT_EQ(of.filter.repeats_of(event), 0);
	});
}


TEST(key_filter, lets_nobody_else_have_the_repeats_and_the_release)
{
	with_keys([](keys& of) {
		of.down(a_code);
		of.second.setFocus();
		of.down(a_code);
		of.up(a_code);
		EXPECT_EQ(of.notes, (journal{"+a", "-a"}));
		EXPECT_EQ(of.others, journal());
		of.down(a_code);
		of.up(a_code);
		EXPECT_EQ(of.others, (journal{"+a", "-a"}));
	});
}


TEST(key_filter, tells_who_loses_the_keyboard_of_the_release_once)
{
	with_keys([](keys& of) {
		of.down(a_code);
		of.filter.let_go(of.first);
		EXPECT_EQ(of.notes, (journal{"+a", "-a"}));
		of.down(a_code);
		of.up(a_code);
		EXPECT_EQ(of.notes, (journal{"+a", "-a"}));
	});
}


TEST(key_filter, lets_all_keys_go_when_the_keyboard_leaves_the_window)
{
	with_keys([](keys& of) {
		of.down(a_code);
		of.down(b_code);
		of.filter.moved_to(nullptr);
		EXPECT_EQ(of.notes, (journal{"+a", "+b", "-a", "-b"}));
	});
}


TEST(key_filter, keeps_the_keys_of_a_window_that_the_keyboard_comes_to)
{
	with_keys([](keys& of) {
		of.down(a_code);
		of.filter.moved_to(of.window.windowHandle());
		of.down(a_code);
		EXPECT_EQ(of.notes, (journal{"+a", "+ar"}));
	});
}


// Return closes a dialog and is still down in the window behind.
TEST(key_filter, knows_a_key_again_that_went_down_in_another_window)
{
	with_keys([](keys& of) {
		of.down(a_code);
		of.filter.moved_to(nullptr);
		of.filter.moved_to(of.window.windowHandle());
		of.down(a_code);
		EXPECT_EQ(of.notes, (journal{"+a", "-a"}));
		of.up(a_code);
		of.down(a_code);
		EXPECT_EQ(of.notes, (journal{"+a", "-a", "+a"}));
	});
}


TEST(key_filter, loses_no_press_after_a_release_that_nobody_was_told_of)
{
	with_keys([](keys& of) {
		of.down(a_code);
		of.down(b_code);
		of.held.erase(a_code);
		of.filter.look_again();
		EXPECT_EQ(of.notes, (journal{"+a", "+b", "-a"}));
		of.down(a_code);
		EXPECT_EQ(of.notes, (journal{"+a", "+b", "-a", "+a"}));
	});
}


TEST(key_filter, outlives_who_had_the_keyboard)
{
	with_keys([](keys& of) {
		auto* short_lived = new key_taker(&of.window, of.others);
		short_lived->setFocus();
		of.down(a_code);
		delete short_lived;
		of.first.setFocus();
		of.down(a_code);
		of.up(a_code);
		EXPECT_EQ(of.notes, journal());
		EXPECT_EQ(of.others, journal{"+a"});
	});
}


// Suggestions open as soon as a letter of the name goes.
TEST(key_filter, repeats_for_a_field_whose_suggestions_open_or_close_meanwhile)
{
	with_keys([](keys& of) {
		of.down(a_code);
		auto* suggestions = new QWidget(&of.window, Qt::Popup);
		suggestions->setFocusProxy(&of.first);
		suggestions->show();
		of.down(a_code);
		delete suggestions;
		of.down(a_code);
		of.up(a_code);
		EXPECT_EQ(of.notes, (journal{"+a", "+ar", "-a"})) << "one went to the suggestions";
	});
}


TEST(key_filter, without_the_servers_word_trusts_the_toolkits_marks)
{
	with_keys([](keys& of) {
		key_filter plain;
		auto send = [&](QEvent::Type type, bool marked) {
			QKeyEvent event(type, Qt::Key_A, Qt::NoModifier, a_code, 0, 0, "a", marked);
			if (!plain.eventFilter(of.window.windowHandle(), &event))
				QCoreApplication::sendEvent(&of.first, &event);
		};
		send(QEvent::KeyPress, false);
		send(QEvent::KeyRelease, true);
		send(QEvent::KeyPress, true);
		EXPECT_EQ(of.notes, (journal{"+a", "+ar"}));
		// Its release was missed.
		send(QEvent::KeyPress, false);
		send(QEvent::KeyRelease, false);
		EXPECT_EQ(of.notes, (journal{"+a", "+ar", "-a", "+a", "-a"}));
		// It went down where nobody of ours was.
		send(QEvent::KeyPress, true);
		EXPECT_EQ(of.notes.size(), 5U);
	});
}
