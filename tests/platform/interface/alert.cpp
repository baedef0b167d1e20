// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "platform/interface/stage.h"
#include "support/live_handlers.h"

#include <gtest/gtest.h>

#include <Alert.h>
#include <AppDefs.h>
#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QWidget>
#include <QWindow>

namespace {

constexpr int32 unanswered = 100;


// Asks in its own thread when it is told to.
class asker : public plain_application {
public:
	asker() : window(new test_window(BRect(40, 30, 239, 129))) { window->Show(); }

	void MessageReceived(BMessage* message) override
	{
		if (message->what == 'ask!')
			answer = question()->Go();
		else if (message->what == 'late')
			handled_late++;
		else
			plain_application::MessageReceived(message);
	}

	bool QuitRequested() override { return may_quit && plain_application::QuitRequested(); }

	// Runs with the application locked.
	void locked(const std::function<void()>& work)
	{
		Lock();
		work();
		Unlock();
	}

	test_window* window;
	std::function<BAlert*()> question = [] { return new BAlert("title", "text", "a", "b", "c"); };
	int32 answer = unanswered;
	int handled_late = 0;
	bool may_quit = true;
};


int32
answer_of(asker& app)
{
	int32 answer;
	app.locked([&] { answer = app.answer; });
	return answer;
}


// The question has been asked and waits for its user.
void
asked(const std::function<BAlert*()>& question, const std::function<void(asker&, robot&)>& user)
{
	with_application<asker>([&](asker& app, robot& hand) {
		app.locked([&] { app.question = question; });
		app.PostMessage('ask!');
		hand.settle();
		user(app, hand);
	});
}


BAlert*
three()
{
	return new BAlert("title", "text", "one", "two", "three");
}


int
left_of_button(robot& user, const char* label)
{
	int left = -1;
	user.on_display([&] {
		for (auto* button : QApplication::activeModalWidget()->findChildren<QPushButton*>()) {
			if (button->text() == label)
				left = button->x();
		}
	});
	return left;
}


// Presses a key in the alert.
void
press_in_alert(robot& user, Qt::Key key)
{
	user.act([&](QWidget&) {
		for (QWidget* each : QApplication::topLevelWidgets()) {
			if (each->objectName() != "alert" || !each->isVisible())
				continue;
			QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
			QCoreApplication::sendEvent(each->windowHandle(), &event);
			return;
		}
	});
	user.settle();
}

}


TEST(alert, answers_the_index_of_the_button)
{
	const struct {
		const char* button;
		int32 index;
	} cases[] = {{"one", 0}, {"two", 1}, {"three", 2}};
	for (const auto& each : cases) {
		asked(three, [&](asker& app, robot& user) {
			EXPECT_TRUE(user.press_alert(each.button));
			EXPECT_EQ(answer_of(app), each.index);
			EXPECT_EQ(user.alert_buttons(), journal()) << "it has gone";
		});
	}
}


TEST(alert, has_its_buttons_in_the_given_order)
{
	auto names = [] { return new BAlert("", "text", "OK", "Cancel", "Apply"); };
	asked(names, [](asker&, robot& user) {
		EXPECT_EQ(user.alert_buttons(), (journal{"OK", "Cancel", "Apply"}));
		EXPECT_LT(left_of_button(user, "OK"), left_of_button(user, "Cancel"));
		EXPECT_LT(left_of_button(user, "Cancel"), left_of_button(user, "Apply"));
		user.press_alert("OK");
	});
}


TEST(alert, may_have_one_button_or_two)
{
	asked([] { return new BAlert("", "text", "only"); },
		[](asker& app, robot& user) {
			EXPECT_EQ(user.alert_buttons(), journal{"only"});
			user.press_alert("only");
			EXPECT_EQ(answer_of(app), 0);
		});
	asked([] { return new BAlert("", "text", "no", "yes"); },
		[](asker& app, robot& user) {
			EXPECT_EQ(user.alert_buttons(), (journal{"no", "yes"}));
			user.press_alert("yes");
			EXPECT_EQ(answer_of(app), 1);
		});
}


TEST(alert, shows_all_lines_of_its_text_as_they_are)
{
	auto lines = [] { return new BAlert("", "first\nsecond <b>line</b>\n\nlast", "ok"); };
	asked(lines, [](asker&, robot& user) {
		EXPECT_EQ(user.alert_text(), "first\nsecond <b>line</b>\n\nlast");
		user.press_alert("ok");
	});
}


TEST(alert, shows_any_icon)
{
	for (alert_type type :
		{B_EMPTY_ALERT, B_INFO_ALERT, B_IDEA_ALERT, B_WARNING_ALERT, B_STOP_ALERT}) {
		auto typed = [=] {
			return new BAlert("", "text", "ok", nullptr, nullptr, B_WIDTH_AS_USUAL, type);
		};
		asked(typed, [](asker&, robot& user) {
			EXPECT_EQ(user.alert_text(), "text");
			user.press_alert("ok");
		});
	}
}


