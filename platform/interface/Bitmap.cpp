// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "interface/bitmap_state.h"
#include "interface/window_state.h"

#include <Bitmap.h>
#include <cmath>
#include <Errors.h>

using namespace kits;


namespace {

// 256 MiB of pixels; nothing here needs a tenth of it.
constexpr double most_pixels = 1 << 26;

}


BBitmap::BBitmap(BRect bounds, color_space space, bool acceptsViews, bool)
	: fState(new bitmap_state)
{
	fState->bounds = bounds;
	fState->space = space;
	double width = std::floor(bounds.Width()) + 1;
	double height = std::floor(bounds.Height()) + 1;
	bool known = space == B_RGB32 || space == B_RGBA32;
	if (!known || !bounds.IsValid() || !(width * height <= most_pixels))
		return;
	fState->bits.resize((size_t)(width * height));
	fState->pixels = std::make_unique<canvas>(
		fState->bits.data(), (int32)width, (int32)height, 4 * (int32)width);
	if (!acceptsViews)
		return;
	fState->window =
		new BWindow(BRect(0, 0, bounds.Width(), bounds.Height()), BWindow::offscreen());
	fState->window->fWindow->offscreen = fState->pixels.get();
}


BBitmap::~BBitmap()
{
	delete fState->window;
}


bool
BBitmap::IsValid() const
{
	return fState->pixels != nullptr;
}


status_t
BBitmap::InitCheck() const
{
	return IsValid() ? B_OK : B_BAD_VALUE;
}


void*
BBitmap::Bits() const
{
	return IsValid() ? fState->bits.data() : nullptr;
}


int32
BBitmap::BitsLength() const
{
	return (int32)(4 * fState->bits.size());
}


int32
BBitmap::BytesPerRow() const
{
	return IsValid() ? 4 * fState->pixels->width() : 0;
}


color_space
BBitmap::ColorSpace() const
{
	return fState->space;
}


BRect
BBitmap::Bounds() const
{
	return fState->bounds;
}


void
BBitmap::AddChild(BView* view)
{
	if (fState->window)
		fState->window->AddChild(view);
}


bool
BBitmap::RemoveChild(BView* view)
{
	return fState->window && fState->window->RemoveChild(view);
}


int32
BBitmap::CountChildren() const
{
	return fState->window ? fState->window->CountChildren() : 0;
}


BView*
BBitmap::ChildAt(int32 index) const
{
	return fState->window ? fState->window->ChildAt(index) : nullptr;
}


BView*
BBitmap::FindView(const char* name) const
{
	return fState->window ? fState->window->FindView(name) : nullptr;
}


bool
BBitmap::Lock()
{
	return fState->window && fState->window->Lock();
}


void
BBitmap::Unlock()
{
	if (fState->window)
		fState->window->Unlock();
}


bool
BBitmap::IsLocked() const
{
	return fState->window && fState->window->IsLocked();
}
