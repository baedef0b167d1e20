// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "tables/ttf_name.h"

#include "font/malloc32.h"
#include "font/messages.h"
#include "font/panel.h"
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <ListItem.h>
#include <ListView.h>
#include <Message.h>
#include <string_view>
#include <TextControl.h>
#include <UTF8.h>
#include <vector>

enum {
	header_size = 6,
	record_size = 12,
	at_count = 2,
	at_storage = 4,
	at_length = 8,
	at_place = 10
};
enum { longest_text = 0xFFFF };
// Room for a text in the panel, with its NUL.
enum { shown_size = 256 };

static const char substitute = 26;

// What the table is to hold: keys, and bytes that somebody else keeps.
struct name_record {
	uint64 key;
	std::span<const unsigned char> text;
};

struct name_records : std::vector<name_record> {};


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
	  set(nullptr)
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
std::span<const unsigned char>
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


enum encoding { raw, unicode, shift_jis };

static encoding
encoding_of(unsigned short platformID, unsigned short encodingID, unsigned short languageID)
{
	if (platformID == 3 && encodingID == 1)
		return unicode;
	if (platformID == 0 && encodingID == 0 && languageID == 0)
		return unicode;
	if (platformID == 1 && encodingID == 1 && languageID == 11)
		return shift_jis;
	return raw;
}


static uint32
conversion_of(encoding kind)
{
	return kind == unicode ? B_UNICODE_CONVERSION : B_SJIS_CONVERSION;
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

	const std::span<const unsigned char> bytes = stored(index);
	const encoding kind = encoding_of(*platformID, *encodingID, *languageID);
	int32 from = (int32)bytes.size();
	int32 written = (int32)std::min<long>(*room - 1, INT32_MAX);
	if (kind == raw) {
		written = std::min(written, from);
		memcpy(text, bytes.data(), (size_t)written);
	} else {
		// Half of a character at the end is none.
		if (kind == unicode)
			from &= ~1;
		int32 state = 0;
		convert_to_utf8(conversion_of(kind), (const char*)bytes.data(), &from, text, &written,
			&state, substitute);
	}
	text[written] = '\0';
	*room = written;
	return 0;
}


// A text as the table stores it.
static std::string
encoded(encoding kind, const char* text)
{
	std::string_view given(text);
	if (kind == raw)
		return std::string(given.substr(0, longest_text));
	std::string made(std::min<size_t>(2 * given.size(), longest_text - 1), '\0');
	int32 from = (int32)given.size();
	int32 written = (int32)made.size();
	int32 state = 0;
	convert_from_utf8(
		conversion_of(kind), given.data(), &from, made.data(), &written, &state, substitute);
	made.resize((size_t)written);
	return made;
}


void
ttf_name::set_field(unsigned short platformID, unsigned short encodingID, unsigned short languageID,
	unsigned short nameID, const char* text)
{
	const uint64 named = key_of(platformID, encodingID, languageID, nameID);
	name_records records;
	size_t position = 0;
	for (int i = 0; i < count(); i++) {
		if (key(i) == named)
			continue;
		records.push_back({key(i), stored(i)});
		if (key(i) < named)
			position = records.size();
	}
	std::string made;
	if (text != nullptr) {
		made = encoded(encoding_of(platformID, encodingID, languageID), text);
		records.insert(records.begin() + (ptrdiff_t)position,
			{named, {(const unsigned char*)made.data(), made.size()}});
	}
	// This also bounds what texts that lie upon each other come to when they are laid out apart.
	if (header_size + record_size * records.size() > 0xFFFF)
		return;
	rebuild(records);
}


// Lays the records out in this order, their texts one after the other.
void
ttf_name::rebuild(const name_records& records)
{
	const uint32 storage = header_size + record_size * (uint32)records.size();
	uint32 size = storage;
	for (const name_record& record : records)
		size += (uint32)record.text.size();
	// The texts still lie in the old bytes.
	unsigned char* old = data;
	data = malloc32((int)size);
	length = size;
	put16(at_count, (uint16)records.size());
	put16(at_storage, (uint16)storage);
	uint32 record = header_size;
	uint32 place = 0;
	for (const name_record& each : records) {
		put64(record, each.key);
		put16(record + at_length, (uint16)each.text.size());
		put16(record + at_place, (uint16)place);
		std::copy(each.text.begin(), each.text.end(), data + storage + place);
		place += (uint32)each.text.size();
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
	char text[shown_size];
	long size = sizeof text;
	BTextControl* const fields[] = {pid, eid, lid, nid};
	if (get_field(index, &ids[0], &ids[1], &ids[2], &ids[3], &size, text) != 0) {
		for (BTextControl* field : fields)
			field->SetText("");
		text_field->SetText("");
		return;
	}
	for (int i = 0; i < 4; i++)
		show_hex(fields[i], ids[i], 4);
	text_field->SetText(text);
}


void
ttf_name::remove_selected()
{
	unsigned short ids[4];
	char text[1];
	long size = sizeof text;
	if (get_field(list->CurrentSelection(), &ids[0], &ids[1], &ids[2], &ids[3], &size, text) != 0)
		return;
	set_field(ids[0], ids[1], ids[2], ids[3], nullptr);
	redraw();
}


void
ttf_name::set_typed()
{
	int64 ids[4];
	if (read_hex(pid, &ids[0]) && read_hex(eid, &ids[1]) && read_hex(lid, &ids[2])
		&& read_hex(nid, &ids[3])
		&& std::all_of(ids, ids + 4, [](int64 id) { return id >= 0 && id <= 0xFFFF; }))
		set_field(
			(uint16)ids[0], (uint16)ids[1], (uint16)ids[2], (uint16)ids[3], text_field->Text());
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
