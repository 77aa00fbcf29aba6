// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/database/lasting_thread.h"

#include <utility>

namespace dn::host {

LastingThread::LastingThread() : thread_([this] { serve(); }) {}

LastingThread::~LastingThread()
{
    {
        const std::scoped_lock lock(mutex_);
        ending_ = true;
    }
    changed_.notify_one();
    thread_.join();
}

void LastingThread::run(std::function<void()> work)
{
    std::packaged_task<void()> task(std::move(work));
    std::future<void> done = task.get_future();
    {
        const std::scoped_lock lock(mutex_);
        asked_.push(std::move(task));
    }
    changed_.notify_one();
    done.get();
}

void LastingThread::serve()
{
    std::unique_lock lock(mutex_);
    for (;;) {
        changed_.wait(lock, [this] { return ending_ || !asked_.empty(); });
        if (asked_.empty()) return;
        std::packaged_task<void()> task = std::move(asked_.front());
        asked_.pop();
        lock.unlock();
        task();
        lock.lock();
    }
}

} // namespace dn::host
