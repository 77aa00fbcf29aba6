// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Texts that somebody looked at and found good, in files beside the tests.
#pragma once

#include <string>

namespace dn::tests {

/// Compares a text with its file under `tests`. With DN_APPROVE_TEXTS set the file is written anew instead, and
/// the test fails, so that nobody leaves it set.
void expectApproved(const std::string& text, const std::string& file);

/// Bytes as a text, 16 to a line with their place; lines of zeros alone are left out.
std::string hexDump(const std::string& bytes);

} // namespace dn::tests
