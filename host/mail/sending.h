// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Something that takes its time, on a thread of its own, while the window goes on: sending a mail. It touches no
// window; who waits for it looks at it from time to time.
#pragma once

#include "host/database/host_error.h"

#include <atomic>
#include <cstdint>
#include <exception>
#include <functional>
#include <thread>

namespace dn::host {

/// The operator gave up ahead of the end.
class SendCancelled : public HostError {
public:
    using HostError::HostError;
};

/// What both sides see.
struct SendProgress {
    std::atomic<std::int64_t> done{0};
    std::atomic<std::int64_t> total{0}; ///< 0 while it is not known
    std::atomic<bool> cancelled{false}; ///< the operator gave up; the work may be too far on to heed it

    /// For the work, at a place where it can still be left. @throws SendCancelled
    void heedCancel() const
    {
        if (cancelled) throw SendCancelled("Se canceló el envío.");
    }
};

class Sending {
public:
    using Work = std::function<void(SendProgress&)>;

    /// Starts. @param work throws a HostError for what went wrong.
    explicit Sending(Work work);
    Sending(const Sending&) = delete;
    Sending& operator=(const Sending&) = delete;
    /// Gives up and waits for the end, a second at the most.
    ~Sending();

    bool finished() const { return finished_; }
    void cancel() { progress_.cancelled = true; }
    /// 0 to 100; -1 while nobody knows.
    int percent() const;

    /// How it ended. To be called once it is finished. @throws what the work threw.
    void result();

private:
    SendProgress progress_;
    std::exception_ptr failure_;
    std::atomic<bool> finished_{false};
    std::thread thread_; // last: it uses the others
};

} // namespace dn::host
