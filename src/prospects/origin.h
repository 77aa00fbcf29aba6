// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What the operator reads in the first two columns of the prospects: how a prospect arrived, and what for.
//
// Prospects are typed in by an agent, or written by the company's web site when somebody downloads a product, asks
// for a demonstration or signs up for a course. Then the link by which they came tells the story.
#pragma once

#include "data/value.h"

#include <string>
#include <string_view>

namespace dn::prospects {

/// The web host of the company's site, without a scheme; every link of the site begins with it.
inline constexpr std::string_view HostDescargas = "descargas.example.com";

/// Writes the label of a prospect's origin: "Descarga", "Contacto", "Demo en línea" or "Curso gratis".
/// @param tipo the column `uf_Tipo`. When it is null the link is not looked at.
/// @param redirect the column `uf_redirect`, the link by which the prospect arrived.
void TipoOrigen(const data::Value& tipo, const data::Value& redirect, std::string& result);

/// Writes the product's name for a download link of the site; any other text stays as it is.
void ProductoInteres(const std::string& text, std::string& result);

} // namespace dn::prospects
