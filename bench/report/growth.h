// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Whether what was measured again and again stays where it was.
#pragma once

#include <vector>

namespace dn::bench {

/// A value at a moment.
struct Sample {
    double seconds = 0;
    double value = 0;
};

/// The straight line through the last three quarters of the samples: what comes ahead is the warming up.
struct Growth {
    double from = 0;  ///< the moment at which that part begins
    double level = 0; ///< on the line, at that moment
    double gain = 0;  ///< on the line, from there to the end

    /// Whether it gains no more than this share of its level.
    bool isFlat(double share) const { return gain <= share * level; }
};

/// @param samples in the order of their moments; fewer than two in that part give no gain.
Growth growthOf(const std::vector<Sample>& samples);

} // namespace dn::bench
