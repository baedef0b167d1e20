// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "desktop/support/sway_desktop.h"

#include "desktop/support/until.h"

#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <pwd.h>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

// Questions of the server's own protocol.
enum { run_command = 0, get_tree = 4 };


static std::string
settings(double scale)
{
	auto pixels = [&](double length) { return std::to_string((int)(length * scale)); };
	return "xwayland disable\n"
		   "output HEADLESS-1 mode "
		+ pixels(screen_size.width()) + "x" + pixels(screen_size.height())
		+ "@60Hz position 0 0 scale " + std::to_string(scale)
		+ " bg #000000 solid_color\n"
		  "default_border none\n"
		  "default_floating_border none\n"
		  "focus_follows_mouse no\n"
		  "for_window [title=\"^kernix ver\"] floating enable\n";
}


// The server refuses to run as root: then it runs as nobody, whose the folder of its sockets must
// be. Root's programs may connect all the same.
static std::vector<std::string>
as_nobody(const std::string& folder, std::vector<std::string> command)
{
	const passwd* nobody = geteuid() == 0 ? getpwnam("nobody") : nullptr;
	if (nobody == nullptr)
		return command;
	if (chown((folder + "/run").c_str(), nobody->pw_uid, nobody->pw_gid) != 0)
		throw journey_failed("the folder of the sockets cannot be given away");
	std::filesystem::permissions(
		folder, std::filesystem::perms::owner_all | std::filesystem::perms::others_exec);
	std::vector<std::string> as = {"setpriv", "--reuid", "nobody", "--regid",
		std::to_string(nobody->pw_gid), "--clear-groups", "--pdeathsig", "TERM"};
	as.insert(as.end(), command.begin(), command.end());
	return as;
}


// The name of the server's socket, which it chooses; empty before it is there.
static std::string
display_in(const std::string& folder)
{
	for (const auto& each : std::filesystem::directory_iterator(folder)) {
		std::string name = each.path().filename();
		if (name.starts_with("wayland-") && !name.ends_with(".lock"))
			return name;
	}
	return "";
}


sway_desktop::sway_desktop(const desktop_kind& kind, const std::string& folder)
	: desktop(kind.scale),
	  fFolder(folder),
	  fSocket(folder + "/run/sway")
{
	std::string path = folder + "/run/config";
	std::ofstream(path) << settings(kind.scale);
	setenv("SWAYSOCK", fSocket.c_str(), 1);
	fServer =
		std::make_unique<child>(as_nobody(folder,
									{"env", "WLR_BACKENDS=headless", "WLR_LIBINPUT_NO_DEVICES=1",
										"WLR_RENDERER=pixman", "sway", "-c", path}),
			folder + "/server", folder + "/server");
	until("the Wayland server does not start",
		[&] { return !display_in(folder + "/run").empty() && std::filesystem::exists(fSocket); });
	setenv("WAYLAND_DISPLAY", display_in(folder + "/run").c_str(), 1);
	setenv("QT_QPA_PLATFORM", "wayland", 1);
	fDevices = std::make_unique<wayland_devices>(screen_size, folder);
}


// A head of three fields (a magic word, the length, the kind), then the text; the answer likewise.
QByteArray
sway_desktop::ask(uint32_t what, const std::string& text)
{
	int connection = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
	sockaddr_un address = {};
	address.sun_family = AF_UNIX;
	strncpy(address.sun_path, fSocket.c_str(), sizeof address.sun_path - 1);
	QByteArray said("i3-ipc");
	uint32_t head[2] = {(uint32_t)text.size(), what};
	said.append((const char*)head, sizeof head).append(text.data(), (qsizetype)text.size());
	QByteArray answer;
	bool well = ::connect(connection, (sockaddr*)&address, sizeof address) == 0
		&& write(connection, said.data(), (size_t)said.size()) == said.size();
	constexpr qsizetype head_size = 14;
	while (well) {
		char some[65536];
		ssize_t count = read(connection, some, sizeof some);
		well = count > 0;
		answer.append(some, well ? count : 0);
		uint32_t length = 0;
		if (answer.size() >= head_size)
			memcpy(&length, answer.data() + 6, sizeof length);
		if (answer.size() >= head_size && answer.size() == head_size + (qsizetype)length)
			break;
	}
	::close(connection);
	if (!well)
		throw journey_failed("the Wayland server does not answer");
	return answer.mid(head_size);
}


