// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The panel of maxp: a listing and one field.
#include "app/kernix.h"
#include "font/globals.h"
#include "font/ttf.h"
#include "font/ttf_maxp.h"
#include "program/panel_user.h"
#include "support/opened.h"
#include "support/temp_files.h"

#include <gtest/gtest.h>
#include <TextControl.h>

static const BPoint tag_of_maxp = place_of_tag(6);
static const BPoint stack_field = in_panel(170, 460);

static constexpr std::string_view plain = "00010000 0002 0003 0001 0000 0000"
										  "0002 0000 0000 0000 0000 1234 0000 0000 0000";


static octets
stack_elements(kernix& app)
{
	octets field;
	looking(app, [&] { field = part(kept(curttf->maxp), 24, 2); });
	return field;
}


// Opens a font with this maxp and chooses its panel.
static void
at_panel(std::string_view maxp, const std::function<void(kernix&, robot&)>& work)
{
	temp_file font(tiny_font().with("maxp", maxp));
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		user.click(tag_of_maxp);
		work(app, user);
	});
}


static std::vector<line>
lines_with(const char* stack)
{
	return {
		{"tableVersionNumber", "00010000"},
		{"numGlyphs", "0002"},
		{"maxPoints", "0003"},
		{"maxContours", "0001"},
		{"maxCompositePoints", "0000"},
		{"maxCompositeContours", "0000"},
		{"maxZones", "0002"},
		{"maxTwilightPoints", "0000"},
		{"maxStorage", "0000"},
		{"maxFunctionDefs", "0000"},
		{"maxInstructionDefs", "0000"},
		{"maxStackElements", stack},
		{"maxSizeOfInstructions", "0000"},
		{"maxComponentElements", "0000"},
		{"maxComponentDepth", "0000"},
	};
}


TEST(maxp_panel, lists_every_field)
{
	std::string_view maxp = "00010000 fe02 0003 0004 0005 0006"
							"0007 0008 0009 000a 000b 000c 000d 000e 000f";
	at_panel(maxp, [](kernix&, robot& user) {
		EXPECT_TRUE(shows(user,
			{
				{"tableVersionNumber", "00010000"},
				{"numGlyphs", "fe02"},
				{"maxPoints", "0003"},
				{"maxContours", "0004"},
				{"maxCompositePoints", "0005"},
				{"maxCompositeContours", "0006"},
				{"maxZones", "0007"},
				{"maxTwilightPoints", "0008"},
				{"maxStorage", "0009"},
				{"maxFunctionDefs", "000a"},
				{"maxInstructionDefs", "000b"},
				{"maxStackElements", "000c"},
				{"maxSizeOfInstructions", "000d"},
				{"maxComponentElements", "000e"},
				{"maxComponentDepth", "000f"},
			}));
	});
}


TEST(maxp_panel, has_one_field_that_starts_empty)
{
	at_panel(plain, [](kernix& app, robot& user) {
		looking(app, [&] {
			ASSERT_EQ(curttf->maxp->CountChildren(), 1);
			auto* field = dynamic_cast<BTextControl*>(curttf->maxp->ChildAt(0));
			ASSERT_NE(field, nullptr);
			EXPECT_STREQ(field->Name(), "maxstackelements");
			EXPECT_STREQ(field->Label(), "maxStackElements");
			EXPECT_EQ(field->Divider(), 120.0f);
			EXPECT_EQ(field->Frame().LeftTop(), BPoint(20, 450));
			EXPECT_EQ(field->Frame().right, 200.0f);
		});
		EXPECT_EQ(user.field_text(stack_field), "");
	});
}


TEST(maxp_panel, takes_the_keyboard_itself)
{
	at_panel(plain,
		[](kernix& app, robot&) { looking(app, [&] { EXPECT_TRUE(curttf->maxp->IsFocus()); }); });
}


TEST(maxp_panel, stores_and_lists_what_is_typed)
{
	at_panel(plain, [](kernix& app, robot& user) {
		EXPECT_TRUE(shows(user, lines_with("1234")));
		enter(user, stack_field, "ab");
		EXPECT_EQ(stack_elements(app), hex("00ab"));
		EXPECT_EQ(user.field_text(stack_field), "00ab");
		EXPECT_TRUE(shows(user, lines_with("00ab")));
	});
}


TEST(maxp_panel, keeps_the_low_16_bits_of_what_is_typed)
{
	at_panel(plain, [](kernix& app, robot& user) {
		enter(user, stack_field, "12345");
		EXPECT_EQ(stack_elements(app), hex("2345"));
		EXPECT_EQ(user.field_text(stack_field), "2345");
		enter(user, stack_field, "100000005");
		EXPECT_EQ(user.field_text(stack_field), "0005");
	});
}


TEST(maxp_panel, takes_the_number_that_a_text_begins_with)
{
	at_panel(plain, [](kernix& app, robot& user) {
		enter(user, stack_field, " 0x1F zones");
		EXPECT_EQ(stack_elements(app), hex("001f"));
		EXPECT_EQ(user.field_text(stack_field), "001f");
	});
}


TEST(maxp_panel, leaves_a_text_that_is_no_number_and_the_font_alone)
{
	at_panel(plain, [](kernix& app, robot& user) {
		enter(user, stack_field, "zones");
		EXPECT_EQ(stack_elements(app), hex("1234"));
		EXPECT_EQ(user.field_text(stack_field), "zones");
		EXPECT_TRUE(shows(user, lines_with("1234")));
	});
}


TEST(maxp_panel, changes_one_field_of_the_saved_table)
{
	at_panel(plain, [](kernix&, robot& user) {
		enter(user, stack_field, "fedc");
		octets expected = hex(plain);
		put_be16(expected, 24, 0xFEDC);
		EXPECT_EQ(part(saved_table(user, "maxp"), 0, 6), part(expected, 0, 6));
		EXPECT_EQ(part(saved_table(user, "maxp"), 14, 14), part(expected, 14, 14));
	});
}


TEST(maxp_panel, does_not_lengthen_a_short_table)
{
	at_panel("00005000 0002", [](kernix& app, robot& user) {
		enter(user, stack_field, "ab");
		EXPECT_EQ(user.field_text(stack_field), "00ab");
		looking(app, [&] { EXPECT_EQ(kept(curttf->maxp), hex("00005000 0002")); });
	});
}


TEST(maxp_panel, has_its_field_once_when_it_is_attached_again)
{
	at_panel(plain, [](kernix& app, robot& user) {
		enter(user, stack_field, "ab");
		looking(app, [&] {
			BView* parent = curttf->maxp->Parent();
			parent->RemoveChild(curttf->maxp);
			parent->AddChild(curttf->maxp);
			EXPECT_EQ(curttf->maxp->CountChildren(), 1);
		});
		EXPECT_EQ(user.field_text(stack_field), "00ab");
		enter(user, stack_field, "cd");
		EXPECT_EQ(stack_elements(app), hex("00cd"));
	});
}


TEST(maxp_panel, lets_a_drop_reach_the_work_view)
{
	temp_file other(other_font());
	at_panel(plain, [&](kernix& app, robot& user) {
		user.drop(in_panel(300, 300), {other.path()});
		EXPECT_EQ(listed(app).size(), 4u);
	});
}
