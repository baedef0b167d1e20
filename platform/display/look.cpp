// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/look.h"

#include "display/convert.h"
#include "display/focus.h"
#include "display/fonts.h"

#include <QApplication>
#include <QCheckBox>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>
#include <QWidget>

using namespace kits;


namespace {

constexpr int button_margin = 3;


class kit_style : public QProxyStyle {
public:
	kit_style() : QProxyStyle(QStyleFactory::create("Fusion")) {}

	int pixelMetric(
		PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override
	{
		switch (metric) {
			case PM_ScrollBarExtent:
			case PM_SliderThickness:
				return 14;
			case PM_ScrollBarSliderMin:
			case PM_SliderControlThickness:
			case PM_SmallIconSize:
				return 12;
			case PM_IndicatorWidth:
			case PM_IndicatorHeight:
				return 11;
			case PM_SliderLength:
				return 9;
			case PM_CheckBoxLabelSpacing:
				return 4;
			case PM_ButtonMargin:
				return 2;
			case PM_MenuBarHMargin:
			case PM_MenuBarVMargin:
			case PM_MenuBarPanelWidth:
				return 0;
			default:
				return QProxyStyle::pixelMetric(metric, option, widget);
		}
	}

	int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
		QStyleHintReturn* data) const override
	{
		// Alt alone is a key like others: the editor uses it.
		if (hint == SH_Widget_Animate || hint == SH_MenuBar_AltKeyNavigation)
			return 0;
		return QProxyStyle::styleHint(hint, option, widget, data);
	}

	QRect subElementRect(
		SubElement element, const QStyleOption* option, const QWidget* widget) const override
	{
		if (element == SE_LineEditContents)
			return option->rect.adjusted(0, 1, 0, -1);
		return QProxyStyle::subElementRect(element, option, widget);
	}

	void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
		const QWidget* widget) const override
	{
		bool ticks = qobject_cast<const QCheckBox*>(widget);
		if (element == PE_FrameLineEdit || element == PE_PanelLineEdit)
			_DrawField(option, painter);
		else if (element == PE_IndicatorCheckBox && ticks)
			_DrawTick(option, painter);
		// The box itself shows who has the keyboard.
		else if (element != PE_FrameFocusRect || !ticks)
			QProxyStyle::drawPrimitive(element, option, painter, widget);
	}

	void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
		const QWidget* widget) const override
	{
		if (element == CE_PushButtonBevel)
			_DrawBevel(option, painter);
		else if (element == CE_PushButtonLabel)
			_DrawText(option, Qt::AlignCenter, button_margin, painter);
		else if (element == CE_CheckBoxLabel)
			_DrawText(option, Qt::AlignLeft | Qt::AlignVCenter, 0, painter);
		else if (element == CE_MenuBarItem && !(option->state & State_Selected))
			_DrawMenuTitle(option, painter);
		else
			QProxyStyle::drawControl(element, option, painter, widget);
	}

