// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The schema on a real server: what the statements of the control ask of it.

#include "host/database/schema.h"
#include "host/database/schema_scripts.h"
#include "tests/host/database/fixtures.h"

#include <gmock/gmock.h>

namespace dn::host::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class Schema : public testing::Test {
protected:
    static void SetUpTestSuite() { connection_ = freshDatabase(SharedServer::get(), "esquema"); }
    static void TearDownTestSuite() { connection_.reset(); }

    data::Connection& connection() { return *connection_; }
    std::string value(std::string_view statement) { return valueOf(connection(), statement); }

private:
    inline static std::unique_ptr<data::Connection> connection_;
};

TEST_F(Schema, has_everything_of_the_contract)
{
    EXPECT_THAT(missingObjects(connection()), IsEmpty());
    connection().execute("SELECT identificador, tiempo, remitente, destinatarios, asunto, cuerpo, id_mensaje FROM "
                         "correo_historial");
}

TEST_F(Schema, table_names_do_not_depend_on_letter_case)
{
    for (const char* name : {"UT_IContact", "ut_icontact", "PROYECTO", "proyecto", "meta", "organizacion", "QHoy"})
        EXPECT_NO_THROW(connection().execute(std::string("SELECT * FROM ") + name + " WHERE 1 = 0")) << name;
}

TEST_F(Schema, a_new_prospect_is_stored_as_the_dialog_writes_it)
{
    connection().execute(
        "INSERT INTO ut_icontact (Sys_TimeStamp, Sys_GUID, Sys_DTCreated, Sys_User, Sys_LastUser, Sys_Exported , "
        "Sys_DTExported , Sys_Info,uf_Nombre,uf_EMail,uf_Telefono,uf_Empresa,uf_Puesto, "
        "uf_Pais,uf_Estado,uf_Ciudad,uf_Interes,uf_Comentarios,uf_fecha,uf_iejecutivo,uf_status,uf_tipo,uf_color,"
        "uf_redirect) VALUES (NOW(), REPLACE(UUID(),'-',''), NOW(), '@', '@', 0, NOW(), '@', 'Ñandú OHiggins 👍', "
        "'a@b', '9611234567', '', '', 'MX', 'Chiapas', 'Tuxtla', 'Tallyra', 'Obtenido: x\\r\\nReferencia: y ', "
        "DATE(NOW()), NULL, 0, 1, 0, 'URL_Directo')");
    EXPECT_EQ(value("SELECT uf_Nombre FROM ut_icontact WHERE uf_Redirect = 'URL_Directo'"), "Ñandú OHiggins 👍");
    EXPECT_EQ(value("SELECT LENGTH(Sys_GUID) FROM ut_icontact WHERE uf_Redirect = 'URL_Directo'"), "32");
    EXPECT_EQ(value("SELECT uf_Comentarios FROM ut_icontact WHERE uf_Redirect = 'URL_Directo'"),
              "Obtenido: x\r\nReferencia: y ");
}

TEST_F(Schema, a_row_of_the_web_site_may_leave_out_nearly_everything)
{
    connection().execute("INSERT INTO ut_icontact (uf_Nombre) VALUES ('de la web')");
    EXPECT_EQ(rowsOf(connection(), "SELECT uf_Status, uf_Tipo, uf_color, uf_contactado, uf_IEjecutivo, "
                                   "LENGTH(Sys_GUID), DATEDIFF(NOW(), Sys_DTCreated) FROM ut_icontact WHERE "
                                   "uf_Nombre = 'de la web'"),
              (std::vector<Row>{{"0", "NULL", "NULL", "NULL", "NULL", "32", "0"}}));
}

TEST_F(Schema, first_contact_is_stored_once)
{
    connection().execute("INSERT INTO ut_icontact (Sys_PK, uf_Nombre) VALUES (9001, 'llamado')");
    const std::string guarded =
        "UPDATE ut_icontact SET uf_contactado = 1, uf_primercontac = CURRENT_TIMESTAMP Where "
        "Sys_PK=9001 and isnull(uf_contactado)";
    connection().execute(guarded);
    connection().execute("UPDATE ut_icontact SET uf_primercontac = '2001-01-01' WHERE Sys_PK=9001");
    connection().execute(guarded);
    EXPECT_EQ(value("SELECT uf_primercontac FROM ut_icontact WHERE Sys_PK=9001"), "2001-01-01 00:00:00");
}

