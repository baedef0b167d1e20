// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// A new font's head, and its panel without a window.
#include "font/messages.h"
#include "font/ttf_head.h"

#include <gtest/gtest.h>

#include <Message.h>
#include <TextControl.h>

#include "support/opened.h"

namespace {

class new_head : public ttf_head {
public:
	new_head() : ttf_head(nullptr, nullptr, 0) {}
	explicit new_head(const octets& contents)
		: ttf_head(nullptr, buffer_of(contents), contents.size())
	{
	}

	octets padded() const { return octets(data, data + (length + 3) / 4 * 4); }
	// Confirms the field with this text.
	void confirm(const char* text)
	{
		field()->SetText(text);
		BMessage changed(msg_changed);
		MessageReceived(&changed);
	}
	BTextControl* field() const { return dynamic_cast<BTextControl*>(ChildAt(0)); }
};

}


static constexpr std::string_view defaults = "00010000 00000000 00000000 5f0f3cf5"
											 "0001 0200"
											 "0000000000000000 0000000000000000"
											 "0000 0000 01ff 01ff"
											 "0000 0006 0001 0001 0000";


TEST(new_head, has_the_default_content)
{
	new_head head;
	EXPECT_EQ(head.length, 54u);
	EXPECT_EQ(kept(&head), hex(defaults));
}


TEST(new_head, is_padded_with_zeros)
{
	new_head head;
	octets padded = hex(defaults);
	padded.resize(56, 0);
	EXPECT_EQ(head.padded(), padded);
}


TEST(new_head, answers_from_its_defaults)
{
	new_head head;
	EXPECT_TRUE(head.is32loca());
	EXPECT_EQ(head.unitsperem(), 512);
	EXPECT_EQ(head.bounds().left, 0.0f);
	EXPECT_EQ(head.bounds().top, 511.0f);
	EXPECT_EQ(head.bounds().right, 511.0f);
	EXPECT_EQ(head.bounds().bottom, 0.0f);
}


TEST(new_head, takes_the_place_of_an_old_content)
{
	new_head head(hex("ffff ffff ffff"));
	head.create_default();
	EXPECT_EQ(kept(&head), hex(defaults));
}


TEST(head_panel_alone, has_its_field_once_however_often_it_is_attached)
{
	new_head head;
	head.AttachedToWindow();
	head.AttachedToWindow();
	EXPECT_EQ(head.CountChildren(), 1);
	EXPECT_STREQ(head.field()->Name(), "fontrevision");
	EXPECT_STREQ(head.field()->Label(), "fontRevision");
	EXPECT_EQ(head.field()->Divider(), 120.0f);
	EXPECT_STREQ(head.field()->Text(), "");
}


TEST(head_panel_alone, stores_and_rewrites_a_confirmed_number)
{
	new_head head;
	head.AttachedToWindow();
	head.confirm("1A");
	EXPECT_EQ(part(kept(&head), 4, 4), hex("0000001a"));
	EXPECT_STREQ(head.field()->Text(), "0000001a");
	head.confirm("89abcdef");
	EXPECT_EQ(part(kept(&head), 4, 4), hex("89abcdef"));
}


TEST(head_panel_alone, stores_nothing_but_the_revision)
{
	new_head head;
	head.AttachedToWindow();
	head.confirm("ffffffff");
	octets expected = hex(defaults);
	put_be32(expected, 4, 0xFFFFFFFF);
	EXPECT_EQ(kept(&head), expected);
}


TEST(head_panel_alone, leaves_a_text_that_is_no_number_and_the_table_alone)
{
	new_head head;
	head.AttachedToWindow();
	head.confirm("zz");
	EXPECT_EQ(kept(&head), hex(defaults));
	EXPECT_STREQ(head.field()->Text(), "zz");
}


TEST(head_panel_alone, never_writes_past_a_short_table)
{
	new_head head(hex("00010000 112233"));
	head.AttachedToWindow();
	head.confirm("ffffffff");
	EXPECT_EQ(head.padded(), hex("00010000 11223300"));
	EXPECT_STREQ(head.field()->Text(), "ffffffff");
}
