// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/control_peers.h"

#include "display/display.h"
#include "display/input.h"
#include "display/view_widget.h"

#include <cmath>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QWheelEvent>

using namespace kits;


namespace {

// Qt's thumb is pageStep of range + pageStep; the kit's is a given part of the bar, and its large
// step is its own. The thumb wins, since it is what one sees.
int
page_of(const scroll_bar_look& look)
{
	float part = std::min(look.proportion, 0.999F);
	return std::max(1, (int)std::lround((float)(look.max - look.min) * part / (1 - part)));
}


// What the user does is reported, but for the wheel, which is the kit's to follow. Clicks beside the
// thumb move by the kit's large step, whatever the thumb's length says. No menu
// comes up: the toolkit's own is not the kit's, and would hold up the display in a loop of its own.
class scroll_bar_widget : public QScrollBar {
public:
	scroll_bar_widget(Qt::Orientation posture, QWidget* parent, report_address report)
		: QScrollBar(posture, parent),
		  fReport(report)
	{
		setContextMenuPolicy(Qt::PreventContextMenu);
		connect(this, &QScrollBar::actionTriggered, [this](int action) {
			if (action == SliderPageStepAdd)
				setSliderPosition(value() + fLargeStep);
			else if (action == SliderPageStepSub)
				setSliderPosition(value() - fLargeStep);
		});
		connect(this, &QScrollBar::valueChanged, [this] { _Report(); });
	}

	void set(const scroll_bar_look& look)
	{
		int before = value();
		bool ahead = look.seen < fMoves;
		{
			QSignalBlocker quiet(this);
			fLargeStep = look.large_step;
			setRange(look.min, look.max);
			setPageStep(page_of(look));
			setSingleStep(look.small_step);
			if (!ahead)
				setValue(look.value);
			setEnabled(look.min < look.max);
		}
		// The kit is about to hear of a value that the range has just taken away.
		if (ahead && value() != before)
			_Report();
	}

protected:
	void wheelEvent(QWheelEvent* event) override { take_pointer(fReport.looper, *this, *event); }

private:
	void _Report()
	{
		BMessage message(scrolled);
		message.AddInt32("value", value());
		message.AddInt32("moves", ++fMoves);
		post_to(fReport.looper, fReport.handler, message);
	}

	const report_address fReport;
	// How often the user has moved the thumb.
	int32 fMoves = 0;
	int fLargeStep = 0;
};

}


peer_ref
control_peers::make_scroll_bar(const peer_ref& parent, BRect frame, bool shown, bool vertical,
	const scroll_bar_look& look, report_address report)
{
	auto made = std::make_shared<peer>();
	display::post([=] {
		if (!parent->widget)
			return;
		auto* bar =
			new scroll_bar_widget(vertical ? Qt::Vertical : Qt::Horizontal, parent->widget, report);
		bar->set(look);
		adopt(made, bar, frame, shown);
	});
	return made;
}


void
control_peers::set_scroll_bar(const peer_ref& bar, const scroll_bar_look& look)
{
	display::post([=] {
		if (bar->widget)
			static_cast<scroll_bar_widget*>(bar->widget)->set(look);
	});
}
