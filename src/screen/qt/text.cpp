// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/qt/text.h"

#include <QTextDocument>

namespace dn::screen::qt {

QString fromUtf8(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string toUtf8(const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
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
