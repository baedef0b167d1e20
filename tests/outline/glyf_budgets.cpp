// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Small fonts whose composites ask for more memory or time than any machine has. Whatever they ask
// for, one glyph takes less than 64 MiB and, like the count of all, next to no time.
#include "font/ttf_loca.h"
#include "font/ttf_maxp.h"
#include "outline/glyf_fixture.h"
#include "outline/shape.h"
#include "support/opened.h"

#include <ctime>
#include <gtest/gtest.h>

namespace {

// Of this thread's own work: what else the machine does does not count. A sound font takes a
// thousandth of it.
constexpr double most_seconds = 10;


class stopwatch {
public:
	double seconds() const { return now() - fStart; }

private:
	static double now()
	{
		timespec time;
		clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
		return double(time.tv_sec) + double(time.tv_nsec) / 1e9;
	}

	double fStart = now();
};


// Bytes of a glyph and all that it owns.
size_t
bytes_of(const glyph& made)
{
	size_t sum = sizeof(glyph) + size_t(made.sel_end()) * sizeof(shape);
	for (int k = 0; k < made.num_compo; k++)
		sum += bytes_of(*made.compo[k]);
	return sum;
}


int
glyphs_in(const glyph& made)
{
	int sum = 1;
	for (int k = 0; k < made.num_compo; k++)
		sum += glyphs_in(*made.compo[k]);
	return sum;
}


// Decodes a glyph as far as it goes, within the bounds.
glyph_ptr
decoded_in_bounds(ttf& font, int index)
{
	stopwatch watch;
	glyph_ptr made = decoded(font, index);
	EXPECT_LT(watch.seconds(), most_seconds);
	EXPECT_LT(bytes_of(*made), size_t(60) << 20);
	return made;
}


void
count_in_bounds(ttf& font)
{
	stopwatch watch;
	font.maxp->update();
	EXPECT_LT(watch.seconds(), most_seconds);
}


// A composite record of these components, one after the other.
octets
naming(const std::vector<uint16_t>& indexes)
{
	octets record = composite_of("");
	for (size_t i = 0; i < indexes.size(); i++) {
		const size_t at = record.size();
		record.resize(at + 6);
		put_be16(record, at, i + 1 < indexes.size() ? 0x20 : 0);
		put_be16(record, at + 2, indexes[i]);
	}
	return record;
}


// So many composites, each of seven times the next; the last glyph is the given record.
font_ptr
sevenfold(uint16_t levels, const octets& last)
{
	std::vector<octets> records;
	for (uint16_t i = 1; i <= levels; i++)
		records.push_back(naming(std::vector<uint16_t>(7, i)));
	records.push_back(last);
	return font_of(records);
}


// So many contours of one point.
octets
dotted(uint16_t contours)
{
	octets record = zeros(10 + 2 * size_t(contours) + 2);
	put_be16(record, 0, contours);
	for (uint16_t i = 0; i < contours; i++)
		put_be16(record, 10 + 2 * size_t(i), i);
	record.resize(record.size() + contours, 0x33);
	record.resize(record.size() + contours, 1);
	return record;
}


// One contour that states 65,535 points, all at (0, 0), in 526 bytes.
octets
repeated()
{
	octets record = hex("0001 0000 0000 0000 0000 fffe 0000");
	for (int i = 0; i < 256; i++) {
		record.push_back(0x39);
		record.push_back(0xFF);
	}
	return record;
}

}


TEST(glyf_budgets, seven_components_of_505_contours_at_each_level_stop_early)
{
	for (uint16_t levels : {1, 2, 3, 4, 8, 31}) {
		font_ptr font = sevenfold(levels, dotted(505));
		glyph_ptr made = decoded_in_bounds(*font, 0);
		EXPECT_FALSE(made->complete()) << levels;
		count_in_bounds(*font);
	}
}


