// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Parents and children, and the hooks that tell a view of its window.
#include "platform/interface/stage.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

constexpr BRect anywhere(0, 0, 9, 9);

// A parent, its child and its grandchild, which note their hooks.
class family {
public:
	family()
	{
		parent->AddChild(child);
		child->AddChild(grandchild);
		parent->notes = child->notes = grandchild->notes = &notes;
	}

	journal notes;
	test_view* parent = new test_view(anywhere, "parent");
	test_view* child = new test_view(anywhere, "child");
	test_view* grandchild = new test_view(anywhere, "grandchild");
};

}


TEST(view_tree, a_new_view_stands_alone)
{
	BView view(anywhere, "alone", B_FOLLOW_NONE, 0);
	EXPECT_EQ(view.Parent(), nullptr);
	EXPECT_EQ(view.Window(), nullptr);
	EXPECT_EQ(view.Looper(), nullptr);
	EXPECT_EQ(view.CountChildren(), 0);
	EXPECT_EQ(view.NextSibling(), nullptr);
	EXPECT_EQ(view.PreviousSibling(), nullptr);
	EXPECT_FALSE(view.IsHidden());
}


TEST(view_tree, a_view_keeps_its_name_flags_and_resizing_mode)
{
	BView view(anywhere, "tool", B_FOLLOW_RIGHT, B_WILL_DRAW | B_FRAME_EVENTS);
	EXPECT_STREQ(view.Name(), "tool");
	EXPECT_EQ(view.Flags(), 0x24000000U);
	EXPECT_EQ(view.ResizingMode(), 0x0404U);
	view.SetFlags(B_NAVIGABLE);
	view.SetResizingMode(B_FOLLOW_BOTTOM);
	EXPECT_EQ(view.Flags(), 0x02000000U);
	EXPECT_EQ(view.ResizingMode(), 0x3030U);
}


TEST(view_tree, children_stand_in_the_order_they_were_added)
{
	BView parent(anywhere, "parent", B_FOLLOW_NONE, 0);
	auto* first = new BView(anywhere, "first", B_FOLLOW_NONE, 0);
	auto* second = new BView(anywhere, "second", B_FOLLOW_NONE, 0);
	parent.AddChild(first);
	parent.AddChild(second);
	EXPECT_EQ(parent.CountChildren(), 2);
	EXPECT_EQ(parent.ChildAt(0), first);
	EXPECT_EQ(parent.ChildAt(1), second);
	EXPECT_EQ(parent.ChildAt(2), nullptr);
	EXPECT_EQ(parent.ChildAt(-1), nullptr);
}


TEST(view_tree, a_child_can_be_put_before_another)
{
	BView parent(anywhere, "parent", B_FOLLOW_NONE, 0);
	auto* last = new BView(anywhere, "last", B_FOLLOW_NONE, 0);
	auto* first = new BView(anywhere, "first", B_FOLLOW_NONE, 0);
	parent.AddChild(last);
	parent.AddChild(first, last);
	EXPECT_EQ(parent.ChildAt(0), first);
	EXPECT_EQ(parent.ChildAt(1), last);
}


TEST(view_tree, siblings_know_each_other)
{
	BView parent(anywhere, "parent", B_FOLLOW_NONE, 0);
	auto* first = new BView(anywhere, "first", B_FOLLOW_NONE, 0);
	auto* second = new BView(anywhere, "second", B_FOLLOW_NONE, 0);
	parent.AddChild(first);
	parent.AddChild(second);
	EXPECT_EQ(first->NextSibling(), second);
	EXPECT_EQ(second->PreviousSibling(), first);
	EXPECT_EQ(first->PreviousSibling(), nullptr);
	EXPECT_EQ(second->NextSibling(), nullptr);
}


TEST(view_tree, a_view_that_has_a_parent_is_not_added_to_another)
{
	BView parent(anywhere, "parent", B_FOLLOW_NONE, 0);
	BView other(anywhere, "other", B_FOLLOW_NONE, 0);
	auto* child = new BView(anywhere, "child", B_FOLLOW_NONE, 0);
	parent.AddChild(child);
	other.AddChild(child);
	EXPECT_EQ(other.CountChildren(), 0);
	EXPECT_EQ(child->Parent(), &parent);
}


