// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_MENU_WIDGETS_H
#define KITS_MENU_WIDGETS_H

#include "display/keyboard_holder.h"
#include "display/menu_peers.h"

#include <QLabel>
#include <QMenu>
#include <QPushButton>

namespace kits {

// Both for a menu or a menu bar. Display thread.
void fill_menu(QWidget* menu, const std::vector<menu_entry>& entries, report_address report);
void empty_menu(QWidget* menu);

// Opens the first menu of the window's menu bar for the keyboard. False where there is none.
bool open_menu_bar(const QWidget& window);

// A button that says what is chosen, with an arrow, and opens its menu when it is pressed.
class menu_button : public keyboard_holder<QPushButton> {
public:
	menu_button(QWidget* parent, report_address address);

	void set(const menu_field_look& field);
	// Pixels for the longest of its texts.
	int wanted_width() const;

protected:
	void paintEvent(QPaintEvent* event) override;
	void resizeEvent(QResizeEvent* event) override;
	void mousePressEvent(QMouseEvent* event) override;
	void mouseReleaseEvent(QMouseEvent*) override {}
	void keyPressEvent(QKeyEvent* event) override;

private:
	void _Open();
	void _Fit();

	// Opens as a window of its own.
	QMenu* fMenu;
	QString fText;
};

// Label and button of a menu field.
class menu_field_widget : public QWidget {
public:
	menu_field_widget(QWidget* parent, report_address address);

	void set(const control_look& look, const menu_field_look& field);

protected:
	void resizeEvent(QResizeEvent* event) override;

private:
	void _Arrange();

	QLabel* fLabel;
	menu_button* fButton;
	QString fText;
	int fDivider = 0;
	bool fFixedSize = true;
};

}

#endif