TEST(alert, without_any_text_is_no_less_an_alert)
{
	asked([] { return new BAlert(nullptr, nullptr, "ok"); },
		[](asker& app, robot& user) {
			EXPECT_EQ(user.alert_text(), "");
			user.press_alert("ok");
			EXPECT_EQ(answer_of(app), 0);
		});
}


TEST(alert, closed_by_its_box_answers_the_leftmost)
{
	asked(three, [](asker& app, robot& user) {
		user.act([](QWidget&) { QApplication::activeModalWidget()->close(); });
		user.settle();
		EXPECT_EQ(answer_of(app), 0);
		EXPECT_EQ(user.alert_buttons(), journal());
	});
}


TEST(alert, closed_by_escape_answers_the_leftmost)
{
	asked(three, [](asker& app, robot& user) {
		press_in_alert(user, Qt::Key_Escape);
		EXPECT_EQ(answer_of(app), 0);
		EXPECT_EQ(user.alert_buttons(), journal());
	});
}


TEST(alert, closed_by_enter_answers_the_last)
{
	asked(three, [](asker& app, robot& user) {
		press_in_alert(user, Qt::Key_Return);
		EXPECT_EQ(answer_of(app), 2);
	});
}


TEST(alert, makes_its_caller_wait)
{
	asked(three, [](asker& app, robot& user) {
		// The program is not idle until this has been handled, so nothing here may wait for that.
		app.PostMessage('late');
		EXPECT_NE(app.LockWithTimeout(0), B_OK) << "the application is inside Go()";
		user.act([&](QWidget&) {
			EXPECT_EQ(app.handled_late, 0);
			QApplication::activeModalWidget()->close();
		});
		user.settle();
		app.locked([&] { EXPECT_EQ(app.handled_late, 1); });
	});
}


TEST(alert, lets_the_windows_go_on)
{
	asked(three, [](asker& app, robot& user) {
		auto& view = app.window->add(new test_view(BRect(0, 0, 199, 99)));
		app.window->locked([&] {
			view.SetViewColor(red);
			view.Invalidate();
		});
		EXPECT_EQ(user.pixel(BPoint(50, 50)), red);
		user.press_alert("one");
	});
}


TEST(alert, keeps_the_user_from_the_windows)
{
	asked(three, [](asker& app, robot& user) {
		auto& view = app.window->add(new test_view(BRect(0, 0, 199, 99)));
		user.click(BPoint(50, 50));
		app.window->locked([&] { EXPECT_EQ(view.pointer, journal()); });
		user.press_alert("one");
		user.click(BPoint(50, 50));
		app.window->locked([&] { EXPECT_EQ(view.pointer.size(), 2u); });
	});
}


TEST(alert, of_a_window_answers_that_window)
{
	with_application<asker>([](asker& app, robot& user) {
		auto& view = app.window->add(new test_view(BRect(0, 0, 199, 99)));
		int32 answer = unanswered;
		app.window->locked([&] { view.on_message = [&](BMessage&) { answer = three()->Go(); }; });
		user.settle();
		app.window->PostMessage('ask!', &view);
		EXPECT_TRUE(user.press_alert("two"));
		app.window->locked([&] { EXPECT_EQ(answer, 1); });
	});
}


TEST(alert, can_be_shown_again_and_again)
{
	with_application<asker>([](asker& app, robot& user) {
		app.locked([&] { app.question = three; });
		for (const char* button : {"one", "three", "two"}) {
			app.PostMessage('ask!');
			EXPECT_TRUE(user.press_alert(button));
		}
		EXPECT_EQ(answer_of(app), 1);
	});
}


TEST(alert, ends_without_an_answer_when_the_application_is_asked_to_quit)
{
	int32 answer = unanswered;
	asked(three, [&](asker& app, robot& user) {
		app.may_quit = false;
		be_app_messenger.SendMessage(B_QUIT_REQUESTED);
		user.settle();
		answer = answer_of(app);
		EXPECT_EQ(user.alert_buttons(), journal());
		app.locked([&] { app.may_quit = true; });
	});
	EXPECT_EQ(answer, -1);
}


TEST(alert, ends_at_once_when_the_application_had_been_asked_to_quit_before)
{
	with_application<asker>([](asker& app, robot& user) {
		app.locked([&] {
			app.question = three;
			app.may_quit = false;
			app.PostMessage('ask!');
			app.PostMessage(B_QUIT_REQUESTED);
		});
		user.settle();
		EXPECT_EQ(answer_of(app), -1);
		EXPECT_EQ(user.alert_buttons(), journal());
		app.locked([&] { app.may_quit = true; });
	});
}


TEST(alert, does_not_keep_the_program_from_ending)
{
	asked(three, [](asker&, robot& user) { EXPECT_EQ(user.alert_buttons().size(), 3u); });
}


TEST(alert, is_deleted_when_it_is_over)
{
	with_application<asker>([](asker& app, robot& user) {
		user.settle();
		live_handlers alive;
		app.locked([&] { app.question = three; });
		app.PostMessage('ask!');
		user.settle();
		EXPECT_GT(alive.count(), 0);
		user.press_alert("one");
		EXPECT_EQ(alive.count(), 0);
	});
}
