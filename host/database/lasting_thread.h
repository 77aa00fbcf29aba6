// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A thread that outlives those that ask it to do something. The system ends a child process together with the very
// thread that started it, so what starts servers must not be a thread that comes and goes.
#pragma once

#include <queue>

#include <condition_variable>
#include <functional>
#include <future>
#include <mutex>
#include <thread>

namespace dn::host {

class LastingThread {
public:
    LastingThread();
    LastingThread(const LastingThread&) = delete;
    LastingThread& operator=(const LastingThread&) = delete;
    ~LastingThread();

    /// Does it there, one thing at a time, and waits until it is done. Whatever it throws comes back.
    void run(std::function<void()> work);

private:
    void serve();

    std::mutex mutex_;
    std::condition_variable changed_;
    std::queue<std::packaged_task<void()>> asked_;
    bool ending_ = false;
    std::thread thread_; // last: it uses the others
};

} // namespace dn::host
