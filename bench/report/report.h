// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The table of results, and the bars that they must keep.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace dn::bench {

class Report {
public:
    /// A measured figure, for information.
    void figure(const std::string& what, double value, const std::string& unit);
    /// A figure with a bar: it must not be larger. Where the unit is "times" and the bar below 1, both are shown
    /// as fractions: "1/12.5".
    void bar(const std::string& what, double value, double largest, const std::string& unit);
    /// A bar on what the larger number of rows costs above the smaller one. Equal numbers measure nothing.
    void growth(const std::string& of, std::size_t few, std::size_t many, double small, double large, double most);
    /// A bar whose figure this run did not take: it counts as missed.
    void notMeasured(const std::string& what);
    /// A benchmark whose own answer was wrong; nothing that it measured counts.
    void wrong(const std::string& what, const std::string& why);

    /// The table as text, with the rows that missed their bar marked.
    std::string table() const;
    /// The rows with a bar, and the wrong answers, as a table of a document.
    std::string barsAsMarkdown() const;
    /// The rows without a bar, likewise.
    std::string figuresAsMarkdown() const;
    /// The rows that missed their bar or gave a wrong answer.
    const std::vector<std::string>& missed() const { return missed_; }
    /// What a program that must keep the bars ends with: 1 where one was missed, else 0.
    int status() const { return missed_.empty() ? 0 : 1; }

private:
    struct Row {
        std::string what;
        std::string value;
        std::string bar;
        std::string verdict;
    };

    std::vector<Row> rows_;
    std::vector<std::string> missed_;
};

/// What may cost that much more with ten times the rows.
constexpr double mostGrowth = 11;

/// A number as the tables show it: three digits that count, thousands apart.
std::string readable(double value);

} // namespace dn::bench
