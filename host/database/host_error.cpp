// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/database/host_error.h"

#include <cerrno>
#include <system_error>

namespace dn::host {

std::string systemReason(int number)
{
    switch (number) {
    case EACCES:
    case EPERM:
        return "permiso denegado";
    case EROFS:
        return "el sistema de archivos es de sólo lectura";
    case ENOSPC:
        return "no queda espacio en el disco";
    case EDQUOT:
        return "se agotó la cuota de disco";
    case ENOTDIR:
        return "una parte de la ruta no es una carpeta";
    case EEXIST:
        return "ya existe y no es una carpeta";
    case ENAMETOOLONG:
        return "la ruta es demasiado larga";
    case ENOENT:
        return "no existe";
    case EIO:
        return "error de lectura o escritura del disco";
    default:
        return std::generic_category().message(number);
    }
}

} // namespace dn::host
