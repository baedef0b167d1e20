// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/alert_dialog.h"

#include "display/display.h"
#include "display/owner.h"

#include <algorithm>
#include <QDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

using namespace kits;


namespace {

constexpr int margin = 14;
constexpr int icon_size = 32;
constexpr int least_button_width = 75;
constexpr int button_height = 26;


QStyle::StandardPixmap
pixmap_of(alert_icon icon)
{
	switch (icon) {
		case alert_icon::warning:
			return QStyle::SP_MessageBoxWarning;
		case alert_icon::stop:
			return QStyle::SP_MessageBoxCritical;
		default:
			return QStyle::SP_MessageBoxInformation;
	}
}


// A dialog of our own: the toolkit's would sort the buttons by what it thinks they mean.
class alert_widget : public QDialog {
public:
	alert_widget(const alert_text& text, std::function<void(int)> answer)
		: fAnswer(std::move(answer))
	{
		setObjectName("alert");
		setAttribute(Qt::WA_DeleteOnClose);
		setWindowModality(Qt::ApplicationModal);
		setWindowTitle(QString::fromStdString(text.title));
		auto* rows = new QVBoxLayout(this);
		rows->setContentsMargins(margin, margin, margin, margin);
		rows->setSpacing(margin);
		rows->setSizeConstraint(QLayout::SetFixedSize);
		rows->addLayout(_MakeText(text));
		rows->addLayout(_MakeButtons(text));
	}

protected:
	void done(int result) override
	{
		QDialog::done(result);
		// Closed without a button: the leftmost, which by custom changes nothing.
		_Answer(0);
	}

private:
	QLayout* _MakeText(const alert_text& text)
	{
		auto* line = new QHBoxLayout;
		line->setSpacing(margin);
		if (text.icon != alert_icon::none) {
			auto* picture = new QLabel;
			picture->setPixmap(style()->standardIcon(pixmap_of(text.icon)).pixmap(icon_size));
			line->addWidget(picture, 0, Qt::AlignTop);
		}
		auto* words = new QLabel(QString::fromStdString(text.text));
		words->setTextFormat(Qt::PlainText);
		line->addWidget(words, 1);
		return line;
	}

	QLayout* _MakeButtons(const alert_text& text)
	{
		auto* line = new QHBoxLayout;
		line->addStretch(1);
		int widest = 0;
		std::vector<QPushButton*> buttons;
		for (size_t i = 0; i < text.buttons.size(); i++) {
			auto* button = new QPushButton(QString::fromStdString(text.buttons[i]));
			int width = button->fontMetrics().horizontalAdvance(button->text()) + 2 * margin;
			button->setFixedSize(std::max(width, least_button_width), button_height);
			widest = std::max(widest, button->width());
			connect(button, &QPushButton::clicked, this, [this, i] {
				_Answer((int)i);
				close();
			});
			button->setDefault(i + 1 == text.buttons.size());
			line->addWidget(button);
			buttons.push_back(button);
		}
		for (QPushButton* button : buttons) {
			if (text.same_width)
				button->setFixedWidth(widest);
		}
		return line;
	}

	void _Answer(int index)
	{
		// Taken out first: pressing a button also closes the dialog.
		auto answer = std::exchange(fAnswer, nullptr);
		if (answer)
			answer(index);
	}

	std::function<void(int)> fAnswer;
};

}


std::shared_ptr<alert_dialog>
alert_dialogs::show(const alert_text& text, const std::function<void(int)>& answer)
{
	auto made = std::make_shared<alert_dialog>();
	display::post([=] {
		made->widget = new alert_widget(text, answer);
		QObject::connect(made->widget, &QObject::destroyed, [made] { made->widget = nullptr; });
		tie_to_window(*made->widget);
		made->widget->show();
	});
	return made;
}


void
alert_dialogs::dismiss(const std::shared_ptr<alert_dialog>& dialog)
{
	display::post([=] { delete dialog->widget; });
}
