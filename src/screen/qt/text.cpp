// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/qt/text.h"

#include <QTextDocument>

#include <algorithm>

namespace dn::screen::qt {
namespace {

constexpr std::string_view more = "…";

/// At most so many bytes from the front, without a piece of a character at the end.
std::string_view front(std::string_view text, std::size_t most)
{
    if (text.size() <= most) return text;
    constexpr std::size_t longestTail = 3; // of a character in UTF-8; bytes that are no text have any number
    std::size_t end = most;
    while (end > most - longestTail && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U)
        --end;
    return text.substr(0, end);
}

} // namespace

QString fromUtf8(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string toUtf8(const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

QString beginningOf(std::string_view text)
{
    constexpr std::size_t most = 1'000;
    return fromUtf8(front(text, most));
}

std::string readablePart(std::string_view text)
{
    constexpr std::size_t mostOfLine = 20'000;
    constexpr std::size_t mostOfAll = 4'000'000;
    std::string result;
    while (!text.empty() && result.size() < mostOfAll) {
        const std::size_t end = std::min(text.find('\n'), text.size() - 1) + 1;
        const std::string_view line = text.substr(0, end);
        const std::size_t content = line.find_last_not_of("\r\n") + 1;
        const std::string_view shown = front(line.substr(0, content), mostOfLine);
        result.append(shown).append(shown.size() < content ? more : "").append(line.substr(content));
        text.remove_prefix(end);
    }
    return text.empty() ? result : result.append(more);
}

QString toDocument(std::string_view text)
{
    QString result = fromUtf8(text);
    result.replace(QLatin1String("\r\n"), QString(QChar::ParagraphSeparator));
    result.replace(u'\n', QChar(QChar::LineSeparator));
    return result;
}

std::string fromDocument(const QString& raw)
{
    QString text = raw;
    text.replace(QChar::ParagraphSeparator, QLatin1String("\r\n"));
    text.replace(QChar(QChar::LineSeparator), QLatin1Char('\n'));
    return toUtf8(text);
}

QString asToolTip(std::string_view text)
{
    return text.empty() ? QString() : Qt::convertFromPlainText(fromUtf8(text), Qt::WhiteSpaceNormal);
}

QString withoutMnemonic(std::string_view caption)
{
    QString text;
    bool marked = false;
    for (const QChar character : fromUtf8(caption)) {
        const bool mark = character == u'&' && !marked;
        if (!mark) text += character;
        marked = mark;
    }
    return text;
}

} // namespace dn::screen::qt
