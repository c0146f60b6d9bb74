// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/single_instance.h"

#include <gtest/gtest.h>

TEST(SingleInstance, aFolderThatCannotBeUsedNeverKeepsTheProgramFromStarting) {
    const SingleInstance instance(QStringLiteral("/nonexistent/folder"));
    EXPECT_TRUE(instance.isFirst());
}
