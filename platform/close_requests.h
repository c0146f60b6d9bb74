// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractNativeEventFilter>
#include <QtGui/qwindowdefs.h>

#include <cstdint>
#include <functional>

/// Notices the window manager's requests to close a window of this program (WM_DELETE_WINDOW of
/// ICCCM 4.2.8.1) before the toolkit does, which drops those for a window that a modal one blocks.
/// Where windows are not X11's it notices nothing. It ends when it is destroyed.
class CloseRequests : public QAbstractNativeEventFilter {
public:
    /// Gets the window that is asked to close, and says whether it has dealt with the request; one
    /// that it has not goes on to the toolkit.
    using Handler = std::function<bool(WId window)>;

    /// To be made after the application object, on its thread.
    explicit CloseRequests(Handler handler);

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

private:
    Handler handler_;
    std::uint32_t protocols_ = 0;
    std::uint32_t deleteWindow_ = 0;
};
