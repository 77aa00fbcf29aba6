// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What most of many measurements keep under.
#pragma once

#include <algorithm>
#include <cmath>
#include <vector>

namespace dn::bench {

/// The smallest of the values that at least this share of them does not exceed (nearest rank, no interpolation:
/// what is shown was measured).
/// @param share above 0, at most 1: 0.5 for the median, 0.99 for p99. @return 0 for no values.
inline double percentile(std::vector<double> values, double share)
{
    if (values.empty()) return 0;
    const double rank = std::ceil(share * static_cast<double>(values.size()));
    const auto index = static_cast<std::size_t>(std::clamp(rank, 1.0, static_cast<double>(values.size()))) - 1;
    std::nth_element(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(index), values.end());
    return values[index];
}

} // namespace dn::bench
