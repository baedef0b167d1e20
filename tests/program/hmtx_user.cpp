// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "program/hmtx_user.h"

#include <QApplication>
#include <QSlider>
#include <QStyle>
#include <stdexcept>

#include <Slider.h>

#include "support/opened.h"
#include "support/temp_files.h"


font_file
five_glyphs()
{
	return tiny_font()
		.with("hhea",
			"00010000 0200 0000 0000 0200 0000 0000 01ff 0001 0000"
			"0000 0000 0000 0000 0000 0000 0003")
		.with("hmtx", three_and_two)
		.with("loca", "00000000 00000000 00000020 00000020 00000020 00000020")
		.with("maxp", "00005000 0005");
}


void
at_hmtx(const font_file& contents, int number, const std::function<void(kernix&, robot&)>& work)
{
	temp_file font(contents);
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		user.click(place_of_tag(number));
		work(app, user);
	});
}


void
at_hmtx(const font_file& contents, const std::function<void(kernix&, robot&)>& work)
{
	at_hmtx(contents, 4, work);
}


std::string
metric_fields(robot& user)
{
	return user.field_text(first_glyph) + " " + user.field_text(last_glyph) + " "
		+ user.field_text(width_field) + " " + user.field_text(bearing_field);
}


void
set_metrics(robot& user, const char* first, const char* last, const char* width, const char* lsb)
{
	enter(user, first_glyph, first);
	enter(user, last_glyph, last);
	enter(user, width_field, width);
	enter(user, bearing_field, lsb);
	user.click(set_button);
}


octets
hmtx_octets(kernix& app)
{
	octets table;
	looking(app, [&] { table = kept(curttf->hmtx); });
	return table;
}


BSlider*
slider(const char* name)
{
	auto* found = dynamic_cast<BSlider*>(curttf->hmtx->FindView(name));
	if (found == nullptr)
		throw std::runtime_error("no such slider");
	return found;
}


std::vector<int32>
stand_of(kernix& app)
{
	std::vector<int32> values;
	looking(app, [&] { values = {slider("left")->Value(), slider("right")->Value()}; });
	return values;
}


void
press_on_slider(kernix& app, robot& user, const char* name, int key)
{
	looking(app, [&] { slider(name)->MakeFocus(); });
	user.settle();
	user.key(key);
}


// Where the thumb's middle is for a value, in the window.
static BPoint
thumb_at(const QSlider& bar, int value)
{
	int thumb = bar.style()->pixelMetric(QStyle::PM_SliderLength, nullptr, &bar);
	int place =
		QStyle::sliderPositionFromValue(bar.minimum(), bar.maximum(), value, bar.width() - thumb);
	QPoint middle(place + thumb / 2, bar.height() / 2);
	QPoint in_window = bar.mapTo(bar.window(), middle);
	return BPoint((float)in_window.x(), (float)in_window.y());
}


void
drag_slider(robot& user, const char* name, int value)
{
	BPoint from, to;
	user.on_display([&] {
		for (QWidget* widget : QApplication::allWidgets()) {
			auto* bar = qobject_cast<QSlider*>(widget);
			if (bar == nullptr || !bar->isVisible() || (bar->minimum() < 0) != (name[0] == 'l'))
				continue;
			from = thumb_at(*bar, bar->value());
			to = thumb_at(*bar, value);
		}
	});
	user.press(from);
	user.move(to);
	user.release(to);
}
