// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_BUTTON_WIDGETS_H
#define KITS_BUTTON_WIDGETS_H

#include "display/control_look.h"
#include "display/keyboard_holder.h"

#include <QCheckBox>
#include <QPushButton>

namespace kits {

class button_widget : public pressed_holder<QPushButton> {
public:
	button_widget(QWidget* parent, report_address address);

	void set(const control_look& look);

protected:
	void resizeEvent(QResizeEvent* event) override;

private:
	// The label in letters as narrow as it takes.
	void _Fit();

	QString fText;
	QFont fFont;
};

// Shows a tick or none, as the kit says: a click asks the kit, and does not change it here.
class check_widget : public pressed_holder<QCheckBox> {
public:
	check_widget(QWidget* parent, report_address address);

	void set(const control_look& look);

protected:
	void nextCheckState() override {}
	bool hitButton(const QPoint& place) const override { return rect().contains(place); }
	void resizeEvent(QResizeEvent* event) override;

private:
	void _Explain();

	QString fText;
};

}

#endif