TEST_F(Schema, log_rows_leave_the_project_to_its_default)
{
    connection().execute("INSERT INTO xt_biticontact (uf_Tiempo, uf_Mensaje, uf_Usuario, uf_Iicontact) VALUES "
                         "(CURRENT_TIMESTAMP, 'uno','ana',7)");
    connection().execute("INSERT INTO xt_biticontact (uf_Tiempo, uf_Mensaje, uf_Usuario, uf_Iicontact, uf_IProy) "
                         "VALUES (CURRENT_TIMESTAMP, 'dos','ana',0,7)");
    EXPECT_EQ(value("SELECT uf_Mensaje FROM xt_biticontact WHERE uf_Iicontact = 7 ORDER BY uf_Tiempo"), "uno");
    EXPECT_EQ(value("SELECT uf_Mensaje FROM xt_biticontact WHERE uf_IProy = 7 ORDER BY uf_Tiempo"), "dos");
}

struct Learner {
    const char* procedure;
    const char* select;
};

class Learning : public Schema, public testing::WithParamInterface<Learner> {};

TEST_P(Learning, stores_a_text_once_and_accepts_known_ones)
{
    const auto learn = [&](const std::string& text) {
        connection().execute(std::string("CALL ") + GetParam().procedure + " ('" + text + "');");
    };
    for (const char* text : {"Página web", "Radio", "Página web", "RADIO", "Año nuevo"})
        learn(text);
    EXPECT_THAT(rowsOf(connection(), GetParam().select),
                ElementsAre(Row{"Año nuevo"}, Row{"Página web"}, Row{"Radio"}));
    EXPECT_THROW(learn("con ' comilla"), data::Error);
    EXPECT_THROW(learn(std::string(501, 'x')), data::Error);
}

INSTANTIATE_TEST_SUITE_P(
    AllThree, Learning,
    testing::Values(Learner{"AddReferenciaContacto", "SELECT uf_Referencia FROM ut_ReferenciaContacto;"},
                    Learner{"AddOrigenContacto", "SELECT uf_Origen FROM ut_OrigenContacto;"},
                    Learner{"AddInteresContacto", "SELECT uf_Interes FROM ut_InteresContacto;"}),
    [](const auto& one) { return std::string(one.param.procedure); });

TEST_F(Schema, applied_a_second_time_it_changes_nothing)
{
    const std::string before = value("SELECT COUNT(*) FROM ut_icontact");
    EXPECT_THAT(failureOf([&] { createSchema(connection(), Engine::mariadb); }),
                HasSubstr("ya tiene ut_icontact"));
    EXPECT_EQ(value("SELECT COUNT(*) FROM ut_icontact"), before);
}

TEST_F(Schema, is_no_version_until_it_is_marked)
{
    const auto fresh = freshDatabase(SharedServer::get(), "marcas");
    EXPECT_EQ(schemaVersionOf(*fresh), 0);
    markSchema(*fresh);
    EXPECT_EQ(schemaVersionOf(*fresh), schemaVersion);
}

TEST(SchemaScripts, are_cut_at_semicolons_that_end_a_line)
{
    EXPECT_THAT(statementsOf("-- a; comment;\nSELECT ';'\n  FROM a;\n\nSELECT 2;\n"),
                ElementsAre("SELECT ';'\n  FROM a", "SELECT 2"));
    EXPECT_THAT(statementsOf(""), IsEmpty());
    EXPECT_THAT(statementsOf("SELECT 1;"), IsEmpty()) << "a last line without its end is no statement";
}

TEST(SchemaScripts, every_script_gives_statements)
{
    EXPECT_FALSE(schemaScripts().empty());
    for (const SchemaScript& script : schemaScripts())
        EXPECT_FALSE(statementsOf(script.text).empty()) << script.engine << "/" << script.name;
}

} // namespace
} // namespace dn::host::tests
