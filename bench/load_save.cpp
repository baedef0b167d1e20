// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "load_save.h"

#include "font/bytes.h"
#include "font/ttf.h"
#include "quiet.h"
#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstring>
#include <fcntl.h>
#include <File.h>
#include <filesystem>
#include <functional>
#include <memory>
#include <unistd.h>
#include <vector>

namespace fs = std::filesystem;

namespace {

// A folder of its own with a copy of the font: what is read and what is written share a file
// system.
class scratch {
public:
	explicit scratch(const std::string& font)
	{
		std::string pattern = fs::temp_directory_path() / "kernix-bench-XXXXXX";
		fFolder = mkdtemp(pattern.data());
		fs::copy_file(font, source());
	}
	~scratch() { fs::remove_all(fFolder); }
	scratch(const scratch&) = delete;
	scratch& operator=(const scratch&) = delete;

	std::string source() const { return fFolder / "source.ttf"; }
	std::string target() const { return fFolder / "target.ttf"; }

private:
	fs::path fFolder;
};

// A file descriptor that closes itself.
class descriptor {
public:
	descriptor(const std::string& path, int mode) : fNumber(open(path.c_str(), mode, 0666)) {}
	~descriptor() { close(fNumber); }
	descriptor(const descriptor&) = delete;
	descriptor& operator=(const descriptor&) = delete;

	bool read(void* buffer, size_t size, size_t place) const
	{
		return pread(fNumber, buffer, size, (off_t)place) == (ssize_t)size;
	}
	bool write(const void* buffer, size_t size, size_t place) const
	{
		return pwrite(fNumber, buffer, size, (off_t)place) == (ssize_t)size;
	}

private:
	int fNumber;
};

struct plain_table {
	std::unique_ptr<uint8_t[]> bytes;
	size_t padded;
};

}


static bool
plain_copy(const scratch& place)
{
	size_t size = fs::file_size(place.source());
	std::unique_ptr<uint8_t[]> bytes(new uint8_t[size]);
	return descriptor(place.source(), O_RDONLY).read(bytes.get(), size, 0)
		&& descriptor(place.target(), O_WRONLY | O_CREAT | O_EXCL).write(bytes.get(), size, 0);
}


// Reads the tables of an undamaged font, in the order of its directory, which it leaves in header.
static bool
read_tables(const std::string& path, std::vector<uint8_t>& header, std::vector<plain_table>& tables)
{
	descriptor file(path, O_RDONLY);
	header.resize(12);
	bool whole = file.read(header.data(), header.size(), 0);
	size_t count = get16(&header[4]);
	header.resize(12 + 16 * count);
	whole = whole && file.read(header.data(), header.size(), 0);
	for (size_t i = 0; whole && i < count; i++) {
		size_t length = get32(&header[12 + 16 * i + 12]);
		size_t padded = (length + 3) / 4 * 4;
		plain_table table = {std::unique_ptr<uint8_t[]>(new uint8_t[padded]), padded};
		memset(table.bytes.get() + length, 0, padded - length);
		whole = file.read(table.bytes.get(), length, get32(&header[12 + 16 * i + 8]));
		tables.push_back(std::move(table));
	}
	return whole;
}


static bool
floor_copy(const scratch& place)
{
	std::vector<uint8_t> header;
	std::vector<plain_table> tables;
	if (!read_tables(place.source(), header, tables))
		return false;
	descriptor file(place.target(), O_WRONLY | O_CREAT | O_EXCL);
	bool whole = true;
	size_t at = header.size();
	for (size_t i = 0; i < tables.size(); i++) {
		// The program's own way to sum: no quicker one is known here, and this is to be the floor.
		uint32_t total = sum_words(tables[i].bytes.get(), tables[i].padded / 4);
		put32(&header[12 + 16 * i + 4], total);
		whole = whole && file.write(tables[i].bytes.get(), tables[i].padded, at);
		at += tables[i].padded;
	}
	return whole && file.write(header.data(), header.size(), 0);
}


static bool
program_copy(const scratch& place)
{
	BFile source(place.source().c_str(), B_READ_ONLY);
	ttf font;
	if (font.load(source) != 0)
		return false;
	BFile target(place.target().c_str(), B_WRITE_ONLY | B_CREATE_FILE | B_FAIL_IF_EXISTS);
	return target.InitCheck() == B_OK && font.save(target) == 0;
}


static double
median(std::vector<double> values)
{
	auto middle = values.begin() + (ptrdiff_t)values.size() / 2;
	std::nth_element(values.begin(), middle, values.end());
	return *middle;
}


void
load_and_save(benchmark::State& state, const std::string& font)
{
	using clock = std::chrono::steady_clock;
	scratch place(font);
	quiet nothing_said;
	const std::function<bool(const scratch&)> ways[] = {program_copy, plain_copy, floor_copy};
	std::vector<double> seconds[3];
	for (const auto& way : ways) {
		// The first time of each also fills the caches.
		if (!way(place))
			state.SkipWithError("cannot be copied");
		fs::remove(place.target());
	}
	size_t first = 0;
	while (state.KeepRunning()) {
		// Each goes first, second and third in turn: what one leaves behind harms all alike.
		for (size_t k = 0; k < 3; k++) {
			size_t way = (first + k) % 3;
			auto start = clock::now();
			bool done = ways[way](place);
			seconds[way].push_back(std::chrono::duration<double>(clock::now() - start).count());
			if (!done)
				state.SkipWithError("a copy failed");
			fs::remove(place.target());
		}
		first++;
		state.SetIterationTime(seconds[0].back());
	}
	if (seconds[0].empty())
		return;
	double program = median(seconds[0]);
	double copy = median(seconds[1]);
	double floor = median(seconds[2]);
	state.counters["program_ms"] = program * 1e3;
	state.counters["copy_ms"] = copy * 1e3;
	state.counters["floor_ms"] = floor * 1e3;
	state.counters["x_copy"] = program / copy;
	state.counters["x_floor"] = program / floor;
}
