// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "support/robot.h"

#include "app/activity.h"
#include "display/display.h"

#include <AppDefs.h>
#include <atomic>
#include <cctype>
#include <cmath>
#include <InterfaceDefs.h>
#include <Messenger.h>
#include <ostream>
#include <QApplication>
#include <QDialogButtonBox>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QMouseEvent>
#include <QPointingDevice>
#include <QPushButton>
#include <QScrollBar>
#include <QTabletEvent>
#include <QUrl>
#include <QWindow>
#include <semaphore>

using namespace kits;


namespace {

Qt::MouseButtons
to_qt_buttons(int32 buttons)
{
	Qt::MouseButtons held = Qt::NoButton;
	if (buttons & B_PRIMARY_MOUSE_BUTTON)
		held |= Qt::LeftButton;
	if (buttons & B_SECONDARY_MOUSE_BUTTON)
		held |= Qt::RightButton;
	if (buttons & B_TERTIARY_MOUSE_BUTTON)
		held |= Qt::MiddleButton;
	return held;
}


Qt::KeyboardModifiers
to_qt_modifiers(int32 modifiers)
{
	Qt::KeyboardModifiers held = Qt::NoModifier;
	if (modifiers & B_SHIFT_KEY)
		held |= Qt::ShiftModifier;
	if (modifiers & B_CONTROL_KEY)
		held |= Qt::ControlModifier;
	if (modifiers & B_COMMAND_KEY)
		held |= Qt::AltModifier;
	return held;
}


// Does the user's work as an event of the display's own, not as one of its commands: what the user
// does may open loops and grabs that a command must not. The work is handed over beside Qt's queue,
// whose ordering the thread sanitizer cannot see.
class event_worker : public QObject {
public:
	void run(const std::function<void()>& work)
	{
		std::binary_semaphore done(0);
		errand mine{work, done};
		activity::begin();
		fErrand = &mine;
		QCoreApplication::postEvent(this, new QEvent(QEvent::User));
		done.acquire();
	}

	bool event(QEvent* event) override
	{
		if (event->type() != QEvent::User)
			return QObject::event(event);
		errand* next = fErrand;
		next->work();
		activity::end();
		next->done.release();
		return true;
	}

private:
	struct errand {
		const std::function<void()>& work;
		std::binary_semaphore& done;
	};
	// One user at a time.
	std::atomic<errand*> fErrand = nullptr;
};


// Made by the display thread before any user starts; never destroyed.
event_worker* worker = nullptr;


void
as_event(const std::function<void()>& work)
{
	worker->run(work);
}


QFileDialog*
shown_panel()
{
	for (QWidget* widget : QApplication::topLevelWidgets()) {
		auto* dialog = dynamic_cast<QFileDialog*>(widget);
		if (dialog && dialog->isVisible())
			return dialog;
	}
	return nullptr;
}


QWidget*
shown_alert()
{
	for (QWidget* widget : QApplication::topLevelWidgets()) {
		if (widget->objectName() == "alert" && widget->isVisible())
			return widget;
	}
	return nullptr;
}


// Lists have bars that nobody sees.
bool
is_meant(const QScrollBar& bar, orientation posture)
{
	return bar.isVisible() && (bar.orientation() == Qt::Vertical) == (posture == B_VERTICAL);
}


QAction*
find_item(const QWidget* window, const std::string& menu, const std::string& item)
{
	const auto* bar = window ? window->findChild<QMenuBar*>() : nullptr;
	if (!bar)
		return nullptr;
	for (QAction* top : bar->actions()) {
		if (top->text().toStdString() != menu || !top->menu())
			continue;
		for (QAction* action : top->menu()->actions()) {
			if (action->text().toStdString() == item)
				return action;
		}
	}
	return nullptr;
}

}


std::ostream&
operator<<(std::ostream& out, rgb_color color)
{
	return out << "(" << int(color.red) << ", " << int(color.green) << ", " << int(color.blue)
			   << ")";
}


void
robot::settle()
{
	for (;;) {
		while (activity::pending() != 0)
			snooze(100);
		int64 before = activity::generation();
		display::call([] { QCoreApplication::sendPostedEvents(); });
		// That call was one thing under way; anything more has to be waited for.
		if (activity::pending() == 0 && activity::generation() == before + 1)
			return;
	}
}


bool
robot::wait_for(const std::function<bool()>& condition)
{
	for (int tries = 0; tries < 1000; tries++) {
		settle();
		if (condition())
			return true;
		snooze(10000);
	}
	return false;
}


