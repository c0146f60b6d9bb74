// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVariantMap>

#include <cstdint>
#include <utility>
#include <vector>

/// One on-screen window as the capture keeps it: a dictionary of exactly the six keys below.
using WindowEntry = QVariantMap;

/// Owner name and process, "name (pid)", or "((unknown)) (pid)" without a name.
inline const QString kAppNameKey = QStringLiteral("applicationName");
/// Upper left corner of the window, "x/y", whole numbers.
inline const QString kWindowOriginKey = QStringLiteral("windowOrigin");
/// Size of the window, "width*height", whole numbers.
inline const QString kWindowSizeKey = QStringLiteral("windowSize");
/// The window server's number of the window, an unsigned 32-bit value.
inline const QString kWindowIDKey = QStringLiteral("windowID");
/// The window's layer as the window server gives it.
inline const QString kWindowLevelKey = QStringLiteral("windowLevel");
/// Place in the stack, front to back, counted over the kept windows: 0, 1, 2, ...
inline const QString kWindowOrderKey = QStringLiteral("windowOrder");

/// Accumulates one walk over the window list.
class WindowListApplierData {
public:
    /// Takes over `list` to append to; the first entry gets order 0.
    void initWindowListData(std::vector<WindowEntry> list) {
        outputArray_ = std::move(list);
        order_ = 0;
    }

    /// Stacking position of the next window that is not skipped.
    std::int32_t order() const { return order_; }
    void setOrder(std::int32_t order) { order_ = order; }

    /// The entries collected so far.
    const std::vector<WindowEntry> &outputArray() const { return outputArray_; }
    std::vector<WindowEntry> &outputArray() { return outputArray_; }
    void setOutputArray(std::vector<WindowEntry> list) { outputArray_ = std::move(list); }

private:
    std::int32_t order_ = 0;
    std::vector<WindowEntry> outputArray_;
};
