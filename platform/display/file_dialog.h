// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_FILE_DIALOG_H
#define KITS_FILE_DIALOG_H

#include <functional>
#include <memory>
#include <string>
#include <vector>

class QFileDialog;

namespace kits {

struct dialog_options {
	bool saving;
	bool several;
	// Where it opens; empty: where the last one of this process was left.
	std::string folder;
};

// The dialog behind a file panel. Only the display thread looks inside.
struct file_dialog {
	QFileDialog* widget = nullptr;
};

// Chosen paths, none when it was closed without a choice. Called on the display thread, which must
// not wait in it.
using dialog_answer = std::function<void(const std::vector<std::string>&)>;

// Commands; any thread. A dialog that has answered stays hidden until it is shown again.
namespace file_dialogs {

std::shared_ptr<file_dialog> make(const dialog_options& options, const dialog_answer& answer);
// Shown again while it is on the screen, it comes to the front, where the desktop lets it.
void show(const std::shared_ptr<file_dialog>& dialog, bool shown);
void destroy(const std::shared_ptr<file_dialog>& dialog);

}
}

#endif
