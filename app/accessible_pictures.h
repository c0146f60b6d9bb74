// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

/// Tells assistive technology which of our views are pictures; the toolkit cannot know that of a
/// widget that paints itself. To be called before the first of them gets its name.
void installAccessiblePictures();
