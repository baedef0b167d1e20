// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "desktop/journey.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <sstream>

static const char* const main_title = "kernix ver.0.02";


void
journey::SetUp()
{
	std::string missing = missing_for(GetParam());
	if (!missing.empty()) {
		ASSERT_EQ(getenv("CI"), nullptr) << missing << " is not installed";
		GTEST_SKIP() << missing << " is not installed";
	}
	std::filesystem::create_directory(fFolder.path("files"));
	fDesktop = desktop::start(GetParam(), fFolder.path());
	stand_aside();
}


void
journey::TearDown()
{
	if (HasFailure() && fDesktop != nullptr)
		keep_evidence();
	fProgram.reset();
	fDesktop.reset();
}


void
journey::keep_evidence()
{
	const testing::TestInfo& test = *testing::UnitTest::GetInstance()->current_test_info();
	std::string name = std::string(test.test_suite_name()) + "." + test.name();
	std::replace(name.begin(), name.end(), '/', '.');
	std::string place = std::string(KERNIX_EVIDENCE) + "/" + name + ".png";
	std::error_code ignored;
	std::filesystem::create_directories(KERNIX_EVIDENCE, ignored);
	try {
		bool kept = fDesktop->picture().save(QString::fromStdString(place));
		std::cerr << "journey: the screen " << (kept ? "is" : "cannot be") << " kept in " << place
				  << "\n";
	} catch (const journey_failed& failure) {
		std::cerr << "journey: " << failure.what() << "\n";
	}
	for (const char* log : {"said", "complaints", "server", "manager"}) {
		std::string text = text_of(fFolder.path(log));
		if (!text.empty())
			std::cerr << "--- " << log << "\n" << text;
	}
}


std::string
journey::font(const std::string& leaf, const octets& contents) const
{
	write_file(path(leaf), contents);
	return path(leaf);
}


void
journey::start(const std::vector<std::string>& arguments)
{
	fProgram = std::make_unique<program>(arguments, fFolder.path());
	until("there is no window", [&] {
		if (fProgram->has_ended())
			throw journey_failed("the program has ended");
		return find(main_title).has_value();
	});
	until("the strip is not painted", [&] {
		return count(strip_yellow, strip_area) > 0
			&& (arguments.empty() || count_other(strip_yellow, strip_area) >= 60);
	});
	at_rest();
}


void
journey::ends_well()
{
	EXPECT_EQ(fProgram->status(), 0);
	EXPECT_EQ(fProgram->complaints(), "");
}


std::optional<shown_window>
journey::find(const std::string& title)
{
	for (const shown_window& each : fDesktop->windows()) {
		if (each.title == title)
			return each;
	}
	return {};
}


shown_window
journey::window()
{
	auto shown = find(main_title);
	if (!shown)
		throw journey_failed("the window has gone");
	return *shown;
}


shown_window
journey::wait_for(const std::string& title)
{
	std::optional<shown_window> shown;
	until("no window \"" + title + "\" that gets the keys", [&] {
		shown = find(title);
		return shown && shown->active;
	});
	return *shown;
}


void
journey::alone()
{
	until("the main window is not the only one and active", [&] {
		auto all = fDesktop->windows();
		return all.size() == 1 && all[0].active;
	});
	at_rest();
}


void
journey::bring_forward()
{
	if (window().active)
		return;
	fDesktop->activate(window());
	until("the main window does not become active", [&] { return window().active; });
	at_rest();
}


// A window manager that looks at presses holds the pointer's events back meanwhile; a button that is
// let go then is let go where the pointer is afterwards. No hand is that quick.
constexpr int moment = 30;


void
journey::move(QPointF where)
{
	fDesktop->move_to(window().contents.topLeft() + where);
}


void
journey::down(QPointF where, desktop::mouse_button button)
{
	move(where);
	fDesktop->button(button, true);
}


void
journey::up(desktop::mouse_button button)
{
	fDesktop->button(button, false);
}


void
journey::click(QPointF where, desktop::mouse_button button)
{
	down(where, button);
	pause(moment);
	up(button);
	pause(moment);
}


void
journey::drag(QPointF from, QPointF to)
{
	constexpr int steps = 5;
	down(from);
	pause(moment);
	for (int i = 1; i <= steps; i++)
		move(from + (to - from) * i / steps);
	pause(moment);
	up();
	pause(moment);
}