// What there is no memory for does not cost what there is.
TEST(glyf_budgets, a_glyph_of_too_many_contours_shows_as_many_as_it_has_room_for)
{
	for (uint16_t levels : {1, 2, 3, 4, 5, 6, 7, 8}) {
		font_ptr font = sevenfold(levels, dotted(505));
		EXPECT_GE(decoded_in_bounds(*font, 0)->num_shape, 505) << levels;
	}
}


TEST(glyf_budgets, seven_components_of_65535_points_at_each_level_stop_early)
{
	for (uint16_t levels : {1, 2, 3, 4, 5, 6, 31}) {
		font_ptr font = sevenfold(levels, repeated());
		glyph_ptr made = decoded_in_bounds(*font, 0);
		EXPECT_FALSE(made->complete()) << levels;
		EXPECT_GE(made->num_shape, 1) << levels;
		count_in_bounds(*font);
	}
}


// The ends of contours cost time too, also where there is no room for any of them.
TEST(glyf_budgets, seven_components_of_32767_contours_at_each_level_stop_early)
{
	for (uint16_t levels : {3, 5, 6}) {
		font_ptr font = sevenfold(levels, dotted(32767));
		EXPECT_FALSE(decoded_in_bounds(*font, 0)->complete());
		count_in_bounds(*font);
	}
}


TEST(glyf_budgets, empty_glyphs_at_every_level_stop_early)
{
	font_ptr font = sevenfold(31, octets());
	glyph_ptr made = decoded_in_bounds(*font, 0);
	EXPECT_FALSE(made->complete());
	EXPECT_GT(glyphs_in(*made), 3000);
	count_in_bounds(*font);
}


TEST(glyf_budgets, contours_of_no_points_at_every_level_stop_early)
{
	octets none = dotted(505);
	for (size_t at = 10; at < 10 + 2 * 505; at++)
		none[at] = 0xFF;
	for (uint16_t levels : {2, 4, 6})
		EXPECT_FALSE(decoded_in_bounds(*sevenfold(levels, none), 0)->complete());
}


// A chain as deep as components may be nested, with all the contours that there is room for at its
// end: each level holds them once more.
TEST(glyf_budgets, all_contours_of_a_chain_of_32_levels_stop_early)
{
	std::vector<octets> records;
	for (uint16_t i = 1; i <= 32; i++)
		records.push_back(naming({i}));
	records.push_back(dotted(505));
	font_ptr font = font_of(records);
	EXPECT_FALSE(decoded_in_bounds(*font, 0)->complete());
	// One that is used is not nested as deep, and is whole.
	glyph_ptr made = decoded_in_bounds(*font, 26);
	EXPECT_TRUE(made->complete());
	EXPECT_EQ(made->num_shape, 505);
}


// What the bound is made for must not stop at it: the richest composite that there is room for.
TEST(glyf_budgets, seven_full_components_are_read_whole)
{
	font_ptr font = font_of({naming(std::vector<uint16_t>(7, 1)), dotted(512)});
	glyph_ptr made = decoded_in_bounds(*font, 0);
	for (int k = 0; k < 7; k++) {
		EXPECT_EQ(made->compo[k]->num_shape, 512) << k;
		EXPECT_TRUE(made->compo[k]->complete()) << k;
	}
	EXPECT_EQ(made->num_shape, 505);
	EXPECT_FALSE(made->complete());
}


TEST(glyf_budgets, a_later_glyph_is_whole_after_one_that_stopped_early)
{
	std::vector<octets> records;
	for (uint16_t i = 1; i <= 6; i++)
		records.push_back(naming(std::vector<uint16_t>(7, i)));
	records.push_back(dotted(505));
	records.push_back(triangle());
	records.push_back(naming({7, 7}));
	font_ptr font = font_of(records);
	EXPECT_FALSE(decoded_in_bounds(*font, 0)->complete());
	glyph_ptr made = decoded_in_bounds(*font, 8);
	EXPECT_TRUE(made->complete());
	EXPECT_EQ(made->num_shape, 2);
}


