// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_REGION_H
#define KITS_REGION_H

#include <memory>
#include <Rect.h>

class QRegion;

namespace kits {

// A set of whole pixels. Rectangles include their right and bottom edge; the pixels that an edge
// between two pixels touches belong to it.
class region {
public:
	region();
	~region();
	region(const region&) = delete;
	region& operator=(const region&) = delete;

	void add(BRect rect);
	void intersect(BRect rect);
	void move(float dx, float dy);
	void clear();
	bool empty() const;
	BRect bounds() const;
	const QRegion& pixels() const { return *fPixels; }
	void swap(region& other) { fPixels.swap(other.fPixels); }

private:
	std::unique_ptr<QRegion> fPixels;
};

}

#endif
