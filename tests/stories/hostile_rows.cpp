// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/stories/hostile_rows.h"

#include <initializer_list>

namespace dn::tests {
namespace {

/// What the statements of the lists compute with, so that a type may make them fail: those keep their own.
const std::string reckonedWith = "uf_IEjecutivo INT, uf_Status INT, Sys_DTCreated DATETIME, uf_ultimocontac "
                                 "DATETIME, uf_ultimointento DATETIME";

const std::vector<std::string> otherColumns{"uf_Nombre",      "uf_EMail",        "uf_Telefono",
                                            "uf_Empresa",     "uf_Puesto",       "uf_Pais",
                                            "uf_Estado",      "uf_Ciudad",       "uf_Interes",
                                            "uf_Comentarios", "uf_Fecha",        "uf_Tipo",
                                            "uf_color",       "uf_Redirect",     "uf_proxcontac",
                                            "uf_NotaStatus",  "uf_FechaStatus",  "uf_res_ultimointento",
                                            "uf_contactado",  "uf_primercontac", "uf_correoverif"};

std::string directoryColumns(std::initializer_list<const char*> names, const std::string& type)
{
    std::string columns = "Sys_PK BIGINT, IEjecutivo INT";
    for (const char* name : names)
        columns.append(", ").append(name).append(" ").append(type);
    return columns;
}

} // namespace

const std::vector<HostileType> hostileTypes{
    {"TINYINT", "-128", "-128"},
    {"INT", "-2147483648", "-2147483648"},
    {"BIGINT UNSIGNED", "18446744073709551615", "18446744073709551615"},
    {"DOUBLE", "-1.7976931348623157e308", "-1.7976931348623157e308"},
    {"FLOAT", "3.4e38", "3.4e38"},
    {"DECIMAL(65,30)", "99999999999999999999999999999999999.999999999999999999999999999999",
     "99999999999999999999999999999999999.999999999999999999999999999999"},
    {"BIT(1)", "b'1'", "Verdadero"},
    {"BIT(64)", "b'1111111111111111111111111111111111111111111111111111111111111111'", "18446744073709551615"},
    {"DATE", "'9999-12-31'", "31/12/9999"},
    {"DATETIME(6)", "'9999-12-31 23:59:59.999999'", "31/12/9999 23:59:59"},
    {"TIMESTAMP NULL", "'2038-01-19 02:00:00'", "19/01/2038 02:00:00"},
    {"TIME(6)", "'-838:59:59.999999'", "-838:59:59.999999"},
    {"YEAR", "2155", "2155"},
    {"CHAR(255)", "'\\'; DROP TABLE x; -- '", "'; DROP TABLE x; --"},
    {"LONGTEXT", "'<b>ñ 😀\\r\\n\\t'", "<b>ñ 😀\r\n\t"},
    {"LONGBLOB", "x'FF00C328'", std::string("\xFF\0\xC3(", 4)},
    {"ENUM('uno', 'dos')", "'dos'", "dos"},
    {"SET('uno', 'dos')", "'uno,dos'", "uno,dos"},
    {"JSON", "'{\"a\": [1, null]}'", "{\"a\": [1, null]}"},
    {"UUID", "'123e4567-e89b-12d3-a456-426655440000'", "123e4567-e89b-12d3-a456-426655440000", true},
    {"INET6", "'::ffff:192.0.2.1'", "::ffff:192.0.2.1", true},
};

std::string prospectColumnsOf(const std::string& type, const std::string& keyType)
{
    std::string columns = "Sys_PK " + keyType + ", Sys_GUID CHAR(32), " + reckonedWith;
    for (const std::string& column : otherColumns)
        columns += ", " + column + " " + type;
    return columns;
}

std::string prospectRowOf(int key, const std::string& literal)
{
    std::string names = "INSERT INTO ut_icontact (Sys_PK, uf_IEjecutivo, uf_Status";
    std::string values = ") VALUES (" + std::to_string(key) + ", 7, 0";
    for (const std::string& column : otherColumns) {
        names += ", " + column;
        values += ", " + literal;
    }
    return names + values + ")";
}

std::string longProspectRowOf(int key, const std::string& literal)
{
    return "INSERT INTO ut_icontact (Sys_PK, uf_IEjecutivo, uf_Status, uf_Nombre, uf_EMail, uf_Comentarios) "
           "VALUES (" +
           std::to_string(key) + ", 7, 0, " + literal + ", " + literal + ", " + literal + ")";
}

const char* const projectColumns =
    "Sys_PK BIGINT, Sys_GUID CHAR(32), Sys_DTCreated DATETIME, Descripcion LONGTEXT, IEjecutivo INT, IMeta INT, "
    "IOrganizacion INT, IContacto INT, FInicio DATETIME, UF_Status1 SMALLINT, UF_Color SMALLINT, UF_monto DOUBLE, "
    "uf_ultimocontac DATETIME, uf_ultimointento DATETIME, uf_res_ultimointento SMALLINT, uf_contactado "
    "TINYINT(1), "
    "uf_primercontac DATETIME, Notas TEXT";

std::string personColumnsOf(const std::string& type)
{
    return directoryColumns({"Codigo", "Nombre", "Apellido1", "Apellido2", "EMail", "EMail2", "MSN", "Tel_Casa",
                             "Tel_Trabajo", "Tel_Movil", "Domicilio", "Colonia", "CodPostal"},
                            type);
}

std::string organisationColumnsOf(const std::string& type)
{
    return directoryColumns({"Codigo", "Nombre", "NomComercial", "Tel1", "Tel2", "Tel3", "Fax", "EMail", "WebSite",
                             "Domicilio", "Colonia", "CodPostal", "Nacionalidad"},
                            type);
}

} // namespace dn::tests