// Thousands of components after the seventh are looked over and not decoded.
TEST(glyf_budgets, a_list_of_65536_components_stops_early)
{
	font_ptr font = font_of({naming(std::vector<uint16_t>(65535, 1)), repeated()});
	glyph_ptr made = decoded_in_bounds(*font, 0);
	EXPECT_EQ(made->num_compo, 7);
	EXPECT_FALSE(made->complete());
	EXPECT_EQ(info(*font, 0), (numbers{1, 65535, 65535, 1}));
}


// A font of 65,535 glyphs whose records all are the same long list of components.
static font_ptr
all_the_same(const octets& glyf, uint32_t step)
{
	octets loca = zeros(4 * 65536);
	for (uint32_t i = 0; i < 65536; i++)
		put_be32(loca, 4 * i, i % 2 * step);
	return font_with(glyf, loca, 65535);
}


// Both at byte 0 and at byte 4 a composite begins, so that places that rise and fall give every
// glyph a length.
TEST(glyf_budgets, a_record_of_65547_components_that_all_glyphs_share_is_counted_in_no_time)
{
	octets record = naming(std::vector<uint16_t>(65547, 3));
	for (size_t at = 0; at < 10; at++)
		record[at] = 0xFF;
	font_ptr font = all_the_same(record, 4);
	count_in_bounds(*font);
	decoded_in_bounds(*font, 1);
	decoded_in_bounds(*font, 0);
}


// Each glyph begins a few bytes after the one before and runs to the end of the table.
TEST(glyf_budgets, records_that_overlap_to_the_end_of_the_table_are_counted_in_no_time)
{
	for (const char* filling : {"ffff", "0020", "0021", "ff20", "f020 0001"}) {
		const octets word = hex(filling);
		octets glyf(size_t(760000));
		for (size_t at = 0; at < glyf.size(); at++)
			glyf[at] = word[at % word.size()];
		octets loca = zeros(4 * 65536);
		for (uint32_t i = 0; i < 65536; i++)
			put_be32(loca, 4 * i, i * 10);
		font_ptr font = font_with(glyf, loca, 65535);
		count_in_bounds(*font);
		for (int index : {0, 1, 2, 3, 65534})
			decoded_in_bounds(*font, index);
		stopwatch watch;
		font->glyf->contains(0, 65534);
		EXPECT_LT(watch.seconds(), most_seconds);
	}
}


// Composites of composites of all glyphs: a count that did not keep what it found would never end.
TEST(glyf_budgets, glyphs_that_each_name_the_seven_behind_them_are_counted_in_no_time)
{
	std::vector<octets> records;
	for (uint16_t i = 0; i < 14000; i++) {
		std::vector<uint16_t> behind;
		for (uint16_t k = 1; k <= 7; k++)
			behind.push_back(uint16_t(i + k));
		records.push_back(naming(behind));
	}
	for (int k = 0; k < 7; k++)
		records.push_back(triangle());
	font_ptr font = font_of(records);
	count_in_bounds(*font);
	decoded_in_bounds(*font, 0);
	EXPECT_TRUE(font->glyf->contains(0, 14006));
	EXPECT_FALSE(font->glyf->contains(14006, 0));
}


// The bound of the count is no bound for sound fonts: as many component records as fit into glyf.
TEST(glyf_budgets, every_record_of_a_font_of_composites_alone_is_counted)
{
	std::vector<octets> records = {triangle()};
	for (uint16_t i = 1; i < 20000; i++)
		records.push_back(naming(std::vector<uint16_t>(7, 0)));
	records.push_back(naming(std::vector<uint16_t>(9, 0)));
	font_ptr font = font_of(records);
	count_in_bounds(*font);
	// The composites of the most points, contours and components come last.
	EXPECT_EQ(part(kept(font->maxp), 10, 4), hex("001b 0009"));
	EXPECT_EQ(part(kept(font->maxp), 28, 4), hex("0009 0001"));
}
