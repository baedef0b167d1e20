// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_APP_SELECTVIEW_H
#define KERNIX_APP_SELECTVIEW_H

#include <memory>
#include <View.h>

class BBitmap;

// The strip that lists the font's tables by tag; a click on one asks the work view for its panel.
// Drawn from an off-screen image that changes with the list. Runs in the window's thread.
class selectview : public BView {
public:
	explicit selectview(BRect frame);
	~selectview() override;

	void MessageReceived(BMessage* message) override;
	void AttachedToWindow() override;
	void Draw(BRect updateRect) override;
	void MouseDown(BPoint where) override;

	// Repaints the image and shows it at once; nothing before the view was attached.
	void redraw();

	enum { max_tags = 32 };

	int32 count;
	uint32 tags[max_tags]; // in directory order
	int32 selected;        // index, -1 for none

private:
	void list(const BMessage* message);
	void select(const BMessage* message);
	void paint(BView* view) const;

	std::unique_ptr<BBitmap> image; // null until attached
};

#endif