TEST(view_tree, no_view_is_no_child)
{
	BView parent(anywhere, "parent", B_FOLLOW_NONE, 0);
	parent.AddChild(nullptr);
	parent.AddChild(&parent);
	EXPECT_EQ(parent.CountChildren(), 0);
}


TEST(view_tree, a_view_finds_itself_and_what_is_below_by_name)
{
	family of;
	EXPECT_EQ(of.parent->FindView("parent"), of.parent);
	EXPECT_EQ(of.parent->FindView("grandchild"), of.grandchild);
	EXPECT_EQ(of.child->FindView("parent"), nullptr);
	EXPECT_EQ(of.parent->FindView("nobody"), nullptr);
	EXPECT_EQ(of.parent->FindView(nullptr), nullptr);
	delete of.parent;
}


TEST(view_tree, of_two_of_one_name_the_first_is_found)
{
	BView parent(anywhere, "parent", B_FOLLOW_NONE, 0);
	auto* first = new BView(anywhere, "same", B_FOLLOW_NONE, 0);
	parent.AddChild(first);
	parent.AddChild(new BView(anywhere, "same", B_FOLLOW_NONE, 0));
	EXPECT_EQ(parent.FindView("same"), first);
}


TEST(view_tree, a_top_level_view_has_a_window_and_no_parent)
{
	sheet page(10, 10);
	BView& view = page.whole();
	EXPECT_NE(view.Window(), nullptr);
	EXPECT_EQ(view.Looper(), view.Window());
	EXPECT_EQ(view.Parent(), nullptr);
}


TEST(view_tree, messages_climb_from_child_to_parent_to_window)
{
	family of;
	sheet page(10, 10);
	page.add(of.parent);
	EXPECT_EQ(of.grandchild->NextHandler(), of.child);
	EXPECT_EQ(of.child->NextHandler(), of.parent);
	EXPECT_EQ(of.parent->NextHandler(), of.parent->Window());
}


TEST(view_tree, an_unknown_message_is_offered_to_each_in_turn)
{
	family of;
	sheet page(10, 10);
	page.add(of.parent);
	BMessage odd('oddd');
	of.grandchild->MessageReceived(&odd);
	EXPECT_EQ(of.child->received, std::vector<uint32>{'oddd'});
	EXPECT_EQ(of.parent->received, std::vector<uint32>{'oddd'});
}


TEST(view_tree, hooks_run_from_the_parent_down_and_all_attached_from_below)
{
	family of;
	sheet page(10, 10);
	page.add(of.parent);
	EXPECT_EQ(of.notes,
		(journal{"parent attached", "child attached", "grandchild attached",
			"grandchild all attached", "child all attached", "parent all attached"}));
}


TEST(view_tree, nothing_is_attached_without_a_window)
{
	family of;
	EXPECT_EQ(of.notes, journal{});
	EXPECT_EQ(of.grandchild->Window(), nullptr);
	delete of.parent;
}


TEST(view_tree, all_have_their_window_when_the_first_hook_runs)
{
	family of;
	sheet page(10, 10);
	BWindow* seen = nullptr;
	of.parent->on_attached = [&] { seen = of.grandchild->Window(); };
	page.add(of.parent);
	EXPECT_EQ(seen, of.parent->Window());
	EXPECT_NE(seen, nullptr);
}


TEST(view_tree, a_child_added_by_the_parents_hook_is_attached_at_once_and_once)
{
	journal notes;
	sheet page(10, 10);
	auto* parent = new test_view(anywhere, "parent");
	auto* child = new test_view(anywhere, "child");
	parent->notes = child->notes = &notes;
	parent->on_attached = [&] {
		parent->AddChild(child);
		notes.push_back("hook ends");
	};
	page.add(parent);
	EXPECT_EQ(notes,
		(journal{"parent attached", "child attached", "child all attached", "hook ends",
			"parent all attached"}));
}


TEST(view_tree, a_child_removed_by_the_parents_hook_is_not_attached)
{
	family of;
	sheet page(10, 10);
	of.parent->on_attached = [&] { of.parent->RemoveChild(of.child); };
	page.add(of.parent);
	EXPECT_EQ(std::count(of.notes.begin(), of.notes.end(), "child attached"), 0);
	EXPECT_EQ(of.child->Window(), nullptr);
	delete of.child;
}


