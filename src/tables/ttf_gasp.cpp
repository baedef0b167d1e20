// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "tables/ttf_gasp.h"

#include "font/malloc32.h"
#include "font/messages.h"
#include "font/panel.h"
#include <algorithm>
#include <CheckBox.h>
#include <cstdio>
#include <iterator>
#include <ListItem.h>
#include <ListView.h>
#include <Message.h>
#include <TextControl.h>

enum { header_size = 4, record_size = 4, at_numRanges = 2 };
enum : uint16 { use_gridfitting = 1, use_grayscale = 2 };

static const char* const behaviors[] = {
	"none", "Use gridfitting", "Use grayscale rendering", "Use gridfitting & grayscale rendering"};


ttf_gasp::ttf_gasp(ttf* font, unsigned char* buffer, unsigned long size)
	: ttf_table(font, 'gasp', buffer, size),
	  list(nullptr),
	  pt(nullptr),
	  gridfit(nullptr),
	  grayscale(nullptr),
	  set(nullptr),
	  add(nullptr),
	  del(nullptr)
{
}


ttf_gasp::~ttf_gasp()
{
	if (list != nullptr)
		empty_list(list);
}


int
ttf_gasp::count() const
{
	if (length < header_size)
		return 0;
	return (int)std::min<uint32>(u16(at_numRanges), (length - header_size) / record_size);
}


int
ttf_gasp::get_field(int index, unsigned short* maxPPEM, unsigned short* behavior) const
{
	if (index < 0 || index >= count())
		return 1;
	const uint32 record = header_size + record_size * (uint32)index;
	*maxPPEM = u16(record);
	*behavior = u16(record + 2);
	return 0;
}


// Where the record of that size is, or would be: at the first that is not smaller.
bool
ttf_gasp::find(unsigned short maxPPEM, int* position) const
{
	uint16 size = 0;
	uint16 behavior;
	int i = 0;
	while (get_field(i, &size, &behavior) == 0 && size < maxPPEM)
		i++;
	*position = i;
	return i < count() && size == maxPPEM;
}


int
ttf_gasp::set_field(int index, unsigned short maxPPEM, unsigned short behavior)
{
	if (index >= count())
		return 1;
	int position = index;
	const bool exists = index >= 0 || find(maxPPEM, &position);
	const bool wanted = maxPPEM != 0;
	const bool full = count() == 0xFFFF;
	if (!exists && (!wanted || full))
		return 2;
	if (exists && wanted) {
		const uint32 record = header_size + record_size * (uint32)position;
		put16(record, maxPPEM);
		put16(record + 2, behavior);
	} else {
		rebuild(position, wanted, maxPPEM, behavior);
	}
	return 0;
}


// With one record more at the position, or without the one there.
void
ttf_gasp::rebuild(int position, bool inserted, unsigned short maxPPEM, unsigned short behavior)
{
	const uint32 records = (uint32)count() + (inserted ? 1 : (uint32)-1);
	const uint32 size = header_size + record_size * records;
	unsigned char* old = data;
	const unsigned char* tail = old + header_size + record_size * (uint32)position;
	unsigned char* gap = malloc32((int)size);
	data = gap;
	length = size;
	put16(at_numRanges, (uint16)records);
	gap = std::copy(static_cast<const unsigned char*>(old) + header_size, tail, gap + header_size);
	if (inserted) {
		put16((uint32)(gap - data), maxPPEM);
		put16((uint32)(gap - data) + 2, behavior);
		gap += record_size;
	} else {
		tail += record_size;
	}
	std::copy_n(tail, data + size - gap, gap);
	delete[] old;
}


static BCheckBox*
add_box(BView* panel, BRect place, const char* name, const char* label)
{
	BCheckBox* box = new BCheckBox(place, name, label, new BMessage(msg_changed),
		B_FOLLOW_LEFT | B_FOLLOW_TOP, B_WILL_DRAW | B_NAVIGABLE);
	panel->AddChild(box);
	box->SetTarget(panel);
	return box;
}


void
ttf_gasp::AttachedToWindow()
{
	panel_colors(this);
	if (list != nullptr)
		return;
	list = panel_listview(this, BRect(20, 20, 280, 200), "gasp-list", msg_range_selected);
	add = panel_button(this, panel_add, "add");
	del = panel_button(this, panel_del, "del");
	set = panel_button(this, panel_set, "set");
	pt = panel_edit(this, panel_slots[0], "pt", "max-pt", 50);
	gridfit = add_box(this, BRect(140, 450, 260, 470), "gridfit", "grid-fitting");
	grayscale = add_box(this, BRect(280, 450, 400, 470), "grayscale", "grayscale-rendering");
	MakeFocus();
	redraw();
}


void
ttf_gasp::Draw(BRect area)
{
	panel_clear(this, area);
}


void
ttf_gasp::MessageReceived(BMessage* message)
{
	int32 index;
	void* source;
	switch (message->what) {
		case msg_range_selected:
			if (message->FindInt32("index", &index) == B_OK)
				select(index);
			break;
		case msg_pressed:
			if (message->FindPointer("source", &source) == B_OK)
				pressed(source);
			break;
		default:
			BView::MessageReceived(message);
	}
}


void
ttf_gasp::select(int32 index)
{
	uint16 size;
	uint16 behavior = 0;
	if (get_field(index, &size, &behavior) == 0)
		show_hex(pt, size, 4);
	else
		pt->SetText("");
	gridfit->SetValue(behavior & use_gridfitting ? B_CONTROL_ON : B_CONTROL_OFF);
	grayscale->SetValue(behavior & use_grayscale ? B_CONTROL_ON : B_CONTROL_OFF);
}


void
ttf_gasp::pressed(const void* source)
{
	if (source == set) {
		int64 size;
		// What is no number is size 0, which makes no record.
		if (!read_hex(pt, &size))
			size = 0;
		const int behavior =
			(gridfit->Value() ? use_gridfitting : 0) | (grayscale->Value() ? use_grayscale : 0);
		set_field(-1, (uint16)size, (uint16)behavior);
		redraw();
	} else if (source == add) {
		// What that sends clears the inputs, also those that were typed without a selection.
		list->DeselectAll();
		select(-1);
	} else if (source == del && list->CurrentSelection() >= 0) {
		set_field(list->CurrentSelection(), 0, 0);
		redraw();
	}
}


void
ttf_gasp::redraw()
{
	empty_list(list);
	uint16 size;
	uint16 behavior;
	for (int i = 0; get_field(i, &size, &behavior) == 0; i++) {
		char number[8];
		snprintf(number, sizeof number, "%04x", behavior);
		char line[64];
		snprintf(line, sizeof line, "- %04x : %s", size,
			behavior < std::size(behaviors) ? behaviors[behavior] : number);
		list->AddItem(new BStringItem(line));
	}
}
