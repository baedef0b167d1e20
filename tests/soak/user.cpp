// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "soak/user.h"

#include "app/kernix.h"
#include "app/kernixwindow.h"
#include "display/menu_widgets.h"
#include "soak/trail.h"

#include <AppDefs.h>
#include <Messenger.h>
#include <numeric>
#include <QApplication>
#include <QCheckBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QSlider>
#include <QTimer>


std::vector<sight::thing>
sight::all(kind what) const
{
	std::vector<thing> found;
	for (const thing& each : things) {
		if (each.what == what)
			found.push_back(each);
	}
	return found;
}


std::string
text_of(BPoint place)
{
	return std::to_string((int)place.x) + "," + std::to_string((int)place.y);
}


soak_user::soak_user(
	kernix& application, robot& user, dice& source, const fonts& shelf, const std::string& folder)
	: fApp(application),
	  fHand(user),
	  fChance(source),
	  fShelf(shelf),
	  fFolder(folder)
{
	fHand.use_window("kernix ver.0.02");
}


void
soak_user::note(const std::string& what)
{
	trail::note(std::to_string(fActions) + " " + what);
}


static sight::kind
kind_of(QWidget* widget)
{
	if (dynamic_cast<QLineEdit*>(widget))
		return sight::field;
	if (dynamic_cast<kits::menu_button*>(widget))
		return sight::menu;
	if (dynamic_cast<QPushButton*>(widget))
		return sight::button;
	if (dynamic_cast<QCheckBox*>(widget))
		return sight::box;
	if (dynamic_cast<QListWidget*>(widget))
		return sight::list;
	return dynamic_cast<QSlider*>(widget) ? sight::slider : sight::kinds;
}


static void
find_things(QWidget& window, std::vector<sight::thing>& things)
{
	for (auto* widget : window.findChildren<QWidget*>()) {
		const sight::kind what = kind_of(widget);
		const QPoint middle = widget->mapTo(&window, widget->rect().center());
		const QWidget* top = widget->isVisible() ? window.childAt(middle) : nullptr;
		if (what == sight::kinds || !top || (top != widget && !widget->isAncestorOf(top)))
			continue;
		auto* button = dynamic_cast<QAbstractButton*>(widget);
		things.push_back({what, BPoint((float)middle.x(), (float)middle.y()),
			BPoint((float)widget->width(), (float)widget->height()),
			button ? button->text().toStdString() : ""});
	}
}


static void
find_dialogs(sight& seen)
{
	for (QWidget* widget : QApplication::topLevelWidgets()) {
		if (!widget->isVisible())
			continue;
		seen.alert |= widget->objectName() == "alert";
		seen.panel |= dynamic_cast<QFileDialog*>(widget) != nullptr;
		auto* box = dynamic_cast<QMessageBox*>(widget);
		for (auto* button : box ? box->buttons() : QList<QAbstractButton*>())
			seen.questions.push_back(button->text().remove('&').toStdString());
	}
}


void
soak_user::look()
{
	fHand.settle();
	fSight = sight();
	fHand.act([this](QWidget& window) {
		fSight.window = true;
		fSight.size = BPoint((float)window.width(), (float)window.height());
		fSight.popup = QApplication::activePopupWidget() != nullptr;
		find_dialogs(fSight);
		find_things(window, fSight.things);
	});
}


void
soak_user::run(int most)
{
	for (look(); fActions < most && fSight.window && fProblem.empty(); look()) {
		fActions++;
		step();
	}
	if (fSight.window && fProblem.empty())
		leave();
}


void
soak_user::step()
{
	// What covers the window has to be dealt with, mostly.
	if (fSight.alert)
		return deal_with_alert();
	if (!fSight.questions.empty())
		return deal_with_question();
	if (fSight.popup && !fChance.one_in(4))
		return deal_with_popup();
	if (fSight.panel && fChance.one_in(3))
		return deal_with_panel();

	static const action actions[] = {
		{3, &soak_user::open_good},
		{3, &soak_user::open_garbage},
		{2, &soak_user::drop_files},
		{6, &soak_user::save_new},
		{4, &soak_user::save_over},
		{3, &soak_user::copy_font},
		{2, &soak_user::ask_for_panel},
		{1, &soak_user::set_up},
		{1, &soak_user::show_about},
		{1, &soak_user::send_message},
		{20, &soak_user::choose_table},
		{15, &soak_user::press_button},
		{4, &soak_user::tick_box},
		{8, &soak_user::choose_row},
		{4, &soak_user::open_menu},
		{20, &soak_user::fill_field},
		{4, &soak_user::move_slider},
		{15, &soak_user::click},
		{25, &soak_user::drag},
		{6, &soak_user::stroke},
		{12, &soak_user::take_tool},
		{4, &soak_user::turn_wheel},
		{4, &soak_user::scroll},
		{2, &soak_user::resize},
		{12, &soak_user::type_keys},
		{6, &soak_user::edit_shortcut},
		{4, &soak_user::hurry},
		{14, &soak_user::work_at_outlines},
		{7, &soak_user::work_at_bitmaps},
		{7, &soak_user::work_at_panel},
	};
	static const int sum = std::accumulate(std::begin(actions), std::end(actions), 0,
		[](int total, const action& each) { return total + each.weight; });
	int left = fChance.below(sum);
	for (const action& each : actions) {
		left -= each.weight;
		if (left < 0)
			return (this->*each.act)();
	}
}


