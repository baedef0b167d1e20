// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/text_widget.h"

#include "display/convert.h"
#include "display/field_peers.h"
#include "display/look.h"
#include "display/modifiers.h"

#include <AppDefs.h>
#include <InterfaceDefs.h>
#include <QKeyEvent>

using namespace kits;


namespace {

// Characters; the toolkit's own limit would cut longer texts off at the first key. The pixels of a
// line of so many can still be counted.
constexpr int longest_text = 1 << 20;

}


line_widget::line_widget(QWidget* parent, report_address report) : keyboard_holder(report, parent)
{
	// Dropped files are for the view behind, not text.
	setAcceptDrops(false);
	setTextMargins(1, 0, 1, 0);
	setMaxLength(longest_text);
	connect(this, &QLineEdit::textEdited, [this] {
		fEdits++;
		_Report(field_edited);
	});
	connect(this, &QLineEdit::returnPressed, [this] {
		_Report(field_entered);
		selectAll();
	});
}


void
line_widget::set_text(const QString& text, int32 seen)
{
	// The user has typed since, and the program will hear of it.
	if (seen < fEdits)
		return;
	setText(text);
	// The beginning of a long text tells more than its end.
	if (hasFocus())
		selectAll();
	else
		setCursorPosition(0);
}


void
line_widget::_Report(uint32 what)
{
	BMessage message(what);
	message.AddString("text", to_bytes(text()).c_str());
	message.AddInt32("edits", fEdits);
	report(message);
}


void
line_widget::focusInEvent(QFocusEvent* event)
{
	fSelectOnRelease = event->reason() == Qt::MouseFocusReason;
	keyboard_holder::focusInEvent(event);
}


void
line_widget::mouseReleaseEvent(QMouseEvent* event)
{
	QLineEdit::mouseReleaseEvent(event);
	if (fSelectOnRelease && !hasSelectedText())
		selectAll();
	fSelectOnRelease = false;
}


void
line_widget::keyPressEvent(QKeyEvent* event)
{
	// With the platform's Command key a letter is a shortcut or nothing; the desktop's own shortcuts
	// work as ever.
	if (!(modifiers_of(event->modifiers()) & B_COMMAND_KEY)) {
		QLineEdit::keyPressEvent(event);
		return;
	}
	switch (event->key()) {
		case Qt::Key_C:
			copy();
			break;
		case Qt::Key_X:
			cut();
			break;
		case Qt::Key_V:
			paste();
			break;
		case Qt::Key_A:
			selectAll();
			break;
		default:
			event->ignore();
	}
}


text_widget::text_widget(QWidget* parent, report_address report)
	: QWidget(parent),
	  fLabel(new QLabel(this)),
	  fLine(new line_widget(this, report))
{
	setAttribute(Qt::WA_NoMousePropagation);
	setAutoFillBackground(true);
	setFocusProxy(fLine);
	setFocusPolicy(Qt::NoFocus);
	fLabel->setTextFormat(Qt::PlainText);
}


void
text_widget::set(const control_look& look, float divider)
{
	apply(look, *this);
	fLine->setFocusPolicy(look.navigable ? Qt::StrongFocus : Qt::ClickFocus);
	fText = QString::fromStdString(look.label);
	fDivider = divider;
	_Arrange();
}


void
text_widget::set_text(const std::string& text, int32 seen)
{
	fLine->set_text(to_qstring(text), seen);
	_Fit();
}


void
text_widget::resizeEvent(QResizeEvent* event)
{
	QWidget::resizeEvent(event);
	_Arrange();
}


void
text_widget::_Arrange()
{
	int divider = std::clamp((int)fDivider, 0, width());
	fLabel->setGeometry(0, 0, divider, height());
	fLine->setGeometry(divider, 0, width() - divider, height());
	_Fit();
}


// Narrow fields hold four digits; both texts get narrower letters before anything is cut off.
void
text_widget::_Fit()
{
	QFont narrow = fitted(font(), fText, fLabel->width());
	fLabel->setFont(narrow);
	fLabel->setText(shortened(narrow, fText, fLabel->width()));
	explain_when_elided(*fLabel, fText, fLabel->width());
	// What a number may need; longer texts scroll.
	bool number = fLine->text().size() <= 8;
	// Beside its text a line keeps a margin and room for the cursor.
	fLine->setFont(fitted(font(), number ? fLine->text() : QString(), fLine->width() - 8));
}
