// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Fonts on a disk that cannot read all of them.
#include <File.h>

#include <gtest/gtest.h>

#include "font/ttf.h"
#include "support/font_file.h"
#include "support/live_handlers.h"
#include "support/opened.h"
#include "support/sfnt.h"
#include "support/temp_files.h"
#include "tables/ttf_cmap.h"

namespace {

// Its bytes from `first_bad` to `last_bad` cannot be read.
class worn_file : public BFile {
public:
	worn_file(const char* path, off_t first_bad, off_t last_bad)
		: BFile(path, B_READ_ONLY),
		  first(first_bad),
		  last(last_bad)
	{
	}

	ssize_t ReadAt(off_t position, void* buffer, size_t size) override
	{
		if (position > last || position + (off_t)size <= first)
			return BFile::ReadAt(position, buffer, size);
		// As from the system: first what comes before the bad byte, then the error.
		if (position < first)
			return BFile::ReadAt(position, buffer, (size_t)(first - position));
		return B_IO_ERROR;
	}

private:
	const off_t first;
	const off_t last;
};


// Whether the font is refused, and nothing of it kept, with any one byte of the range bad.
testing::AssertionResult
refused(const temp_file& on_disk, off_t begin, off_t end)
{
	for (off_t bad = begin; bad < end; bad++) {
		ttf font;
		const live_handlers tables;
		worn_file file(on_disk.path().c_str(), bad, bad);
		if (font.load(file) != 1)
			return testing::AssertionFailure() << "not with byte " << bad;
		if (tables.count() != 0)
			return testing::AssertionFailure() << tables.count() << " tables stayed, byte " << bad;
	}
	return testing::AssertionSuccess();
}

}


TEST(unreadable_font, is_refused_wherever_the_bad_byte_is)
{
	const octets contents = font_file()
								.with("cmap", tiny_font().table("cmap"))
								.with("kern", "01 02 03 04 05")
								.with("zzzz", "06 07 08");
	temp_file on_disk(contents);
	EXPECT_TRUE(refused(on_disk, 0, 12 + 3 * 16)) << "the directory";
	const sfnt tables(contents);
	for (const sfnt_entry& entry : tables.entries())
		EXPECT_TRUE(refused(on_disk, entry.offset, entry.offset + entry.length)) << entry.tag;
}


TEST(unreadable_font, may_have_a_bad_byte_that_belongs_to_no_table)
{
	const octets contents = font_file().with("cmap", tiny_font().table("cmap")).with("kern", "01");
	temp_file on_disk(contents);
	const off_t padding = sfnt(contents).entry("kern").offset + 1;
	worn_file file(on_disk.path().c_str(), padding, padding);
	ttf font;
	EXPECT_EQ(font.load(file), 0);
}


TEST(unreadable_font, is_refused_when_nothing_can_be_read)
{
	temp_file on_disk(tiny_font());
	ttf font;
	worn_file file(on_disk.path().c_str(), 0, 1000000);
	EXPECT_EQ(font.load(file), 1);
}


TEST(unreadable_font, leaves_room_for_the_next)
{
	temp_file on_disk(tiny_font());
	ttf font;
	worn_file file(on_disk.path().c_str(), 300, 300);
	EXPECT_EQ(font.load(file), 1);
	EXPECT_EQ(loaded(font, tiny_font()), 0);
	EXPECT_EQ(kept(font.cmap), tiny_font().table("cmap"));
}
