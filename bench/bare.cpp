// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// What any program of Qt needs for a window: the measure for bench_program. Says when it was
// painted, and how much memory that took once things have settled, and ends.

#include "first_paint.h"

#include <cstdio>
#include <QApplication>
#include <QTimer>
#include <QWidget>


int
main(int argc, char** argv)
{
	QApplication application(argc, argv);
	QWidget window;
	window.setWindowTitle("bare");
	window.resize(400, 300);
	double first = 0;
	paint_watch watch([&](double when) {
		if (first != 0)
			return;
		first = when;
		QTimer::singleShot(300, [&] {
			printf("painted %.6f\nresident %.0f\n", first, resident());
			QApplication::quit();
		});
	});
	window.show();
	return QApplication::exec();
}
