// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Whatever one system call of a save fails, and wherever the process is killed: the old font is whole
// under its name or the new one is, nobody has gained or lost a right to it, and new contents that
// were complete but could not take the name are still on the disk.
//
// Each call of a save fails once with each of its errors, and the process is killed before and after
// each. With KERNIX_FAULT_TABLE set, what came of it is printed.
#include "faults/errors.h"
#include "faults/ground.h"
#include "faults/traced.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <map>
#include <ostream>
#include <string>
#include <sys/syscall.h>
#include <unistd.h>
#include <vector>

namespace {

// How the place of the save treats it, whatever else happens.
struct surroundings {
	const char* name;
	conditions on;
	rules always;
	// The new contents are written into the old font.
	bool in_place = false;
};


// As a test's parameter.
[[maybe_unused]] void
PrintTo(const surroundings& around, std::ostream* out)
{
	*out << around.name;
}


int
no_nameless_files(const system_call& call)
{
	const bool nameless = call.number == SYS_openat && (call.arguments[2] & O_TMPFILE) == O_TMPFILE;
	return nameless ? EOPNOTSUPP : 0;
}


// As in a folder where nothing may be removed.
int
no_renaming(const system_call& call)
{
	return call.number == SYS_renameat ? EPERM : 0;
}


int
no_renaming_of_hidden(const system_call& call)
{
	return no_renaming(call) != 0 ? EPERM : no_nameless_files(call);
}


// As in a sticky folder where the system protects the files of others from being created once more.
int
no_creating_over(const system_call& call)
{
	const bool over = call.number == SYS_openat && (call.arguments[2] & O_CREAT) != 0
		&& (call.arguments[2] & O_EXCL) == 0;
	return over ? EACCES : 0;
}


// As where /proc is not to be seen.
int
no_linking(const system_call& call)
{
	return call.number == SYS_linkat ? ENOENT : 0;
}


std::string
description(const fault& once)
{
	switch (once.kind) {
		case trouble::NONE:
			return "nothing";
		case trouble::REFUSED:
			return name_of_error(once.error);
		case trouble::ANSWER_LOST:
			return "done+" + name_of_error(once.error);
		case trouble::HALVED:
			return "half";
		case trouble::OVERTAKEN:
			return "overtaken";
		case trouble::KILLED_BEFORE:
			return "killed-before";
		case trouble::KILLED_AFTER:
			return "killed-after";
	}
	return "";
}


// Those of one call but being overtaken.
std::vector<fault>
faults_of(size_t index, const system_call& call)
{
	std::vector<fault> all = {
		{index, trouble::KILLED_BEFORE, 0}, {index, trouble::KILLED_AFTER, 0}};
	for (const int error : errors_of(call)) {
		// A descriptor is closed whatever closing it answers.
		if (call.number != SYS_close) {
			all.push_back({index, trouble::REFUSED, error});
		}
		if (call.number == SYS_close || changes_the_disk(call)) {
			all.push_back({index, trouble::ANSWER_LOST, error});
		}
	}
	if (moves_bytes(call)) {
		all.push_back({index, trouble::HALVED, 0});
	}
	return all;
}


// What one run of a save left.
class aftermath {
public:
	aftermath(
		const ground& where, const surroundings& around, const fault& once, const ended_run& run)
		: fGround(where),
		  fAround(around),
		  fOnce(once),
		  fRun(run),
		  fFont(where.font()),
		  fBeside(where.beside()),
		  fNewBeside(std::count(fBeside.begin(), fBeside.end(), where.new_contents()) > 0)
	{
	}

	// In a few words.
	std::string outcome() const
	{
		std::string result = !fGround.has_font() ? "none"
			: fFont == fGround.new_contents()    ? "new"
			: fFont == fGround.old_contents()    ? "old"
			: is_new_with_tail()                 ? "new and tail"
												 : "part";
		if (!fBeside.empty()) {
			result += fNewBeside ? ", new beside" : ", part beside";
		}
		return result;
	}

