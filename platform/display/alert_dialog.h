// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_ALERT_DIALOG_H
#define KITS_ALERT_DIALOG_H

#include <functional>
#include <memory>
#include <string>
#include <vector>

class QDialog;

namespace kits {

enum class alert_icon { none, information, warning, stop };

struct alert_text {
	std::string title;
	std::string text;
	// From left to right; the last is the default.
	std::vector<std::string> buttons;
	alert_icon icon;
	// All buttons as wide as the widest.
	bool same_width;
};

// Only the display thread looks inside.
struct alert_dialog {
	QDialog* widget = nullptr;
};

// Commands; any thread. The answer is the index of the button, called on the display thread once.
// The dialog blocks input to the program's other windows.
namespace alert_dialogs {

std::shared_ptr<alert_dialog> show(const alert_text& text, const std::function<void(int)>& answer);
// Takes it away without an answer, if it is still there.
void dismiss(const std::shared_ptr<alert_dialog>& dialog);

}
}

#endif
