// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Every key of the interface's fixed texts, in the order in which they are loaded.
#define TOVAREL_INTERFACE_STRINGS(X)                                                               \
    X(IDD_ABOUT)                                                                                   \
    X(IDD_HELP)                                                                                    \
    X(IDD_QUIT)                                                                                    \
    X(IDD_APP_HOME_PAGE)                                                                           \
    X(IDD_COMPANY_PAGE)                                                                            \
    X(IDD_PRIVACY_POLICY)                                                                          \
    X(IDD_SUBMIT_TICKET)                                                                           \
    X(IDD_RECORD)                                                                                  \
    X(IDD_PAUSE)                                                                                   \
    X(IDD_STOP)                                                                                    \
    X(IDD_CUT)                                                                                     \
    X(IDD_SAVE)                                                                                    \
    X(IDD_FULL_SCREEN)                                                                             \
    X(IDD_REGION)                                                                                  \
    X(IDD_FPS)                                                                                     \
    X(IDD_INSTRUCTIONS)                                                                            \
    X(IDD_RESOLUTION_EQUAL)                                                                        \
    X(IDD_RESOLUTION_CUSTOM)                                                                       \
    X(IDD_WIDTH)                                                                                   \
    X(IDD_HEIGHT)                                                                                  \
    X(IDD_KEEP_ASPECT_RATIO)                                                                       \
    X(IDD_FPS_EQUAL)                                                                               \
    X(IDD_FORCE_FPS)                                                                               \
    X(IDD_NOTE)                                                                                    \
    X(IDD_GENERATE_GIF)                                                                            \
    X(IDD_LOW_FRAME_NUMBER)                                                                        \
    X(IDD_INVALID_DIMENSION)                                                                       \
    X(IDD_GIF_SAVED_OK)                                                                            \
    X(IDD_PLAY)

/// The interface's fixed texts in the user's language: one field `s_` + key for each key, loaded
/// once at start-up. Texts that are made while the program runs ask the strings table themselves
/// (`qtTrId`).
class InterfaceStrings {
public:
    /// Fills every field from the installed strings table. A key that the table lacks yields the
    /// key itself.
    void load();

#define TOVAREL_STRING_FIELD(key)                                                                  \
    const QString &s_##key() const { return s_##key##_; }                                          \
    void setS_##key(const QString &text) { s_##key##_ = text; }
    TOVAREL_INTERFACE_STRINGS(TOVAREL_STRING_FIELD)
#undef TOVAREL_STRING_FIELD

private:
#define TOVAREL_STRING_MEMBER(key) QString s_##key##_;
    TOVAREL_INTERFACE_STRINGS(TOVAREL_STRING_MEMBER)
#undef TOVAREL_STRING_MEMBER
};
