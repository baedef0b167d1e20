// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/slider_peers.h"

#include "display/convert.h"
#include "display/display.h"
#include "display/field_peers.h"
#include "display/keyboard_holder.h"
#include "display/look.h"
#include "display/view_widget.h"

#include <QLabel>
#include <QPainter>
#include <QSignalBlocker>
#include <QSlider>
#include <QStyleOptionSlider>

using namespace kits;


namespace {

constexpr int label_gap = 4;


// The bar and its thumb.
class bar_widget : public keyboard_holder<QSlider> {
public:
	bar_widget(QWidget* parent, report_address address)
		: keyboard_holder(address, Qt::Horizontal, parent)
	{
		connect(this, &QSlider::valueChanged, [this] { _Report(slider_moved); });
		connect(this, &QSlider::sliderReleased, [this] { _Report(slider_released); });
	}

	void set(const slider_look& look, int32 value)
	{
		QSignalBlocker quiet(this);
		fSerial = look.serial;
		fBarColor = to_qcolor(look.bar);
		update();
		setRange(look.min, look.max);
		setValue(value);
	}

protected:
	// The groove is the bar colour, which the style's own painting would only tint.
	void paintEvent(QPaintEvent*) override
	{
		QStyleOptionSlider option;
		initStyleOption(&option);
		QRect thumb =
			style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
		QRect groove(0, height() / 2 - 3, width(), 6);
		QPainter paint(this);
		paint.fillRect(groove, fBarColor);
		paint.setPen(palette().color(QPalette::Dark));
		paint.drawRect(groove.adjusted(0, 0, -1, -1));
		paint.fillRect(thumb, palette().light());
		paint.setPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::Dark));
		paint.drawRect(thumb.adjusted(0, 0, -1, -1));
	}

	// A press beside the thumb or a key is over at once.
	void mouseReleaseEvent(QMouseEvent* event) override
	{
		bool held = isSliderDown();
		QSlider::mouseReleaseEvent(event);
		if (!held)
			_Report(slider_released);
	}

	void keyReleaseEvent(QKeyEvent* event) override
	{
		QSlider::keyReleaseEvent(event);
		if (!event->isAutoRepeat())
			_Report(slider_released);
	}

private:
	void _Report(uint32 what)
	{
		BMessage message(what);
		message.AddInt32("value", value());
		message.AddInt32("serial", fSerial);
		report(message);
	}

	int32 fSerial = 0;
	QColor fBarColor;
};


class slider_widget : public QWidget {
public:
	slider_widget(QWidget* parent, report_address report)
		: QWidget(parent),
		  fLabel(new QLabel(this)),
		  fBar(new bar_widget(this, report))
	{
		setAttribute(Qt::WA_NoMousePropagation);
		setAutoFillBackground(true);
		setFocusProxy(fBar);
		setFocusPolicy(Qt::NoFocus);
		fLabel->setTextFormat(Qt::PlainText);
	}

	void set(const control_look& look, const slider_look& slider)
	{
		apply(look, *this);
		fBar->setFocusPolicy(look.navigable ? Qt::TabFocus : Qt::NoFocus);
		fLabel->setText(QString::fromStdString(look.label));
		fBar->set(slider, look.value);
		_Arrange();
	}

protected:
	void resizeEvent(QResizeEvent* event) override
	{
		QWidget::resizeEvent(event);
		_Arrange();
	}

private:
	void _Arrange()
	{
		int room = fLabel->text().isEmpty()
			? 0
			: fontMetrics().horizontalAdvance(fLabel->text()) + label_gap;
		room = std::min(room, width() / 2);
		fLabel->setGeometry(0, 0, room, height());
		fBar->setGeometry(room, 0, width() - room, height());
	}

	QLabel* fLabel;
	bar_widget* fBar;
};

}


peer_ref
slider_peers::make(const peer_ref& parent, BRect frame, bool shown, const control_look& look,
	const slider_look& slider, report_address report)
{
	auto made = std::make_shared<peer>();
	display::post([=] {
		if (!parent->widget)
			return;
		auto* widget = new slider_widget(parent->widget, report);
		adopt(made, widget, frame, shown);
		widget->set(look, slider);
	});
	return made;
}


void
slider_peers::set(const peer_ref& peer, const control_look& look, const slider_look& slider)
{
	display::post([=] {
		if (peer->widget)
			static_cast<slider_widget*>(peer->widget)->set(look, slider);
	});
}
