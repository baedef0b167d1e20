// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_LIST_WIDGET_H
#define KITS_LIST_WIDGET_H

#include "display/control_look.h"
#include "display/keyboard_holder.h"

#include <QListWidget>

namespace kits {

// The rows of a list view. Without bars: the wheel and the arrow keys scroll it.
class list_widget : public keyboard_holder<QListWidget> {
public:
	list_widget(QWidget* parent, bool multiple, report_address address);

	void set(const control_look& look, const QColor& text);
	void insert(int row, const QString& text, int32 serial);
	void remove(int row, int32 serial);
	void empty(int32 serial);
	void select(const std::vector<int32>& rows, int32 serial);

protected:
	QItemSelectionModel::SelectionFlags selectionCommand(
		const QModelIndex& index, const QEvent* event) const override;
	void focusInEvent(QFocusEvent* event) override;
	void keyPressEvent(QKeyEvent* event) override;
	void keyReleaseEvent(QKeyEvent* event) override;
	void paintEvent(QPaintEvent* event) override;

private:
	void _BeginChange(int32 serial);
	void _SelectionChanged();
	void _ReportSelection();
	// What a held key has selected so far.
	void _ReportHeld();
	void _ReportInvocation();
	void _StartFromSelection();

	int32 fSerial = 0;
	// The program changes the selection, not the user.
	bool fQuiet = false;
	// A key that moves the selection goes down, and one that has moved it is held.
	bool fMovingByKey = false;
	bool fHeldBack = false;
};

// What a row shows of a text: one line of it.
QString row_text(const std::string& text);

}

#endif
