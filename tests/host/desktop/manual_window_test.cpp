// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The manual as the program shows it: every page is reached, every link leads somewhere, every picture is there.

#include "host/desktop/manual_window.h"
#include "tests/approved/approval.h"
#include "tests/screen/qt/accessible_tree.h"
#include "tests/screen/qt/documented_keys.h"

#include <QAbstractTextDocumentLayout>
#include <QDir>
#include <QMenu>
#include <QPushButton>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>

#include <gmock/gmock.h>

#include <memory>
#include <set>
#include <string>
#include <vector>

namespace dn::host {
namespace {

using testing::IsEmpty;

const QString manual = QStringLiteral(DN_SOURCE_DIR "/docs");

/// Where the letters of a paragraph stand, without its margins.
QRectF linesOf(const QAbstractTextDocumentLayout& layout, const QTextBlock& block)
{
    const QRectF place = layout.blockBoundingRect(block);
    return block.layout()->boundingRect().translated(place.topLeft());
}

class Manual : public testing::Test {
protected:
    Manual()
    {
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    }

    ManualPages& pages() { return window.pages(); }
    QString page() { return pages().source().fileName(); }

    void opens(const QString& link) { pages().setSource(pages().source().resolved(QUrl(link))); }

    /// The addresses of the links, or the names of the pictures, of the page in view.
    std::set<QString> all(bool pictures)
    {
        std::set<QString> found;
        for (QTextBlock block = pages().document()->begin(); block.isValid(); block = block.next())
            for (auto part = block.begin(); !part.atEnd(); ++part) {
                const QTextCharFormat format = part.fragment().charFormat();
                if (pictures && format.isImageFormat()) found.insert(format.toImageFormat().name());
                if (!pictures && format.isAnchor()) found.insert(format.anchorHref());
            }
        return found;
    }

    QString lineAtTop() { return pages().cursorForPosition({10, 4}).block().text(); }

    void clicks(const QString& caption)
    {
        for (auto* const button : window.findChildren<QPushButton*>())
            if (button->text().remove(u'&') == caption) QTest::mouseClick(button, Qt::LeftButton);
    }

