// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

class Alerts;

/// The help pages, which come with the program, so that they need no network and always fit its
/// version.
namespace help {

inline constexpr char firstPage[] = "index.html";

/// Opens the page with this file name in the user's browser. Whether a program was found for it.
bool open(const char *page);

/// Opens the first page, and says where it is when nothing can show it.
void openFirstPage(Alerts &alerts);

} // namespace help
