// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <View.h>

#include "bitmaps/ttf_ebdt.h"
#include "bitmaps/ttf_eblc.h"
#include "font/ttf.h"
#include "font/ttf_head.h"
#include "font/ttf_hhea.h"
#include "font/ttf_maxp.h"
#include "outline/ttf_glyf.h"
#include "outline/ttf_hmtx.h"
#include "support/font_file.h"
#include "support/opened.h"
#include "tables/ttf_cmap.h"
#include "tables/ttf_gasp.h"
#include "tables/ttf_name.h"
#include "tables/ttf_os2.h"
#include "tables/ttf_post.h"

// Directory order is not the order of attaching.
static font_file
font_with_all_panels()
{
	return tiny_font()
		.again("post", "00030000")
		.again("kern", "00")
		.again("EBLC", "00020000 00000000")
		.again("name", "0000 0000 0006")
		.again("gasp", "0000 0000")
		.again("OS/2", "0000")
		.again("EBDT", "00020000");
}


TEST(container_views, are_attached_hidden_in_one_order_without_loca_and_the_unmodelled)
{
	auto font = opened(font_with_all_panels());
	BView parent(BRect(0, 0, 575, 578), "parent", B_FOLLOW_NONE, 0);
	font->set_view(&parent);
	const BView* const order[] = {font->os2, font->cmap, font->glyf, font->head, font->hhea,
		font->hmtx, font->maxp, font->name, font->post, font->gasp, font->ebdt, font->eblc};
	EXPECT_EQ(parent.CountChildren(), 12);
	for (int32 i = 0; i < 12; i++) {
		EXPECT_EQ(parent.ChildAt(i), order[i]) << "child " << i;
		EXPECT_TRUE(order[i]->IsHidden()) << "child " << i;
	}
	font->reset_view(&parent);
}


TEST(container_views, are_taken_back_alive)
{
	auto font = opened(font_with_all_panels());
	BView parent(BRect(0, 0, 575, 578), "parent", B_FOLLOW_NONE, 0);
	font->set_view(&parent);
	font->reset_view(&parent);
	EXPECT_EQ(parent.CountChildren(), 0);
	EXPECT_EQ(kept(font->head), font_with_all_panels().table("head"));
	EXPECT_EQ(font->head->Parent(), nullptr);
}


TEST(container_views, may_be_attached_again_and_shown)
{
	auto font = opened(font_with_all_panels());
	BView parent(BRect(0, 0, 575, 578), "parent", B_FOLLOW_NONE, 0);
	font->set_view(&parent);
	font->reset_view(&parent);
	font->set_view(&parent);
	font->head->show(true);
	EXPECT_FALSE(font->head->IsHidden());
	EXPECT_TRUE(font->maxp->IsHidden());
	font->reset_view(&parent);
}


TEST(container_views, of_a_font_with_only_cmap_are_one)
{
	auto font = opened(font_file().with("cmap", tiny_font().table("cmap")));
	BView parent(BRect(0, 0, 575, 578), "parent", B_FOLLOW_NONE, 0);
	font->set_view(&parent);
	EXPECT_EQ(parent.CountChildren(), 1);
	EXPECT_EQ(parent.ChildAt(0), font->cmap);
	font->reset_view(&parent);
	EXPECT_EQ(parent.CountChildren(), 0);
}
