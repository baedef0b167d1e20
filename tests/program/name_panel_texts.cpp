// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Texts in the panel of name: what is not edited stays as it is.
#include "app/kernix.h"
#include "program/name_user.h"
#include "tables/name_table.h"

#include <gtest/gtest.h>

using texts = std::vector<std::string>;

// One Mac Roman record: a copyright sign, " 2007".
static constexpr std::string_view roman =
	"0000 0001 0012 0001 0000 0000 0000 0006 0000 a92032303037";


// Chooses the first record, puts this in the place of the last letter of its text, and sets it.
static void
end_with(robot& user, const std::string& letter)
{
	user.choose_row(list, 0);
	user.click(data_field);
	user.key(Qt::Key_End);
	user.key(Qt::Key_Backspace, "\b");
	user.type(letter);
	user.click(set_button);
}


TEST(name_panel, takes_japanese_text_for_three_encodings)
{
	at_names(hex("0000 0000 0006"), [](kernix& app, robot& user) {
		put_ids(user, "1", "1", "B", "1");
		put_text(user, data_field, "日本語ソ");
		user.click(set_button);
		put_ids(user, "3", "1", "411", "1");
		user.click(set_button);
		put_ids(user, "1", "0", "B", "1");
		user.click(set_button);
		EXPECT_EQ(user.list_rows(list),
			(texts{"0001-0000-000b-0001 日本語ソ", "0001-0001-000b-0001 日本語ソ",
				"0003-0001-0411-0001 日本語ソ"}));
		EXPECT_EQ(part(name_octets(app), 42, 99),
			hex("e697a5e69cace8aa9ee382bd 93fa967b8cea835c 65e5672c8a9e30bd"));
		user.choose_row(list, 1);
		EXPECT_EQ(fields(user), "0001-0001-000b-0001 日本語ソ");
	});
}


TEST(name_panel, stores_a_long_text_whole_and_lists_255_bytes_of_it)
{
	at_names(hex("0000 0000 0006"), [](kernix& app, robot& user) {
		put_ids(user, "3", "1", "409", "1");
		put_text(user, data_field, std::string(300, 'x'));
		user.click(set_button);
		EXPECT_EQ(name_octets(app).size(), 18u + 600);
		EXPECT_EQ(user.list_rows(list), texts{"0003-0001-0409-0001 " + std::string(255, 'x')});
		user.choose_row(list, 0);
		EXPECT_EQ(user.field_text(data_field), std::string(300, 'x'));
	});
}


TEST(name_panel, keeps_a_long_text_that_is_set_again)
{
	std::string licence = "0000 0001 0012 0003 0001 0409 000d 253a 0000";
	for (int i = 0; i < 4765; i++)
		licence += "0041";
	at_names(hex(licence), [&](kernix& app, robot& user) {
		user.choose_row(list, 0);
		EXPECT_EQ(user.field_text(data_field), std::string(4765, 'A'));
		user.click(set_button);
		EXPECT_EQ(name_octets(app), hex(licence));
		end_with(user, "B");
		EXPECT_EQ(name_octets(app), hex(licence.substr(0, licence.size() - 4) + "0042"));
	});
}


TEST(name_panel, keeps_the_longest_text_that_is_edited)
{
	octets table = hex("0000 0001 0012 0001 0000 0000 000d ffff 0000");
	table.resize(18 + 65535, 'A');
	at_names(table, [&](kernix& app, robot& user) {
		end_with(user, "B");
		table.back() = 'B';
		EXPECT_TRUE(name_octets(app) == table) << name_octets(app).size();
	});
}


TEST(name_panel, keeps_bytes_that_are_no_utf8_beside_an_edit)
{
	at_names(hex(roman), [](kernix& app, robot& user) {
		user.choose_row(list, 0);
		EXPECT_EQ(user.field_text(data_field), "\xA9 2007");
		user.click(data_field);
		user.key(Qt::Key_Return, "\r");
		user.click(set_button);
		EXPECT_EQ(name_octets(app), hex(roman));
		end_with(user, "8");
		EXPECT_EQ(part(name_octets(app), 18, 6), hex("a92032303038"));
	});
}


