// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "app/activity.h"
#include "app/looper_state.h"
#include "display/alert_dialog.h"
#include "interface/window_state.h"

#include <Alert.h>
#include <AppDefs.h>
#include <Application.h>

#include <condition_variable>
#include <mutex>
#include <optional>

using namespace kits;


namespace {

// Whatever comes first ends the wait: a button, or the application being asked to quit. Shared with
// both, since the other may still come afterwards.
struct alert_wait {
	std::mutex lock;
	std::condition_variable changed;
	std::optional<int32> answer;
	// The waiting looper's dispatch does not count as activity: the program is idle until the user
	// answers.
	bool resting = false;

	void end(int32 with)
	{
		std::lock_guard guard(lock);
		if (answer)
			return;
		answer = with;
		if (resting)
			activity::begin();
		changed.notify_all();
	}

	int32 wait(bool dispatching)
	{
		std::unique_lock guard(lock);
		resting = dispatching && !answer;
		if (resting)
			activity::end();
		changed.wait(guard, [this] { return answer.has_value(); });
		return *answer;
	}
};


// Whether a looper of the program is the caller.
bool
in_a_dispatch()
{
	bool found = be_app->IsLocked();
	for (int32 i = 0; BWindow* window = be_app->WindowAt(i); i++)
		found |= window->IsLocked();
	return found;
}


alert_icon
icon_of(alert_type type)
{
	switch (type) {
		case B_INFO_ALERT:
		case B_IDEA_ALERT:
			return alert_icon::information;
		case B_WARNING_ALERT:
			return alert_icon::warning;
		case B_STOP_ALERT:
			return alert_icon::stop;
		default:
			return alert_icon::none;
	}
}

}


BAlert::BAlert(const char* title, const char* text, const char* button1, const char* button2,
	const char* button3, button_width width, alert_type type)
	: BWindow(BRect(0, 0, 0, 0), offscreen()),
	  fText(text ? text : ""),
	  fWidth(width),
	  fType(type)
{
	fWindow->title = title ? title : "";
	for (const char* label : {button1, button2, button3}) {
		if (label)
			fButtons.push_back(label);
	}
}


int32
BAlert::Go()
{
	auto wait = std::make_shared<alert_wait>();
	// The port is told what arrives even while its looper waits here.
	std::shared_ptr<port> application = be_app->fState->messages;
	application->watch(B_QUIT_REQUESTED, [wait] { wait->end(-1); });
	auto dialog = alert_dialogs::show(
		{fWindow->title, fText, fButtons, icon_of(fType), fWidth != B_WIDTH_FROM_LABEL},
		[wait](int index) { wait->end(index); });
	int32 answer = wait->wait(in_a_dispatch());
	application->watch(0, nullptr);
	if (answer < 0)
		alert_dialogs::dismiss(dialog);
	delete this;
	return answer;
}
