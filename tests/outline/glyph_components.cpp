// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Components: kept, flattened, framed.
#include "outline/shape_fixture.h"

#include <gtest/gtest.h>

namespace {

glyph_ptr
one_box(float left, float top, float right, float bottom)
{
	glyph_ptr made = std::make_unique<glyph>(1);
	made->add_shape(box(left, top, right, bottom).release());
	return made;
}


// What component k is kept as, all its numbers.
std::string
kept(const glyph& in, int k)
{
	char text[128];
	snprintf(text, sizeof text, "%d: %d %d %04x %04x %04x %04x", in.compo[k]->gid, in.compo_dx[k],
		in.compo_dy[k], in.compo_a[k], in.compo_b[k], in.compo_c[k], in.compo_d[k]);
	return text;
}


// A glyph with components of index 10, 11, 12, each with numbers of its own.
glyph_ptr
three_parts()
{
	glyph_ptr made = std::make_unique<glyph>(1);
	for (int k = 0; k < 3; k++) {
		const auto n = (unsigned short)(0x100 * k);
		made->add_compo(new glyph((unsigned short)(10 + k)), (short)(k + 1), (short)(-k - 1),
			n + 0xA, n + 0xB, n + 0xC, n + 0xD);
	}
	return made;
}

}


TEST(glyph_add_compo, keeps_the_component_with_all_its_numbers)
{
	glyph made(1);
	EXPECT_FALSE(made.add_compo(new glyph(7), -3, 400, 0x4000, 0xC000, 0x1234, 0x8000));
	EXPECT_EQ(made.num_compo, 1);
	EXPECT_EQ(kept(made, 0), "7: -3 400 4000 c000 1234 8000");
}


TEST(glyph_add_compo, of_an_eighth_changes_nothing_and_leaves_it_with_the_caller)
{
	glyph made(1);
	for (int k = 0; k < 7; k++)
		ASSERT_FALSE(made.add_compo(new glyph((unsigned short)k), 1, 2, one, 0, 0, one));
	glyph_ptr eighth = std::make_unique<glyph>(99);
	EXPECT_TRUE(made.add_compo(eighth.get(), 5, 6, 1, 2, 3, 4));
	EXPECT_EQ(made.num_compo, 7);
	EXPECT_EQ(kept(made, 6), "6: 1 2 4000 0000 0000 4000");
	EXPECT_EQ(eighth->gid, 99);
}


TEST(glyph_del_compo, closes_the_gap_in_everything)
{
	glyph_ptr made = three_parts();
	EXPECT_FALSE(made->del_compo(0));
	EXPECT_EQ(made->num_compo, 2);
	EXPECT_EQ(kept(*made, 0), "11: 2 -2 010a 010b 010c 010d");
	EXPECT_EQ(kept(*made, 1), "12: 3 -3 020a 020b 020c 020d");
}


TEST(glyph_del_compo, of_the_last_leaves_those_before)
{
	glyph_ptr made = three_parts();
	EXPECT_FALSE(made->del_compo(2));
	EXPECT_EQ(made->num_compo, 2);
	EXPECT_EQ(kept(*made, 1), "11: 2 -2 010a 010b 010c 010d");
}


TEST(glyph_del_compo, of_none_is_true_and_changes_nothing)
{
	glyph_ptr made = three_parts();
	EXPECT_TRUE(made->del_compo(3));
	EXPECT_TRUE(made->del_compo(255));
	EXPECT_EQ(made->num_compo, 3);
}


TEST(glyph_del_compo, leaves_the_frames_until_they_are_made_anew)
{
	glyph_ptr parts = composite(3);
	shape* frame = parts->shapes[3];
	shape* last = parts->shapes[5];
	parts->del_compo(0);
	EXPECT_EQ(parts->num_shape, 3);
	EXPECT_EQ(parts->shapes[3], frame);
	EXPECT_EQ(parts->shapes[5], last);
	EXPECT_EQ(parts->sel_end(), 5);
	parts->clr_composhape();
	parts->create_composhape();
	EXPECT_EQ(order(*parts), "1 2");
	EXPECT_EQ(parts->sel_begin(), 2);
	EXPECT_EQ(parts->sel_end(), 4);
}