TEST(name_panel, keeps_what_no_text_can_tell_when_nothing_was_edited)
{
	// Half a pair and an odd byte, broken Shift-JIS, a NUL.
	for (const char* names : {"0000 0001 0012 0003 0001 0409 0001 0005 0000 d83d 0041 00",
			 "0000 0001 0012 0001 0001 000b 0001 0003 0000 41 ff 93",
			 "0000 0001 0012 0003 0000 0409 0001 0004 0000 0041 0042"}) {
		at_names(hex(names), [&](kernix& app, robot& user) {
			user.choose_row(list, 0);
			user.click(set_button);
			EXPECT_EQ(name_octets(app), hex(names));
		});
	}
}


TEST(name_panel, keeps_what_no_text_can_tell_beside_an_edit)
{
	at_names(hex("0000 0001 0012 0003 0001 0409 0001 0006 0000 d83d 0041 0042"),
		[&](kernix& app, robot& user) {
			end_with(user, "C");
			EXPECT_EQ(part(name_octets(app), 18, 6), hex("d83d 0041 0043"));
		});
	// A symbol font stores UTF-16 where it passes as bytes.
	at_names(hex("0000 0001 0012 0003 0000 0409 0001 0004 0000 0041 0042"),
		[&](kernix& app, robot& user) {
			end_with(user, "C");
			EXPECT_EQ(part(name_octets(app), 18, 4), hex("0041 0043"));
		});
}


TEST(name_panel, keeps_the_bytes_of_a_text_that_is_set_under_another_key)
{
	at_names(hex(roman), [](kernix& app, robot& user) {
		user.choose_row(list, 0);
		enter(user, name_field, "7");
		user.click(set_button);
		EXPECT_EQ(name_octets(app),
			hex("0000 0002 001e 0001 0000 0000 0000 0006 0000 0001 0000 0000 0007 0006 0006"
				"a92032303037 a92032303037"));
	});
}


TEST(name_panel, converts_a_text_that_is_set_in_another_encoding)
{
	at_names(hex("0000 0001 0012 0003 0001 0409 0001 0004 0000 0041 00e9"),
		[](kernix& app, robot& user) {
			user.choose_row(list, 0);
			enter(user, platform_field, "1");
			user.click(set_button);
			EXPECT_EQ(
				user.list_rows(list), (texts{"0001-0001-0409-0001 Aé", "0003-0001-0409-0001 Aé"}));
			EXPECT_EQ(part(name_octets(app), 30, 3), hex("41 c3a9"));
		});
}


TEST(name_panel, takes_nothing_of_the_record_that_was_shown_for_a_new_one)
{
	// The numero sign has two codes.
	const octets names = hex("0000 0001 0012 0001 0001 000b 0001 0002 0000 fa59");
	at_names(names, [](kernix& app, robot& user) {
		user.choose_row(list, 0);
		user.click(add_button);
		put_ids(user, "1", "1", "b", "2");
		put_text(user, data_field, "№");
		user.click(set_button);
		EXPECT_EQ(part(name_octets(app), 30, 4), hex("fa59 8782"));
	});
}


TEST(name_panel, deletes_the_one_that_is_selected_of_two_with_the_same_ids)
{
	at_names(hex("0000 0002 001e 0001 0000 0000 0001 0001 0000 0001 0000 0000 0001 0001 0001 6162"),
		[](kernix&, robot& user) {
			user.choose_row(list, 1);
			user.click(del_button);
			EXPECT_EQ(user.list_rows(list), texts{"0001-0000-0000-0001 a"});
		});
}


TEST(name_panel, shows_the_beginning_of_a_long_text)
{
	// A block, then blanks.
	octets table = hex("0000 0001 0012 0001 0000 0000 0000 00cb 0000 e29688");
	table.resize(18 + 203, ' ');
	at_names(table, [](kernix&, robot& user) {
		user.choose_row(list, 0);
		const BRect inside(
			data_field.x - 245, data_field.y - 4, data_field.x + 220, data_field.y + 4);
		EXPECT_GT(user.count(inside, {0, 0, 0, 255}), 20);
	});
}
