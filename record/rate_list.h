// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "record/rates.h"

#include <QComboBox>

/// Fills an empty list with all rates, in frames per second, each at its place from the lowest on,
/// and selects one; the lowest where `selected` is none of them.
inline void fillRates(QComboBox &list, std::uint64_t selected) {
    for (std::uint64_t rate = lowestRate; rate <= highestRate; ++rate)
        list.addItem(QString::number(rate));
    const bool listed = selected >= lowestRate && selected <= highestRate;
    list.setCurrentIndex(listed ? static_cast<int>(selected - lowestRate) : 0);
}
