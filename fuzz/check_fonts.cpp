// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Opens, looks at, saves and opens again every font named, and compares what must not change. Prints
// a line for each; ends with 1 when there was a difference or one took too long. tools/check-fonts
// runs it over folders.
#include "fuzz.h"

#include "font/ttf.h"
#include "support/sfnt.h"
#include "support/temp_files.h"
#include <chrono>
#include <cstdio>
#include <string>

namespace {

// Seconds that a font may take: two, and one for each ten megabytes.
double
allowed(size_t size)
{
	return 2 + (double)size / 10e6;
}


// The first table whose bytes are not those of before, or where its directory differs; empty when
// all are. head holds dates and the adjustment, maxp is counted afresh: of these the rest counts.
std::string
difference(const octets& before, const octets& after)
{
	const sfnt old(before);
	const sfnt fresh(after);
	if (old.tags() != fresh.tags())
		return "the directory";
	for (size_t i = 0; i < old.entries().size(); i++) {
		const std::string& tag = old.entries()[i].tag;
		octets was = old.table(old.entries()[i]);
		octets is = fresh.table(fresh.entries()[i]);
		if (was.size() != is.size())
			return tag;
		if (tag == "head") {
			for (size_t at = 8; at < 36 && at < was.size(); at++) {
				if (at < 12 || at >= 20)
					was[at] = is[at];
			}
		}
		for (size_t at = 6; tag == "maxp" && at < was.size(); at++) {
			if (at < 14 || at >= 28)
				was[at] = is[at];
		}
		if (was != is)
			return tag;
	}
	return "";
}


// True when all is well.
bool
check(const std::string& path)
{
	const octets file = read_file(path);
	const auto start = std::chrono::steady_clock::now();
	ttf font;
	if (load_octets(font, file) != 0) {
		fprintf(stderr, "refused   %s\n", path.c_str());
		return true;
	}
	const octets first = save_octets(font);
	walk(font, 0xFFFF);
	ttf again;
	const bool opens = load_octets(again, first) == 0;
	const octets second = save_octets(again);
	const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
	std::string wrong = opens ? difference(file, first) : "does not open again";
	if (wrong.empty())
		wrong = difference(first, second);
	if (wrong.empty() && took.count() > allowed(file.size()))
		wrong = "too slow";
	fprintf(stderr, "%s %6.2f s %6.1f MiB %s%s%s\n", wrong.empty() ? "same     " : "DIFFERS  ",
		took.count(), (double)file.size() / (1 << 20), path.c_str(), wrong.empty() ? "" : ": ",
		wrong.c_str());
	return wrong.empty();
}

}


int
main(int count, char** paths)
{
	bool well = true;
	for (int i = 1; i < count; i++)
		well = check(paths[i]) && well;
	return well ? 0 : 1;
}
