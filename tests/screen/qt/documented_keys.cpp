// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/screen/qt/documented_keys.h"

#include <QAbstractButton>
#include <QAction>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QRegularExpression>

#include <algorithm>
#include <map>
#include <set>
#include <stdexcept>

namespace dn::tests {
namespace {

using Cells = std::pair<QString, QString>; ///< the first two of a row

/// The rows of the tables below a heading of the page.
std::vector<Cells> rowsBelow(const QString& heading)
{
    QFile page(QStringLiteral(DN_SOURCE_DIR "/docs/manual/teclado.md"));
    if (!page.open(QIODevice::ReadOnly)) throw std::runtime_error("no page on the keyboard");
    std::vector<Cells> rows;
    bool below = false;
    for (const QString& line : QString::fromUtf8(page.readAll()).split(u'\n')) {
        if (line.startsWith(u'#')) below = line == QStringLiteral("## ") + heading;
        const QStringList cells = line.split(u'|');
        if (below && cells.size() == 4 && !line.startsWith(QStringLiteral("|-")))
            rows.emplace_back(cells[1].trimmed(), cells[2].trimmed());
    }
    if (rows.size() < 2) throw std::runtime_error("the page has no table below " + heading.toStdString());
    rows.erase(rows.begin()); // its head
    return rows;
}

/// The windows by their names in the code and on the page; the second of two is a part that not all of a kind
/// have.
const std::multimap<QString, QString>& windows()
{
    static const std::multimap<QString, QString> all{
        {"PrimerInicio", "bienvenida"},
        {"QuienTrabaja", "quién trabaja"},
        {"PedirClave", "clave"},
        {"CrearProyecto", "proyecto"},
        {"EditarProyecto", "proyecto"},
        {"EditarProyecto", "actividades de un proyecto"},
        {"EditarActividad", "actividad"},
        {"NuevaActividad", "actividad"},
        {"EditarPersona", "persona"},
        {"EditarPersonaEnDuda", "persona"},
        {"EditarOrganizacion", "organización"},
        {"MostrarRelaciones", "relaciones"},
        {"BuscarEntidad", "buscar en el directorio"},
        {"Enviar", "correo"},
        {"VerHistorial", "historial de correos"},
        {"dlgFiltro", "exportar"},
        {"dlgTools", "herramientas"},
        {"Manual", "manual"},
        {"menuArchivo", "menú Archivo"},
        {"menuVer", "menú Ver"},
        {"menuTema", "menú Tema"},
        {"menuAyuda", "menú Ayuda"},
    };
    return all;
}

const QString common = QStringLiteral("casi todas");

/// A caption without its marks, and without what is counted behind it.
QString plain(QString caption)
{
    static const QRegularExpression count(QStringLiteral(R"( \([^)]*\d[^)]*\)$)"));
    caption.replace(QStringLiteral("&&"), QStringLiteral("\x1f"));
    caption.remove(u'&').replace(u'\x1f', u'&');
    if (caption.endsWith(u':')) caption.chop(1);
    return caption.remove(count);
}

struct Letter {
    QChar letter;
    QString caption;
    bool shows = true;
};

Letter letterOf(const QString& caption, bool shows)
{
    const QString key = QKeySequence::mnemonic(caption).toString(QKeySequence::PortableText);
    return {key.isEmpty() ? QChar() : key.back(), plain(caption), shows};
}

std::vector<Letter> allLetters(const QWidget& window)
{
    std::vector<Letter> all;
    const auto add = [&](const QString& caption, bool shows) {
        if (const Letter letter = letterOf(caption, shows); !letter.letter.isNull()) all.push_back(letter);
    };
    if (const auto* const menu = qobject_cast<const QMenu*>(&window); menu != nullptr) {
        for (const QAction* action : menu->actions())
            add(action->text(), action->isVisible());
        return all;
    }
    for (const QWidget* child : window.findChildren<QWidget*>()) {
        if (child->window() != &window) continue;
        const auto* const button = qobject_cast<const QAbstractButton*>(child);
        const auto* const label = qobject_cast<const QLabel*>(child);
        if (button != nullptr) add(button->text(), button->isVisible());
        if (label != nullptr && label->buddy() != nullptr) add(label->text(), label->isVisible());
    }
    return all;
}

/// What the page tells of a window: for each letter its captions, and which letters stand in for each other.
struct Told {
    std::map<QChar, std::set<QString>> captions;
    std::vector<std::vector<QChar>> groups;
};

void readLetters(const QString& cell, Told& told)
{
    static const QRegularExpression entry(QStringLiteral(R"(([ou] )?(?:([0-9A-ZÑ]) )?\*\*([^*]+)\*\*)"));
    QChar letter;
    for (auto each = entry.globalMatch(cell); each.hasNext();) {
        const QRegularExpressionMatch match = each.next();
        if (!match.captured(2).isEmpty()) letter = match.captured(2).front();
        if (match.captured(1).isEmpty()) told.groups.emplace_back();
        if (told.groups.empty()) continue; // an "o" that begins a cell stands for nothing
        told.groups.back().push_back(letter);
        told.captions[letter].insert(match.captured(3));
    }
}

/// Whether the page has the caption; one that ends in an ellipsis there may go on.
bool holds(const std::set<QString>& captions, const QString& caption)
{
    return std::any_of(captions.begin(), captions.end(), [&](const QString& one) {
        return one == caption || (one.endsWith(u'…') && caption.startsWith(one.chopped(1)));
    });
}

std::string inWords(const QChar letter, const QString& caption)
{
    return (QString(letter) + " " + caption).toStdString();
}

QStringList rowsOf(const QWidget& window)
{
    QStringList names;
    const auto [from, to] = windows().equal_range(window.objectName());
    for (auto each = from; each != to; ++each)
        names.append(each->second);
    return names;
}

} // namespace

std::vector<std::string> lettersAgainstPage(const QWidget& window)
{
    const QStringList names = rowsOf(window);
    Told own;
    Told everywhere;
    for (const auto& [name, letters] : rowsBelow(QStringLiteral("Letras subrayadas")))
        if (names.contains(name) || name == common) readLetters(letters, name == common ? everywhere : own);
    std::vector<std::string> faults;
    std::set<QChar> shown;
    std::set<QChar> met;
    for (const auto& [letter, caption, shows] : allLetters(window)) {
        met.insert(letter);
        if (!holds(own.captions[letter], caption) && !holds(everywhere.captions[letter], caption))
            faults.push_back("not on the page: " + inWords(letter, caption));
        if (shows && !shown.insert(letter).second) faults.push_back("twice: " + inWords(letter, caption));
    }
    for (const auto& group : own.groups)
        if (std::none_of(group.begin(), group.end(), [&](QChar letter) { return met.contains(letter); }))
            faults.push_back("not in the window: " + inWords(group.front(), *own.captions[group.front()].begin()));
    return faults;
}

std::vector<std::string> unknownWindowsOfPage()
{
    std::vector<std::string> unknown;
    for (const auto& row : rowsBelow(QStringLiteral("Letras subrayadas")))
        if (row.first != common && std::none_of(windows().begin(), windows().end(),
                                                [&](const auto& known) { return known.second == row.first; }))
            unknown.push_back(row.first.toStdString());
    return unknown;
}

std::vector<std::string> keysAgainstPage(const std::vector<NamedKey>& keys)
{
    static const QRegularExpression bold(QStringLiteral(R"(\*\*([^*]+)\*\*)"));
    static const QRegularExpression range(QStringLiteral(R"(^(\S+\+)(\d) a \S+\+(\d)$)"));
    std::map<std::string, std::set<std::string>> told; // without a caption where the page sums several up
    for (const char* heading : {"En todas partes", "Durante una llamada"})
        for (const auto& [cell, text] : rowsBelow(QString::fromUtf8(heading))) {
            QStringList captions;
            for (auto each = bold.globalMatch(text); each.hasNext();)
                captions.append(plain(each.next().captured(1)));
            if (const auto several = range.match(cell); several.hasMatch()) {
                for (int n = several.captured(2).toInt(); n <= several.captured(3).toInt(); ++n)
                    told[several.captured(1).toStdString() + std::to_string(n)] = {};
                continue;
            }
            const QStringList names = cell.split(QStringLiteral(", "));
            for (int i = 0; i < names.size(); ++i)
                for (int c = 0; c < captions.size(); ++c)
                    if (names.size() == 1 || c == i)
                        told[names[i].toStdString()].insert(captions[c].toStdString());
        }
    std::vector<std::string> faults;
    for (const auto& [key, caption] : keys) {
        const auto found = told.find(key);
        if (found == told.end() || (!found->second.empty() && !found->second.contains(caption)))
            faults.push_back(std::string("not on the page: ").append(key).append(" ").append(caption));
    }
    for (const auto& row : told)
        if (std::none_of(keys.begin(), keys.end(), [&](const NamedKey& one) {
                return one.key == row.first && (row.second.empty() || row.second.contains(one.caption));
            }))
            faults.push_back("not in the program: " + row.first);
    return faults;
}

} // namespace dn::tests
