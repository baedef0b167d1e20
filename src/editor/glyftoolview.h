// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_EDITOR_GLYFTOOLVIEW_H
#define KERNIX_EDITOR_GLYFTOOLVIEW_H

#include <memory>
#include <View.h>

class BBitmap;
class BButton;
class BListView;
class BTextControl;
class ttf_glyf;

// The palette beside the outline edit view: chooses the glyph, the tool, the pen's size and the
// scale, and adds and removes components. Everything the user does becomes a message to the edit
// view; what it shows it has learned from that view's 'Vchg'. Window's thread.
//
// A press that meets nothing steps to the next glyph, on purpose.
class glyftoolview : public BView {
public:
	enum { max_compos = 16 };

	// @param table borrowed; knows the edit view
	glyftoolview(BRect frame, ttf_glyf* table);
	~glyftoolview() override;

	void AttachedToWindow() override;
	void Draw(BRect area) override;
	void MouseDown(BPoint where) override;
	void MessageReceived(BMessage* message) override;

	// Paints the picture, brings the controls up to date and shows both at once. Nothing before the
	// palette has been attached.
	void redraw();

	// The palette's children; null until it is attached.
	BTextControl* chr_entry;
	BTextControl* chr_code;
	BTextControl* gno_entry;
	BButton* mode_button;
	BButton* set_button;
	BListView* compo_list;
	BTextControl* component_entry;
	BButton* add_button;
	BButton* del_button;

	ttf_glyf* glyf_table;
	// What is drawn and not a control; null until the palette is attached.
	std::unique_ptr<BBitmap> offscreen;

	// Copies of what the edit view told last.
	int8 mode;
	uint8 psize; // 0 to 100
	float scale;
	// Unsigned numbers in signed fields; -1 is none.
	int16 gno;
	int16 chr;
	uint8 compo_count;
	int16 compo[max_compos];
	uint8 empty;     // neither contours nor components
	uint8 composite; // the controls for components are shown

private:
	void make_controls();
	void paint(BView* view) const;
	void fill_list();
	void show_components(bool visible);
	void show_texts();

	void learn(const BMessage* message);
	void entered(const void* source);
	void pressed(const void* source);
	void change_kind();
	void add();
	void del();
	void step_glyph(float x);
	void step_size(float x);
	void step_scale(float x);
	bool choose_tool(BPoint where);
	void send(BMessage& message);
};

#endif
