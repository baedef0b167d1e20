// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "outline/glyf_fixture.h"

#include "outline/shape.h"
#include "support/font_file.h"
#include "support/opened.h"

#include <cstdio>


font_ptr
font_with(const octets& glyf, const octets& loca, uint16_t glyphs)
{
	octets maxp = tiny_font().table("maxp");
	put_be16(maxp, 4, glyphs);
	return opened(tiny_font().with("glyf", glyf).with("loca", loca).with("maxp", maxp));
}


font_ptr
font_of(const std::vector<octets>& records)
{
	octets glyf;
	octets loca = zeros(4 * records.size() + 4);
	for (size_t i = 0; i < records.size(); i++) {
		glyf.insert(glyf.end(), records[i].begin(), records[i].end());
		put_be32(loca, 4 * i + 4, uint32_t(glyf.size()));
	}
	return font_with(glyf, loca, uint16_t(records.size()));
}


octets
triangle()
{
	return hex("0001 0000 0000 0064 0050 0002 0000"
			   "31 33 27 64 32 50 0000");
}


octets
composite_of(std::string_view components)
{
	octets record = hex("ffff 0000 0000 0000 0000");
	octets rest = hex(components);
	record.insert(record.end(), rest.begin(), rest.end());
	return record;
}


glyph_ptr
decoded(ttf& font, int index)
{
	glyph_ptr made = std::make_unique<glyph>((unsigned short)index);
	EXPECT_EQ(font.get_glyph(index, made.get()), 0);
	return made;
}


std::string
contours(const glyph& of)
{
	std::string text;
	for (int i = 0; i < of.num_shape; i++)
		text += (i > 0 ? " | " : "") + dots(*of.shapes[i]);
	return text;
}


std::string
component(const glyph& of, int k)
{
	char text[128];
	snprintf(text, sizeof text, "%d: %d %d %04x %04x %04x %04x", of.compo[k]->gid, of.compo_dx[k],
		of.compo_dy[k], of.compo_a[k], of.compo_b[k], of.compo_c[k], of.compo_d[k]);
	return text;
}


numbers
info(ttf& font, unsigned short index)
{
	unsigned short depth = 99, components = 99, contours = 99, points = 99;
	EXPECT_EQ(font.glyf->get_info(index, &depth, &components, &contours, &points), 0);
	return {depth, components, contours, points};
}


octets
encoded(const glyph& g, const octets& old)
{
	font_ptr font = font_of({old});
	unsigned long offset = 0;
	unsigned long size = old.size();
	EXPECT_EQ(font->glyf->encode(&g, &offset, &size), 0);
	EXPECT_EQ(offset, 0u);
	EXPECT_EQ(size, font->glyf->length);
	return kept(font->glyf);
}
