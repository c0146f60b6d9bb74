// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

/// Tells assistive technology what our own views are, a picture or a dialog; the toolkit cannot
/// know that of a widget that paints itself. To be called before the first of them gets its name.
void installAccessibleRoles();
