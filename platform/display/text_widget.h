// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_TEXT_WIDGET_H
#define KITS_TEXT_WIDGET_H

#include "display/control_look.h"
#include "display/keyboard_holder.h"

#include <QLabel>
#include <QLineEdit>

namespace kits {

// The line that is edited.
class line_widget : public keyboard_holder<QLineEdit> {
public:
	line_widget(QWidget* parent, report_address report);

	void set_text(const QString& text, int32 seen);
	void entered() override { selectAll(); }

protected:
	void focusInEvent(QFocusEvent* event) override;
	void mouseReleaseEvent(QMouseEvent* event) override;
	void keyPressEvent(QKeyEvent* event) override;

private:
	void _Report(uint32 what);

	// How often the user has changed the text.
	int32 fEdits = 0;
	// The click that brought the keyboard selects all, unless it drags a selection of its own.
	bool fSelectOnRelease = false;
};

// Label and line of a text control.
class text_widget : public QWidget {
public:
	text_widget(QWidget* parent, report_address report);

	void set(const control_look& look, float divider);
	void set_text(const std::string& text, int32 seen);

protected:
	void resizeEvent(QResizeEvent* event) override;

private:
	void _Arrange();
	void _Fit();

	QLabel* fLabel;
	line_widget* fLine;
	QString fText;
	float fDivider = 0;
};

}

#endif
