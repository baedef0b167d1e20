// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "platform/interface/patch.h"


test_view&
add_patch(test_window& window, rgb_color background)
{
	auto* view = new test_view(patch, "patch");
	view->SetViewColor(background);
	window.AddChild(view);
	return *view;
}
