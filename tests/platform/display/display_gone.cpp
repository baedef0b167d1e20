// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// A program at work for the desktop tests, which take its display away.
#include "platform/interface/stage.h"

#include <Application.h>
#include <cstdio>
#include <gtest/gtest.h>
#include <Messenger.h>

namespace {

// Draws text again and again, and measures it.
class busy_view : public BView {
public:
	explicit busy_view(BRect frame) : BView(frame, "busy", B_FOLLOW_NONE, B_WILL_DRAW) {}

	void AttachedToWindow() override { BMessenger(this).SendMessage('next'); }

	void MessageReceived(BMessage* message) override
	{
		if (message->what != 'next') {
			BView::MessageReceived(message);
			return;
		}
		char text[40];
		snprintf(text, sizeof text, "line %d", ++fCount);
		SetFontSize((float)(8 + fCount % 20));
		DrawString(text, BPoint(StringWidth(text), 50));
		if (fCount == 20)
			puts("at work");
		BMessenger(this).SendMessage('next');
	}

private:
	int fCount = 0;
};

}


TEST(display_gone, DISABLED_draws_all_the_time)
{
	BApplication application("application/x-vnd.test");
	auto* window = new BWindow(BRect(10, 10, 309, 109), "busy", B_TITLED_WINDOW, 0);
	window->AddChild(new busy_view(window->Bounds()));
	window->Show();
	application.Run();
}
