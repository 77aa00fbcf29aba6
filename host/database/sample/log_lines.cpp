// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/database/sample/log_lines.h"

#include "host/database/sample/people.h"
#include "host/database/sample/words.h"

#include <array>

namespace dn::host::sample {
namespace {

/// By the result code: 1 to 3 nobody answered, 11 to 16 somebody did.
std::string_view resultText(int result)
{
    constexpr std::array<std::string_view, 3> silent{"Línea ocupada", "No contestan", "Fuera de servicio"};
    constexpr std::array<std::string_view, 6> answered{"No se encuentra",      "Ocupado o \"en junta\"",
                                                       "Número equivocado",    "Me colgaron",
                                                       "No quiere saber nada", "Está de vacaciones"};
    const auto index = static_cast<std::size_t>(result);
    return result < 11 ? silent.at(index - 1) : answered.at(index - 11);
}

std::string account(int agent)
{
    const std::string_view name = agents()[static_cast<std::size_t>(agent - 1)];
    return plainName(name.substr(0, name.find(' ')));
}

} // namespace

LogLines::LogLines(World& world)
    : rows_(world.connection, world.engine, "xt_biticontact",
            "uf_Tiempo, uf_Mensaje, uf_Usuario, uf_Iicontact, uf_IProy")
{
}

BulkInsert& LogLines::begin(const DateTime& time, std::string_view message, int agent)
{
    return rows_.row().moment(time).text(message).text(account(agent));
}

void LogLines::aboutProspect(int key, const DateTime& time, std::string_view message, int agent)
{
    begin(time, message, agent).number(key).null();
}

void LogLines::aboutProject(int key, const DateTime& time, std::string_view message, int agent)
{
    begin(time, message, agent).number(0).number(key);
}

std::string reachedMessage(Dice& dice, std::string_view telephone)
{
    return "Se estableció llamada al " + std::string(telephone) +
           " Con éxito. Resumen: " + std::string(dice.pick(callSummaries()));
}

std::string notReachedMessage(std::string_view telephone, int result)
{
    const std::string text(resultText(result));
    if (result < 11) return "No se pudo establecer llamada al: " + std::string(telephone) + " " + text;
    return "Se estableció llamada al: " + std::string(telephone) + " pero no se pudo contactar al prospecto. <" +
           text + ">";
}

int failedResult(Dice& dice)
{
    constexpr std::array codes{1, 2, 3, 11, 12, 13, 14, 15, 16};
    return codes.at(static_cast<std::size_t>(dice.between(0, 8)));
}

} // namespace dn::host::sample
