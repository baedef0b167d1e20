// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "glyphs.h"

#include "font/bytes.h"
#include "font/ttf.h"
#include "font/ttf_head.h"
#include "font/ttf_loca.h"
#include "font/ttf_maxp.h"
#include "outline/glyph.h"
#include "outline/ttf_glyf.h"
#include "quiet.h"
#include "tables/ttf_cmap.h"
#include <algorithm>
#include <chrono>
#include <cstring>
#include <File.h>
#include <ft2build.h>
#include <functional>
#include <memory>
#include <vector>
#include FT_FREETYPE_H

namespace {

// The two of a comparison, each first in turn.
class turns {
public:
	void run(benchmark::State& state, const std::function<void()>& program,
		const std::function<void()>& other)
	{
		const std::function<void()>* ways[] = {&program, &other};
		size_t first = 0;
		while (state.KeepRunning()) {
			for (size_t k = 0; k < 2; k++) {
				size_t way = (first + k) % 2;
				auto start = std::chrono::steady_clock::now();
				(*ways[way])();
				std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
				fSeconds[way].push_back(took.count());
			}
			first++;
			state.SetIterationTime(fSeconds[0].back());
		}
	}

	// Median seconds of the program, 0, or of the other, 1.
	double median(size_t way)
	{
		std::vector<double>& all = fSeconds[way];
		auto middle = all.begin() + (ptrdiff_t)all.size() / 2;
		std::nth_element(all.begin(), middle, all.end());
		return *middle;
	}

private:
	std::vector<double> fSeconds[2];
};


// A face of FreeType's.
class face {
public:
	explicit face(const std::string& path)
	{
		FT_Init_FreeType(&fLibrary);
		if (FT_New_Face(fLibrary, path.c_str(), 0, &fFace) != 0)
			fFace = nullptr;
	}
	~face() { FT_Done_FreeType(fLibrary); }
	face(const face&) = delete;
	face& operator=(const face&) = delete;

	bool open() const { return fFace != nullptr; }
	void load_all()
	{
		for (FT_Long i = 0; i < fFace->num_glyphs; i++)
			benchmark::DoNotOptimize(FT_Load_Glyph(fFace, (FT_UInt)i, FT_LOAD_NO_SCALE));
	}

private:
	FT_Library fLibrary;
	FT_Face fFace;
};


// A copy of glyf and loca, with long offsets, changed by the barest means.
struct bare_glyphs {
	explicit bare_glyphs(const ttf& font);

	uint32 place(size_t index) const { return get32(&loca[4 * index]); }
	void store(size_t index, const std::vector<uint8>& record);

	std::unique_ptr<uint8[]> glyf;
	size_t length;
	std::vector<uint8> loca;
};

}


static bool
open_font(const std::string& path, ttf& font)
{
	quiet nothing_said;
	BFile file(path.c_str(), B_READ_ONLY);
	return font.load(file) == 0 && font.glyf != nullptr && font.loca != nullptr
		&& font.head != nullptr && font.maxp != nullptr;
}


void
decode_glyphs(benchmark::State& state, const std::string& path)
{
	ttf font;
	face judge(path);
	if (!open_font(path, font) || !judge.open()) {
		state.SkipWithError("cannot be opened");
		return;
	}
	int count = (int)font.numglyphs();
	auto decode_all = [&] {
		for (int i = 0; i < count; i++) {
			glyph made((unsigned short)i);
			benchmark::DoNotOptimize(font.get_glyph(i, &made));
		}
	};
	turns both;
	both.run(state, decode_all, [&] { judge.load_all(); });
	state.counters["glyphs_per_s"] = count / both.median(0);
	state.counters["freetype_per_s"] = count / both.median(1);
	state.counters["x_rate"] = both.median(1) / both.median(0);
}


bare_glyphs::bare_glyphs(const ttf& font)
	: glyf(new uint8[font.glyf->length]),
	  length(font.glyf->length),
	  loca(4 * (size_t)font.numglyphs() + 4)
{
	memcpy(glyf.get(), font.glyf->data, length);
	for (uint32 i = 0; i <= font.numglyphs(); i++) {
		bool is_long = font.head->is32loca();
		put32(&loca[4 * i], is_long ? font.loca->u32(4 * i) : 2u * font.loca->u16(2 * i));
	}
}


