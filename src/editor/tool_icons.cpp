// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "editor/tool_icons.h"

#include <View.h>

// A sign other than a blank is a pixel of the icon.
static const char* const icons[tool_icon_count][tool_icon_size] = {
	{
		// An arrow.
		"                ",
		"   #            ",
		"   ##           ",
		"   ###          ",
		"   ####         ",
		"   #####        ",
		"   ######       ",
		"   #######      ",
		"   ########     ",
		"   #########    ",
		"   ######       ",
		"   ## ###       ",
		"   #   ##       ",
		"       ###      ",
		"        ##      ",
		"                ",
	},
	{
		// A pencil and its stroke.
		"                ",
		"           ##   ",
		"          #  #  ",
		"         #   #  ",
		"        # # #   ",
		"       #   #    ",
		"      #   #     ",
		"     #   #      ",
		"    #   #       ",
		"    #  #        ",
		"   ####         ",
		"   ##           ",
		"             #  ",
		"  ###   ##  #   ",
		" #   ###  ##    ",
		"                ",
	},
	{
		// A rectangle with its corners.
		"                ",
		"                ",
		" ###        ### ",
		" # ########## # ",
		" ###        ### ",
		"  #          #  ",
		"  #          #  ",
		"  #          #  ",
		"  #          #  ",
		"  #          #  ",
		"  #          #  ",
		" ###        ### ",
		" # ########## # ",
		" ###        ### ",
		"                ",
		"                ",
	},
	{
		// An ellipse.
		"                ",
		"                ",
		"     ######     ",
		"   ##      ##   ",
		"  #          #  ",
		"  #          #  ",
		" #            # ",
		" #            # ",
		" #            # ",
		" #            # ",
		"  #          #  ",
		"  #          #  ",
		"   ##      ##   ",
		"     ######     ",
		"                ",
		"                ",
	},
	{
		// A polygon with its corners.
		"                ",
		"    ###         ",
		"    # ######### ",
		"    ###      ## ",
		"    # #      ## ",
		"   #   #    #   ",
		"   #    #   #   ",
		"  #      # #    ",
		"  #     ###     ",
		" ###    # #     ",
		" # #    ###     ",
		" ###     #      ",
		"  ###    #      ",
		"     ##  #      ",
		"       ##       ",
		"                ",
	},
	{
		// A smooth curve between control points.
		"                ",
		" ##          ## ",
		" ##  ######  ## ",
		"   ##      ##   ",
		"  #          #  ",
		"  #          #  ",
		" #           #  ",
		" #          #   ",
		" #         #    ",
		" #         #    ",
		"  #         #   ",
		"  #         #   ",
		"   ##      ##   ",
		" ##  ######  ## ",
		" ##          ## ",
		"                ",
	},
};


void
draw_tool_icon(BView* view, int tool, BPoint leftTop, bool in_use)
{
	if (tool < 0 || tool >= tool_icon_count)
		return;
	rgb_color pen = view->HighColor();
	uchar paper = in_use ? 0 : 255;
	BRect place(leftTop, leftTop + BPoint(tool_icon_size - 1, tool_icon_size - 1));
	view->SetHighColor(paper, paper, paper);
	view->FillRect(place);
	view->SetHighColor((uchar)~paper, (uchar)~paper, (uchar)~paper);
	for (int y = 0; y < tool_icon_size; y++) {
		for (int x = 0; x < tool_icon_size; x++) {
			BPoint pixel = leftTop + BPoint((float)x, (float)y);
			if (icons[tool][y][x] != ' ')
				view->FillRect(BRect(pixel, pixel));
		}
	}
	view->SetHighColor(pen);
}