    ManualWindow window{manual, nullptr};
};

TEST_F(Manual, leads_from_its_index_to_every_page_and_every_picture_is_there)
{
    std::set<QString> known{"manual.md"};
    std::set<QString> open = known;
    while (!open.empty()) {
        const QString name = *open.begin();
        open.erase(open.begin());
        opens(manual + (name == "manual.md" ? "/" : "/manual/") + name);
        ASSERT_EQ(page(), name);
        for (const QString& picture : all(true)) {
            const auto image = pages().loadResource(QTextDocument::ImageResource, QUrl(picture)).value<QImage>();
            EXPECT_FALSE(image.isNull()) << name.toStdString() << ": " << picture.toStdString();
            EXPECT_LE(image.width() / image.devicePixelRatio(), pages().viewport()->width())
                << picture.toStdString();
        }
        for (const QString& link : all(false)) {
            const QUrl target = pages().source().resolved(QUrl(link));
            EXPECT_TRUE(QFile::exists(target.toLocalFile())) << name.toStdString() << ": " << link.toStdString();
            const bool inside = target.toLocalFile().startsWith(manual + "/manual");
            if (inside && known.insert(target.fileName()).second) open.insert(target.fileName());
        }
    }
    const QStringList files = QDir(manual + "/manual").entryList({"*.md"});
    EXPECT_EQ(known.size(), static_cast<std::size_t>(files.size()) + 1) << "a page that no link leads to";
}

TEST_F(Manual, links_to_headings_find_them)
{
    QStringList files = QDir(manual + "/manual").entryList({"*.md"});
    for (const QString& file : files) {
        opens(manual + "/manual/" + file);
        for (const QString& link : all(false)) {
            const QUrl target = pages().source().resolved(QUrl(link));
            if (!target.hasFragment()) continue;
            QFile text(target.toLocalFile());
            ASSERT_TRUE(text.open(QIODevice::ReadOnly)) << link.toStdString();
            std::set<QString> anchors;
            static const QRegularExpression heading("^#+ (.*)$", QRegularExpression::MultilineOption);
            for (auto each = heading.globalMatch(QString::fromUtf8(text.readAll())); each.hasNext();)
                anchors.insert(anchorOf(each.next().captured(1)));
            EXPECT_TRUE(anchors.contains(target.fragment(QUrl::FullyDecoded)))
                << file.toStdString() << ": " << link.toStdString();
        }
    }
    window.resize(860, 200); // or the end of the page would keep the heading from the top
    opens(manual + "/manual/prospectos.md#convertir-en-proyecto");
    EXPECT_EQ(lineAtTop().toStdString(), "Convertir en proyecto");
}

TEST_F(Manual, keeps_its_headings_apart_from_the_text)
{
    opens(manual + "/manual/hoy.md");
    const QTextDocument& text = *pages().document();
    const QAbstractTextDocumentLayout& layout = *text.documentLayout();
    int headings = 0;
    for (QTextBlock block = text.begin(); block.next().isValid(); block = block.next()) {
        const bool heads = block.blockFormat().headingLevel() > 0;
        if (!heads || QTextCursor(block.next()).currentTable() != nullptr) continue;
        ++headings;
        EXPECT_GE(linesOf(layout, block.next()).top() - linesOf(layout, block).bottom(), 4)
            << block.text().toStdString();
    }
    EXPECT_GE(headings, 2);
}

TEST_F(Manual, goes_back_forth_and_to_its_index_by_its_buttons)
{
    opens(manual + "/manual/hoy.md");
    clicks("Atrás");
    EXPECT_EQ(page(), "manual.md");
    clicks("Adelante");
    EXPECT_EQ(page(), "hoy.md");
    clicks("Índice");
    EXPECT_EQ(page(), "manual.md");
    EXPECT_THAT(dn::tests::unnamed(window), IsEmpty());
    EXPECT_THAT(dn::tests::unreached(window), IsEmpty());
    EXPECT_THAT(dn::tests::lettersAgainstPage(window), IsEmpty());
}

TEST_F(Manual, its_texts_have_a_menu_in_spanish)
{
    const std::unique_ptr<QMenu> menu(pages().createStandardContextMenu());
    std::vector<std::string> texts;
    for (const QAction* entry : menu->actions())
        if (!entry->isSeparator()) texts.push_back(entry->text().section(u'\t', 0, 0).toStdString());
    EXPECT_THAT(texts, testing::ElementsAre("&Copiar", "Copiar la &dirección del enlace", "Seleccionar todo"));
}

TEST(ManualLooks, of_a_page)
{
    const QTemporaryDir folder;
    QFile page(folder.filePath("manual.md"));
    ASSERT_TRUE(page.open(QIODevice::WriteOnly));
    page.write("# Hoy\n\nLa cola de trabajo: primero lo que *vence hoy*. Vea [Llamadas](llamadas.md).\n\n"
               "| Columna | Qué dice |\n|---|---|\n| **Tipo** | «Contacto» es un prospecto |\n"
               "| **Hora** | solo la hora si la cita es de hoy; «URGENTE» si no tiene cita |\n\n"
               "## Trabajar un renglón\n\n1. Haga clic en él.\n2. Llame con **Llamar** (F8).\n\n"
               "```\ndncontacts --agent 4\n```\n\n- < Sin asignar >\n- `mail.ini`\n");
    page.close();
    ManualWindow window(folder.path(), nullptr);
    window.resize(640, 460);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    dn::tests::looksAsApproved(window, "Manual");
}

TEST(ManualAnchors, are_those_that_links_use)
{
    EXPECT_EQ(anchorOf("La ventana de la organización").toStdString(), "la-ventana-de-la-organización");
    EXPECT_EQ(anchorOf("¿Qué hacer?").toStdString(), "qué-hacer");
}

} // namespace
} // namespace dn::host
