// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Where exceptions stop on their way out of the control.
//
// A handler of the control may throw what no one of it catches. Nothing may cross the event loop of the
// toolkit, so every gesture that an operator's input becomes runs through here.
#pragma once

#include <exception>
#include <functional>
#include <utility>

namespace dn::screen::qt {

class Guard {
public:
    using Handler = std::function<void(const std::exception&)>;

    /// @param handler takes what a gesture threw. Without one the text goes to the log and into a box.
    void onError(Handler handler) { handler_ = std::move(handler); }

    /// @return whether the work ended without an exception.
    template <class Work>
    bool run(Work&& work) noexcept
    {
        try {
            std::forward<Work>(work)();
            return true;
        } catch (const std::exception& error) {
            report(error);
        } catch (...) {
            reportUnknown();
        }
        return false;
    }

private:
    void report(const std::exception& error) noexcept;
    void reportUnknown() noexcept;
    void show(const std::exception& error);

    Handler handler_;
    bool showing_ = false;
};

} // namespace dn::screen::qt
