// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/report/growth.h"

#include <cstddef>

namespace dn::bench {

Growth growthOf(const std::vector<Sample>& samples)
{
    if (samples.empty()) return {};
    const std::size_t first = samples.size() / 4;
    const auto count = static_cast<double>(samples.size() - first);
    double moments = 0;
    double values = 0;
    for (std::size_t i = first; i < samples.size(); ++i) {
        moments += samples[i].seconds / count;
        values += samples[i].value / count;
    }
    double together = 0;
    double squares = 0;
    for (std::size_t i = first; i < samples.size(); ++i) {
        const double moment = samples[i].seconds - moments;
        together += moment * (samples[i].value - values);
        squares += moment * moment;
    }
    const double slope = squares > 0 ? together / squares : 0;
    const double from = samples[first].seconds;
    return {from, values + slope * (from - moments), slope * (samples.back().seconds - from)};
}

} // namespace dn::bench
