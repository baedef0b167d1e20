// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Pop-up menus and the fields that they open from.
#include <MenuField.h>
#include <MenuItem.h>
#include <PopUpMenu.h>

#include "platform/interface/form.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMenu>
#include <QWidget>

namespace {

constexpr BPoint place(25, 95);


// A menu of sizes in a field of a palette, aimed at the form.
struct sizes {
	BPopUpMenu* menu = new BPopUpMenu("pt");
	BMenuItem* small = new BMenuItem("12", message(12));
	BMenuItem* large = new BMenuItem("16", message(16));
	BMenuField* field;

	explicit sizes(form* page = nullptr, bool fixed = true, const char* label = nullptr,
		BRect frame = BRect(5, 85, 45, 105))
	{
		menu->AddItem(small);
		menu->AddItem(large);
		field = new BMenuField(
			frame, "point", label, menu, fixed, B_FOLLOW_LEFT | B_FOLLOW_TOP, B_WILL_DRAW);
		if (page) {
			page->locked([&] {
				menu->SetTargetForItems(page);
				page->AddChild(field);
			});
		}
	}

	static BMessage* message(int16 size)
	{
		auto* made = new BMessage('sent');
		made->AddString("from", size == 12 ? "12" : "16");
		return made;
	}
};


// The window of the form is 100 pixels high.
void
with_palette(const std::function<void(form&, robot&)>& user)
{
	with_form([&](form& page, robot& hand) {
		page.Window()->ResizeTo(199, 199);
		page.locked([&] { page.ResizeTo(199, 199); });
		user(page, hand);
	});
}


// True while a menu is open, which is then closed.
bool
popup_was_open(robot& user)
{
	bool open = false;
	user.act([&](QWidget&) {
		open = dynamic_cast<QMenu*>(QApplication::activePopupWidget());
		close_popup();
	});
	user.settle();
	return open;
}

}


TEST(pop_up_menu, is_in_radio_mode_with_its_label_from_what_is_marked)
{
	BPopUpMenu menu("pt");
	EXPECT_TRUE(menu.IsRadioMode());
	EXPECT_TRUE(menu.IsLabelFromMarked());
	EXPECT_EQ(menu.Layout(), B_ITEMS_IN_COLUMN);
	EXPECT_STREQ(menu.Name(), "pt");
	BPopUpMenu other("other", false, false, B_ITEMS_IN_ROW);
	EXPECT_FALSE(other.IsRadioMode());
	EXPECT_FALSE(other.IsLabelFromMarked());
	EXPECT_EQ(other.Layout(), B_ITEMS_IN_ROW);
}


TEST(pop_up_menu, marking_an_item_in_radio_mode_unmarks_the_others)
{
	sizes of;
	EXPECT_EQ(of.menu->FindMarked(), nullptr);
	of.small->SetMarked(true);
	EXPECT_EQ(of.menu->FindMarked(), of.small);
	of.large->SetMarked(true);
	EXPECT_FALSE(of.small->IsMarked());
	EXPECT_EQ(of.menu->FindMarked(), of.large);
	of.small->SetMarked(false);
	EXPECT_TRUE(of.large->IsMarked()) << "unmarking only unmarks";
	of.menu->SetRadioMode(false);
	of.small->SetMarked(true);
	EXPECT_TRUE(of.large->IsMarked());
	delete of.field;
}


TEST(menu_field, owns_its_menu_and_keeps_its_frame)
{
	sizes of;
	EXPECT_EQ(of.field->Menu(), of.menu);
	EXPECT_STREQ(of.field->Label(), "");
	EXPECT_EQ(of.field->Divider(), 0);
	EXPECT_EQ(of.field->Frame(), BRect(5, 85, 45, 105));
	EXPECT_EQ(of.field->Flags(), B_WILL_DRAW);
	delete of.field;
	BMenuField labelled(BRect(0, 0, 199, 20), "field", "Size", new BPopUpMenu("menu"));
	EXPECT_EQ(labelled.Divider(), 99);
	EXPECT_EQ(labelled.Flags(), B_WILL_DRAW | B_NAVIGABLE);
	labelled.SetDivider(40);
	EXPECT_EQ(labelled.Divider(), 40);
	BMenuField none(BRect(0, 0, 199, 20), "field", nullptr, nullptr);
	EXPECT_EQ(none.Menu(), nullptr);
}


