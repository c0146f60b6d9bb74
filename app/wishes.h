// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/single_instance.h"

#include <QString>

class AppDelegate;

/// Does what somebody wishes of the running program from outside (see `wishes` in
/// app/single_instance.h): no more than what the user could do in the window now, apart from which
/// tab is shown. A wish that nobody knows is refused.
WishAnswer fulfil(const QString &wish, AppDelegate &controller);