void
robot::on_display(const std::function<void()>& look)
{
	settle();
	display::call(look);
}


void
robot::act(const std::function<void(QWidget& window)>& work)
{
	as_event([&] {
		if (QWidget* window = _Window())
			work(*window);
	});
}


// Display thread only.
QWidget*
robot::_Window()
{
	for (QWidget* widget : QApplication::topLevelWidgets()) {
		bool dialog = dynamic_cast<QDialog*>(widget) || dynamic_cast<QMenu*>(widget);
		bool named = fTitle.empty() || widget->windowTitle().toStdString() == fTitle;
		if (!dialog && named && widget->isVisible())
			return widget;
	}
	return nullptr;
}


bool
robot::window_is_shown()
{
	bool shown = false;
	on_display([&] { shown = _Window() != nullptr; });
	return shown;
}


std::string
robot::window_title()
{
	std::string title;
	on_display([&] {
		if (QWidget* window = _Window())
			title = window->windowTitle().toStdString();
	});
	return title;
}


BPoint
robot::window_size()
{
	BPoint size(0, 0);
	on_display([&] {
		if (QWidget* window = _Window())
			size = BPoint((float)window->width(), (float)window->height());
	});
	return size;
}


void
robot::_Pointer(int type, BPoint where, int32 button, int32 modifiers)
{
	settle();
	as_event([&] {
		QWidget* window = _Window();
		if (!window)
			return;
		QPointF local(where.x, where.y);
		QMouseEvent event((QEvent::Type)type, local, local,
			window->windowHandle()->mapToGlobal(local), (Qt::MouseButton)(int)to_qt_buttons(button),
			to_qt_buttons(fHeld), to_qt_modifiers(modifiers));
		QCoreApplication::sendEvent(window->windowHandle(), &event);
	});
	settle();
}


void
robot::press(BPoint where, int32 button, int32 modifiers)
{
	fHeld |= button;
	_Pointer(QEvent::MouseButtonPress, where, button, modifiers);
}


void
robot::move(BPoint where, int32 modifiers)
{
	_Pointer(QEvent::MouseMove, where, 0, modifiers);
}


void
robot::release(BPoint where, int32 button, int32 modifiers)
{
	fHeld &= ~button;
	_Pointer(QEvent::MouseButtonRelease, where, button, modifiers);
}


void
robot::click(BPoint where, int32 button, int32 modifiers)
{
	press(where, button, modifiers);
	release(where, button, modifiers);
}


void
robot::wheel(BPoint where, float down, float across)
{
	settle();
	as_event([&] {
		QWidget* window = _Window();
		if (!window)
			return;
		QPointF local(where.x, where.y);
		QWheelEvent event(local, window->mapToGlobal(local), QPoint(),
			QPoint(-(int)std::lround(across * 120), -(int)std::lround(down * 120)), Qt::NoButton,
			Qt::NoModifier, Qt::NoScrollPhase, false);
		QCoreApplication::sendEvent(window->windowHandle(), &event);
	});
	settle();
}


void
robot::_Pen(int type, BPoint where, const pen& held)
{
	// Never destroyed: Qt keeps a list of devices to the end.
	static auto* const stylus = new QPointingDevice("stylus", 1, QInputDevice::DeviceType::Stylus,
		QPointingDevice::PointerType::Pen,
		QInputDevice::Capability::Position | QInputDevice::Capability::Pressure
			| QInputDevice::Capability::XTilt | QInputDevice::Capability::YTilt,
		1, 2);
	static auto* const rubber = new QPointingDevice("rubber", 2, QInputDevice::DeviceType::Stylus,
		QPointingDevice::PointerType::Eraser,
		QInputDevice::Capability::Position | QInputDevice::Capability::Pressure, 1, 2);
	settle();
	as_event([&] {
		QWidget* window = _Window();
		if (!window)
			return;
		QPointF local(where.x, where.y);
		bool moving = type == QEvent::TabletMove;
		QTabletEvent event((QEvent::Type)type, held.eraser ? rubber : stylus, local,
			window->windowHandle()->mapToGlobal(local), held.pressure, held.tilt_x, held.tilt_y, 0,
			0, 0, Qt::NoModifier, moving ? Qt::NoButton : Qt::LeftButton, to_qt_buttons(fHeld));
		QCoreApplication::sendEvent(window->windowHandle(), &event);
	});
	settle();
}


