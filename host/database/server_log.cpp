// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/database/server_log.h"

#include <array>
#include <deque>
#include <fstream>
#include <string_view>

namespace dn::host {
namespace fs = std::filesystem;
namespace {

struct Cause {
    std::string_view sign; ///< as the server writes it
    std::string_view explanation;
};

constexpr std::array causes{
    Cause{"No space left on device", "no queda espacio en el disco. Libere espacio y vuelva a intentarlo."},
    Cause{"errno: 28", "no queda espacio en el disco. Libere espacio y vuelva a intentarlo."},
    Cause{"Disk is full", "no queda espacio en el disco. Libere espacio y vuelva a intentarlo."},
    Cause{"Permission denied", "no tiene permiso para usar sus archivos. Revise de quién son y sus permisos."},
    Cause{"errno: 13", "no tiene permiso para usar sus archivos. Revise de quién son y sus permisos."},
    Cause{"Read-only file system", "la carpeta es de sólo lectura. Elija otra carpeta de datos."},
    Cause{"Cannot allocate memory", "no hay memoria suficiente. Cierre otros programas y vuelva a intentarlo."},
    Cause{"Unable to lock", "la tiene abierta otro servidor. Ciérrelo y vuelva a intentarlo."},
};

constexpr std::string_view damaged =
    "puede que los datos estén dañados. Restaure una copia de seguridad de la carpeta o, si no la hay, cambie de "
    "nombre la carpeta para empezar con una nueva.";

std::string_view causeIn(std::string_view text)
{
    for (const Cause& cause : causes)
        if (text.find(cause.sign) != std::string_view::npos) return cause.explanation;
    return damaged;
}

} // namespace

std::string lastLines(const fs::path& file, std::size_t count)
{
    std::ifstream in(file);
    std::deque<std::string> lines;
    for (std::string line; std::getline(in, line);) {
        lines.push_back(std::move(line));
        if (lines.size() > count) lines.pop_front();
    }
    std::string text;
    for (const std::string& line : lines)
        text += line + '\n';
    return text;
}

std::string complaints(const fs::path& file, std::size_t count)
{
    std::ifstream in(file);
    std::string text;
    for (std::string line; count > 0 && std::getline(in, line);) {
        if (line.find("ERROR") == std::string::npos && line.find("FATAL") == std::string::npos) continue;
        text += line + '\n';
        --count;
    }
    return text;
}

void putLogAside(const fs::path& log)
{
    std::error_code ignored; // without a former log there is nothing to keep
    fs::rename(log, log.string() + ".anterior", ignored);
}

std::string explainFailedStart(const fs::path& folder, const fs::path& log)
{
    const std::string tail = lastLines(log, 40);
    return "El servidor de base de datos no pudo abrir la carpeta de datos «" + folder.string() +
           "»: " + std::string(causeIn(tail)) + "\n\nÚltimas líneas de «" + log.string() + "»:\n" +
           lastLines(log, 12);
}

} // namespace dn::host
