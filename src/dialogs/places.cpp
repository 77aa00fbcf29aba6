// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "dialogs/places.h"

namespace dn::dialogs {

const std::array<const char*, 27> countries{
    mexico,      "España",          "Argentina",  "Bolivia",     "Brasil",
    "Chile",     "Colombia",        "Costa Rica", "Cuba",        "República Dominicana",
    "Ecuador",   "El Salvador",     "Guadalupe",  "Guatemala",   "Guayana Francesa",
    "Haití",     "Honduras",        "Martinica",  mexico,        "Nicaragua",
    "Panamá",    "Paraguay",        "Perú",       "Puerto Rico", "Uruguay",
    "Venezuela", "- Otros paises -"};

const std::array<const char*, 32> mexicanStates{"Distrito federal",
                                                "Aguascalientes",
                                                "Baja California Norte",
                                                "Baja California Sur",
                                                "Campeche",
                                                "Chiapas",
                                                "Chihuahua",
                                                "Coahuila",
                                                "Colima",
                                                "Durango",
                                                "Guanajuato",
                                                "Guerrero",
                                                "Hidalgo",
                                                "Jalisco",
                                                "México",
                                                "Michoacán de Ocampo",
                                                "Morelos",
                                                "Nayarit",
                                                "Nuevo León",
                                                "Oaxaca",
                                                "Puebla",
                                                "Querétaro",
                                                "Quintana Roo",
                                                "San Luis Potosí",
                                                "Sinaloa",
                                                "Sonora",
                                                "Tabasco",
                                                "Tamaulipas",
                                                "Tlaxcala",
                                                "Veracruz",
                                                "Yucatán",
                                                "Zacatecas"};

} // namespace dn::dialogs
