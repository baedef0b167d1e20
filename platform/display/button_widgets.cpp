// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/button_widgets.h"

#include "display/field_peers.h"
#include "display/look.h"

#include <QStyleOptionButton>

using namespace kits;


namespace {

// What the style leaves free beside a button's label, on both sides together.
constexpr int button_margins = 6;


// An ampersand is a letter here, not a mark for the next one.
QString
shown(QString label)
{
	return label.replace('&', "&&");
}

}


button_widget::button_widget(QWidget* parent, report_address address)
	: pressed_holder(address, parent)
{
	connect(this, &QPushButton::clicked, [this] { report(BMessage(control_invoked)); });
}


void
button_widget::set(const control_look& look)
{
	apply(look, *this);
	set_navigable(look.navigable);
	fText = QString::fromStdString(look.label);
	fFont = font();
	setText(shown(fText));
	_Fit();
}


void
button_widget::resizeEvent(QResizeEvent* event)
{
	QPushButton::resizeEvent(event);
	_Fit();
}


void
button_widget::_Fit()
{
	const int room = width() - button_margins;
	setFont(fitted(fFont, fText, room));
	explain_when_elided(*this, fText, room);
}


check_widget::check_widget(QWidget* parent, report_address address)
	: pressed_holder(address, parent)
{
	setAutoFillBackground(true);
	connect(this, &QCheckBox::clicked, [this] { report(BMessage(control_invoked)); });
}


void
check_widget::set(const control_look& look)
{
	apply(look, *this);
	set_navigable(look.navigable);
	fText = QString::fromStdString(look.label);
	setText(shown(fText));
	setChecked(look.value != 0);
	_Explain();
}


void
check_widget::resizeEvent(QResizeEvent* event)
{
	QCheckBox::resizeEvent(event);
	_Explain();
}


void
check_widget::_Explain()
{
	QStyleOptionButton option;
	initStyleOption(&option);
	QRect room = style()->subElementRect(QStyle::SE_CheckBoxContents, &option, this);
	explain_when_elided(*this, fText, room.width());
}
