// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The hourglass while something takes its time.
#pragma once

#include <QGuiApplication>

#include <utility>

namespace dn::screen::qt {

/// Shows the hourglass for as long as it lives.
class Hourglass {
public:
    Hourglass() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
    ~Hourglass() { QGuiApplication::restoreOverrideCursor(); }
};

/// What a function makes, a window with what it reads for instance, under the hourglass.
template <class Make>
auto waiting(Make&& make)
{
    const Hourglass hourglass;
    return std::forward<Make>(make)();
}

} // namespace dn::screen::qt
