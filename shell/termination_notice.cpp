// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "shell/termination_notice.h"

#include <QSocketNotifier>
#include <QtGlobal>

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <memory>
#include <utility>

namespace {

// A signal handler may touch little more than a flag and a pipe.
volatile sig_atomic_t arrived = 0; // how many
std::array<int, 2> wakeUp{-1, -1}; // read end, write end
std::unique_ptr<QSocketNotifier> notifier;

void onSignal(int) {
    const int savedErrno = errno;
    arrived = arrived + 1;
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = write(wakeUp[1], &byte, 1);
    errno = savedErrno;
}

} // namespace

TerminationNotice::TerminationNotice(std::function<void()> notify) {
    if (pipe2(wakeUp.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        qWarning("no pipe for signals: they end the program without writing its settings");
        return;
    }
    notifier = std::make_unique<QSocketNotifier>(wakeUp[0], QSocketNotifier::Read);
    QObject::connect(notifier.get(), &QSocketNotifier::activated, notifier.get(),
                     [notify = std::move(notify)] {
                         // Once for each time that the loop turns, however many have arrived.
                         std::array<char, 16> bytes{};
                         while (read(wakeUp[0], bytes.data(), bytes.size()) > 0)
                             continue;
                         notify();
                     });
    struct sigaction action = {};
    action.sa_handler = onSignal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    sigaction(SIGTERM, &action, nullptr);
    sigaction(SIGINT, &action, nullptr);
    // Whoever started us so that it is ignored (nohup) wants us to outlive the terminal.
    struct sigaction inherited = {};
    if (sigaction(SIGHUP, nullptr, &inherited) == 0 && inherited.sa_handler != SIG_IGN)
        sigaction(SIGHUP, &action, nullptr);
}

TerminationNotice::~TerminationNotice() {
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        struct sigaction current = {};
        if (sigaction(number, nullptr, &current) == 0 && current.sa_handler == onSignal)
            signal(number, SIG_DFL);
    }
    notifier.reset();
    for (int &end : wakeUp)
        if (end >= 0)
            close(std::exchange(end, -1));
}

int TerminationNotice::arrivals() { return arrived; }
