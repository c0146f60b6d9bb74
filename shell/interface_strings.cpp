// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "shell/interface_strings.h"

#include <QCoreApplication>

void InterfaceStrings::load() {
#define TOVAREL_LOAD_STRING(key) setS_##key(qtTrId(#key));
    TOVAREL_INTERFACE_STRINGS(TOVAREL_LOAD_STRING)
#undef TOVAREL_LOAD_STRING
}
