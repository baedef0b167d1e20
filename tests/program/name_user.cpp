// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "program/name_user.h"

#include "font/globals.h"
#include "font/ttf.h"
#include "support/opened.h"
#include "support/temp_files.h"
#include "tables/ttf_name.h"


void
at_names(const octets& names, const std::function<void(kernix&, robot&)>& work)
{
	temp_file font(font_file().with("cmap", tiny_font().table("cmap")).with("name", names));
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		user.click(place_of_tag(1));
		work(app, user);
	});
}


octets
name_octets(kernix& app)
{
	octets table;
	looking(app, [&] { table = kept(curttf->name); });
	return table;
}


std::string
fields(robot& user)
{
	return user.field_text(platform_field) + "-" + user.field_text(encoding_field) + "-"
		+ user.field_text(language_field) + "-" + user.field_text(name_field) + " "
		+ user.field_text(data_field);
}


void
put_text(robot& user, BPoint field, const std::string& text)
{
	enter(user, field, "");
	user.key(Qt::Key_unknown, text);
	user.key(Qt::Key_Return, "\r");
}


void
put_ids(
	robot& user, const char* platform, const char* encoding, const char* language, const char* name)
{
	enter(user, platform_field, platform);
	enter(user, encoding_field, encoding);
	enter(user, language_field, language);
	enter(user, name_field, name);
}
