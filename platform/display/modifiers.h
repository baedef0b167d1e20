// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_MODIFIERS_H
#define KITS_MODIFIERS_H

#include <QtCore/qnamespace.h>
#include <SupportDefs.h>

namespace kits {

// The platform's mask; Command is Alt or the Windows key.
int32 modifiers_of(Qt::KeyboardModifiers held);

}

#endif