void
sway_desktop::command(const std::string& text)
{
	QByteArray answer = ask(run_command, text);
	if (!QJsonDocument::fromJson(answer)[0]["success"].toBool())
		throw journey_failed("the server refuses \"" + text + "\": " + answer.toStdString());
}


void
sway_desktop::move_to(QPointF where)
{
	fDevices->move_to(where);
}


void
sway_desktop::button(mouse_button which, bool down)
{
	fDevices->button(which, down);
}


void
sway_desktop::notch(direction where)
{
	fDevices->notch(
		where == downward || where == rightward ? 1 : -1, where == leftward || where == rightward);
}


void
sway_desktop::key(uint32_t symbol, bool down)
{
	fDevices->key(symbol, down);
}


bool
sway_desktop::needs_shift(uint32_t symbol)
{
	return fDevices->needs_shift(symbol);
}


void
sway_desktop::flush()
{
	fDevices->flush();
}


static QRectF
rectangle(const QJsonValue& value)
{
	return {value["x"].toDouble(), value["y"].toDouble(), value["width"].toDouble(),
		value["height"].toDouble()};
}


static void
collect(const QJsonObject& node, std::vector<shown_window>& all)
{
	if (node.contains("app_id")) {
		QRectF contents = rectangle(node["window_rect"]);
		contents.translate(rectangle(node["rect"]).topLeft());
		bool floats = node["type"].toString() == "floating_con";
		all.push_back({(uint64_t)node["id"].toInteger(), node["name"].toString().toStdString(),
			node["app_id"].toString().toStdString(), contents, QMarginsF(),
			node["focused"].toBool(), floats, node["visible"].toBool()});
	}
	for (const char* kind : {"nodes", "floating_nodes"}) {
		for (const QJsonValue& each : node[QLatin1String(kind)].toArray())
			collect(each.toObject(), all);
	}
}


std::vector<shown_window>
sway_desktop::windows()
{
	std::vector<shown_window> all;
	collect(QJsonDocument::fromJson(ask(get_tree, "")).object(), all);
	return all;
}


static std::string
with_id(const shown_window& window)
{
	return "[con_id=" + std::to_string(window.id) + "] ";
}


void
sway_desktop::activate(const shown_window& window)
{
	command(with_id(window) + "focus");
}


void
sway_desktop::resize(const shown_window& window, QSizeF contents)
{
	command(with_id(window) + "resize set width " + std::to_string((int)contents.width())
		+ " px height " + std::to_string((int)contents.height()) + " px");
}


void
sway_desktop::minimise(const shown_window&)
{
	throw journey_failed("this desktop minimises no windows");
}


void
sway_desktop::close(const shown_window& window)
{
	command(with_id(window) + "kill");
}


QImage
sway_desktop::picture(QRectF part)
{
	std::string path = fFolder + "/screen.ppm", log = fFolder + "/grim";
	QRect wanted = part.toRect().intersected(QRect(QPoint(), screen_size.toSize()));
	std::string place = std::to_string(wanted.x()) + "," + std::to_string(wanted.y()) + " "
		+ std::to_string(wanted.width()) + "x" + std::to_string(wanted.height());
	child grim({"grim", "-t", "ppm", "-g", place, path}, log, log);
	until("no picture of the screen", [&] { return grim.status().has_value(); });
	QImage image(QString::fromStdString(path));
	if (grim.status() != 0 || image.isNull())
		throw journey_failed("no picture of the screen: " + text_of(log));
	return image.convertToFormat(QImage::Format_RGB32);
}


QImage
sway_desktop::picture()
{
	return picture(QRectF(QPointF(), screen_size));
}
