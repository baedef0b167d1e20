// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_SOAK_USER_H
#define KERNIX_SOAK_USER_H

#include <map>
#include <string>
#include <vector>

#include "soak/dice.h"
#include "soak/fonts.h"
#include "support/robot.h"

#include <Message.h>

class kernix;

// What the user of one session sees before each action.
struct sight {
	enum kind { button, field, box, list, menu, slider, kinds };
	struct thing {
		kind what;
		BPoint place; // its middle, in the window
		BPoint size;
		std::string label;
	};

	bool window = false;
	BPoint size = BPoint(0, 0);
	bool alert = false;
	std::vector<std::string> questions; // their buttons; over a file panel
	bool panel = false;
	bool popup = false;
	std::vector<thing> things;

	std::vector<thing> all(kind what) const;
};

// Somebody who does whatever comes to mind with a running program. Everything is chosen by the
// dice; every action is noted in the trail before it is done.
class soak_user {
public:
	// @param folder empty, the session's own; what is opened and saved stands there
	soak_user(kernix& application, robot& user, dice& source, const fonts& shelf,
		const std::string& folder);

	// Acts so many times, or until the program has gone, and then leaves it in the middle of
	// something.
	void run(int most);

	int actions() const { return fActions; }
	// What the user has put into the folder: contents by path.
	const std::map<std::string, octets>& files() const { return fFiles; }
	// What was wrong, if anything was.
	const std::string& problem() const { return fProblem; }

private:
	struct action {
		int weight;
		void (soak_user::*act)();
	};

	void note(const std::string& what);
	void look();
	void step();
	void deal_with_popup();
	void deal_with_question();
	void deal_with_panel();
	void deal_with_alert();
	void leave();
	void begin_something();
	void go();

	// Files.
	std::string put(const octets& contents);
	std::string some_path();
	void send(const BMessage& message, bool to_view = false);
	void open_good();
	void open_garbage();
	void drop_files();
	void save_new();
	void save_over();
	void copy_font();
	void ask_for_panel();
	void answer_panel(const std::string& path);
	void set_up();
	void show_about();
	void send_message();

	// Controls.
	void choose_table();
	void press_button();
	void tick_box();
	void choose_row();
	void open_menu();
	void fill_field();
	void move_slider();
	std::string some_text();

	// Pointer, pen, keys, window.
	BPoint somewhere();
	int32 some_keys();
	int32 some_button();
	void click();
	void drag();
	void stroke();
	void take_tool();
	void turn_wheel();
	void scroll();
	void resize();
	void type_keys();
	void edit_shortcut();
	void hurry();

	// Work at one table.
	int number_of(uint32 tag);
	bool reach(uint32 tag);
	void enter_text(BPoint place, const std::string& text);
	void do_some(const std::vector<void (soak_user::*)()>& choice, int most);
	BPoint some_point();
	void pull_point();
	void select_much();
	void press_editing_key();
	void place_corners();
	void choose_glyph();
	void change_components();
	void work_at_outlines();
	void turn_pixel();
	void choose_bitmap();
	void work_at_bitmaps();
	void fill_all_fields();
	void work_at_panel();

	kernix& fApp;
	robot& fHand;
	dice& fChance;
	const fonts& fShelf;
	const std::string fFolder;
	sight fSight;
	std::map<std::string, octets> fFiles;
	int fSaved = 0;
	int fActions = 0;
	std::string fProblem;
};

std::string text_of(BPoint place);

#endif
