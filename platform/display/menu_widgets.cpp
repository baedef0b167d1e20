// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/menu_widgets.h"

#include "display/look.h"

#include <algorithm>
#include <QMenuBar>
#include <QMouseEvent>
#include <QStyleOptionButton>
#include <QStylePainter>

using namespace kits;


namespace {

constexpr int margin = 4;
constexpr int arrow_width = 7;
constexpr int arrow_height = 4;
constexpr int gap = 3;
constexpr int around = 2 * margin + gap + arrow_width;

}


bool
kits::open_menu_bar(const QWidget& window)
{
	for (QMenuBar* bar : window.findChildren<QMenuBar*>()) {
		if (!bar->isVisible())
			continue;
		for (QAction* action : bar->actions()) {
			if (!action->menu() || !action->isEnabled())
				continue;
			bar->setActiveAction(action);
			action->menu()->setActiveAction(action->menu()->actions().value(0));
			return true;
		}
	}
	return false;
}


menu_button::menu_button(QWidget* parent, report_address address)
	: keyboard_holder(address, parent),
	  fMenu(new QMenu(this))
{
	// The press that closes the menu must not open it again.
	fMenu->setAttribute(Qt::WA_NoMouseReplay);
	connect(fMenu, &QMenu::aboutToHide, [this] { setDown(false); });
}


void
menu_button::set(const menu_field_look& field)
{
	empty_menu(fMenu);
	fill_menu(fMenu, field.entries, field.menu);
	fText = QString::fromStdString(field.shown);
	_Fit();
}


int
menu_button::wanted_width() const
{
	QFontMetrics metrics(parentWidget()->font());
	int widest = metrics.horizontalAdvance(fText);
	for (const QAction* action : fMenu->actions())
		widest = std::max(widest, metrics.horizontalAdvance(action->text().replace("&&", "&")));
	return widest + around;
}


// Few pixels have to do for a number: its digits get narrower before they are cut off.
void
menu_button::_Fit()
{
	int room = width() - around;
	setFont(fitted(parentWidget()->font(), fText, room));
	// Doubled, an ampersand makes no shortcut.
	setText(shortened(font(), fText, room).replace('&', "&&"));
	explain_when_elided(*this, fText, room);
	update();
}


void
menu_button::resizeEvent(QResizeEvent* event)
{
	QPushButton::resizeEvent(event);
	_Fit();
}


void
menu_button::paintEvent(QPaintEvent*)
{
	QStyleOptionButton option;
	initStyleOption(&option);
	QStylePainter paint(this);
	paint.drawControl(QStyle::CE_PushButtonBevel, option);
	QColor ink =
		palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText);
	paint.setPen(ink);
	paint.drawText(rect().adjusted(margin, 0, -margin, 0),
		Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextHideMnemonic, text());
	qreal left = width() - margin - arrow_width;
	qreal top = (height() - arrow_height) / 2.0;
	paint.setRenderHint(QPainter::Antialiasing);
	paint.setPen(Qt::NoPen);
	paint.setBrush(ink);
	paint.drawPolygon(QPolygonF({QPointF(left, top), QPointF(left + arrow_width, top),
		QPointF(left + arrow_width / 2.0, top + arrow_height)}));
}


void
menu_button::mousePressEvent(QMouseEvent* event)
{
	if (event->button() == Qt::LeftButton)
		_Open();
}


void
menu_button::keyPressEvent(QKeyEvent* event)
{
	switch (event->key()) {
		case Qt::Key_Return:
		case Qt::Key_Enter:
		case Qt::Key_Space:
		case Qt::Key_Down:
			if (!event->isAutoRepeat())
				_Open();
			break;
		default:
			event->ignore();
	}
}


// Shown, not run: nothing waits for the choice.
void
menu_button::_Open()
{
	setDown(true);
	fMenu->setMinimumWidth(width());
	fMenu->popup(mapToGlobal(QPoint(0, height())));
	QList<QAction*> actions = fMenu->actions();
	auto marked = std::find_if(
		actions.begin(), actions.end(), [](const QAction* action) { return action->isChecked(); });
	if (marked != actions.end())
		fMenu->setActiveAction(*marked);
}


menu_field_widget::menu_field_widget(QWidget* parent, report_address address)
	: QWidget(parent),
	  fLabel(new QLabel(this)),
	  fButton(new menu_button(this, address))
{
	setAttribute(Qt::WA_NoMousePropagation);
	setAutoFillBackground(true);
	setFocusProxy(fButton);
	setFocusPolicy(Qt::NoFocus);
	fLabel->setTextFormat(Qt::PlainText);
}


void
menu_field_widget::set(const control_look& look, const menu_field_look& field)
{
	apply(look, *this);
	fButton->setFocusPolicy(look.navigable ? Qt::TabFocus : Qt::NoFocus);
	fButton->set(field);
	fText = QString::fromStdString(look.label);
	fDivider = (int)field.divider;
	fFixedSize = field.fixed_size;
	_Arrange();
}


void
menu_field_widget::resizeEvent(QResizeEvent* event)
{
	QWidget::resizeEvent(event);
	_Arrange();
}


void
menu_field_widget::_Arrange()
{
	int divider = std::clamp(fDivider, 0, width());
	int room = width() - divider;
	QFont narrow = fitted(font(), fText, divider);
	fLabel->setGeometry(0, 0, divider, height());
	fLabel->setFont(narrow);
	fLabel->setText(shortened(narrow, fText, divider));
	explain_when_elided(*fLabel, fText, divider);
	fButton->setGeometry(
		divider, 0, fFixedSize ? room : std::min(room, fButton->wanted_width()), height());
}