void
journey::wheel(QPointF where, desktop::direction direction, int notches)
{
	move(where);
	for (int i = 0; i < notches; i++)
		fDesktop->notch(direction);
	pause(moment);
	stand_aside();
}


void
journey::stand_aside()
{
	fDesktop->move_to({screen_size.width() - 8, screen_size.height() - 8});
}


// The parts of "ctrl+a", as symbols.
static std::vector<uint32_t>
chord(const std::string& name)
{
	std::vector<uint32_t> keys;
	std::string rest = name;
	for (const auto& [prefix, symbol] :
		{std::pair("ctrl+", "Control_L"), {"shift+", "Shift_L"}, {"alt+", "Alt_L"}}) {
		if (rest.starts_with(prefix)) {
			keys.push_back(key_symbol(symbol));
			rest = rest.substr(std::string(prefix).size());
		}
	}
	keys.push_back(key_symbol(rest));
	return keys;
}


void
journey::key(const std::string& name)
{
	hold(name, 0);
}


void
journey::hold(const std::string& name, int milliseconds)
{
	std::vector<uint32_t> keys = chord(name);
	if (keys.size() == 1 && fDesktop->needs_shift(keys[0]))
		keys.insert(keys.begin(), key_symbol("Shift_L"));
	for (uint32_t each : keys)
		fDesktop->key(each, true);
	if (milliseconds > 0)
		pause(milliseconds);
	std::reverse(keys.begin(), keys.end());
	for (uint32_t each : keys)
		fDesktop->key(each, false);
}


void
journey::type(const std::string& text)
{
	for (char each : text)
		key(std::string(1, each));
}


QImage
journey::picture(QRectF area)
{
	return fDesktop->picture(area.translated(window().contents.topLeft()));
}


QImage
journey::picture()
{
	return picture({QPointF(), window().contents.size()});
}


double
journey::count(const std::function<bool(QRgb)>& wanted, QRectF area)
{
	QImage image = picture(area);
	long found = 0;
	for (int y = 0; y < image.height(); y++) {
		auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
		for (int x = 0; x < image.width(); x++)
			found += wanted(row[x] | black);
	}
	return (double)found / (fDesktop->scale() * fDesktop->scale());
}


double
journey::count(QRgb colour, QRectF area)
{
	return count([=](QRgb pixel) { return pixel == colour; }, area);
}


double
journey::count_other(QRgb colour, QRectF area)
{
	return count([=](QRgb pixel) { return pixel != colour; }, area);
}


// Red letters on the strip, also where they are blended with it.
double
journey::count_red(QRectF area)
{
	return count([](QRgb pixel) { return qRed(pixel) > 230 && qGreen(pixel) < 150; }, area);
}


void
journey::shows(const QImage& wanted, QRectF area)
{
	QImage seen;
	auto alike = [&] {
		seen = picture(area);
		return seen == wanted;
	};
	try {
		until("", alike);
	} catch (const journey_failed&) {
		QRect where = difference(seen, wanted);
		std::ostringstream text;
		text << "the window does not look as it should in " << where.width() << " x "
			 << where.height() << " pixels at " << where.x() << ", " << where.y() << " of a part";
		throw journey_failed(text.str());
	}
}


// A caret that blinks goes back to what it was, however long a picture takes; whatever is still to
// come does not.
void
journey::at_rest()
{
	std::array<QImage, 3> seen = {fDesktop->picture()};
	size_t last = 0;
	until("the screen does not come to rest", [&] {
		pause(300);
		QImage now = fDesktop->picture();
		bool known = std::find(seen.begin(), seen.end(), now) != seen.end();
		last = (last + 1) % seen.size();
		seen[last] = now;
		return known;
	});
}


size_t
size_of(const std::string& path)
{
	std::error_code missing;
	auto size = std::filesystem::file_size(path, missing);
	return missing ? 0 : (size_t)size;
}


QRect
difference(const QImage& one, const QImage& other)
{
	if (one.size() != other.size())
		return one.rect() | other.rect();
	QRect box;
	for (int y = 0; y < one.height(); y++) {
		for (int x = 0; x < one.width(); x++) {
			if (one.pixel(x, y) != other.pixel(x, y))
				box |= QRect(x, y, 1, 1);
		}
	}
	return box;
}


std::string
name_of(const testing::TestParamInfo<desktop_kind>& info)
{
	return info.param.name;
}