TEST(glyph_flattening, adds_the_components_contours_moved_with_their_frames_found)
{
	glyph made(1);
	add_part(made, one_box(10, 20, 30, 40), 100, -5);
	made.create_composhape();
	ASSERT_EQ(made.num_shape, 1);
	EXPECT_EQ(dots(*made.shapes[0]), "110,15 130,15 130,35 110,35");
	EXPECT_EQ(made.shapes[0]->frame, BRect(110, 15, 130, 35));
}


TEST(glyph_flattening, takes_the_components_in_order_and_their_contours_in_order)
{
	glyph made(1);
	add_part(made, squares(2), 0);
	add_part(made, squares(1), 50);
	add_part(made, squares(2), 70);
	made.create_composhape();
	EXPECT_EQ(order(made), "0 1 5 7 8");
}


TEST(glyph_flattening, applies_the_matrix_by_its_whole_part_with_its_sign)
{
	glyph made(1);
	made.add_compo(one_box(1, 2, 3, 4).release(), 100, 0, 0x8000, 0, 0, 0xC000);
	made.add_compo(one_box(1, 2, 3, 4).release(), 100, 0, 0x3FFF, 0x4000, 0xC000, 0x2000);
	made.create_composhape();
	EXPECT_EQ(dots(*made.shapes[0]), "98,-2 94,-2 94,-4 98,-4");
	EXPECT_EQ(dots(*made.shapes[1]), "102,-1 102,-3 104,-3 104,-1");
}


TEST(glyph_flattening, leaves_the_components_as_they_are)
{
	glyph made(1);
	add_part(made, one_box(10, 20, 30, 40), 100, -5);
	made.create_composhape();
	EXPECT_EQ(dots(*made.compo[0]->shapes[0]), "10,20 30,20 30,40 10,40");
}


TEST(glyph_flattening, of_a_composite_component_takes_its_flattened_contours_and_not_its_frames)
{
	glyph made(1);
	add_part(made, composite(2), 100);
	made.create_composhape();
	EXPECT_EQ(order(made), "10 11");
	EXPECT_EQ(made.sel_end(), 3);
}


TEST(glyph_flattening, adds_to_contours_that_are_there)
{
	glyph_ptr made = squares(1);
	add_part(*made, squares(1), 50);
	made->create_composhape();
	EXPECT_EQ(order(*made), "0 5");
}


TEST(glyph_component_frames, are_four_points_around_the_components_contours)
{
	glyph made(1);
	add_part(made, one_box(10, 20, 30, 40), 100, -5);
	made.create_composhape();
	EXPECT_EQ(dots(*made.shapes[1]), "110,15 130,15 130,35 110,35");
	EXPECT_EQ(made.shapes[1]->sel, 0);
}


TEST(glyph_component_frames, have_no_frame_of_their_own_until_they_are_mapped)
{
	glyph made(1);
	add_part(made, one_box(10, 20, 30, 40));
	made.create_composhape();
	EXPECT_EQ(made.shapes[1]->frame, BRect(0, 0, -1, -1));
	made.trans(BRect(0, 0, 9, 9), BRect(0, 0, 9, 9));
	EXPECT_EQ(made.shapes[1]->frame, BRect(10, 20, 30, 40));
}


TEST(glyph_component_frames, go_round_the_contours_of_each_component_in_turn)
{
	glyph made(1);
	add_part(made, squares(2), 0);
	add_part(made, squares(1), 50);
	add_part(made, squares(3), 70);
	made.create_composhape();
	ASSERT_EQ(made.num_shape, 6);
	EXPECT_EQ(dots(*made.shapes[6]), "0,0 15,0 15,5 0,5");
	EXPECT_EQ(dots(*made.shapes[7]), "50,0 55,0 55,5 50,5");
	EXPECT_EQ(dots(*made.shapes[8]), "70,0 95,0 95,5 70,5");
}