TEST(menu_field, says_the_menus_name_until_something_is_marked)
{
	with_palette([](form& page, robot& user) {
		sizes of(&page);
		EXPECT_EQ(user.menu_field_text(place), "pt");
		page.locked([&] { of.large->SetMarked(true); });
		EXPECT_EQ(user.menu_field_text(place), "16");
		page.locked([&] { of.large->SetMarked(false); });
		EXPECT_EQ(user.menu_field_text(place), "pt");
	});
}


TEST(menu_field, always_says_the_name_when_its_label_is_not_from_what_is_marked)
{
	with_palette([](form& page, robot& user) {
		sizes of(&page);
		page.locked([&] {
			of.menu->SetLabelFromMarked(false);
			of.large->SetMarked(true);
		});
		EXPECT_EQ(user.menu_field_text(place), "pt");
		page.locked([&] { of.menu->SetLabelFromMarked(true); });
		EXPECT_EQ(user.menu_field_text(place), "16");
	});
}


TEST(menu_field, a_chosen_item_is_marked_and_sends_its_message)
{
	with_palette([](form& page, robot& user) {
		sizes of(&page);
		bool marked_at_receipt = false;
		page.on_sent = [&](BMessage&) { marked_at_receipt = of.large->IsMarked(); };
		EXPECT_TRUE(user.choose_menu_field(place, "16"));
		EXPECT_EQ(page.senders(), journal{"16"});
		EXPECT_TRUE(marked_at_receipt);
		EXPECT_EQ(user.menu_field_text(place), "16");
		EXPECT_TRUE(user.choose_menu_field(place, "12"));
		EXPECT_EQ(page.senders(), (journal{"16", "12"}));
		EXPECT_EQ(user.menu_field_text(place), "12");
		page.locked([&] { EXPECT_FALSE(of.large->IsMarked()); });
	});
}


TEST(menu_field, choosing_what_is_marked_sends_again_and_keeps_the_mark)
{
	with_palette([](form& page, robot& user) {
		sizes of(&page);
		user.choose_menu_field(place, "16");
		user.choose_menu_field(place, "16");
		EXPECT_EQ(page.senders(), (journal{"16", "16"}));
		EXPECT_EQ(user.menu_field_text(place), "16");
	});
}


TEST(menu_field, the_message_tells_by_what_it_was_sent)
{
	with_palette([](form& page, robot& user) {
		sizes of(&page);
		user.choose_menu_field(place, "16");
		BMessage sent = page.messages().at(0);
		void* source = nullptr;
		EXPECT_EQ(sent.FindPointer("source", &source), B_OK);
		EXPECT_EQ(source, (void*)of.large);
		EXPECT_EQ(sent.FindInt32("index"), 1);
		EXPECT_TRUE(sent.HasInt64("when"));
		BMessenger sender;
		EXPECT_EQ(sent.FindMessenger("be:sender", &sender), B_OK);
		EXPECT_EQ(sender, BMessenger(of.menu));
	});
}


TEST(menu_field, items_that_nobody_has_aimed_send_to_the_window)
{
	with_palette([](form& page, robot& user) {
		auto& window = *static_cast<test_window*>(page.Window());
		sizes of;
		page.put(of.field);
		EXPECT_TRUE(user.choose_menu_field(place, "12"));
		EXPECT_EQ(window.handlers_of('sent'), journal{"test"});
	});
}


TEST(menu_field, shows_items_in_the_order_added_also_later)
{
	with_palette([](form& page, robot& user) {
		sizes of(&page);
		EXPECT_EQ(user.menu_field_items(place), (journal{"12", "16"}));
		page.locked([&] { of.menu->AddItem(new BMenuItem("8&9", nullptr), 0); });
		EXPECT_EQ(user.menu_field_items(place), (journal{"8&9", "12", "16"}));
		EXPECT_TRUE(user.choose_menu_field(place, "8&9"));
		EXPECT_EQ(user.menu_field_text(place), "8&9");
	});
}


TEST(menu_field, an_item_that_is_off_cannot_be_chosen)
{
	with_palette([](form& page, robot& user) {
		sizes of(&page);
		page.locked([&] { of.large->SetEnabled(false); });
		EXPECT_FALSE(user.choose_menu_field(place, "16"));
		EXPECT_FALSE(user.choose_menu_field(place, "none of that name"));
		EXPECT_EQ(page.senders(), journal());
	});
}


TEST(menu_field, two_and_three_digits_fit_a_field_of_41_pixels)
{
	with_palette([](form& page, robot& user) {
		sizes of(&page);
		page.locked([&] {
			auto* item = new BMenuItem("128", nullptr);
			of.menu->AddItem(item);
			item->SetMarked(true);
		});
		EXPECT_EQ(user.menu_field_text(place), "128");
		EXPECT_EQ(user.tooltip(place), "");
	});
}


