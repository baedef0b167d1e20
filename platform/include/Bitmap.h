// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_BITMAP_H
#define KITS_BITMAP_H

#include <Archivable.h>
#include <GraphicsDefs.h>
#include <memory>
#include <Rect.h>

class BView;
class BWindow;

namespace kits {
struct bitmap_state;
}

// Pixels in memory, which views can draw into. Needs no application object; without a display text
// draws nothing. Only B_RGB32 and B_RGBA32 are offered.
//
// A bitmap that accepts views acts as their window: hold its lock around AddChild(), drawing, Sync()
// and RemoveChild().
class BBitmap : public BArchivable {
public:
	// All pixels start as 0. Invalid bounds or another colour space give an invalid bitmap.
	BBitmap(
		BRect bounds, color_space space, bool acceptsViews = false, bool needsContiguous = false);
	// Deletes the views still attached.
	~BBitmap() override;
	BBitmap(const BBitmap&) = delete;
	BBitmap& operator=(const BBitmap&) = delete;

	bool IsValid() const;
	status_t InitCheck() const;
	// Row y, column x at Bits() + y * BytesPerRow() + 4 * x: blue, green, red, unused.
	void* Bits() const;
	int32 BitsLength() const;
	int32 BytesPerRow() const;
	color_space ColorSpace() const;
	BRect Bounds() const;

	virtual void AddChild(BView* view);
	// Gives the view back; false when it is none of the bitmap's.
	virtual bool RemoveChild(BView* view);
	int32 CountChildren() const;
	BView* ChildAt(int32 index) const;
	BView* FindView(const char* name) const;

	// False when the bitmap accepts no views.
	bool Lock();
	void Unlock();
	bool IsLocked() const;

private:
	friend class BView;

	std::unique_ptr<kits::bitmap_state> fState;
};

#endif