private:
	// One pixel around, so that a low field has room for its text.
	static void _DrawField(const QStyleOption* option, QPainter* painter)
	{
		bool focused = option->state & State_HasFocus;
		const QPalette& colours = option->palette;
		painter->fillRect(option->rect, colours.base());
		painter->setPen(focused ? colours.highlight().color() : colours.dark().color());
		painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
	}

	// A box with a cross in it, or none.
	static void _DrawTick(const QStyleOption* option, QPainter* painter)
	{
		_DrawField(option, painter);
		const QPalette& colours = option->palette;
		if (option->state & State_Sunken)
			painter->fillRect(option->rect.adjusted(1, 1, -1, -1), colours.mid());
		if (!(option->state & State_On))
			return;
		bool enabled = option->state & State_Enabled;
		QRectF cross = QRectF(option->rect).adjusted(2.5, 2.5, -2.5, -2.5);
		painter->save();
		painter->setRenderHint(QPainter::Antialiasing);
		painter->setPen(
			QPen(colours.color(enabled ? QPalette::Active : QPalette::Disabled, QPalette::Text),
				1.75, Qt::SolidLine, Qt::RoundCap));
		painter->drawLine(cross.topLeft(), cross.bottomRight());
		painter->drawLine(cross.bottomLeft(), cross.topRight());
		painter->restore();
	}

	static void _DrawBevel(const QStyleOption* option, QPainter* painter)
	{
		bool down = option->state & (State_Sunken | State_On);
		bool focused = option->state & State_HasFocus;
		const QPalette& colours = option->palette;
		painter->fillRect(option->rect, down ? colours.mid() : colours.light());
		painter->setPen(focused ? colours.highlight().color() : colours.dark().color());
		painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
	}

	// Without the base style's line below, which would end where the titles end.
	static void _DrawMenuTitle(const QStyleOption* option, QPainter* painter)
	{
		auto* title = static_cast<const QStyleOptionMenuItem*>(option);
		painter->fillRect(title->rect, title->palette.window());
		painter->setPen(title->palette.color(QPalette::WindowText));
		painter->drawText(title->rect, Qt::AlignCenter | Qt::TextShowMnemonic, title->text);
	}

	// As much of a label as there is room for.
	static void _DrawText(
		const QStyleOption* option, Qt::Alignment alignment, int margin, QPainter* painter)
	{
		auto* button = static_cast<const QStyleOptionButton*>(option);
		QRect room = button->rect.adjusted(margin, 0, -margin, 0);
		QString text = button->fontMetrics.elidedText(
			button->text, Qt::ElideRight, room.width(), Qt::TextShowMnemonic);
		bool enabled = button->state & State_Enabled;
		painter->setPen(button->palette.color(
			enabled ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText));
		painter->drawText(room, (int)alignment | Qt::TextSingleLine | Qt::TextHideMnemonic, text);
	}
};


QPalette
palette_of(const QColor& background)
{
	QPalette palette(background);
	palette.setColor(QPalette::Window, background);
	palette.setColor(QPalette::Button, background);
	palette.setColor(QPalette::Light, background.lighter(125));
	palette.setColor(QPalette::Midlight, background.lighter(112));
	palette.setColor(QPalette::Mid, background.darker(125));
	palette.setColor(QPalette::Dark, background.darker(165));
	palette.setColor(QPalette::Base, Qt::white);
	for (auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
		palette.setColor(role, Qt::black);
		palette.setColor(QPalette::Disabled, role, background.darker(200));
	}
	return palette;
}

}


void
kits::set_look(QApplication& application)
{
	application.setStyle(new kit_style);
	application.setPalette(palette_of(QColor(221, 221, 226)));
	application.setFont(screen_font(12, false));
}


void
kits::apply(const control_look& look, QWidget& widget)
{
	widget.setPalette(palette_of(to_qcolor(look.background)));
	widget.setFont(screen_font(look.font.Size(), look.font.Face() & B_BOLD_FACE));
	focus_keeper* keeper = focus_keeper_of(widget);
	if (!look.enabled && keeper)
		keeper->leave(widget);
	widget.setEnabled(look.enabled);
}


void
kits::explain_when_elided(QWidget& widget, const QString& text, int room)
{
	bool fits = widget.fontMetrics().horizontalAdvance(text) <= room;
	widget.setToolTip(fits ? QString() : text);
}


QFont
kits::fitted(const QFont& font, const QString& text, int room)
{
	if (QFontMetrics(font).horizontalAdvance(text) <= room)
		return font;
	QFont narrow(font);
	// Hinted, a narrow letter would be widened again to whole pixels.
	narrow.setHintingPreference(QFont::PreferNoHinting);
	for (int stretch : {92, 85, 80, 75, 70, 65}) {
		narrow.setStretch(stretch);
		if (QFontMetrics(narrow).horizontalAdvance(text) <= room)
			break;
	}
	return narrow;
}


// Eliding measures to a fraction of a pixel: alone it would cut a text that was found to fit.
QString
kits::shortened(const QFont& font, const QString& text, int room)
{
	QFontMetrics metrics(font);
	bool fits = metrics.horizontalAdvance(text) <= room;
	return fits ? text : metrics.elidedText(text, Qt::ElideRight, room);
}