void
robot::pen_down(BPoint where, pen held)
{
	fHeld |= B_PRIMARY_MOUSE_BUTTON;
	_Pen(QEvent::TabletPress, where, held);
}


void
robot::pen_move(BPoint where, pen held)
{
	_Pen(QEvent::TabletMove, where, held);
}


void
robot::pen_up(BPoint where, pen held)
{
	fHeld &= ~B_PRIMARY_MOUSE_BUTTON;
	_Pen(QEvent::TabletRelease, where, held);
}


void
robot::drop(BPoint where, const std::vector<std::string>& paths)
{
	settle();
	as_event([&] {
		QWidget* window = _Window();
		if (!window)
			return;
		QMimeData data;
		QList<QUrl> urls;
		for (const std::string& path : paths)
			urls.append(QUrl::fromLocalFile(QString::fromStdString(path)));
		if (urls.isEmpty())
			data.setText("no files");
		else
			data.setUrls(urls);
		QPoint place((int)where.x, (int)where.y);
		QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
		QCoreApplication::sendEvent(window->windowHandle(), &enter);
		if (!enter.isAccepted())
			return;
		QDropEvent drop(QPointF(place), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
		QCoreApplication::sendEvent(window->windowHandle(), &drop);
	});
	settle();
}


void
robot::_Key(bool down, int key, const std::string& text, int32 modifiers)
{
	settle();
	as_event([&] {
		QWidget* window = _Window();
		if (!window)
			return;
		QKeyEvent event(down ? QEvent::KeyPress : QEvent::KeyRelease, key,
			to_qt_modifiers(modifiers), QString::fromStdString(text));
		QCoreApplication::sendEvent(window->windowHandle(), &event);
	});
	settle();
}


void
robot::key_down(int key, const std::string& text, int32 modifiers)
{
	_Key(true, key, text, modifiers);
}


void
robot::key_up(int key, const std::string& text, int32 modifiers)
{
	_Key(false, key, text, modifiers);
}


void
robot::key(int which, const std::string& text, int32 modifiers)
{
	key_down(which, text, modifiers);
	key_up(which, text, modifiers);
}


void
robot::type(const std::string& text)
{
	for (char letter : text)
		key(toupper((unsigned char)letter), std::string(1, letter));
}


std::string
robot::field_text(BPoint where)
{
	std::string text;
	on_display([&] {
		QWidget* found = _Window()->childAt((int)where.x, (int)where.y);
		if (auto* line = dynamic_cast<QLineEdit*>(found))
			text = line->text().toStdString();
	});
	return text;
}


bool
robot::has_keyboard(BPoint where)
{
	bool has = false;
	on_display([&] {
		QWidget* found = _Window()->childAt((int)where.x, (int)where.y);
		// The face of a list is a part of it.
		while (found && found->focusProxy())
			found = found->focusProxy();
		has = found && _Window()->focusWidget() == found;
	});
	return has;
}


std::string
robot::tooltip(BPoint where)
{
	std::string text;
	on_display([&] {
		if (QWidget* found = _Window()->childAt((int)where.x, (int)where.y))
			text = found->toolTip().toStdString();
	});
	return text;
}


std::string
robot::alert_text()
{
	std::string text;
	on_display([&] {
		QWidget* alert = shown_alert();
		for (QLabel* label : alert ? alert->findChildren<QLabel*>() : QList<QLabel*>())
			text += label->text().toStdString();
	});
	return text;
}


std::vector<std::string>
robot::alert_buttons()
{
	std::vector<std::string> labels;
	on_display([&] {
		QWidget* alert = shown_alert();
		for (auto* button : alert ? alert->findChildren<QPushButton*>() : QList<QPushButton*>())
			labels.push_back(button->text().toStdString());
	});
	return labels;
}


bool
robot::press_alert(const std::string& label)
{
	bool pressed = false;
	settle();
	as_event([&] {
		QWidget* alert = shown_alert();
		for (auto* button : alert ? alert->findChildren<QPushButton*>() : QList<QPushButton*>()) {
			if (button->text().toStdString() == label) {
				button->click();
				pressed = true;
			}
		}
	});
	settle();
	return pressed;
}


void
robot::resize_window(float width, float height)
{
	settle();
	as_event([&] {
		if (QWidget* window = _Window())
			window->resize((int)width, (int)height);
	});
	settle();
}


void
robot::press_close_box()
{
	settle();
	as_event([&] {
		if (QWidget* window = _Window())
			window->close();
	});
	settle();
}


void
robot::press_zoom_box()
{
	settle();
	as_event([&] {
		if (QWidget* window = _Window())
			window->setWindowState(window->windowState() | Qt::WindowMaximized);
	});
	settle();
}


bool
robot::choose_menu(const std::string& menu, const std::string& item)
{
	bool found = false;
	settle();
	as_event([&] {
		QAction* action = find_item(_Window(), menu, item);
		found = action && action->isEnabled();
		if (found)
			action->trigger();
	});
	settle();
	return found;
}


bool
robot::menu_is_marked(const std::string& menu, const std::string& item)
{
	bool marked = false;
	on_display([&] {
		QAction* action = find_item(_Window(), menu, item);
		marked = action && action->isChecked();
	});
	return marked;
}


QImage
robot::picture()
{
	QImage image;
	on_display([&] {
		if (QWidget* window = _Window())
			image = window->grab().toImage().convertToFormat(QImage::Format_RGB32);
	});
	return image;
}


rgb_color
robot::pixel(BPoint where)
{
	QRgb found = picture().pixel((int)where.x, (int)where.y);
	return {(uint8)qRed(found), (uint8)qGreen(found), (uint8)qBlue(found), 255};
}


int
robot::count(BRect place, rgb_color color)
{
	QImage image = picture();
	QRgb wanted = qRgb(color.red, color.green, color.blue);
	int found = 0;
	for (int y = (int)place.top; y <= (int)place.bottom; y++) {
		for (int x = (int)place.left; x <= (int)place.right; x++)
			found += image.valid(x, y) && (image.pixel(x, y) | 0xFF000000) == wanted;
	}
	return found;
}


std::vector<int>
robot::scroll_bar(orientation posture)
{
	std::vector<int> values;
	on_display([&] {
		for (QScrollBar* bar : _Window()->findChildren<QScrollBar*>()) {
			if (is_meant(*bar, posture))
				values = {bar->minimum(), bar->maximum(), bar->value(), bar->pageStep()};
		}
	});
	return values;
}


void
robot::drag_scroll_bar(orientation posture, int value)
{
	settle();
	as_event([&] {
		for (QScrollBar* bar : _Window()->findChildren<QScrollBar*>()) {
			if (is_meant(*bar, posture))
				bar->setValue(value);
		}
	});
	settle();
}


bool
robot::panel_is_open()
{
	return count_panels() > 0;
}


int
robot::count_panels()
{
	int found = 0;
	on_display([&] {
		for (QWidget* widget : QApplication::topLevelWidgets())
			found += widget->isVisible() && dynamic_cast<QFileDialog*>(widget);
	});
	return found;
}


void
robot::answer_panel(const std::string& path)
{
	settle();
	// Typed into without the keyboard, the field would leave an earlier choice in force.
	as_event([] {
		if (QFileDialog* panel = shown_panel()) {
			panel->activateWindow();
			panel->findChild<QLineEdit*>("fileNameEdit")->setFocus();
		}
	});
	settle();
	as_event([&] {
		QFileDialog* panel = shown_panel();
		if (!panel)
			return;
		panel->findChild<QLineEdit*>("fileNameEdit")->setText(QString::fromStdString(path));
		QMetaObject::invokeMethod(panel, "accept");
	});
	settle();
}


void
robot::cancel_panel()
{
	settle();
	as_event([] {
		if (QFileDialog* panel = shown_panel())
			panel->close();
	});
	settle();
}


bool
robot::press_question(const std::string& label)
{
	bool pressed = false;
	settle();
	as_event([&] {
		for (QWidget* widget : QApplication::topLevelWidgets()) {
			auto* box = dynamic_cast<QMessageBox*>(widget);
			if (!box || !box->isVisible())
				continue;
			for (QAbstractButton* button : box->buttons()) {
				if (button->text().remove('&').toStdString() == label) {
					button->click();
					pressed = true;
				}
			}
		}
	});
	settle();
	return pressed;
}


void
run_with_user(BApplication& application, const std::function<void(robot&)>& user)
{
	if (worker == nullptr)
		worker = new event_worker;
	std::atomic<bool> gone = false;
	std::thread hand([&] {
		robot mine;
		user(mine);
		be_app_messenger.SendMessage(B_QUIT_REQUESTED);
		gone = true;
	});
	application.Run();
	// A user who has quit the program may still be looking at the display.
	while (!gone) {
		QCoreApplication::processEvents();
		snooze(100);
	}
	hand.join();
}
