// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "tables/ttf_name.h"

#include "font/malloc32.h"
#include "font/messages.h"
#include "font/panel.h"
#include "tables/name_layout.h"
#include <algorithm>
#include <cstdio>
#include <ListItem.h>
#include <ListView.h>
#include <Message.h>
#include <TextControl.h>

enum {
	header_size = 6,
	record_size = 12,
	at_count = 2,
	at_storage = 4,
	at_length = 8,
	at_place = 10
};
// Behind so many records 16 bits can tell where the texts start.
static const size_t most_records = (last_name_place - header_size) / record_size;
// Room for a text in the list, with its NUL.
enum { shown_size = 256 };


ttf_name::ttf_name(ttf* font, unsigned char* buffer, unsigned long size)
	: ttf_table(font, 'name', buffer, size),
	  list(nullptr),
	  pid(nullptr),
	  eid(nullptr),
	  lid(nullptr),
	  nid(nullptr),
	  text_field(nullptr),
	  add(nullptr),
	  del(nullptr),
	  set(nullptr),
	  shown(-1)
{
	if (data == nullptr)
		create_default();
}


ttf_name::~ttf_name()
{
	if (list != nullptr)
		empty_list(list);
}


int
ttf_name::create_default()
{
	rebuild({});
	const char* texts[] = {
		"(c)unknown", "noname", "Regular", "unknown", "noname-regular", "-.--", "noname-regular"};
	for (uint16 id = 0; id < std::size(texts); id++) {
		set_field(1, 0, 0, id, texts[id]);
		set_field(3, 1, 1033, id, texts[id]);
	}
	return 0;
}


int
ttf_name::count() const
{
	if (length < header_size)
		return 0;
	return (int)std::min<uint32>(u16(at_count), (length - header_size) / record_size);
}


uint64
ttf_name::key(int index) const
{
	return u64(header_size + record_size * (uint32)index);
}


// A record's text as it lies in the table, as far as the table goes.
name_bytes
ttf_name::stored(int index) const
{
	const uint32 record = header_size + record_size * (uint32)index;
	const uint32 place = std::min<uint32>(u16(at_storage) + u16(record + at_place), length);
	return {data + place, std::min<uint32>(u16(record + at_length), length - place)};
}


static uint64
key_of(unsigned short platformID, unsigned short encodingID, unsigned short languageID,
	unsigned short nameID)
{
	return (uint64)platformID << 48 | (uint64)encodingID << 32 | (uint64)languageID << 16 | nameID;
}


static name_encoding
encoding_of(uint64 key)
{
	return name_encoding_of((uint16)(key >> 48), (uint16)(key >> 32), (uint16)(key >> 16));
}


int
ttf_name::get_field(int index, unsigned short* platformID, unsigned short* encodingID,
	unsigned short* languageID, unsigned short* nameID, long* room, char* text) const
{
	if (index < 0 || index >= count() || *room < 1)
		return 1;
	const uint64 id = key(index);
	*platformID = (uint16)(id >> 48);
	*encodingID = (uint16)(id >> 32);
	*languageID = (uint16)(id >> 16);
	*nameID = (uint16)id;

	const int32 written = read_name(
		encoding_of(id), stored(index), text, (int32)std::min<long>(*room - 1, INT32_MAX));
	text[written] = '\0';
	*room = written;
	return 0;
}


void
ttf_name::set_field(unsigned short platformID, unsigned short encodingID, unsigned short languageID,
	unsigned short nameID, const char* text)
{
	const uint64 named = key_of(platformID, encodingID, languageID, nameID);
	if (text != nullptr) {
		put(named, stored_name(encoding_of(named), text));
		return;
	}
	int index = 0;
	while (index < count() && key(index) != named)
		index++;
	remove(index);
}


void
ttf_name::put(uint64 named, const std::string& text)
{
	name_records records;
	size_t position = 0;
	for (int i = 0; i < count(); i++) {
		if (key(i) == named)
			continue;
		records.push_back({key(i), stored(i)});
		if (key(i) < named)
			position = records.size();
	}
	records.insert(records.begin() + (ptrdiff_t)position,
		{named, {(const unsigned char*)text.data(), text.size()}});
	if (records.size() <= most_records || (int)records.size() <= count())
		rebuild(records);
}


void
ttf_name::remove(int index)
{
	name_records records;
	for (int i = 0; i < count(); i++) {
		if (i != index)
			records.push_back({key(i), stored(i)});
	}
	rebuild(records);
}


