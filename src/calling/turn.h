// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Who is at work on the call in hand. The steps of a call yield to the event loop while they still read its table
// and key: a button that is pressed then must neither do the same again nor put another party in hand.
#pragma once

#include "data/failure_modes.h"
#include "screen/signal.h"

#include <cstdint>
#include <utility>

namespace dn::calling {

class Turn {
public:
    enum class Work : std::uint8_t { ending, other };

    /// Whether some step has not returned yet; the operator's buttons of a call do nothing meanwhile. The host's
    /// methods do not ask: he may end or begin a call at any time.
    bool taken() const { return holders_ != 0; }

    /// The last holder has gone, and an ending was among them.
    screen::Signal<> settled;

    /// Holds the turn until it goes. One may lie within another: an ending runs another one, and the host his own.
    class Hold {
    public:
        Hold(Turn& turn, Work work) : turn_(turn)
        {
            ++turn_.holders_;
            if (work == Work::ending) turn_.unsettled_ = true;
        }
        Hold(const Hold&) = delete;
        Hold& operator=(const Hold&) = delete;
        ~Hold() { turn_.release(); }

    private:
        Turn& turn_;
    };

private:
    void release()
    {
        if (--holders_ == 0 && std::exchange(unsettled_, false)) data::resumeNext([this] { settled.emit(); });
    }

    int holders_ = 0;
    bool unsettled_ = false;
};

} // namespace dn::calling