void
soak_user::deal_with_popup()
{
	const int steps = fChance.below(6);
	const bool choose = !fChance.one_in(3);
	note("menu: " + std::to_string(steps) + " down, " + (choose ? "Enter" : "Escape"));
	for (int i = 0; i < steps; i++)
		fHand.key(Qt::Key_Down);
	if (choose)
		fHand.key(Qt::Key_Return, "\r");
	else
		fHand.key(Qt::Key_Escape);
}


void
soak_user::deal_with_question()
{
	const std::string label = fChance.any(fSight.questions);
	note("question: " + label);
	fHand.press_question(label);
}


// The toolkit answers some names with a question in a loop of its own, which nothing may wait for.
void
soak_user::answer_panel(const std::string& path)
{
	note("panel: answer " + path.substr(0, 60));
	fHand.act([&](QWidget&) {
		for (QWidget* widget : QApplication::topLevelWidgets()) {
			auto* panel = dynamic_cast<QFileDialog*>(widget);
			if (!panel || !panel->isVisible())
				continue;
			panel->activateWindow();
			auto* field = panel->findChild<QLineEdit*>("fileNameEdit");
			field->setFocus();
			field->setText(QString::fromStdString(path));
			QTimer::singleShot(0, panel, SLOT(accept()));
		}
	});
}


void
soak_user::deal_with_panel()
{
	// Names that a user may type: to save under, or over, or that cannot be.
	static const std::string leaves[] = {"panel.ttf", "no suffix", "0.ttf",
		"\xC3\xA4\xE2\x82\xAC.ttf", "nowhere/at all.ttf", ".", "", std::string(300, 'x')};
	if (fChance.one_in(4)) {
		note("panel: cancel");
		return fHand.cancel_panel();
	}
	answer_panel(fChance.one_in(2) ? some_path() : fFolder + "/" + fChance.any(leaves));
}


void
soak_user::deal_with_alert()
{
	const std::vector<std::string> labels = fHand.alert_buttons();
	if (labels.empty())
		return;
	const std::string label = fChance.any(labels);
	note("alert: " + label);
	fHand.press_alert(label);
}


// What is under way when the program is left. Nothing of it is brought to an end.
void
soak_user::begin_something()
{
	const BPoint place = somewhere();
	switch (fSight.alert || !fSight.questions.empty() ? 0 : fChance.below(12)) {
		case 1:
			note("a press, and a move");
			fHand.press(place);
			return fHand.move(somewhere());
		case 2:
			note("a pen's press");
			return fHand.pen_down(place, {0.5f});
		case 3:
			return ask_for_panel();
		case 4:
			return show_about();
		case 5:
			return open_good();
		case 6:
			return open_garbage();
		case 7:
			note("new");
			return (void)fHand.choose_menu("File", "New");
		case 8:
			return save_new();
		case 9:
			return open_menu();
		case 10:
			return hurry();
		case 11:
			note("a key held");
			return fHand.key_down(Qt::Key_Left);
	}
}


void
soak_user::leave()
{
	begin_something();
	go();
	fActions++;
}


void
soak_user::go()
{
	// Nobody reaches the window past what covers it; the desktop does.
	const bool covered = fSight.alert || !fSight.questions.empty();
	const int way = fChance.between(covered ? 3 : 0, 5);
	note("quit " + std::to_string(way));
	switch (way) {
		case 0:
			fHand.choose_menu("File", "Quit");
			break;
		case 1:
			fHand.press_close_box();
			break;
		case 2:
			fHand.act([](QWidget& window) { window.close(); });
			break;
		case 3:
			BMessenger(fApp.window).SendMessage(B_QUIT_REQUESTED);
			break;
		case 4:
			BMessenger(fApp.window).SendMessage(B_QUIT_REQUESTED);
			be_app_messenger.SendMessage(B_QUIT_REQUESTED);
			break;
	}
}
