// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What nobody expected in the database, at the real window: each row shows and can be selected, the detail and the
// timeline show what fits, and nothing hangs on a text of megabytes.

#include "tests/stories/hostile_rows.h"
#include "tests/stories/qt/window.h"
#include "tests/stories/replaced_table.h"

#include <QAbstractTextDocumentLayout>
#include <QPlainTextEdit>
#include <QTableView>
#include <QTextEdit>

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::UnorderedElementsAre;

class HostileContentsAtTheWindow : public AtTheWindow {
protected:
    QTableView& list(const char* element) { return widgetIn<QTableView>(widget, element); }

    /// Draws the whole window as a screen would see it.
    void isDrawn() { EXPECT_FALSE(widget.grab().isNull()); }

    /// The key of the selected row, after a click on each row in turn.
    std::vector<std::string> selectedByClicks()
    {
        QTableView& rows = list("lvw");
        std::vector<std::string> keys;
        for (int row = 0; row < rows.model()->rowCount(); ++row) {
            rows.scrollTo(rows.model()->index(row, 0));
            QTest::mouseClick(rows.viewport(), Qt::LeftButton, {},
                              rows.visualRect(rows.model()->index(row, 0)).center());
            QApplication::processEvents();
            isDrawn();
            keys.emplace_back(widget.control().elements().prospects.lvw.SelectedItem()->Key());
        }
        return keys;
    }

    QString shown(const char* textBox)
    {
        QWidget& box = widgetIn<QWidget>(widget, textBox);
        if (const auto* plain = qobject_cast<QPlainTextEdit*>(&box)) return plain->toPlainText();
        if (const auto* rich = qobject_cast<QTextEdit*>(&box)) return rich->toPlainText();
        ADD_FAILURE() << textBox << " is no text box";
        return {};
    }
};

TEST_F(HostileContentsAtTheWindow, every_type_in_every_column_shows_in_the_list_and_in_the_detail)
{
    for (const HostileType& one : hostileTypes) {
        const ReplacedTable other(*beside, "ut_icontact", prospectColumnsOf(one.type));
        for (const int key : {1, 2})
            database(prospectRowOf(key, one.literal));
        opens(ana, false);
        ASSERT_EQ(list("lvw").model()->rowCount(), 2) << one.type;
        EXPECT_THAT(selectedByClicks(), ElementsAre("K1", "K2")) << one.type;
        EXPECT_TRUE(shown("txtInfo").startsWith(QStringLiteral("K2 | "))) << one.type;
    }
}

TEST_F(HostileContentsAtTheWindow, texts_of_ten_megabytes_hold_nobody_up)
{
    const ReplacedTable other(*beside, "ut_icontact", prospectColumnsOf("LONGTEXT"));
    database(longProspectRowOf(1, "REPEAT('ñ', 5000000)"));
    database(prospectRowOf(2, "'corto'"));
    database(longProspectRowOf(3, "REPEAT('línea\\r\\n', 1000000)"));
    database(
        "INSERT INTO xt_biticontact (uf_Mensaje, uf_Usuario, uf_Iicontact) VALUES (REPEAT('x', 10000000), 'ana', "
        "2), ('fin', 'ana', 2)");
    opens(ana, false);
    ASSERT_EQ(list("lvw").model()->rowCount(), 3);
    EXPECT_THAT(selectedByClicks(), UnorderedElementsAre("K1", "K2", "K3"));
}

TEST_F(HostileContentsAtTheWindow, bytes_that_are_no_text_show_as_signs_that_say_so)
{
    const ReplacedTable other(*beside, "ut_icontact", prospectColumnsOf("VARBINARY(100)"));
    database(prospectRowOf(1, "x'41FF00C328ED0D0A'"));
    opens(ana, false);
    EXPECT_EQ(list("lvw").model()->index(0, 3).data().toString().at(1), QChar(QChar::ReplacementCharacter));
    EXPECT_THAT(selectedByClicks(), ElementsAre("K1"));
    EXPECT_TRUE(shown("txtInfo").contains(QChar(QChar::ReplacementCharacter)));
}

} // namespace
} // namespace dn::tests