TEST(menu_field, tells_a_label_that_is_too_long_in_a_tooltip)
{
	with_palette([](form& page, robot& user) {
		sizes of(&page);
		page.locked([&] {
			auto* item = new BMenuItem("a long label", nullptr);
			of.menu->AddItem(item);
			item->SetMarked(true);
		});
		EXPECT_EQ(user.tooltip(place), "a long label");
		EXPECT_NE(user.menu_field_text(place), "a long label");
	});
}


TEST(menu_field, of_a_fixed_size_fills_its_frame_and_another_is_as_wide_as_its_texts)
{
	with_palette([](form& page, robot& user) {
		sizes fixed(&page, true, nullptr, BRect(0, 0, 99, 20));
		sizes free(&page, false, nullptr, BRect(0, 30, 99, 50));
		EXPECT_EQ(user.menu_field_text(BPoint(95, 10)), "pt");
		EXPECT_EQ(user.menu_field_text(BPoint(95, 40)), "");
		EXPECT_EQ(user.menu_field_text(BPoint(10, 40)), "pt");
		page.locked([&] { EXPECT_EQ(free.field->Frame(), BRect(0, 30, 99, 50)); });
	});
}


TEST(menu_field, has_its_label_left_of_the_divider)
{
	with_palette([](form& page, robot& user) {
		sizes of(&page, true, "Size", BRect(0, 0, 99, 20));
		EXPECT_EQ(user.menu_field_text(BPoint(20, 10)), "");
		EXPECT_EQ(user.menu_field_text(BPoint(60, 10)), "pt");
		page.locked([&] { of.field->SetDivider(10); });
		EXPECT_EQ(user.menu_field_text(BPoint(20, 10)), "pt");
		EXPECT_EQ(user.tooltip(BPoint(5, 10)), "Size");
	});
}


TEST(menu_field, is_reached_by_tab_when_it_is_navigable_and_opened_by_keys)
{
	with_palette([](form& page, robot& user) {
		sizes of;
		page.locked([&] {
			of.field->SetFlags(B_WILL_DRAW | B_NAVIGABLE);
			of.small->SetMarked(true);
		});
		page.put(of.field);
		press_tab(user);
		EXPECT_EQ(page.focus(), "point");
		EXPECT_TRUE(user.has_keyboard(place));
		for (Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Down}) {
			user.key_down(key);
			EXPECT_TRUE(popup_was_open(user));
		}
		user.type("a");
		EXPECT_FALSE(popup_was_open(user));
		EXPECT_EQ(page.focus(), "point");
	});
}


TEST(menu_field, does_not_take_the_keyboard_when_clicked)
{
	with_palette([](form& page, robot& user) {
		sizes of(&page);
		BTextControl& field = page.field(BPoint(10, 10), "field", "old");
		user.click(middle(field));
		user.type("x");
		user.choose_menu_field(place, "16");
		EXPECT_EQ(page.focus(), "field");
		EXPECT_EQ(page.senders(), journal{"16"}) << "the field's text is not sent";
	});
}


TEST(menu_field, is_not_opened_by_the_other_mouse_buttons)
{
	with_palette([](form& page, robot& user) {
		sizes of(&page);
		user.click(place, B_SECONDARY_MOUSE_BUTTON);
		EXPECT_FALSE(popup_was_open(user));
		user.click(place);
		EXPECT_TRUE(popup_was_open(user));
		page.locked([&] { EXPECT_EQ(page.pointer, journal()); });
	});
}


TEST(menu_field, removed_and_deleted_while_its_menu_is_open_does_no_harm)
{
	with_palette([](form& page, robot& user) {
		sizes of(&page);
		user.click(place);
		page.locked([&] {
			of.field->RemoveSelf();
			delete of.field;
		});
		user.settle();
		EXPECT_FALSE(popup_was_open(user));
	});
}


TEST(menu_field, can_be_attached_again)
{
	with_palette([](form& page, robot& user) {
		sizes of(&page);
		user.choose_menu_field(place, "16");
		page.locked([&] {
			of.field->RemoveSelf();
			page.AddChild(of.field);
		});
		EXPECT_EQ(user.menu_field_text(place), "16");
		EXPECT_TRUE(user.choose_menu_field(place, "12"));
		EXPECT_EQ(page.senders(), (journal{"16", "12"}));
	});
}
