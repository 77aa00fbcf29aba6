// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The statements of a new prospect, to the byte, and the markers in them.

#include "dialogs/prospect_insert.h"

#include <gtest/gtest.h>

namespace dn::dialogs {
namespace {

TEST(ProspectInsert, for_mysql)
{
    EXPECT_EQ(prospectInsert(true),
              "INSERT INTO ut_icontact (Sys_TimeStamp, Sys_GUID, Sys_DTCreated, Sys_User, Sys_LastUser, "
              "Sys_Exported , Sys_DTExported , Sys_Info,uf_Nombre,uf_EMail,uf_Telefono,uf_Empresa,uf_Puesto, "
              "uf_Pais,uf_Estado,uf_Ciudad,uf_Interes,uf_Comentarios,uf_fecha,uf_iejecutivo,uf_status,uf_tipo,"
              "uf_color,uf_redirect) VALUES (NOW(), REPLACE(UUID(),'-',''), NOW(), '@', '@', 0, NOW(), '@', "
              "@uf_Nombre, @uf_EMail, @uf_Telefono, @uf_Empresa, @uf_Puesto, @uf_Pais, @uf_Estado, @uf_Ciudad, "
              "@uf_Interes, @uf_Comentarios, DATE(NOW()), @uf_iejecutivo, @uf_status, @uf_tipo, @uf_color, "
              "@uf_redirect)");
}

TEST(ProspectInsert, for_sql_server)
{
    EXPECT_EQ(prospectInsert(false),
              "INSERT INTO ut_icontact (Sys_TimeStamp, Sys_GUID, Sys_DTCreated, Sys_User, Sys_LastUser, "
              "Sys_Exported , Sys_DTExported , Sys_Info,uf_Nombre,uf_EMail,uf_Telefono,uf_Empresa,uf_Puesto, "
              "uf_Pais,uf_Estado,uf_Ciudad,uf_Interes,uf_Comentarios,uf_fecha,uf_iejecutivo,uf_status,uf_tipo,"
              "uf_color,uf_redirect) VALUES (GETDATE(), REPLACE(NEWID(),'-',''), GETDATE(), '@', '@', 0, "
              "GETDATE(), '@', @uf_Nombre, @uf_EMail, @uf_Telefono, @uf_Empresa, @uf_Puesto, @uf_Pais, "
              "@uf_Estado, @uf_Ciudad, @uf_Interes, @uf_Comentarios, CAST(GETDATE() AS DATE), @uf_iejecutivo, "
              "@uf_status, @uf_tipo, @uf_color, @uf_redirect)");
}

std::string set(std::string statement, const char* column, const ParamValue& value, bool null = false)
{
    SetParam(statement, column, value, null);
    return statement;
}

TEST(SetParam, writes_a_text_in_quotes_and_a_number_in_decimal)
{
    EXPECT_EQ(set("(@a, @b)", "a", "x"), "('x', @b)");
    EXPECT_EQ(set("(@a, @b)", "b", 12), "(@a, 12)");
    EXPECT_EQ(set("@a", "a", -2147483647 - 1), "-2147483648");
    EXPECT_EQ(set("@a", "a", ""), "''");
}

TEST(SetParam, writes_null_in_the_place_of_a_number_and_never_of_a_text)
{
    EXPECT_EQ(set("@a", "a", 7, true), "NULL");
    EXPECT_EQ(set("@a", "a", "x", true), "'x'");
}

TEST(SetParam, loses_apostrophes_and_spells_out_line_ends)
{
    EXPECT_EQ(set("@a", "a", "d'Arc ''"), "'dArc '");
    EXPECT_EQ(set("@a", "a", "uno\r\ndos\r\n"), "'uno\\r\\ndos\\r\\n'");
    EXPECT_EQ(set("@a", "a", "solo\nlinea\r"), "'solo\nlinea\r'");
    EXPECT_EQ(set("@a", "a", "\r\r\n\n"), "'\r\\r\\n\n'");
    EXPECT_EQ(set("@a", "a", "C:\\nuevo"), "'C:\\nuevo'") << "a backslash is not doubled";
}

TEST(SetParam, spells_out_line_ends_ahead_of_losing_apostrophes)
{
    EXPECT_EQ(set("@a", "a", "x\r'\ny"), "'x\r\ny'") << "the pair that comes together then stays one";
}

TEST(SetParam, replaces_every_marker_of_the_column_and_minds_its_case)
{
    EXPECT_EQ(set("@a @A @a", "a", 1), "1 @A 1");
    EXPECT_EQ(set("'@' @ @ab", "ab", 1), "'@' @ 1");
    EXPECT_EQ(set("nada", "a", 1), "nada");
}

TEST(SetParam, does_not_search_what_it_has_just_put_in) { EXPECT_EQ(set("@a", "a", "@a @a"), "'@a @a'"); }

TEST(SetParam, searches_what_an_earlier_one_put_in)
{
    EXPECT_EQ(set(set("@a @b", "a", "soy @b"), "b", 2), "'soy 2' 2");
}

TEST(LearningCall, has_a_form_for_each_engine_and_takes_the_text_as_it_is)
{
    EXPECT_EQ(learningCall(true, "AddOrigenContacto", "d'Arc "), "CALL AddOrigenContacto ('d'Arc ');");
    EXPECT_EQ(learningCall(false, "AddOrigenContacto", "d'Arc "), "EXEC AddOrigenContacto 'd'Arc ';");
}

} // namespace
} // namespace dn::dialogs
