// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The palette of the outline editor: its controls and what it paints.
#include "editor/tool_icons.h"
#include "font/palette.h"
#include "program/outline_stage.h"

#include <Bitmap.h>
#include <Button.h>
#include <cstring>
#include <gtest/gtest.h>
#include <ListItem.h>
#include <ListView.h>
#include <QImage>
#include <TextControl.h>

static const int width = 50;
static const int height = 512;


// What a palette without controls would look like that is painted like this.
static QImage
drawn(const std::function<void(BView*)>& paint)
{
	BBitmap bitmap(BRect(0, 0, width - 1, height - 1), B_RGB32, true);
	paint_on(&bitmap, [&](BView* view) {
		view->SetHighColor(255, 204, 68);
		view->FillRect(view->Bounds());
		view->SetHighColor(0, 0, 0);
		view->SetLowColor(200, 200, 0);
		BFont font(be_plain_font);
		font.SetSize(10);
		view->SetFont(&font);
		paint(view);
	});
	auto* bits = static_cast<const uchar*>(bitmap.Bits());
	return QImage(bits, width, height, bitmap.BytesPerRow(), QImage::Format_RGB32).copy();
}


// Whether the palette shows just this in the rectangle.
static testing::AssertionResult
shows(outline_stage& stage, BRect place, const std::function<void(BView*)>& paint)
{
	QImage expected = drawn(paint);
	QImage seen = stage.user.picture();
	for (int y = (int)place.top; y <= (int)place.bottom; y++) {
		for (int x = (int)place.left; x <= (int)place.right; x++) {
			if ((expected.pixel(x, y) ^ seen.pixel(x, y)) & 0xFFFFFF)
				return testing::AssertionFailure() << "another pixel at " << x << ", " << y;
		}
	}
	return testing::AssertionSuccess();
}


static const std::function<void(BView*)> nothing = [](BView*) {};
static const BRect icon_column(30, 100, 46, 207);
static const BRect size_text(10, 300, 40, 312);
static const BRect scale_text(10, 500, 40, 511);


// The six icons, the one of this tool inverted.
static std::function<void(BView*)>
icons(int in_use)
{
	return [in_use](BView* view) {
		const float tops[] = {100, 118, 136, 154, 172, 190};
		for (int i = 0; i < 6; i++)
			draw_tool_icon(view, i, BPoint(30, tops[i]), i == in_use);
	};
}


static std::function<void(BView*)>
text_at(const char* text, BPoint place)
{
	return [=](BView* view) { view->DrawString(text, place); };
}


TEST(outline_palette, has_its_controls_at_their_places)
{
	at_outlines([](outline_stage& stage) {
		const struct {
			const char* name;
			BRect frame;
		} expected[] = {{"chr", BRect(10, 10, 35, 30)}, {"cno", BRect(0, 40, 45, 60)},
			{"gno", BRect(0, 70, 45, 90)}, {"clr/simpl/compo", BRect(5, 400, 45, 420)},
			{"set", BRect(5, 430, 45, 450)}, {"components", BRect(5, 120, 45, 240)},
			{"sub", BRect(0, 260, 45, 280)}, {"add", BRect(5, 300, 45, 320)},
			{"del", BRect(5, 330, 45, 350)}};
		stage.locked([&] {
			EXPECT_EQ(stage.tools.CountChildren(), 9);
			for (const auto& each : expected) {
				BView* control = stage.tools.FindView(each.name);
				ASSERT_NE(control, nullptr) << each.name;
				EXPECT_EQ(control->Frame().LeftTop(), each.frame.LeftTop()) << each.name;
				EXPECT_EQ(control->Frame().right, each.frame.right) << each.name;
				EXPECT_EQ(control->Frame().bottom, each.frame.bottom) << each.name;
				EXPECT_EQ(control->ResizingMode(), (uint32)(B_FOLLOW_LEFT | B_FOLLOW_TOP))
					<< each.name;
			}
		});
	});
}


TEST(outline_palette, labels_its_fields_and_buttons)
{
	at_outlines([](outline_stage& stage) {
		stage.locked([&] {
			EXPECT_STREQ(stage.tools.chr_code->Label(), "chr.");
			EXPECT_STREQ(stage.tools.gno_entry->Label(), "gno.");
			EXPECT_STREQ(stage.tools.component_entry->Label(), "gno.");
			EXPECT_STREQ(stage.tools.set_button->Label(), "set");
			EXPECT_STREQ(stage.tools.add_button->Label(), "add");
			EXPECT_STREQ(stage.tools.del_button->Label(), "del");
			EXPECT_STREQ(stage.tools.component_entry->Text(), "0000");
			const char* label = stage.tools.chr_entry->Label();
			EXPECT_STREQ(label == nullptr ? "" : label, "");
			EXPECT_EQ(stage.tools.chr_entry->Divider(), 0);
			EXPECT_EQ(stage.tools.chr_code->Divider(), 15);
			EXPECT_EQ(stage.tools.gno_entry->Divider(), 15);
			EXPECT_EQ(stage.tools.component_entry->Divider(), 15);
		});
	});
}