void
bare_glyphs::store(size_t index, const std::vector<uint8>& record)
{
	size_t start = place(index);
	size_t end = place(index + 1);
	size_t grown = start + record.size() + length - end;
	std::unique_ptr<uint8[]> joined(new uint8[grown]);
	memcpy(joined.get(), glyf.get(), start);
	memcpy(joined.get() + start, record.data(), record.size());
	memcpy(joined.get() + start + record.size(), glyf.get() + end, length - end);
	glyf = std::move(joined);
	length = grown;
	uint32 delta = (uint32)(record.size() - (end - start));
	for (size_t at = 4 * (index + 1); at < loca.size(); at += 4)
		put32(&loca[at], get32(&loca[at]) + delta);
}


void
commit_glyphs(benchmark::State& state, const std::string& path)
{
	ttf font;
	if (!open_font(path, font)) {
		state.SkipWithError("cannot be opened");
		return;
	}
	std::vector<std::unique_ptr<glyph>> chosen;
	for (uint32 k = 0; k < 64; k++) {
		uint32 index = font.numglyphs() * k / 64;
		chosen.push_back(std::make_unique<glyph>((unsigned short)index));
		font.get_glyph((int)index, chosen.back().get());
		// The first time changes its size, the later ones do not.
		font.set_glyph((int)index, chosen.back().get());
	}
	bare_glyphs bare(font);
	std::vector<std::vector<uint8>> records;
	for (const auto& each : chosen)
		records.emplace_back(
			&bare.glyf[bare.place(each->gid)], &bare.glyf[bare.place(each->gid + 1)]);
	turns both;
	both.run(
		state,
		[&] {
			for (const auto& each : chosen)
				font.set_glyph(each->gid, each.get());
		},
		[&] {
			for (size_t k = 0; k < chosen.size(); k++)
				bare.store(chosen[k]->gid, records[k]);
		});
	state.counters["commit_us"] = both.median(0) / 64 * 1e6;
	state.counters["splice_us"] = both.median(1) / 64 * 1e6;
	state.counters["x_splice"] = both.median(0) / both.median(1);
}


// What one glyph of an undamaged font holds.
static glyph_info
walk(const bare_glyphs& font, size_t index)
{
	glyph_info info = {};
	if (font.place(index) == font.place(index + 1))
		return info;
	const uint8* at = &font.glyf[font.place(index)];
	int contours = (int16)get16(at);
	if (contours >= 0)
		return {0, 0, (uint16)contours, (uint16)(get16(at + 8 + 2 * contours) + 1)};
	at += 10;
	for (uint16 flags = 0x20; flags & 0x20;) {
		flags = get16(at);
		glyph_info part = walk(font, get16(at + 2));
		info.components++;
		info.contours += part.contours;
		info.points += part.points;
		info.depth = std::max(info.depth, (uint16)(part.depth + 1));
		at += flags & 0x01 ? 8 : 6;
		at += flags & 0x08 ? 2 : flags & 0x40 ? 4 : flags & 0x80 ? 8 : 0;
	}
	return info;
}


void
recount_glyphs(benchmark::State& state, const std::string& path)
{
	ttf font;
	if (!open_font(path, font)) {
		state.SkipWithError("cannot be opened");
		return;
	}
	bare_glyphs bare(font);
	uint32 count = font.numglyphs();
	turns both;
	both.run(
		state, [&] { font.maxp->update(); },
		[&] {
			glyph_info most[2] = {};
			for (uint32 i = 0; i < count; i++) {
				glyph_info one = walk(bare, i);
				glyph_info& kind = most[one.depth > 0];
				kind.points = std::max(kind.points, one.points);
				kind.contours = std::max(kind.contours, one.contours);
				kind.components = std::max(kind.components, one.components);
				kind.depth = std::max(kind.depth, one.depth);
			}
			benchmark::DoNotOptimize(most);
		});
	state.counters["recount_us"] = both.median(0) * 1e6;
	state.counters["walk_us"] = both.median(1) * 1e6;
	state.counters["x_walk"] = both.median(0) / both.median(1);
}


void
lowest_characters(benchmark::State& state, const std::string& path)
{
	ttf font;
	if (!open_font(path, font)) {
		state.SkipWithError("cannot be opened");
		return;
	}
	const unsigned short count = 1000;
	double seconds = 0;
	while (state.KeepRunning()) {
		auto start = std::chrono::steady_clock::now();
		for (unsigned short i = 0; i < count; i++)
			benchmark::DoNotOptimize(font.cmap->get_chr(i));
		std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
		state.SetIterationTime(took.count());
		seconds += took.count();
	}
	state.counters["lookup_us"] = seconds / (double)state.iterations() / count * 1e6;
}
