// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The operator reads what happened to a prospect and writes down what happens now.

#include "base/date_time.h"
#include "base/format.h"
#include "tests/stories/operator.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class KeepingNotes : public Operator {
protected:
    std::vector<std::string> notes()
    {
        return inTheDatabase("SELECT uf_Mensaje FROM xt_biticontact ORDER BY Sys_PK");
    }
};

TEST_F(KeepingNotes, a_note_stands_at_the_top_of_the_timeline_and_in_the_log)
{
    const auto maria = prospect("María");
    database("INSERT INTO xt_biticontact (uf_Tiempo, uf_Mensaje, uf_Usuario, uf_Iicontact) VALUES "
             "('2026-01-05 10:00:00', 'pidió el catálogo', 'web', " +
             std::to_string(maria) + ")");
    enters(ana);
    clicksRow("María");
    EXPECT_EQ(sees("txtBit"), "web [05/01/2026 10:00:00]\r\npidió el catálogo\r\n\r\n");
    types("txtText", "pide precios\n");
    EXPECT_EQ(sees("txtBit"), "ana [14/03/2026 09:30:00]\r\npide precios\r\n\r\n"
                              "web [05/01/2026 10:00:00]\r\npidió el catálogo\r\n\r\n");
    EXPECT_EQ(sees("txtText"), "");
    EXPECT_THAT(notes(), ElementsAre("pidió el catálogo", "pide precios"));
    EXPECT_THAT(inTheDatabase("SELECT uf_Usuario FROM xt_biticontact WHERE uf_Mensaje = 'pide precios' AND "
                              "uf_IProy IS NULL AND uf_Iicontact = " +
                              std::to_string(maria)),
                ElementsAre("ana"));
}

TEST_F(KeepingNotes, after_a_reload_the_timeline_shows_the_servers_time)
{
    prospect("María");
    enters(ana);
    types("txtText", "una\n");
    opensTab(0);
    const auto stored = beside->execute("SELECT uf_Tiempo FROM xt_biticontact");
    const std::string time = formatDate(stored->value(0).toDateTime(), "dd/mm/yyyy hh:nn:ss");
    EXPECT_EQ(sees("txtBit"), "ana [" + time + "]\r\nuna\r\n\r\n");
}

struct Hostile {
    const char* typed;
    const char* stored;
};

TEST_F(KeepingNotes, whatever_is_typed_is_stored_as_it_is_read)
{
    const Hostile texts[]{{"d'Arc y O'Higgins", "dArc y OHiggins"},
                          {"100 % de _todo_", "100 % de _todo_"},
                          {"'); DROP TABLE ut_icontact; --", "); DROP TABLE ut_icontact; --"},
                          {"emoji 😀 y 𝒞𝓊𝓇𝓈𝒾𝓋𝒶", "emoji 😀 y 𝒞𝓊𝓇𝓈𝒾𝓋𝒶"},
                          {"مرحبا عالم", "مرحبا عالم"},
                          {"salto\nsolo", "salto\nsolo"},
                          {"dos\r\npares\r\n", "dospares"},
                          {"control \x01\x02\x1f fin", "control \x01\x02\x1f fin"},
                          {"\"comillas\" y `acentos`", "\"comillas\" y `acentos`"}};
    prospect("María");
    enters(ana);
    for (const Hostile& text : texts) {
        database("DELETE FROM xt_biticontact");
        control.elements().detail.txtText.edit(text.typed);
        presses("cmdIntro");
        EXPECT_THAT(notes(), ElementsAre(text.stored));
    }
    EXPECT_THAT(seesProspects(), ElementsAre("María"));
}

TEST_F(KeepingNotes, a_backslash_is_read_by_mariadb_alone_as_the_start_of_an_escape)
{
    prospect("María");
    enters(ana);
    control.elements().detail.txtText.edit("C:\\nuevo");
    presses("cmdIntro");
    EXPECT_THAT(notes(), ElementsAre(onSqlServer() ? "C:\\nuevo" : "C:\nuevo")) << "the text goes in unescaped";
}

TEST_F(KeepingNotes, a_backslash_at_the_end_breaks_the_statement_on_mariadb_and_is_told)
{
    prospect("María");
    enters(ana);
    control.elements().detail.txtText.edit("C:\\");
    const std::string before = sees("txtBit");
    if (!onSqlServer()) ports.dialogs.expectAnyBox();
    presses("cmdIntro");
    if (onSqlServer()) {
        EXPECT_THAT(notes(), ElementsAre("C:\\"));
        return;
    }
    EXPECT_THAT(ports.dialogs.boxes().back().prompt, HasSubstr("SQL syntax"));
    EXPECT_THAT(notes(), IsEmpty());
    EXPECT_EQ(sees("txtText"), "C:\\");
    EXPECT_EQ(sees("txtBit"), before);
}

TEST_F(KeepingNotes, a_note_of_100_kilobytes_is_kept_whole)
{
    prospect("María");
    enters(ana);
    std::string large;
    while (large.size() < 100'000)
        large += "ñandú ";
    large += "fin";
    control.elements().detail.txtText.edit(large);
    presses("cmdIntro");
    EXPECT_THAT(notes(), ElementsAre(large));
}

TEST_F(KeepingNotes, a_note_without_text_is_refused)
{
    prospect("María");
    enters(ana);
    isTold("Debe escribir un mensaje");
    types("txtText", "   \n");
    EXPECT_THAT(notes(), IsEmpty());
    EXPECT_TRUE(control.elements().detail.txtText.hasFocus());
}

TEST_F(KeepingNotes, a_note_can_be_dictated_in_a_box)
{
    prospect("María");
    enters(ana);
    answers("Nota:", "llamar el lunes");
    presses("cmdNote");
    EXPECT_THAT(notes(), ElementsAre("llamar el lunes"));
}

TEST_F(KeepingNotes, a_refused_note_is_told_with_the_servers_words_and_kept_in_the_box)
{
    prospect("María");
    enters(ana);
    cnn->refuses = [](std::string_view statement) { return statement.rfind("INSERT", 0) == 0; };
    isTold("Lock wait timeout exceeded");
    types("txtText", " no se pierde \n");
    EXPECT_EQ(sees("txtText"), "no se pierde");
    cnn->refuses = nullptr;
    presses("cmdIntro");
    EXPECT_THAT(notes(), ElementsAre("no se pierde"));
}

TEST_F(KeepingNotes, a_timeline_of_10_000_lines_reads_newest_first)
{
    const auto maria = std::to_string(prospect("María"));
    manyRows("INSERT INTO xt_biticontact (uf_Tiempo, uf_Mensaje, uf_Usuario, uf_Iicontact)", 10'000,
             [&](int line) {
                 const DateTime time = parseIso("2026-01-01").value().plusSeconds(line);
                 return "'" + formatDate(time, "yyyy-mm-dd hh:nn:ss") + "', 'línea " + std::to_string(line) +
                        "', 'web', " + maria;
             });
    enters(ana);
    const std::string text = sees("txtBit");
    EXPECT_THAT(text,
                StartsWith("web [01/01/2026 02:46:40]\r\nlínea 10000\r\n\r\nweb [01/01/2026 02:46:39]\r\nlínea "
                           "9999\r\n\r\n"));
    EXPECT_THAT(text, EndsWith("web [01/01/2026 00:00:01]\r\nlínea 1\r\n\r\n"));
    EXPECT_THAT(text, HasSubstr("línea 5000\r\n"));
}

} // namespace
} // namespace dn::tests
