// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_LOOK_H
#define KITS_LOOK_H

#include <QFont>
#include <QString>

#include "display/control_look.h"

class QApplication;
class QWidget;

namespace kits {

// One look on every desktop, so that layouts given in pixels fit: a style of our own measures,
// a light palette, the plain font.
void set_look(QApplication& application);

// Colours and font of one control.
void apply(const control_look& look, QWidget& widget);

// The whole text as a tooltip where the widget is too narrow to show it, else none.
void explain_when_elided(QWidget& widget, const QString& text, int room);

// The font, made narrower step by step until the text fits the room (pixels) or it is at its
// narrowest.
QFont fitted(const QFont& font, const QString& text, int room);

// As much of the text as fits; all of it by the same measure as above.
QString shortened(const QFont& font, const QString& text, int room);

}

#endif