TEST(outline_palette, has_room_for_the_labels_of_fields)
{
	at_outlines([](outline_stage& stage) {
		stage.choose("gno", 3);
		// What is cut off is explained.
		for (float y : {50.0f, 80.0f, 270.0f, 310.0f, 340.0f, 410.0f, 440.0f})
			EXPECT_EQ(stage.user.tooltip(BPoint(8, y)), "") << y;
	});
}


TEST(outline_palette, has_the_view_beside_it_and_stays_left)
{
	at_outlines([](outline_stage& stage) {
		stage.locked([&] {
			EXPECT_STREQ(stage.tools.Name(), "tools");
			EXPECT_EQ(stage.tools.Frame().LeftTop(), BPoint(0, 0));
			EXPECT_EQ(stage.tools.Frame().RightBottom(), BPoint(49, 511));
			EXPECT_EQ(stage.tools.ResizingMode(), (uint32)B_FOLLOW_TOP_BOTTOM);
			EXPECT_EQ(stage.edit.Frame().LeftTop(), BPoint(50, 0));
		});
	});
}


TEST(outline_palette, shows_no_glyph_at_first)
{
	at_outlines([](outline_stage& stage) {
		EXPECT_EQ(stage.user.field_text(BPoint(22, 20)), "");
		EXPECT_EQ(stage.user.field_text(BPoint(30, 50)), "ffff");
		EXPECT_EQ(stage.user.field_text(BPoint(30, 80)), "ffff");
		stage.locked([&] { EXPECT_STREQ(stage.tools.mode_button->Label(), "compo"); });
	});
}


TEST(outline_palette, shows_the_glyph_and_its_character)
{
	at_outlines([](outline_stage& stage) {
		const struct {
			int gno;
			const char* chr;
			const char* cno;
			const char* number;
		} expected[] = {{1, "A", "0041", "0001"}, {2, "\xC3\xA9", "00e9", "0002"},
			{3, "\xE3\x81\x82", "3042", "0003"}, {4, "\xE9\x80\x80", "9000", "0004"},
			{5, "", "ffff", "0005"}, {0, "", "0000", "0000"}};
		for (const auto& each : expected) {
			stage.choose("gno", each.gno);
			EXPECT_EQ(stage.user.field_text(BPoint(22, 20)), each.chr) << each.gno;
			EXPECT_EQ(stage.user.field_text(BPoint(30, 50)), each.cno) << each.gno;
			EXPECT_EQ(stage.user.field_text(BPoint(30, 80)), each.number) << each.gno;
		}
	});
}


TEST(outline_palette, paints_the_arrows_of_glyph_and_scale_and_the_icons)
{
	at_outlines([](outline_stage& stage) {
		auto arrows = [](BView* view) {
			palette_arrow(view, BPoint(2, 15), arrow_left);
			palette_arrow(view, BPoint(40, 15), arrow_right);
			palette_arrow(view, BPoint(1, 500), arrow_left);
			palette_arrow(view, BPoint(41, 500), arrow_right);
		};
		// At 100% the text is as wide as the room between the arrows.
		BMessage half('Vchg');
		half.AddFloat("scale", 0.5f);
		stage.tell(half);
		EXPECT_TRUE(shows(stage, BRect(0, 0, 9, 39), arrows));
		EXPECT_TRUE(shows(stage, BRect(36, 0, 49, 39), arrows));
		EXPECT_TRUE(shows(stage, BRect(0, 451, 9, 511), arrows));
		EXPECT_TRUE(shows(stage, BRect(41, 451, 49, 511), arrows));
		EXPECT_TRUE(shows(stage, BRect(0, 91, 49, 399), icons(0)));
	});
}


TEST(outline_palette, inverts_the_icon_of_the_tool_in_use)
{
	at_outlines([](outline_stage& stage) {
		const uint32 codes[] = {'drpi', 'drfr', 'drre', 'drel', 'drpo', 'drro'};
		for (int i = 5; i >= 0; i--) {
			stage.tell(codes[i]);
			EXPECT_TRUE(shows(stage, icon_column, icons(i))) << i;
		}
	});
}


