// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Files named when a program is started.
#include "app/start_arguments.h"

#include "platform/app/again.h"
#include "support/temp_files.h"

#include <AppDefs.h>
#include <Application.h>
#include <cstdio>
#include <filesystem>
#include <gtest/gtest.h>
#include <Path.h>

namespace {

using words = std::vector<std::string>;


void
print_refs(const BMessage& message)
{
	entry_ref ref;
	for (int32 i = 0; message.FindRef("refs", i, &ref) == B_OK; i++)
		printf("ref %s\n", BPath(&ref).Path());
}


// Says what arrives and in which order, then ends.
class printing_application : public BApplication {
public:
	printing_application() : BApplication("application/x-vnd.test") {}
	void RefsReceived(BMessage* message) override
	{
		printf("hook refs\n");
		print_refs(*message);
	}
	void ReadyToRun() override
	{
		printf("hook ready\n");
		PostMessage(B_QUIT_REQUESTED);
	}
};


// Real paths, so that a temporary folder behind a link compares equal.
std::string
real(const std::string& path)
{
	return std::filesystem::canonical(path).string();
}

}


// The parts of the processes of their own.
TEST(start_arguments, DISABLED_prints_the_references)
{
	const BMessage refs = kits::refs_of_start_arguments();
	EXPECT_EQ(refs.what, (uint32)B_REFS_RECEIVED);
	print_refs(refs);
	printf("field %s\n", refs.HasRef("refs") ? "there" : "none");
}


TEST(start_arguments, DISABLED_runs_an_application)
{
	printing_application().Run();
}


TEST(start_arguments, that_name_nothing_leave_the_message_empty)
{
	const ended result = run_again("start_arguments.DISABLED_prints_the_references");
	EXPECT_EQ(result.status, 0);
	EXPECT_EQ(lines_after("field", result.output), words({"none"}));
}


TEST(start_arguments, that_lead_to_nothing_are_named_in_a_line_each)
{
	const temp_folder folder;
	write_file(folder.path("there.ttf"), octets());
	const ended result = run_again("start_arguments.DISABLED_prints_the_references",
		{"/no/such file.ttf", folder.path("there.ttf"), folder.path("there.ttf/below"), "",
			"two\nlines\x7F\xE9"});
	// The test framework's own options are words like any other.
	words complaints = lines_after("kits_tests: cannot open", result.complaints);
	std::erase_if(
		complaints, [](const std::string& line) { return line.starts_with("\"--gtest_"); });
	EXPECT_EQ(complaints,
		words({"\"/no/such file.ttf\": No such file or directory",
			"\"" + folder.path("there.ttf/below") + "\": Not a directory",
			"\"\": No such file or directory", "\"two?lines?\xE9\": No such file or directory"}));
	EXPECT_EQ(lines_after("ref", result.output), words({real(folder.path("there.ttf"))}));
}


TEST(start_arguments, that_name_something_become_references_in_order)
{
	const temp_folder folder;
	write_file(folder.path("second.ttf"), octets());
	write_file(folder.path("first with space.ttf"), octets());
	std::filesystem::create_directory(folder.path("folder"));
	const ended result = run_again("start_arguments.DISABLED_prints_the_references",
		{folder.path("first with space.ttf"), folder.path("missing.ttf"), "",
			folder.path("second.ttf"), folder.path("folder"), folder.path("second.ttf")});
	EXPECT_EQ(result.status, 0);
	EXPECT_EQ(lines_after("ref", result.output),
		words({real(folder.path("first with space.ttf")), real(folder.path("second.ttf")),
			real(folder.path("folder")), real(folder.path("second.ttf"))}));
}


TEST(start_arguments, may_be_relative)
{
	const temp_folder folder;
	write_file(folder.path("here.ttf"), octets());
	const std::string relative =
		std::filesystem::relative(real(folder.path("here.ttf")), std::filesystem::current_path())
			.string();
	ASSERT_NE(relative[0], '/');
	const ended result =
		run_again("start_arguments.DISABLED_prints_the_references", {relative, "missing.ttf"});
	EXPECT_EQ(lines_after("ref", result.output), words({real(folder.path("here.ttf"))}));
}


TEST(start_arguments, reach_the_application_as_one_message_before_it_is_ready)
{
	const temp_folder folder;
	write_file(folder.path("one.ttf"), octets());
	write_file(folder.path("two.ttf"), octets());
	const ended result = run_again("start_arguments.DISABLED_runs_an_application",
		{folder.path("one.ttf"), folder.path("two.ttf")});
	EXPECT_EQ(result.status, 0);
	EXPECT_EQ(lines_after("hook", result.output), words({"refs", "ready"}));
	EXPECT_EQ(lines_after("ref", result.output),
		words({real(folder.path("one.ttf")), real(folder.path("two.ttf"))}));
}


TEST(start_arguments, without_any_file_the_application_is_ready_at_once)
{
	const ended result =
		run_again("start_arguments.DISABLED_runs_an_application", {"/no/such/file.ttf"});
	EXPECT_EQ(result.status, 0);
	EXPECT_EQ(lines_after("hook", result.output), words({"ready"}));
}
