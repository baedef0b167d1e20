// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/focus.h"

#include "display/input.h"
#include "display/key_filter.h"
#include "display/window_widget.h"

#include <algorithm>

using namespace kits;


namespace {

// What can have the keyboard of a control that is made of parts.
QWidget*
innermost(QWidget* widget)
{
	while (widget && widget->focusProxy())
		widget = widget->focusProxy();
	return widget;
}


void
collect_stops(const QWidget& around, std::vector<QWidget*>& stops)
{
	for (QObject* child : around.children()) {
		auto* widget = qobject_cast<QWidget*>(child);
		if (!widget || widget->isWindow() || widget->isHidden())
			continue;
		bool stops_here = widget->focusPolicy() & Qt::TabFocus && widget->isEnabled();
		if (stops_here && dynamic_cast<focus_holder*>(widget))
			stops.push_back(widget);
		collect_stops(*widget, stops);
	}
}

}


focus_keeper*
kits::focus_keeper_of(const QWidget& widget)
{
	auto* window = dynamic_cast<window_widget*>(widget.window());
	return window ? &window->focus() : nullptr;
}


focus_keeper::focus_keeper(QWidget& window, int32 looper)
	: fWindow(window),
	  fLooper(looper),
	  fHolder(&window)
{
	fWindow.setFocus(Qt::OtherFocusReason);
}


void
focus_keeper::give(QWidget* widget, int32 seen)
{
	if (seen < fMoves)
		return;
	QWidget* wanted = innermost(widget);
	bool can = wanted && wanted->focusPolicy() != Qt::NoFocus && wanted->isEnabled()
		&& wanted->isVisibleTo(&fWindow);
	_Move(can ? *wanted : fWindow);
}


void
focus_keeper::got(QWidget& widget)
{
	if (fHolder != &widget)
		_UserMoves(widget);
}


void
focus_keeper::walk(bool forward)
{
	std::vector<QWidget*> stops;
	collect_stops(fWindow, stops);
	if (stops.empty())
		return;
	if (!forward)
		std::reverse(stops.begin(), stops.end());
	auto here = std::find(stops.begin(), stops.end(), fHolder);
	if (here == stops.end() || ++here == stops.end())
		here = stops.begin();
	_UserMoves(**here);
}


void
focus_keeper::leave(const QWidget& widget)
{
	if (fHolder == &widget || widget.isAncestorOf(fHolder))
		_Move(fWindow);
}


// Keys that are held stay behind: they go up where they went down.
void
focus_keeper::_Move(QWidget& to)
{
	if (fHolder && fHolder != &to)
		keyboard().let_go(*fHolder);
	fHolder = &to;
	to.setFocus(Qt::OtherFocusReason);
	if (auto* holder = dynamic_cast<focus_holder*>(&to))
		holder->entered();
}


// Also to where it is: a walk may lead round to where it began, which is left and entered again.
void
focus_keeper::_UserMoves(QWidget& to)
{
	_Move(to);
	BMessage report(focus_taken);
	report.AddInt32("view", dynamic_cast<focus_holder&>(to).view());
	report.AddInt32("moves", ++fMoves);
	post_to(fLooper, report);
}