	// Why it should not be so; empty when it may.
	std::string offence() const
	{
		if (!fGround.link_leads_there()) {
			return "the link has changed";
		}
		if (replaces() && !old_or_new()) {
			return "the font is neither the old nor the new one";
		}
		if (replaces() && fGround.rights_now() != fGround.rights_before()) {
			return "the rights have changed";
		}
		if (!fRun.killed && fRun.answer == 0 && fFont != fGround.new_contents() && !fNewBeside) {
			return "the new contents are lost";
		}
		// One whose number was not answered nobody can close.
		const bool lost =
			fOnce.kind == trouble::ANSWER_LOST && fRun.calls[fOnce.call].number == SYS_openat;
		if (!fRun.killed && !lost && fRun.left_open != 0) {
			return std::to_string(fRun.left_open) + " descriptors stayed open";
		}
		return offence_beside();
	}

private:
	bool replaces() const
	{
		return fAround.on.over == target::EXISTING || fAround.on.over == target::LINK;
	}

	// A file cannot be written and cut at one blow. The directory tells what belongs to a font.
	bool is_new_with_tail() const
	{
		const std::string& wanted = fGround.new_contents();
		return fAround.in_place && wanted.size() < fGround.old_contents().size()
			&& fFont == wanted + fGround.old_contents().substr(wanted.size());
	}

	bool old_or_new() const
	{
		return fFont == fGround.old_contents() || fFont == fGround.new_contents()
			|| (is_new_with_tail() && fNewBeside);
	}

	std::string offence_beside() const
	{
		for (const std::string& path : fGround.paths_beside()) {
			const rights mine = rights_of(path);
			const rights font = fGround.rights_before();
			if (mine != font && (mine.mode & 077) != 0) {
				return "somebody has rights to " + path;
			}
		}
		const bool part_is_fine = fRun.killed || fOnce.kind == trouble::ANSWER_LOST;
		for (const std::string& contents : fBeside) {
			if (contents != fGround.new_contents() && !part_is_fine) {
				return "a part lies beside the font";
			}
		}
		return fRun.answer != 0 && fNewBeside ? "a file that was given up lies beside the font"
											  : "";
	}

	const ground& fGround;
	const surroundings& fAround;
	const fault fOnce;
	const ended_run& fRun;
	const std::string fFont;
	const std::vector<std::string> fBeside;
	const bool fNewBeside;
};


// Everything that can happen to a save in one kind of surroundings.
class ordeal {
public:
	explicit ordeal(const surroundings& around) : fAround(around), fGround(around.on) {}

	bool can_be_laid() { return fGround.lay(); }

	void endure()
	{
		const ended_run plain = suffer(fault{});
		EXPECT_EQ(plain.answer, 0);
		EXPECT_EQ(fGround.font(), fGround.new_contents());
		EXPECT_EQ(fGround.beside(), std::vector<std::string>());
		say("\n%s: %zu system calls\n", fAround.name, plain.calls.size());
		for (size_t i = 0; i < plain.calls.size(); i++) {
			endure(i, plain.calls[i]);
			if (i > 0 && plain.calls[i].number == SYS_renameat) {
				endure_late_errors(i - 1, plain.calls[i - 1]);
			}
		}
		if (fGround.rights_before().mode != 0 && !fAround.on.folder_is_closed) {
			endure_being_overtaken(plain.calls);
		}
		say("%s: %d runs\n", fAround.name, fRuns);
		EXPECT_GT(fRuns, 100);
	}

private:
	void endure(size_t index, const system_call& call)
	{
		std::map<std::string, std::string> outcomes;
		for (const fault& once : faults_of(index, call)) {
			const ended_run run = suffer(once);
			ASSERT_EQ(run.calls[index].number, call.number) << "another save than the first";
			const aftermath after(fGround, fAround, once, run);
			outcomes[after.outcome()] += ' ' + description(once);
			EXPECT_EQ(after.offence(), "") << "call " << index << ", " << name_of(call) << ": "
										   << description(once) << "; left: " << after.outcome();
		}
		for (const auto& [outcome, causes] : outcomes) {
			say("%3zu %-13s %-18s <-%s\n", index, name_of(call).c_str(), outcome.c_str(),
				causes.c_str());
		}
	}

