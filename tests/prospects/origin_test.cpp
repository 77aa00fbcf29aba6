// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "prospects/origin.h"

#include <gtest/gtest.h>

namespace dn::prospects {
namespace {

using data::Value;

Value whole(std::string_view digits) { return {Value::Kind::whole, digits}; }
Value text(std::string_view utf8) { return {Value::Kind::text, utf8}; }

std::string origin(const Value& tipo, const Value& redirect)
{
    std::string result = "what stood there before";
    TipoOrigen(tipo, redirect, result);
    return result;
}

struct OriginCase {
    Value tipo;
    Value redirect;
    const char* label;
};

TEST(TipoOrigen, tells_how_a_prospect_arrived)
{
    const OriginCase cases[]{
        {whole("1"), text("URL_Directo"), "Contacto"},
        {whole("1"), Value(), "Contacto"},
        {Value(), text("descargas.example.com/tallyra?Demostracion_en_linea"), "Descarga"},
        {whole("2"), Value(), "Descarga"},
        {whole("0"), text(""), "Descarga"},
        {whole("2"), text("http://descargas.example.com/tallyra?Demostracion_en_linea&x=1"), "Demo en línea"},
        {whole("1"), text("DESCARGAS.example.com/TALLYRA?demostracion_EN_linea"), "Demo en línea"},
        {whole("2"), text("descargas.example.com/tallyra?Demostracion"), "Descarga"},
        {whole("2"), text("tallyra?Demostracion_en_linea"), "Descarga"},
        {whole("1"), text("http://x/?curso_gratis"), "Curso gratis"},
        {whole("1"), text("http://x/?Curso_Gratis#descargas.example.com/tallyra?Demostracion_en_linea"),
         "Curso gratis"},
        {Value(), text("http://x/?curso_gratis"), "Descarga"},
        {whole("1"), text("http://x/curso_gratis"), "Contacto"},
        {whole("2"), text("descargas.example.com/tallyra?Demostracion_en_linea?Curso_Gratis"), "Curso gratis"},
        {text("no es número"), text("?Curso_Gratis"), "Curso gratis"},
    };
    for (const OriginCase& c : cases)
        EXPECT_EQ(origin(c.tipo, c.redirect), c.label) << c.tipo.raw() << " | " << c.redirect.raw();
}

struct InterestCase {
    const char* text;
    const char* shown;
};

TEST(ProductoInteres, shortens_the_links_of_the_site_to_a_product)
{
    const InterestCase cases[]{
        {"", ""},
        {"Punto de venta", "Punto de venta"},
        {"descargas.example.com/download/tallyra", "Tallyra"},
        {"http://descargas.example.com/download/brelvo?x=1", "Brelvo"},
        {"descargas.example.com/download/lectoria", "Lectoria"},
        {"descargas.example.com/download/curanda", "Curanda"},
        {"descargas.example.com/download/folianta", "Folianta"},
        {"descargas.example.com/netoria/download", "Netoria"},
        {"descargas.example.com/download/netoria", "descargas.example.com/download/netoria"},
        {"DESCARGAS.EXAMPLE.COM/DOWNLOAD/TALLYRA", "Tallyra"},
        {"descargas.example.com/otra", "descargas.example.com/otra"},
        {"/download/tallyra", "/download/tallyra"},
        {"descargas.example.com/download/tallyra descargas.example.com/download/brelvo", "Brelvo"},
        {"descargas.example.com/netoria/download descargas.example.com/download/tallyra", "Netoria"},
    };
    for (const InterestCase& c : cases) {
        std::string result = "what stood there before";
        ProductoInteres(c.text, result);
        EXPECT_EQ(result, c.shown);
    }
}

TEST(ProductoInteres, takes_its_own_result_as_input)
{
    std::string interest = "descargas.example.com/download/curanda";
    ProductoInteres(interest, interest);
    EXPECT_EQ(interest, "Curanda");
}

} // namespace
} // namespace dn::prospects
