// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

class Surroundings;

/// Shows version, licence, and which encoders were found where; returns when it is dismissed.
void showAbout(const Surroundings &surroundings);
