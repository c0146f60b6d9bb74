// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/gif/workers.h"

#include <chrono>
#include <utility>

namespace gif {

Workers::Workers(int threads) {
    for (int i = 1; i < threads; ++i)
        threads_.emplace_back([this](const std::stop_token &stop) { work(stop); });
}

Workers::~Workers() {
    for (std::jthread &thread : threads_)
        thread.request_stop();
}

std::future<void> Workers::start(std::function<void()> job, bool urgent) {
    std::packaged_task<void()> task(std::move(job));
    std::future<void> done = task.get_future();
    {
        const std::lock_guard lock(mutex_);
        if (urgent)
            jobs_.push_front(std::move(task));
        else
            jobs_.push_back(std::move(task));
    }
    changed_.notify_one();
    return done;
}

void Workers::wait(std::future<void> &job) {
    // Jobs never wait for other jobs, so once none is left to begin, this one is being done.
    while (job.wait_for(std::chrono::seconds(0)) != std::future_status::ready && doOne()) {
    }
    job.get();
}

bool Workers::doOne() {
    std::packaged_task<void()> task;
    {
        const std::lock_guard lock(mutex_);
        if (jobs_.empty())
            return false;
        task = std::move(jobs_.front());
        jobs_.pop_front();
    }
    task();
    return true;
}

void Workers::work(const std::stop_token &stop) {
    while (!stop.stop_requested()) {
        {
            std::unique_lock lock(mutex_);
            changed_.wait(lock, stop, [this] { return !jobs_.empty(); });
        }
        if (!stop.stop_requested())
            doOne();
    }
}

} // namespace gif
