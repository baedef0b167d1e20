// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// What the user types and what the program sets at the same time.
#include "platform/interface/form.h"

#include <gtest/gtest.h>

namespace {

constexpr BPoint upper(10, 10);


// A view that takes the keyboard when it is pressed, and says so.
class greedy : public test_view {
public:
	explicit greedy(form& page) : test_view(BRect(120, 0, 199, 99), "greedy"), fPage(page) {}

	std::string seen;

	void MouseDown(BPoint) override
	{
		MakeFocus();
		seen = dynamic_cast<BTextControl*>(fPage.FindView("field"))->Text();
		BMessage pressed('sent');
		pressed.AddString("from", "greedy");
		BMessenger(&fPage).SendMessage(&pressed);
	}

private:
	form& fPage;
};

}


TEST(text_control, keeps_what_was_typed_before_the_program_set_a_text_without_knowing)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field");
		user.click(middle(field));
		// Typed while the program holds the lock, so that it cannot know yet.
		page.locked([&] {
			user.act([](QWidget& window) { type_into(window, "typed"); });
			field.SetText("set");
		});
		user.settle();
		EXPECT_EQ(page.text_of(field), "typed");
		EXPECT_EQ(user.field_text(middle(field)), "typed");
		press_return(user);
		EXPECT_EQ(page.senders(), journal{"field"});
	});
}


TEST(text_control, sends_what_was_typed_only_where_it_differs_from_the_programs_text)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field");
		user.click(middle(field));
		page.locked([&] {
			user.act([](QWidget& window) { type_into(window, "same"); });
			field.SetText("same");
		});
		user.settle();
		press_return(user);
		EXPECT_EQ(page.text_of(field), "same");
		EXPECT_EQ(page.senders(), journal());
	});
}


TEST(text_control, takes_the_programs_text_in_place_of_one_that_it_knew)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field");
		user.click(middle(field));
		user.type("typed");
		page.locked([&] { field.SetText("set"); });
		user.settle();
		EXPECT_EQ(page.text_of(field), "set");
		EXPECT_EQ(user.field_text(middle(field)), "set");
		press_return(user);
		EXPECT_EQ(page.senders(), journal());
	});
}


TEST(text_control, takes_the_programs_text_again_when_it_has_been_attached_anew)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field");
		user.click(middle(field));
		user.type("typed");
		page.locked([&] {
			field.RemoveSelf();
			page.AddChild(&field);
		});
		user.click(middle(field));
		user.type("x");
		EXPECT_EQ(page.text_of(field), "x");
		page.locked([&] { field.SetText("set"); });
		EXPECT_EQ(user.field_text(middle(field)), "set");
	});
}


TEST(text_control, confirms_what_was_typed_before_the_view_that_takes_it_goes_on)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field", "old");
		user.click(middle(field));
		auto& view = page.put(new greedy(page));
		page.locked([&] {
			user.act([](QWidget& window) {
				type_into(window, "new");
				click_into(window, BPoint(150, 50));
			});
		});
		user.settle();
		page.locked([&] { EXPECT_EQ(view.seen, "new"); });
		EXPECT_EQ(page.senders(), (journal{"field", "greedy"}));
	});
}
