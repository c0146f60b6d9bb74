// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
//
// A disk that is slow for as long as a test wants. Loaded in front of the C library, it lets the
// renaming of a picture wait while the file named by HOLD_RENAME exists: a frame is written aside
// and renamed, so the saving of a recording then stands still at a known point. The settings, which
// are written in the same way at the end, do not wait.
#include <dlfcn.h>
#include <time.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>

namespace {

bool isPicture(const char *path) {
    const char *ending = std::strrchr(path, '.');
    return ending && std::strcmp(ending, ".png") == 0;
}

void waitWhileHeld(const char *target) {
    const char *mark = isPicture(target) ? std::getenv("HOLD_RENAME") : nullptr;
    const timespec moment{0, 10'000'000}; // 10 ms
    while (mark && access(mark, F_OK) == 0)
        nanosleep(&moment, nullptr);
}

template <typename Function> Function *next(const char *name) {
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

} // namespace

extern "C" int rename(const char *from, const char *to) noexcept {
    waitWhileHeld(to);
    return next<int(const char *, const char *)>("rename")(from, to);
}

extern "C" int renameat2(int fromFolder, const char *from, int toFolder, const char *to,
                         unsigned flags) noexcept {
    waitWhileHeld(to);
    return next<int(int, const char *, int, const char *, unsigned)>("renameat2")(
        fromFolder, from, toFolder, to, flags);
}
