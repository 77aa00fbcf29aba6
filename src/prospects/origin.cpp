// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "prospects/origin.h"

#include "base/no_case_pattern.h"
#include "data/failure_modes.h"

#include <algorithm>
#include <array>

namespace dn::prospects {
namespace {

NoCasePattern linkTo(std::string_view path) { return NoCasePattern(std::string(HostDescargas).append(path)); }

struct Product {
    NoCasePattern link;
    std::string_view name;
};

// The last product's link has the two parts of its path in the other order.
const std::array<Product, 6>& products()
{
    static const std::array<Product, 6> all{{{linkTo("/download/tallyra"), "Tallyra"},
                                             {linkTo("/download/brelvo"), "Brelvo"},
                                             {linkTo("/download/lectoria"), "Lectoria"},
                                             {linkTo("/download/curanda"), "Curanda"},
                                             {linkTo("/download/folianta"), "Folianta"},
                                             {linkTo("/netoria/download"), "Netoria"}}};
    return all;
}

constexpr std::int64_t typedByHand = 1;

} // namespace

void TipoOrigen(const data::Value& tipo, const data::Value& redirect, std::string& result) // continue-on-error
{
    result = "Descarga";
    if (tipo.isNull()) return;
    data::resumeNext([&] {
        if (tipo.toWhole() == typedByHand) result = "Contacto";
    });
    if (redirect.isNull()) return;
    static const NoCasePattern demo = linkTo("/tallyra?Demostracion_en_linea");
    static const NoCasePattern course("?Curso_Gratis");
    if (demo.isIn(redirect.raw())) result = "Demo en línea";
    if (course.isIn(redirect.raw())) result = "Curso gratis";
}

void ProductoInteres(const std::string& text, std::string& result)
{
    static const NoCasePattern host(HostDescargas);
    const auto isLinked = [&](const Product& product) { return product.link.isIn(text); };
    const auto none = products().rend();
    // Spares six searches where the interest is a plain text.
    const auto last = host.isIn(text) ? std::find_if(products().rbegin(), none, isLinked) : none;
    if (last != none)
        result = last->name;
    else if (&result != &text)
        result = text;
}

} // namespace dn::prospects