	// Closing may tell that bytes have been lost since they were written, and that it was interrupted,
	// which tells nothing.
	void endure_late_errors(size_t index, const system_call& closing)
	{
		ASSERT_EQ(name_of(closing), "close");
		for (const int error : errors_of(closing)) {
			const fault once = {index, trouble::ANSWER_LOST, error};
			const ended_run run = suffer(once);
			EXPECT_EQ(aftermath(fGround, fAround, once, run).outcome(),
				error == EINTR ? "new" : "old, new beside")
				<< name_of_error(error);
		}
	}

	// Another program replaces the font while it is being opened: the last to come has the name.
	void endure_being_overtaken(const std::vector<system_call>& calls)
	{
		for (size_t i = 0; i < calls.size() && !moves_bytes(calls[i]); i++) {
			const ended_run run = suffer({i, trouble::OVERTAKEN, 0, [&] { fGround.overtake(); }});
			EXPECT_EQ(run.answer, 0);
			EXPECT_EQ(run.left_open, 0);
			EXPECT_TRUE(fGround.font() == fGround.new_contents())
				<< "overtaken at call " << i << ", " << name_of(calls[i]);
			EXPECT_EQ(fGround.beside(), std::vector<std::string>());
		}
	}

	ended_run suffer(const fault& once)
	{
		fRuns++;
		fGround.lay();
		return run_traced(
			[&] { fGround.become_user(); }, [&] { return fGround.save(); }, fAround.always, once);
	}

	template <class... Values>
	void say(const char* format, Values... values) const
	{
		if (getenv("KERNIX_FAULT_TABLE") != nullptr) {
			printf(format, values...);
		}
	}

	const surroundings fAround;
	ground fGround;
	int fRuns = 0;
};


const surroundings all_surroundings[] = {
	{"existing_nameless", {}, nullptr},
	{"existing_hidden", {}, no_nameless_files},
	{"link_nameless", {.over = target::LINK}, nullptr},
	{"link_hidden", {.over = target::LINK}, no_nameless_files},
	{"new_nameless", {.over = target::ABSENT}, nullptr},
	{"new_hidden", {.over = target::ABSENT}, no_nameless_files},
	{"dangling_link_nameless", {.over = target::LINK_TO_NOTHING}, nullptr},
	{"dangling_link_hidden", {.over = target::LINK_TO_NOTHING}, no_nameless_files},
	{"access_list_nameless", {.with_list = true}, nullptr},
	{"access_list_hidden", {.with_list = true}, no_nameless_files},
	{"folder_with_list_nameless", {.folder_has_list = true}, nullptr},
	{"folder_with_list_hidden", {.folder_has_list = true}, no_nameless_files},
	{"protected_files", {}, no_creating_over},
	{"without_proc", {}, no_linking},
	{"no_renaming_nameless", {.new_size = 12000}, no_renaming, true},
	{"no_renaming_hidden", {.new_size = 12000}, no_renaming_of_hidden, true},
	{"no_renaming_shorter", {}, no_renaming, true},
	{"closed_folder", {.folder_is_closed = true, .new_size = 12000}, nullptr, true},
	{"closed_folder_shorter", {.folder_is_closed = true}, nullptr, true},
	{"of_somebody_else", {.of_somebody_else = true, .new_size = 12000}, nullptr, true},
	{"of_somebody_else_shorter", {.of_somebody_else = true}, nullptr, true},
};


class save_faults : public testing::TestWithParam<surroundings> {};

}

INSTANTIATE_TEST_SUITE_P(all, save_faults, testing::ValuesIn(all_surroundings),
	[](const auto& test) { return test.param.name; });


TEST_P(save_faults, leave_the_old_font_or_the_new_one_and_everybodys_rights)
{
	if (!can_trace()) {
		GTEST_SKIP() << "no process may be traced here";
	}
	ordeal all(GetParam());
	if (!all.can_be_laid()) {
		GTEST_SKIP() << "takes the administrator, or a file system with access lists";
	}
	all.endure();
}
