// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/dialler.h"

#include <QProcess>
#include <QRegularExpression>

namespace dn::host {

namespace {

constexpr qsizetype shortest = 5;     ///< digits; fewer are an extension, a count or the name of a field
constexpr qsizetype local = 7;        ///< from here on a number may be whole
constexpr qsizetype mostFigures = 15; ///< no number of the world has more

/// The first number of digits and what may stand between them. Where a second one follows, a dash with blanks
/// around it and a long group behind keep the two apart, or their length.
QString firstOf(const QString& run)
{
    static const QRegularExpression group(QStringLiteral(R"(([ .()-]*)(\d+))"));
    QString digits;
    for (const QRegularExpressionMatch& next : group.globalMatch(run)) {
        const bool dash = digits.size() >= local && next.capturedLength(2) >= shortest &&
                          next.capturedView(1).contains(QStringLiteral(" - "));
        const bool tooMany = !digits.isEmpty() && digits.size() + next.capturedLength(2) > mostFigures;
        if (dash || tooMany) break;
        digits += next.capturedView(2);
    }
    return digits;
}

} // namespace

// Other characters part one number from the next: "961 12-34 / 55 10" is two.
QString telephoneAddress(const std::string& text)
{
    static const QRegularExpression counted(QStringLiteral(R"(\p{L}\d{1,4}(?!\d))")); // "Tel1"
    static const QRegularExpression run(QStringLiteral(R"(\+?\d+(?:[ .()-]+\d+)*)"));
    const QString numbers = QString::fromStdString(text).replace(counted, QStringLiteral(";"));
    for (const QRegularExpressionMatch& candidate : run.globalMatch(numbers)) {
        const QString digits = firstOf(candidate.captured());
        if (digits.size() < shortest || digits.size() > mostFigures) continue;
        return (candidate.capturedView().startsWith(u'+') ? "tel:+" : "tel:") + digits;
    }
    return {};
}

bool dial(const std::string& text)
{
    const QString address = telephoneAddress(text);
    return !address.isEmpty() && QProcess::startDetached("xdg-open", {address});
}

} // namespace dn::host
