// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// A user who does whatever comes to mind, for as long as it is told: sessions of the whole program,
// one after another in this process. Fails when the program crashes or does not come to rest, when
// memory grows, and when what was saved is no font.
#include "app/kernix.h"
#include "font/ttf.h"
#include "program/journey.h"
#include "soak/fonts.h"
#include "soak/memory.h"
#include "soak/trail.h"
#include "soak/user.h"
#include "support/live_handlers.h"
#include "support/opened.h"
#include "support/temp_files.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <unistd.h>

struct orders {
	uint64_t seed = 1;
	int seconds = 60;
	// The one session to repeat, from 0; -1 for all there is time for.
	int session = -1;
	// Seconds that an action may take.
	int patience = 60;
};

static const char usage[] =
	"kernix_soak [--seconds N] [--seed N] [--session N] [--patience N]\n"
	"\n"
	"  --seconds N   how long (SOAK_SECONDS, or 60)\n"
	"  --seed N      what repeats it, as far as threads let it (SOAK_SEED, or 1)\n"
	"  --session N   repeats only this session of the seed\n"
	"  --patience N  seconds after which an action counts as hung (60)\n";


static uint64_t
from_environment(const char* name, uint64_t otherwise)
{
	const char* text = getenv(name);
	return text != nullptr ? strtoull(text, nullptr, 10) : otherwise;
}


// False for what is no option.
static bool
read(int argc, char** argv, orders& given)
{
	given.seed = from_environment("SOAK_SEED", given.seed);
	given.seconds = (int)from_environment("SOAK_SECONDS", (uint64_t)given.seconds);
	for (int i = 1; i + 1 < argc; i += 2) {
		const std::string name = argv[i];
		const uint64_t value = strtoull(argv[i + 1], nullptr, 10);
		if (name == "--seed")
			given.seed = value;
		else if (name == "--seconds")
			given.seconds = (int)value;
		else if (name == "--session")
			given.session = (int)value;
		else if (name == "--patience")
			given.patience = (int)value;
		else
			return false;
	}
	return argc % 2 == 1;
}


// What stands in the folder now and is not what the user has put there has been saved, and is a font
// again. Empty when it is.
static std::string
wrong_with_saved(const std::string& folder, const std::map<std::string, octets>& put, int& saved)
{
	for (const auto& entry : std::filesystem::directory_iterator(folder)) {
		const octets contents = read_file(entry.path().string());
		const auto known = put.find(entry.path().string());
		if (known != put.end() && known->second == contents)
			continue;
		saved++;
		trail::note("judging " + entry.path().string());
		ttf font;
		if (loaded(font, contents) != 0)
			return entry.path().string() + " was saved and cannot be opened";
	}
	return "";
}


struct totals {
	long sessions = 0;
	long actions = 0;
	int saved = 0;
};


// One session, from the start of the program to its end. What was wrong, or nothing.
static std::string
live_through(uint64_t seed, const fonts& shelf, totals& sum)
{
	dice chance(seed);
	temp_folder folder;
	const live_handlers alive;
	const int most = chance.one_in(10) ? chance.below(200) : chance.below(60);
	std::string problem;
	std::map<std::string, octets> put;
	journey([&](kernix& app, robot& hand) {
		soak_user user(app, hand, chance, shelf, folder.path());
		user.run(most);
		problem = user.problem();
		put = user.files();
		sum.actions += user.actions();
	});
	sum.sessions++;
	trail::note("the program has gone");
	if (problem.empty() && alive.count() != 0)
		problem = std::to_string(alive.count()) + " views or windows were left over";
	return problem.empty() ? wrong_with_saved(folder.path(), put, sum.saved) : problem;
}


static int
soak(const orders& given, const std::string& log)
{
	using clock = std::chrono::steady_clock;
	const auto end = clock::now() + std::chrono::seconds(given.seconds);
	const fonts shelf;
	memory used;
	totals sum;
	dice seeds(given.seed);
	auto more = [&](int number) {
		return given.session >= 0 ? number <= given.session : clock::now() < end;
	};
	for (int number = 0; more(number); number++) {
		const uint64_t seed = seeds.seed();
		if (given.session >= 0 && number < given.session)
			continue;
		const std::string name =
			"seed " + std::to_string(given.seed) + ", session " + std::to_string(number);
		trail::session(name);
		const std::string problem = live_through(seed, shelf, sum);
		used.sample();
		if (problem.empty())
			continue;
		fprintf(stderr, "soak: %s: %s; what led to it (all of it in %s):\n", name.c_str(),
			problem.c_str(), log.c_str());
		trail::print();
		return 1;
	}
	fprintf(stderr, "soak: %ld sessions, %ld actions, %d files saved\n", sum.sessions, sum.actions,
		sum.saved);
	return used.is_flat() ? 0 : 1;
}


int
main(int argc, char** argv)
{
	orders given;
	if (!read(argc, argv, given)) {
		fputs(usage, stderr);
		return 2;
	}
	setenv("QT_QPA_PLATFORM", "offscreen", 0);
	const std::string log = (std::filesystem::temp_directory_path()
		/ ("kernix-soak-" + std::to_string(getpid()) + ".log"));
	fprintf(stderr, "soak: seed %llu, %d s; every action is in %s\n",
		(unsigned long long)given.seed, given.seconds, log.c_str());
	// What the program says of itself is nothing to look at here.
	if (!freopen("/dev/null", "w", stdout))
		return 2;
	trail::begin(log, given.patience);
	const int result = soak(given, log);
	trail::end();
	if (result == 0)
		std::filesystem::remove(log);
	return result;
}
