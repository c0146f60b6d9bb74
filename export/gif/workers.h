// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <future>
#include <mutex>
#include <thread>
#include <vector>

namespace gif {

/// Some threads that do jobs, together with whoever waits for one. Without threads of its own,
/// every job is done by the one that waits for it.
class Workers {
public:
    /// `threads` counts the caller's: 1 means that there are no others.
    explicit Workers(int threads);
    ~Workers();
    Workers(const Workers &) = delete;
    Workers &operator=(const Workers &) = delete;

    int threads() const { return int(threads_.size()) + 1; }

    /// The job is begun before those that were given earlier when it is urgent.
    std::future<void> start(std::function<void()> job, bool urgent = false);

    /// Does other jobs until this one is done; throws what it threw.
    void wait(std::future<void> &job);

private:
    bool doOne();
    void work(const std::stop_token &stop);

    std::mutex mutex_;
    std::condition_variable_any changed_;
    std::deque<std::packaged_task<void()>> jobs_;
    std::vector<std::jthread> threads_; // last: they use the others
};

} // namespace gif
