// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_TABLES_TTF_NAME_H
#define KERNIX_TABLES_TTF_NAME_H

#include "font/ttf_table.h"
#include "tables/name_text.h"
#include <optional>
#include <string>

class BButton;
class BListView;
class BTextControl;

// The naming table, name: texts by platform, encoding, language and kind (nameID). The four together
// are a record's key; records are kept in ascending order of it.
//
// Texts are UTF-16 in big-endian order for platform 3 with encoding 1 and for platform 0 with encoding
// and language 0, Shift-JIS for platform 1 with encoding 1 and language 11, and converted; all others
// are bytes that pass through as they are. What cannot be converted becomes the character 1A.
class ttf_name : public ttf_table {
public:
	// As for every table: takes the buffer over; none means the default content.
	ttf_name(ttf* font, unsigned char* buffer, unsigned long size);
	~ttf_name() override;

	// A new font's fourteen records. Gives 0.
	int create_default();

	// The records that the table claims and has the bytes of.
	int count() const;

	// One record's key and its text, UTF-8 where it is converted. 0; 1 with nothing stored for an
	// index that is no record's, or without any room.
	// @param length in: the room in text, with its NUL; out: the bytes before the NUL. What does
	// not fit is cut off, at a character's end where the text is converted.
	int get_field(int index, unsigned short* platformID, unsigned short* encodingID,
		unsigned short* languageID, unsigned short* nameID, long* length, char* text) const;

	// Replaces the record with that key, or inserts one behind the last with a smaller key; null
	// deletes the first with that key. The text is UTF-8 where it is to be converted; beyond 65535
	// stored bytes it is cut off. Other records keep their keys and bytes; several of one key become
	// one. Texts that shared bytes get bytes of their own, or only equal ones are shared where 16 bits
	// could not tell all the places. Nothing changes where they could not even so, nor where a record
	// more would make more than 5460.
	void set_field(unsigned short platformID, unsigned short encodingID, unsigned short languageID,
		unsigned short nameID, const char* text);

	void AttachedToWindow() override;
	// Everything black: the panel has only its controls.
	void Draw(BRect area) override;
	void MessageReceived(BMessage* message) override;
	// Lists the records anew.
	void redraw();

private:
	uint64 key(int index) const;
	name_bytes stored(int index) const;
	void put(uint64 named, const std::string& text);
	void remove(int index);
	void rebuild(const struct name_records& records);
	std::optional<uint64> typed_key() const;
	void select(int32 index);
	void remove_selected();
	void set_typed();

	// The panel's children; null until it is attached.
	BListView* list;
	BTextControl* pid;
	BTextControl* eid;
	BTextControl* lid;
	BTextControl* nid;
	BTextControl* text_field;
	BButton* add;
	BButton* del;
	BButton* set;

	int32 shown; // the record that the fields were filled from; none below 0
};

#endif