TEST(view_tree, a_child_added_to_an_attached_view_is_attached)
{
	family of;
	sheet page(10, 10);
	BView& parent = page.whole();
	parent.AddChild(of.parent);
	EXPECT_EQ(of.notes.size(), 6U);
	EXPECT_EQ(of.grandchild->Window(), parent.Window());
}


TEST(view_tree, detaching_tells_the_view_before_its_children)
{
	family of;
	sheet page(10, 10);
	page.add(of.parent);
	of.notes.clear();
	page.bitmap.RemoveChild(of.parent);
	EXPECT_EQ(of.notes,
		(journal{"parent detached", "child detached", "grandchild detached",
			"grandchild all detached", "child all detached", "parent all detached"}));
	delete of.parent;
}


TEST(view_tree, a_view_still_has_its_window_when_it_is_told_of_leaving)
{
	sheet page(10, 10);
	test_view view(anywhere);
	BWindow* seen = nullptr;
	view.on_detached = [&] { seen = view.Window(); };
	page.add(&view);
	BWindow* before = view.Window();
	view.RemoveSelf();
	EXPECT_EQ(seen, before);
}


TEST(view_tree, a_removed_view_belongs_to_nobody_but_keeps_its_children)
{
	family of;
	sheet page(10, 10);
	page.add(of.parent);
	EXPECT_TRUE(of.parent->RemoveSelf());
	EXPECT_EQ(of.parent->Window(), nullptr);
	EXPECT_EQ(of.parent->Looper(), nullptr);
	EXPECT_EQ(of.parent->NextHandler(), nullptr);
	EXPECT_EQ(of.grandchild->Window(), nullptr);
	EXPECT_EQ(of.parent->ChildAt(0), of.child);
	delete of.parent;
}


TEST(view_tree, a_view_that_comes_back_is_attached_once_more)
{
	family of;
	sheet page(10, 10);
	page.add(of.parent);
	of.parent->RemoveSelf();
	of.notes.clear();
	page.add(of.parent);
	EXPECT_EQ(of.notes,
		(journal{"parent attached", "child attached", "grandchild attached",
			"grandchild all attached", "child all attached", "parent all attached"}));
}


TEST(view_tree, only_an_own_child_can_be_removed)
{
	BView parent(anywhere, "parent", B_FOLLOW_NONE, 0);
	BView stranger(anywhere, "stranger", B_FOLLOW_NONE, 0);
	EXPECT_FALSE(parent.RemoveChild(&stranger));
	EXPECT_FALSE(parent.RemoveChild(nullptr));
	EXPECT_FALSE(stranger.RemoveSelf());
}


TEST(view_tree, a_grandchild_is_no_child_to_remove)
{
	family of;
	EXPECT_FALSE(of.parent->RemoveChild(of.grandchild));
	EXPECT_EQ(of.grandchild->Parent(), of.child);
	delete of.parent;
}


TEST(view_tree, a_parent_deletes_its_children)
{
	class counted : public BView {
	public:
		explicit counted(int& count) : BView(anywhere, "counted", 0, 0), fCount(count) {}
		~counted() override { fCount++; }

	private:
		int& fCount;
	};
	int deleted = 0;
	auto* parent = new counted(deleted);
	parent->AddChild(new counted(deleted));
	delete parent;
	EXPECT_EQ(deleted, 2);
}


TEST(view_tree, a_message_still_queued_for_a_removed_view_is_dropped)
{
	with_window([](test_window& window, robot& user) {
		test_view view(anywhere);
		window.add(&view);
		window.locked([&] {
			window.PostMessage('late', &view);
			view.RemoveSelf();
		});
		user.settle();
		EXPECT_EQ(view.received, std::vector<uint32>{});
	});
}


TEST(view_tree, a_message_reaches_a_view_of_a_window)
{
	with_window([](test_window& window, robot& user) {
		auto& view = window.add(new test_view(anywhere));
		window.PostMessage('news', &view);
		user.settle();
		window.locked([&] { EXPECT_EQ(view.received, std::vector<uint32>{'news'}); });
	});
}