// Makes the table of these records, in this order; leaves it as it is where that cannot be told. With
// all texts starting in 64 KiB it is never 128 KiB longer than its records.
void
ttf_name::rebuild(const name_records& records)
{
	const uint32 texts = header_size + record_size * (uint32)records.size();
	// More records are told from a place among them on.
	const uint32 storage = std::min(texts, last_name_place);
	const std::optional<name_layout> layout = lay_names(records, texts - storage);
	if (!layout)
		return;
	// The texts still lie in the old bytes.
	unsigned char* old = data;
	length = storage + layout->end;
	data = malloc32((int)length);
	put16(at_count, (uint16)records.size());
	put16(at_storage, (uint16)storage);
	uint32 record = header_size;
	uint32 next = texts - storage;
	for (size_t i = 0; i < records.size(); i++) {
		const name_bytes& text = records[i].text;
		const uint16 place = layout->places[i];
		put64(record, records[i].key);
		put16(record + at_length, (uint16)text.size());
		put16(record + at_place, place);
		// Else its bytes are there already.
		if (place == next) {
			std::copy(text.begin(), text.end(), data + storage + place);
			next += (uint32)text.size();
		}
		record += record_size;
	}
	delete[] old;
}


void
ttf_name::AttachedToWindow()
{
	panel_colors(this);
	if (list != nullptr)
		return;
	list = panel_listview(this, BRect(20, 20, 540, 380), "name-list", msg_name_selected);
	add = panel_button(this, panel_add, "add", msg_name_add);
	del = panel_button(this, panel_del, "del", msg_name_del);
	set = panel_button(this, panel_set, "set", msg_name_set);
	pid = panel_edit(this, panel_slots[0], "pid", "plathomeID", 50);
	eid = panel_edit(this, panel_slots[1], "eid", "encodingID", 50);
	lid = panel_edit(this, panel_slots[2], "lid", "languageID", 50);
	nid = panel_edit(this, panel_slots[3], "nid", "nameID", 50);
	text_field = panel_edit(this, BRect(20, 480, 540, 500), "data", "DATA", 30);
	MakeFocus();
	redraw();
}


void
ttf_name::Draw(BRect area)
{
	panel_clear(this, area);
}


void
ttf_name::MessageReceived(BMessage* message)
{
	switch (message->what) {
		case msg_name_selected: {
			int32 index;
			if (message->FindInt32("index", &index) == B_OK)
				select(index);
			break;
		}
		case msg_name_add:
			// What that sends empties the fields, also those that were typed without a selection.
			list->DeselectAll();
			select(-1);
			break;
		case msg_name_del:
			remove_selected();
			break;
		case msg_name_set:
			set_typed();
			break;
		case msg_changed:
			break;
		default:
			BView::MessageReceived(message);
	}
}


void
ttf_name::select(int32 index)
{
	unsigned short ids[4];
	char text[1];
	long size = sizeof text;
	BTextControl* const fields[] = {pid, eid, lid, nid};
	shown = index;
	if (get_field(index, &ids[0], &ids[1], &ids[2], &ids[3], &size, text) != 0) {
		for (BTextControl* field : fields)
			field->SetText("");
		text_field->SetText("");
		return;
	}
	for (int i = 0; i < 4; i++)
		show_hex(fields[i], ids[i], 4);
	text_field->SetText(name_for_field(encoding_of(key(index)), stored(index)).c_str());
}


void
ttf_name::remove_selected()
{
	const int32 index = list->CurrentSelection();
	if (index < 0 || index >= count())
		return;
	remove(index);
	redraw();
}


// The four identifiers that are typed, as a key; none unless all are numbers of 16 bits.
std::optional<uint64>
ttf_name::typed_key() const
{
	uint64 typed = 0;
	for (const BTextControl* field : {pid, eid, lid, nid}) {
		int64 id;
		if (!read_hex(field, &id) || id < 0 || id > 0xFFFF)
			return std::nullopt;
		typed = typed << 16 | (uint64)id;
	}
	return typed;
}


void
ttf_name::set_typed()
{
	if (const std::optional<uint64> typed = typed_key()) {
		const name_encoding wanted = encoding_of(*typed);
		name_bytes before;
		if (shown >= 0 && shown < count() && encoding_of(key(shown)) == wanted)
			before = stored(shown);
		put(*typed, edited_name(wanted, before, text_field->Text()));
	}
	redraw();
}


void
ttf_name::redraw()
{
	empty_list(list);
	for (int i = 0; i < count(); i++) {
		unsigned short ids[4];
		char text[shown_size];
		long size = sizeof text;
		get_field(i, &ids[0], &ids[1], &ids[2], &ids[3], &size, text);
		char line[shown_size + 32];
		snprintf(line, sizeof line, "%04x-%04x-%04x-%04x %s", ids[0], ids[1], ids[2], ids[3], text);
		list->AddItem(new BStringItem(line));
	}
}
