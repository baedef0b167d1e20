// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_TABLES_TTF_GASP_H
#define KERNIX_TABLES_TTF_GASP_H

#include "font/ttf_table.h"

class BButton;
class BCheckBox;
class BListView;
class BTextControl;

// The grid-fitting and scan-conversion procedure, gasp: how to render at which size. A record is the
// largest size of a range, in pixels per em, and a behavior: 1 for grid-fitting, 2 for smoothing, or
// both. New fonts have no such table.
class ttf_gasp : public ttf_table {
public:
	// As for every table: takes the buffer over. There is no default content.
	ttf_gasp(ttf* font, unsigned char* buffer, unsigned long size);
	~ttf_gasp() override;

	// The records that the table claims and has the bytes of.
	int count() const;

	// 0, or 1 with nothing stored for an index that is no record's.
	int get_field(int index, unsigned short* maxPPEM, unsigned short* behavior) const;

	// With an index from 0 on: gives that record a size and a behavior, in its place whatever the
	// order, or deletes it when the size is 0. With a negative index: gives the record of that size
	// this behavior, or inserts one before the first that is larger; size 0 deletes the record of
	// size 0. 0 after a change, 1 for an index that is no record's, 2 when there is nothing to do or
	// no room for a record more.
	int set_field(int index, unsigned short maxPPEM, unsigned short behavior);

	void AttachedToWindow() override;
	// Everything black: the panel has only its controls.
	void Draw(BRect area) override;
	void MessageReceived(BMessage* message) override;
	// Lists the records anew.
	void redraw();

private:
	bool find(unsigned short maxPPEM, int* position) const;
	void rebuild(int position, bool inserted, unsigned short maxPPEM, unsigned short behavior);
	void select(int32 index);
	void pressed(const void* source);

	// The panel's children; null until it is attached.
	BListView* list;
	BTextControl* pt;
	BCheckBox* gridfit;
	BCheckBox* grayscale;
	BButton* set;
	BButton* add;
	BButton* del;
};

#endif
