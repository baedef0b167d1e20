// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "app/registry.h"

#include "app/port.h"

#include <mutex>
#include <unordered_map>

using namespace kits;


namespace {

struct record {
	BHandler* handler = nullptr;
	int32 looper = -1;
	std::shared_ptr<port> messages;
};

struct table {
	std::mutex lock;
	std::unordered_map<int32, record> records;
	int32 last = 0;
};


table&
everyone()
{
	static table* const only = new table;
	return *only;
}

}


int32
registry::enter(BHandler* handler)
{
	table& all = everyone();
	std::lock_guard guard(all.lock);
	int32 token = ++all.last;
	all.records[token].handler = handler;
	return token;
}


void
registry::leave(int32 token)
{
	table& all = everyone();
	std::lock_guard guard(all.lock);
	all.records.erase(token);
}


void
registry::set_looper(int32 token, int32 looper)
{
	table& all = everyone();
	std::lock_guard guard(all.lock);
	all.records[token].looper = looper;
}


int32
registry::looper_of(int32 token)
{
	table& all = everyone();
	std::lock_guard guard(all.lock);
	auto found = all.records.find(token);
	return found == all.records.end() ? -1 : found->second.looper;
}


BHandler*
registry::find(int32 token, int32 looper)
{
	table& all = everyone();
	std::lock_guard guard(all.lock);
	auto found = all.records.find(token);
	if (found == all.records.end() || found->second.looper != looper)
		return nullptr;
	return found->second.handler;
}


std::vector<BHandler*>
registry::handlers_of(int32 looper)
{
	table& all = everyone();
	std::lock_guard guard(all.lock);
	std::vector<BHandler*> found;
	for (const auto& [token, each] : all.records) {
		if (each.looper == looper)
			found.push_back(each.handler);
	}
	return found;
}


void
registry::set_port(int32 looper, std::shared_ptr<port> messages)
{
	table& all = everyone();
	std::lock_guard guard(all.lock);
	all.records[looper].messages = std::move(messages);
}


std::shared_ptr<port>
registry::port_of(int32 looper)
{
	table& all = everyone();
	std::lock_guard guard(all.lock);
	auto found = all.records.find(looper);
	return found == all.records.end() ? nullptr : found->second.messages;
}
