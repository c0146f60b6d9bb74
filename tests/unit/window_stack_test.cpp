// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/x11/window_stack.h"

#include <gtest/gtest.h>

using x11::StackedWindow;
using x11::WindowStack;

namespace {

WindowStack stackOf(std::initializer_list<std::uint32_t> numbers) {
    WindowStack stack;
    for (const auto number : numbers)
        stack.add({.number = number, .outer = {0, 0, 10, 10}});
    return stack;
}

std::vector<std::uint32_t> order(const WindowStack &stack) {
    std::vector<std::uint32_t> numbers;
    for (const auto &window : stack.bottomToTop())
        numbers.push_back(window.number);
    return numbers;
}

} // namespace

TEST(WindowStack, putsAConfiguredWindowRightAboveItsSibling) {
    const struct {
        std::uint32_t window, sibling;
        std::vector<std::uint32_t> expected;
    } cases[] = {
        {1, 3, {2, 3, 1, 4}}, {4, 1, {1, 4, 2, 3}},  {3, 0, {3, 1, 2, 4}},
        {2, 1, {1, 2, 3, 4}}, {1, 4, {2, 3, 4, 1}},  {1, 0, {1, 2, 3, 4}},
        {4, 3, {1, 2, 3, 4}}, {2, 99, {1, 2, 3, 4}}, // a sibling that is gone
    };
    for (const auto &c : cases) {
        auto stack = stackOf({1, 2, 3, 4});
        EXPECT_TRUE(stack.configure({.number = c.window, .outer = {5, 5, 20, 20}}, c.sibling));
        EXPECT_EQ(order(stack), c.expected) << c.window << " above " << c.sibling;
        EXPECT_EQ(stack.find(c.window)->outer, QRect(5, 5, 20, 20));
    }
}
