// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Windows in a scheme of colours that is not the usual one, for the pictures of them.
#pragma once

#include "screen/qt/theme.h"

#include <QApplication>
#include <QPalette>

#include <gtest/gtest.h>

#include <utility>

namespace dn::tests {

/// Puts the windows of a test into a scheme, and the usual one back.
class InScheme {
public:
    explicit InScheme(screen::qt::Scheme scheme) { QApplication::setPalette(schemePalette(scheme)); }
    InScheme(const InScheme&) = delete;
    InScheme& operator=(const InScheme&) = delete;
    ~InScheme() { QApplication::setPalette(before_); }

private:
    QPalette before_ = QApplication::palette();
};

/// A scheme and what stands at the end of the names of its pictures.
using OtherScheme = std::pair<screen::qt::Scheme, const char*>;

/// The two in which the windows beside the tabs are looked at: one dark, one of high contrast.
inline auto otherSchemes()
{
    return testing::Values(OtherScheme{screen::qt::Scheme::dark, "-oscuro"},
                           OtherScheme{screen::qt::Scheme::whiteOnBlack, "-contraste"});
}

} // namespace dn::tests