TEST(outline_palette, shows_the_size_for_the_free_hand_tool_alone)
{
	at_outlines([](outline_stage& stage) {
		EXPECT_TRUE(shows(stage, BRect(0, 290, 49, 320), nothing));
		stage.tell('drfr');
		EXPECT_TRUE(shows(stage, size_text, text_at("  0pt", BPoint(15, 310))));
		auto arrows = [](BView* view) {
			palette_arrow(view, BPoint(1, 300), arrow_left);
			palette_arrow(view, BPoint(41, 300), arrow_right);
		};
		EXPECT_TRUE(shows(stage, BRect(0, 290, 9, 320), arrows));
		stage.user.click(BPoint(45, 305));
		EXPECT_TRUE(shows(stage, size_text, text_at("  5pt", BPoint(15, 310))));
		stage.tell('drre');
		EXPECT_TRUE(shows(stage, BRect(0, 290, 49, 320), nothing));
	});
}


TEST(outline_palette, shows_the_scale_in_whole_percent_toward_zero)
{
	at_outlines([](outline_stage& stage) {
		const struct {
			float scale;
			const char* text;
		} expected[] = {{1, "100%"}, {0.25f, " 25%"}, {0.0799f, "  7%"}, {1.9999f, "199%"}};
		for (const auto& each : expected) {
			BMessage message('Vchg');
			message.AddFloat("scale", each.scale);
			stage.tell(message);
			EXPECT_TRUE(shows(stage, scale_text, text_at(each.text, BPoint(15, 510)))) << each.text;
		}
	});
}


TEST(outline_palette, shows_the_components_in_the_place_of_the_tools)
{
	at_outlines([](outline_stage& stage) {
		stage.choose("gno", 3);
		EXPECT_TRUE(shows(stage, BRect(0, 91, 49, 119), text_at("composite", BPoint(0, 100))));
		EXPECT_EQ(stage.user.list_rows(BPoint(20, 180)), (texts{"0001", "0002"}));
		stage.locked([&] {
			EXPECT_FALSE(stage.tools.compo_list->IsHidden());
			EXPECT_FALSE(stage.tools.component_entry->IsHidden());
			EXPECT_FALSE(stage.tools.add_button->IsHidden());
			EXPECT_FALSE(stage.tools.del_button->IsHidden());
			EXPECT_STREQ(stage.tools.mode_button->Label(), "clr");
		});
		EXPECT_TRUE(shows(stage, BRect(46, 101, 49, 499), nothing));
	});
}


TEST(outline_palette, hides_the_components_again_for_a_simple_glyph)
{
	at_outlines([](outline_stage& stage) {
		stage.choose("gno", 3);
		stage.choose("gno", 5);
		EXPECT_TRUE(shows(stage, BRect(0, 91, 49, 399), icons(0)));
		EXPECT_EQ(stage.user.list_rows(BPoint(20, 180)), texts());
		stage.locked([&] {
			EXPECT_TRUE(stage.tools.compo_list->IsHidden());
			EXPECT_TRUE(stage.tools.component_entry->IsHidden());
			EXPECT_TRUE(stage.tools.add_button->IsHidden());
			EXPECT_TRUE(stage.tools.del_button->IsHidden());
		});
	});
}


TEST(outline_palette, has_its_controls_once_when_it_is_attached_again)
{
	at_outlines([](outline_stage& stage) {
		stage.locked([&] {
			BView* panel = stage.tools.Parent();
			panel->RemoveChild(&stage.tools);
			panel->AddChild(&stage.tools);
			EXPECT_EQ(stage.tools.CountChildren(), 9);
		});
		stage.choose("gno", 4);
		EXPECT_EQ(stage.user.list_rows(BPoint(20, 180)), (texts{"0001"}));
	});
}


TEST(outline_palette, has_the_components_when_it_was_hidden_while_they_came)
{
	at_outlines([](outline_stage& stage) {
		stage.locked([&] { stage.tools.Hide(); });
		stage.choose("gno", 3);
		stage.locked([&] { stage.tools.Show(); });
		stage.user.settle();
		EXPECT_EQ(stage.user.list_rows(BPoint(20, 180)), (texts{"0001", "0002"}));
		EXPECT_TRUE(shows(stage, BRect(0, 91, 49, 119), text_at("composite", BPoint(0, 100))));
	});
}


TEST(outline_palette, keeps_sixteen_components_at_most)
{
	at_outlines([](outline_stage& stage) {
		BMessage news('Vchg');
		for (int16 i = 1; i <= 17; i++)
			news.AddInt16("compo", i);
		stage.locked([&] { stage.tools.MessageReceived(&news); });
		texts rows = stage.user.list_rows(BPoint(20, 180));
		ASSERT_EQ(rows.size(), 16u);
		EXPECT_EQ(rows.front(), "0001");
		EXPECT_EQ(rows.back(), "0010");
	});
}
