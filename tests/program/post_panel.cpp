// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The panel of post: a listing and one field.
#include "app/kernix.h"
#include "font/globals.h"
#include "font/ttf.h"
#include "program/panel_user.h"
#include "support/installed_fonts.h"
#include "support/opened.h"
#include "support/sfnt.h"
#include "support/temp_files.h"
#include "tables/ttf_post.h"

#include <algorithm>
#include <Control.h>
#include <gtest/gtest.h>
#include <Message.h>
#include <Messenger.h>

static const BPoint tag_of_post = place_of_tag(1);
static const BPoint pitch_field = in_panel(170, 460);

// Format 2.0: two glyphs, the second with a name of its own.
static constexpr std::string_view named = "00020000 fff01122 ff9c 0032 00000000"
										  "00000001 0000002f 00000003 abcdef01"
										  "0002 0000 0102 03 616263";


static void
at_panel(const octets& post, const std::function<void(kernix&, robot&)>& work)
{
	temp_file font(font_file().with("cmap", tiny_font().table("cmap")).with("post", post));
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		user.click(tag_of_post);
		work(app, user);
	});
}


static octets
post_octets(kernix& app)
{
	octets table;
	looking(app, [&] { table = kept(curttf->post); });
	return table;
}


static std::vector<line>
lines_with(const char* pitch)
{
	return {
		{"FormatType", "00020000"},
		{"italicAngle", "fff01122"},
		{"underlinePosition", "ff9c"},
		{"underlineThickness", "0032"},
		{"isFixedPitch", pitch},
		{"minMemType42", "00000001"},
		{"maxMemType42", "0000002f"},
		{"minMemType1", "00000003"},
		{"maxMemType1", "abcdef01"},
	};
}


TEST(post_panel, lists_the_header)
{
	at_panel(
		hex(named), [](kernix&, robot& user) { EXPECT_TRUE(shows(user, lines_with("00000000"))); });
}


TEST(post_panel, has_one_field_that_starts_empty)
{
	at_panel(hex(named), [](kernix& app, robot& user) {
		looking(app, [&] {
			ASSERT_EQ(curttf->post->CountChildren(), 1);
			auto* control = dynamic_cast<BControl*>(curttf->post->ChildAt(0));
			ASSERT_NE(control, nullptr);
			EXPECT_STREQ(control->Name(), "isFixedPitch");
			EXPECT_STREQ(control->Label(), "isFixedPitch");
			EXPECT_EQ(control->Frame().LeftTop(), BPoint(20, 450));
			EXPECT_EQ(control->Frame().right, 200);
			EXPECT_TRUE(curttf->post->IsFocus());
		});
		EXPECT_EQ(user.field_text(pitch_field), "");
	});
}


TEST(post_panel, stores_the_pitch_and_keeps_the_names)
{
	at_panel(hex(named), [](kernix&, robot& user) {
		enter(user, pitch_field, "1");
		EXPECT_EQ(user.field_text(pitch_field), "00000001");
		EXPECT_TRUE(shows(user, lines_with("00000001")));
		EXPECT_EQ(saved_table(user, "post"),
			hex("00020000 fff01122 ff9c 0032 00000001 00000001 0000002f 00000003 abcdef01"
				"0002 0000 0102 03 616263"));
	});
}


TEST(post_panel, stores_all_32_bits)
{
	at_panel(hex(named), [](kernix& app, robot& user) {
		enter(user, pitch_field, "0xFEDCBA98");
		EXPECT_EQ(user.field_text(pitch_field), "fedcba98");
		EXPECT_EQ(part(post_octets(app), 12, 4), hex("fedcba98"));
		enter(user, pitch_field, "1000000a7");
		EXPECT_EQ(user.field_text(pitch_field), "000000a7");
		enter(user, pitch_field, "-1");
		EXPECT_EQ(user.field_text(pitch_field), "ffffffff");
		enter(user, pitch_field, "7 8");
		EXPECT_EQ(user.field_text(pitch_field), "00000007");
	});
}


TEST(post_panel, leaves_the_table_alone_for_what_is_no_number)
{
	at_panel(hex(named), [](kernix& app, robot& user) {
		for (const char* text : {"yes", "x", "-"}) {
			enter(user, pitch_field, text);
			EXPECT_EQ(user.field_text(pitch_field), text);
			EXPECT_EQ(post_octets(app), hex(named));
		}
		EXPECT_TRUE(shows(user, lines_with("00000000")));
	});
}


TEST(post_panel, of_a_short_table_lists_what_is_there_and_stores_nothing)
{
	at_panel(hex("00030000 0000ffff 0000 0014 0000"), [](kernix& app, robot& user) {
		enter(user, pitch_field, "1");
		EXPECT_EQ(user.field_text(pitch_field), "00000001");
		EXPECT_EQ(post_octets(app), hex("00030000 0000ffff 0000 0014 0000"));
		EXPECT_TRUE(shows(user,
			{{"FormatType", "00030000"}, {"italicAngle", "0000ffff"}, {"underlinePosition", "0000"},
				{"underlineThickness", "0014"}, {"isFixedPitch", ""}, {"minMemType42", ""},
				{"maxMemType42", ""}, {"minMemType1", ""}, {"maxMemType1", ""}}));
	});
}


TEST(post_panel, starts_empty_again_with_every_font)
{
	temp_file font(font_file().with("cmap", tiny_font().table("cmap")).with("post", named));
	at_panel(hex(named), [&](kernix&, robot& user) {
		enter(user, pitch_field, "1");
		open_file(user, font.path());
		user.click(tag_of_post);
		EXPECT_EQ(user.field_text(pitch_field), "");
	});
}


TEST(post_panel, keeps_the_names_of_a_real_font)
{
	const std::string path = installed_font("ipag.ttf");
	if (path.empty() && !fonts_are_required())
		GTEST_SKIP() << "no ipag.ttf";
	ASSERT_NE(path, "");
	octets expected = sfnt(read_file(path)).table("post");
	ASSERT_EQ(be32(expected, 0), 0x00020000u);
	put_be32(expected, 12, 0x2A);
	journey([&](kernix& app, robot& user) {
		open_file(user, path);
		const std::vector<std::string> tags = listed(app);
		user.click(place_of_tag(int(std::find(tags.begin(), tags.end(), "post") - tags.begin())));
		enter(user, pitch_field, "2a");
		EXPECT_TRUE(same(expected, saved_table(user, "post")));
	});
}


TEST(post_panel, ignores_other_messages)
{
	at_panel(hex(named), [](kernix& app, robot& user) {
		BMessenger(curttf->post).SendMessage('Bhit');
		user.settle();
		EXPECT_EQ(post_octets(app), hex(named));
	});
}
