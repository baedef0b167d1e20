// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "outline/glyph.h"
#include "outline/shape.h"

#include <cstdio>

int32 cnt_cp = 0;
shape** sh_cp = nullptr;


static void
empty_clipboard()
{
	while (cnt_cp > 0)
		delete sh_cp[--cnt_cp];
}


static shape*
unselected_copy(const shape* contour)
{
	shape* other = contour->copy();
	other->sel = 0;
	return other;
}


void
prepare_clipboard()
{
	if (sh_cp == nullptr)
		sh_cp = new shape*[glyph::max_shapes];
	empty_clipboard();
}


void
glyph::copy()
{
	printf("copy\n");
	if (sh_cp == nullptr)
		return;
	empty_clipboard();
	for (int32 i = 0; i < num_shape && cnt_cp < max_shapes; i++) {
		if (shapes[i]->sel < 0)
			sh_cp[cnt_cp++] = unselected_copy(shapes[i]);
	}
}


void
glyph::paste()
{
	printf("paste\n");
	for (int32 i = 0; i < cnt_cp && room() > 0; i++)
		add_shape(unselected_copy(sh_cp[i]));
}
