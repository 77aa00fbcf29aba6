// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Lines of milliseconds over numbers of rows, both axes logarithmic, as an SVG picture that reads on a light and
// on a dark page.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace dn::bench {

struct Line {
    std::string name;
    std::vector<std::pair<double, double>> points; ///< rows and milliseconds, both above 0
};

/// Lines on axes of their own.
struct Panel {
    std::string title;
    std::vector<Line> lines; ///< at most six, the colours there are
};

/// The panels side by side. A line without points is left out; so is a point that no logarithm has.
std::string svgOf(const std::vector<Panel>& panels);

} // namespace dn::bench
