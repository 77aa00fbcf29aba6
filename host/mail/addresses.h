// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Mail addresses as operators type and paste them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace dn::host {

/// The addresses of a text, divided by ";" or ","; of "María <m@acme.mx>" what stands in the brackets. Blank ones
/// are left out, and so are repeats, whose letter case does not matter.
std::vector<std::string> splitAddresses(std::string_view text);

/// What is wrong with an address, for the operator; empty when a mail can go to it. A good one holds neither
/// blanks nor brackets nor control characters, so that it can stand in a header and in a command to the server.
std::string complaintAbout(const std::string& address);

/// The domain of an address in the letters of the wire: "ñandú.mx" becomes "xn--and-6ma2c.mx". The rest stays.
std::string wireAddress(const std::string& address);

} // namespace dn::host
