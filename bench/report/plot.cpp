// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/report/plot.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace dn::bench {
namespace {

// Pixels.
constexpr double panelWidth = 560;
constexpr double panelHeight = 420;
constexpr double left = 64;
constexpr double right = 170; // the names of the lines
constexpr double top = 48;
constexpr double bottom = 52;
constexpr double betweenNames = 16;

// The two sets of colours keep their contrast on white and on near-black, and differ in lightness as well, for
// eyes that do not tell all hues apart. The first line is ours and the thickest.
constexpr const char* head = R"(<style>
.page { fill: #ffffff } .ink { fill: #1f2328 } .soft { fill: #59636e } .grid { stroke: #d1d9e0 }
text { font-family: "DejaVu Sans", Verdana, sans-serif; font-size: 12px } .title { font-size: 14px; font-weight: bold }
.line { fill: none; stroke-width: 2 } .c0.line { stroke-width: 3.5 }
.c0 { stroke: #0550ae; color: #0550ae } .c1 { stroke: #bc4c00; color: #bc4c00 } .c2 { stroke: #1a7f37; color: #1a7f37 }
.c3 { stroke: #8250df; color: #8250df } .c4 { stroke: #bf3989; color: #bf3989 } .c5 { stroke: #59636e; color: #59636e }
.dot { fill: currentColor } .name { fill: currentColor; stroke: none }
@media (prefers-color-scheme: dark) {
.page { fill: #0d1117 } .ink { fill: #f0f6fc } .soft { fill: #9198a1 } .grid { stroke: #3d444d }
.c0 { stroke: #79c0ff; color: #79c0ff } .c1 { stroke: #ffa657; color: #ffa657 } .c2 { stroke: #56d364; color: #56d364 }
.c3 { stroke: #d2a8ff; color: #d2a8ff } .c4 { stroke: #ff9bce; color: #ff9bce } .c5 { stroke: #9198a1; color: #9198a1 }
}
</style>
)";

std::string number(double value)
{
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.1f", value);
    return text.data();
}

std::string escaped(const std::string& text)
{
    std::string result;
    for (const char c : text) {
        if (c == '&')
            result += "&amp;";
        else if (c == '<')
            result += "&lt;";
        else
            result += c;
    }
    return result;
}

std::string textAt(double x, double y, const char* look, const std::string& text)
{
    return "<text x=\"" + number(x) + "\" y=\"" + number(y) + "\" " + look + ">" + escaped(text) + "</text>\n";
}

bool hasLogarithm(const std::pair<double, double>& point) { return point.first > 0 && point.second > 0; }

/// One axis: whole decades, from the one below the smallest value to the one above the largest.
class Axis {
public:
    Axis(double smallest, double largest, double from, double to)
        : first_(std::floor(std::log10(smallest) + tolerance)),
          last_(std::max(first_ + 1, std::ceil(std::log10(largest) - tolerance))),
          from_(from),
          to_(to)
    {
    }

    int first() const { return static_cast<int>(first_); }
    int last() const { return static_cast<int>(last_); }
    double place(double value) const { return placeOfPower(std::log10(value)); }
    double placeOfPower(double power) const { return from_ + (power - first_) / (last_ - first_) * (to_ - from_); }

private:
    static constexpr double tolerance = 1e-9; // a power of ten begins a decade and ends one
    double first_;
    double last_;
    double from_;
    double to_;
};

std::string rowsAt(int power)
{
    std::string text = std::to_string(std::llround(std::pow(10, power)));
    for (std::size_t at = text.size(); at > 3; at -= 3)
        text.insert(at - 3, ",");
    return text;
}

std::string timeAt(int power)
{
    if (power >= 3) return std::to_string(std::llround(std::pow(10, power - 3))) + " s";
    if (power >= 0) return std::to_string(std::llround(std::pow(10, power))) + " ms";
    return std::to_string(std::llround(std::pow(10, power + 3))) + " µs";
}

std::string gridLine(double x1, double y1, double x2, double y2)
{
    return "<line class=\"grid\" x1=\"" + number(x1) + "\" y1=\"" + number(y1) + "\" x2=\"" + number(x2) +
           "\" y2=\"" + number(y2) + "\"/>\n";
}

std::string grid(const Axis& x, const Axis& y)
{
    std::string svg;
    const double low = panelHeight - bottom;
    for (int power = x.first(); power <= x.last(); ++power) {
        svg += gridLine(x.placeOfPower(power), top, x.placeOfPower(power), low);
        svg += textAt(x.placeOfPower(power), low + 18, "class=\"soft\" text-anchor=\"middle\"", rowsAt(power));
    }
    for (int power = y.first(); power <= y.last(); ++power) {
        svg += gridLine(left, y.placeOfPower(power), panelWidth - right, y.placeOfPower(power));
        svg += textAt(left - 8, y.placeOfPower(power) + 4, "class=\"soft\" text-anchor=\"end\"", timeAt(power));
    }
    return svg +
           textAt((left + panelWidth - right) / 2, low + 38, "class=\"soft\" text-anchor=\"middle\"", "rows");
}

struct Name {
    std::string text;
    std::size_t colour = 0;
    double y = 0;
};

// A name stands beside the end of its line, and moves out of the way of the one above it.
std::string names(std::vector<Name> all)
{
    std::sort(all.begin(), all.end(), [](const Name& above, const Name& below) { return above.y < below.y; });
    for (std::size_t i = 1; i < all.size(); ++i)
        all[i].y = std::max(all[i].y, all[i - 1].y + betweenNames);
    // Those that were pushed beneath the axes push the others up.
    double lowest = panelHeight - bottom;
    for (std::size_t i = all.size(); i-- > 0; lowest = all[i].y - betweenNames)
        all[i].y = std::min(all[i].y, lowest);
    std::string svg;
    for (const Name& name : all)
        svg += textAt(panelWidth - right + 10, name.y + 4,
                      ("class=\"name c" + std::to_string(name.colour) + "\"").c_str(), name.text);
    return svg;
}

std::string lineOf(const Line& line, std::size_t colour, const Axis& x, const Axis& y)
{
    std::string path;
    std::string dots;
    const std::string look = "c" + std::to_string(colour);
    for (const auto& point : line.points) {
        if (!hasLogarithm(point)) continue;
        const std::string px = number(x.place(point.first));
        const std::string py = number(y.place(point.second));
        path += (path.empty() ? "M" : " L") + px + " " + py;
        dots += "<circle class=\"dot " + look + "\" cx=\"" + px + "\" cy=\"" + py + "\" r=\"3\"/>\n";
    }
    return "<path class=\"line " + look + "\" d=\"" + path + "\"/>\n" + dots;
}

std::string contentsOf(const Panel& panel)
{
    std::vector<std::pair<double, double>> points;
    for (const Line& line : panel.lines)
        std::copy_if(line.points.begin(), line.points.end(), std::back_inserter(points), hasLogarithm);
    if (points.empty()) return {};
    const auto [fewest, most] = std::minmax_element(points.begin(), points.end());
    const auto [fastest, slowest] =
        std::minmax_element(points.begin(), points.end(),
                            [](const auto& one, const auto& other) { return one.second < other.second; });
    const Axis x(fewest->first, most->first, left, panelWidth - right);
    const Axis y(fastest->second, slowest->second, panelHeight - bottom, top);
    std::string svg = grid(x, y);
    std::vector<Name> all;
    for (std::size_t i = 0; i < panel.lines.size(); ++i) {
        const auto& own = panel.lines[i].points;
        const auto last = std::find_if(own.rbegin(), own.rend(), hasLogarithm);
        if (last == own.rend()) continue;
        svg += lineOf(panel.lines[i], i, x, y);
        all.push_back({panel.lines[i].name, i, y.place(last->second)});
    }
    return svg + names(std::move(all));
}

} // namespace

std::string svgOf(const std::vector<Panel>& panels)
{
    const std::string width = number(panelWidth * static_cast<double>(panels.size()));
    std::string svg = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + width + "\" height=\"" +
                      number(panelHeight) + "\" viewBox=\"0 0 " + width + " " + number(panelHeight) + "\">\n" +
                      head + "<rect class=\"page\" width=\"100%\" height=\"100%\"/>\n";
    for (std::size_t i = 0; i < panels.size(); ++i) {
        svg += "<g transform=\"translate(" + number(panelWidth * static_cast<double>(i)) + " 0)\">\n";
        svg += textAt(left, 26, "class=\"ink title\"", panels[i].title) + contentsOf(panels[i]) + "</g>\n";
    }
    return svg + "</svg>\n";
}

} // namespace dn::bench
