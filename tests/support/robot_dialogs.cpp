// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The user's hand on alerts and on the panels that ask for a file.
#include "support/robot.h"

#include <QApplication>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>


namespace {

QFileDialog*
shown_panel()
{
	for (QWidget* widget : QApplication::topLevelWidgets()) {
		auto* dialog = dynamic_cast<QFileDialog*>(widget);
		if (dialog && dialog->isVisible())
			return dialog;
	}
	return nullptr;
}


QWidget*
shown_alert()
{
	for (QWidget* widget : QApplication::topLevelWidgets()) {
		if (widget->objectName() == "alert" && widget->isVisible())
			return widget;
	}
	return nullptr;
}

}


std::string
robot::alert_text()
{
	std::string text;
	on_display([&] {
		QWidget* alert = shown_alert();
		for (QLabel* label : alert ? alert->findChildren<QLabel*>() : QList<QLabel*>())
			text += label->text().toStdString();
	});
	return text;
}


std::vector<std::string>
robot::alert_buttons()
{
	std::vector<std::string> labels;
	on_display([&] {
		QWidget* alert = shown_alert();
		for (auto* button : alert ? alert->findChildren<QPushButton*>() : QList<QPushButton*>())
			labels.push_back(button->text().toStdString());
	});
	return labels;
}


bool
robot::press_alert(const std::string& label)
{
	bool pressed = false;
	settle();
	_Act([&] {
		QWidget* alert = shown_alert();
		for (auto* button : alert ? alert->findChildren<QPushButton*>() : QList<QPushButton*>()) {
			if (button->text().toStdString() == label) {
				button->click();
				pressed = true;
			}
		}
	});
	settle();
	return pressed;
}


bool
robot::panel_is_open()
{
	return count_panels() > 0;
}


int
robot::count_panels()
{
	int found = 0;
	on_display([&] {
		for (QWidget* widget : QApplication::topLevelWidgets())
			found += widget->isVisible() && dynamic_cast<QFileDialog*>(widget);
	});
	return found;
}


void
robot::answer_panel(const std::string& path)
{
	settle();
	// Typed into without the keyboard, the field would leave an earlier choice in force.
	_Act([] {
		if (QFileDialog* panel = shown_panel()) {
			panel->activateWindow();
			panel->findChild<QLineEdit*>("fileNameEdit")->setFocus();
		}
	});
	settle();
	_Act([&] {
		QFileDialog* panel = shown_panel();
		if (!panel)
			return;
		panel->findChild<QLineEdit*>("fileNameEdit")->setText(QString::fromStdString(path));
		QMetaObject::invokeMethod(panel, "accept");
	});
	settle();
}


void
robot::cancel_panel()
{
	settle();
	_Act([] {
		if (QFileDialog* panel = shown_panel())
			panel->close();
	});
	settle();
}


bool
robot::press_question(const std::string& label)
{
	bool pressed = false;
	settle();
	_Act([&] {
		for (QWidget* widget : QApplication::topLevelWidgets()) {
			auto* box = dynamic_cast<QMessageBox*>(widget);
			if (!box || !box->isVisible())
				continue;
			for (QAbstractButton* button : box->buttons()) {
				if (button->text().remove('&').toStdString() == label) {
					button->click();
					pressed = true;
				}
			}
		}
	});
	settle();
	return pressed;
}