TEST(glyph_component_frames, are_counted_from_the_first_contour_whosever_it_is)
{
	glyph_ptr made = squares(1);
	add_part(*made, squares(1), 50);
	made->create_composhape();
	EXPECT_EQ(dots(*made->shapes[2]), "0,0 5,0 5,5 0,5");
}


TEST(glyph_component_frames, of_negative_only_components_stay_odd)
{
	glyph made(1);
	add_part(made, one_box(-30, -40, -10, -20));
	made.create_composhape();
	const shape& frame = *made.shapes[1];
	EXPECT_EQ(frame.pts[0], BPoint(-30, -40));
	EXPECT_EQ(frame.pts[2].x, 1.17549435e-38F);
	EXPECT_EQ(frame.pts[2].y, 1.17549435e-38F);
}


TEST(glyph_component_frames, of_empty_components_are_a_few_units_around_their_offset)
{
	glyph made(1);
	add_part(made, std::make_unique<glyph>(2), 200, -50);
	made.create_composhape();
	ASSERT_EQ(made.num_shape, 0);
	EXPECT_EQ(dots(*made.shapes[0]), "196,-54 204,-54 204,-46 196,-46");
}


TEST(glyph_component_frames, of_components_whose_contours_have_no_points_are_so_too)
{
	glyph made(1);
	glyph_ptr part = std::make_unique<glyph>(2);
	part->add_shape(row(0).release());
	part->add_shape(row(0).release());
	add_part(made, std::move(part), 200, 0);
	add_part(made, one_box(1, 2, 3, 4), 0, 0);
	made.create_composhape();
	ASSERT_EQ(made.num_shape, 3);
	EXPECT_EQ(dots(*made.shapes[3]), "196,-4 204,-4 204,4 196,4");
	EXPECT_EQ(dots(*made.shapes[4]), "1,2 3,2 3,4 1,4");
}


TEST(glyph_component_frames, pass_over_contours_without_points)
{
	glyph made(1);
	glyph_ptr part = one_box(10, 20, 30, 40);
	part->add_shape(row(0).release());
	add_part(made, std::move(part));
	made.create_composhape();
	EXPECT_EQ(dots(*made.shapes[2]), "10,20 30,20 30,40 10,40");
}


TEST(glyph_component_frames, are_replaced_when_flattening_again)
{
	glyph_ptr parts = composite(2);
	parts->create_composhape();
	EXPECT_EQ(order(*parts), "0 1 0 1");
	EXPECT_EQ(parts->sel_begin(), 4);
	EXPECT_EQ(parts->sel_end(), 6);
	EXPECT_EQ(parts->shapes[4]->frame, BRect(0, 0, -1, -1));
	EXPECT_EQ(parts->room(), 506);
}


TEST(glyph_clr_composhape, destroys_contours_and_frames_and_keeps_the_components)
{
	glyph_ptr parts = composite(3);
	parts->clr_composhape();
	EXPECT_EQ(parts->num_shape, 0);
	EXPECT_EQ(parts->num_compo, 3);
	EXPECT_EQ(parts->sel_end(), 0);
	EXPECT_EQ(parts->compo[2]->num_shape, 1);
	parts->create_composhape();
	EXPECT_EQ(order(*parts), "0 1 2");
}


TEST(glyph_moving_a_component, shows_after_clearing_and_flattening)
{
	glyph_ptr parts = composite(2);
	parts->sel_first();
	parts->move_sel(BPoint(30, -7));
	parts->clr_composhape();
	parts->create_composhape();
	EXPECT_EQ(dots(*parts->shapes[0]), "30,7 35,7 35,12 30,12");
	EXPECT_EQ(dots(*parts->shapes[1]), "10,0 15,0 15,5 10,5");
}


TEST(glyph_complete, asks_the_components_too)
{
	glyph_ptr parts = composite(2);
	EXPECT_TRUE(parts->complete());
	parts->compo[1]->partial = true;
	EXPECT_FALSE(parts->complete());
	parts->del_compo(1);
	EXPECT_TRUE(parts->complete());
	parts->partial = true;
	EXPECT_FALSE(parts->complete());
}
