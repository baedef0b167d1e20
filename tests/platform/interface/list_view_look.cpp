// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// What a user sees of a list.
#include "platform/interface/shown_list.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QHelpEvent>
#include <QListWidget>
#include <QScrollBar>
#include <QToolTip>

namespace {

using numbers = std::vector<int>;

}


TEST(list_view_look, the_user_sees_the_rows_whenever_they_were_added)
{
	with_form([](form& page, robot& user) {
		auto* list = new BListView(BRect(10, 10, 109, 89), "list");
		BStringItem early("early");
		BStringItem late("late");
		list->AddItem(&early);
		page.put(list);
		page.locked([&] { list->AddItem(&late, 0); });
		EXPECT_EQ(user.list_rows(on_list), (journal{"late", "early"}));
		page.locked([&] { list->RemoveItem(&early); });
		EXPECT_EQ(user.list_rows(on_list), journal{"late"});
		page.locked([&] { list->MakeEmpty(); });
		EXPECT_EQ(user.list_rows(on_list), journal());
	});
}


TEST(list_view_look, the_user_sees_an_items_new_text_when_the_row_is_invalidated)
{
	with_form([](form& page, robot& user) {
		shown_list of(page, 2);
		page.locked([&] {
			of.items[1].SetText("new");
			of.list.InvalidateItem(1);
			of.list.InvalidateItem(2);
		});
		EXPECT_EQ(user.list_rows(on_list), (journal{"0", "new"}));
	});
}


TEST(list_view_look, a_row_is_one_line_whatever_is_in_its_text)
{
	with_form([](form& page, robot& user) {
		shown_list of(page, 0);
		page.locked([&] {
			of.add("two\nlines\x1A");
			of.add("\xFFraw");
		});
		EXPECT_EQ(user.list_rows(on_list), (journal{"two lines ", "\xEF\xBF\xBDraw"}));
	});
}


TEST(list_view_look, has_no_bar_and_scrolls_by_the_wheel_and_the_arrow_keys)
{
	with_form([](form& page, robot& user) {
		shown_list of(page, 40);
		user.act([](QWidget& window) {
			for (auto* bar : window.findChildren<QScrollBar*>())
				EXPECT_FALSE(bar->isVisible());
		});
		user.click(row_at(0));
		user.wheel(on_list, 3);
		user.click(row_at(0));
		page.locked([&] { EXPECT_GT(of.list.CurrentSelection(), 3); });
		user.key(Qt::Key_End);
		page.locked([&] { EXPECT_EQ(of.list.CurrentSelection(), 39); });
		EXPECT_TRUE(user.choose_row(on_list, 20));
		page.locked([&] { EXPECT_EQ(of.list.CurrentSelection(), 20); });
	});
}


TEST(list_view_look, is_painted_in_its_own_colours_not_its_parents)
{
	with_form([](form& page, robot& user) {
		shown_list of(page, 1);
		rgb_color grey = {222, 222, 222, 255};
		page.locked([&] {
			page.SetViewColor(0, 0, 0);
			of.list.SetViewColor(222, 222, 222);
			of.list.SetHighColor(0, 0, 255);
		});
		EXPECT_EQ(user.count(BRect(10, 30, 109, 89), grey), 100 * 60);
		EXPECT_LT(user.count(BRect(10, 10, 30, 24), grey), 21 * 15) << "letters";
		EXPECT_GT(user.count(BRect(10, 10, 30, 24), blue), 0);
	});
}


TEST(list_view_look, the_selected_row_and_the_keyboard_can_be_seen)
{
	with_form([](form& page, robot& user) {
		shown_list of(page, 3);
		rgb_color before = user.pixel(BPoint(80, 32));
		rgb_color edge = user.pixel(BPoint(10, 80));
		user.click(row_at(1));
		EXPECT_FALSE(user.pixel(BPoint(80, 32)) == before);
		EXPECT_TRUE(user.pixel(BPoint(80, 48)) == before);
		EXPECT_FALSE(user.pixel(BPoint(10, 80)) == edge);
	});
}


TEST(list_view_look, eight_rows_of_four_digits_fit_the_list_of_a_palette)
{
	with_form([](form& page, robot& user) {
		auto& list = page.put(new BListView(BRect(5, 0, 45, 120), "components"));
		std::deque<BStringItem> items;
		page.locked([&] {
			for (int row = 0; row < 8; row++)
				list.AddItem(&items.emplace_back("dddd"));
		});
		user.act([](QWidget& window) {
			auto* widget = window.findChild<QListWidget*>();
			QRect last = widget->visualItemRect(widget->item(7));
			EXPECT_LE(last.bottom(), 120);
			EXPECT_LE(widget->fontMetrics().horizontalAdvance("dddd"), last.width() - 6);
		});
		page.locked([&] { list.MakeEmpty(); });
	});
}


TEST(list_view_look, a_row_that_is_too_long_is_told_in_a_tooltip_as_it_stands)
{
	with_form([](form& page, robot& user) {
		shown_list of(page, 0);
		page.locked([&] {
			of.add("short");
			of.add("<b>a name that is far too long for the list</b>");
		});
		user.settle();
		journal told;
		user.act([&](QWidget& window) {
			auto* list = window.findChild<QListWidget*>();
			for (int row : {0, 1}) {
				QPoint at = list->visualItemRect(list->item(row)).center();
				QHelpEvent event(QEvent::ToolTip, at, list->viewport()->mapToGlobal(at));
				QCoreApplication::sendEvent(list->viewport(), &event);
				told.push_back(QToolTip::text().toStdString());
				QToolTip::hideText();
			}
		});
		EXPECT_EQ(told.at(0), "");
		EXPECT_NE(told.at(1).find("&lt;b&gt;a name that is far too long for the list&lt;/b&gt;"),
			std::string::npos);
	});
}


TEST(list_view_look, shows_its_rows_and_selection_when_it_is_attached_again)
{
	with_form([](form& page, robot& user) {
		shown_list of(page, 3);
		user.click(row_at(1));
		page.locked([&] {
			of.list.RemoveSelf();
			of.add("more");
			page.AddChild(&of.list);
		});
		EXPECT_EQ(user.list_rows(on_list), (journal{"0", "1", "2", "more"}));
		EXPECT_EQ(user.selected_rows(on_list), numbers{1});
		user.click(row_at(3));
		EXPECT_EQ(of.sent(), (journal{"selected 1", "selected 3"}));
	});
}


TEST(list_view_look, takes_thousands_of_rows)
{
	with_form([](form& page, robot& user) {
		shown_list of(page, 5000);
		EXPECT_EQ(user.list_rows(on_list).size(), 5000u);
		page.locked([&] {
			while (of.list.CountItems() > 0)
				of.list.RemoveItem(of.list.CountItems() - 1);
		});
		EXPECT_EQ(user.list_rows(on_list).size(), 0u);
	});
}
