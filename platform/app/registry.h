// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KITS_REGISTRY_H
#define KITS_REGISTRY_H

#include <memory>
#include <SupportDefs.h>
#include <vector>

class BHandler;
class BLooper;

namespace kits {

class port;

// Who can be reached: every handler by its token, with the looper that it belongs to, and every
// looper's port. One mutex guards it and nothing else is ever locked under it, so any thread may
// ask at any time. Its storage is never destroyed: threads may outlive main's return.
namespace registry {

// A fresh token for the handler. Tokens are not used again.
int32 enter(BHandler* handler);
void leave(int32 token);

// A token of -1 means that the handler belongs to no looper.
void set_looper(int32 token, int32 looper);
// Token of the looper that the handler belongs to; -1 for none or a handler that has gone.
int32 looper_of(int32 token);
// The handler if it still belongs to that looper, else null.
BHandler* find(int32 token, int32 looper);
// All that belong to that looper, itself included.
std::vector<BHandler*> handlers_of(int32 looper);

void set_port(int32 looper, std::shared_ptr<port> messages);
// Null when the looper has gone.
std::shared_ptr<port> port_of(int32 looper);

}
}

#endif
