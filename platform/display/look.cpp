// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "display/look.h"

#include "display/fonts.h"

#include <QApplication>
#include <QProxyStyle>
#include <QStyleFactory>

using namespace kits;


namespace {

class kit_style : public QProxyStyle {
public:
	kit_style() : QProxyStyle(QStyleFactory::create("Fusion")) {}

	int pixelMetric(
		PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override
	{
		switch (metric) {
			case PM_ScrollBarExtent:
				return 14;
			case PM_ScrollBarSliderMin:
				return 12;
			case PM_MenuBarHMargin:
			case PM_MenuBarVMargin:
			case PM_MenuBarPanelWidth:
				return 0;
			case PM_SmallIconSize:
				return 12;
			default:
				return QProxyStyle::pixelMetric(metric, option, widget);
		}
	}

	int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
		QStyleHintReturn* data) const override
	{
		if (hint == SH_Widget_Animate)
			return 0;
		return QProxyStyle::styleHint(hint, option, widget, data);
	}
};


QPalette
light_palette()
{
	QPalette palette(QColor(221, 221, 226));
	palette.setColor(QPalette::Base, Qt::white);
	palette.setColor(QPalette::Text, Qt::black);
	palette.setColor(QPalette::WindowText, Qt::black);
	palette.setColor(QPalette::ButtonText, Qt::black);
	return palette;
}

}


void
kits::set_look(QApplication& application)
{
	application.setStyle(new kit_style);
	application.setPalette(light_palette());
	application.setFont(screen_font(12, false));
}
