// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/qt/spanish.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <array>
#include <string_view>

namespace dn::screen::qt {
namespace {

struct Text {
    std::string_view english;
    const char* spanish;
};

constexpr std::array texts = {
    Text{"&Undo", "&Deshacer"},
    Text{"&Redo", "&Rehacer"},
    Text{"Cu&t", "Cor&tar"},
    Text{"&Copy", "&Copiar"},
    Text{"&Paste", "&Pegar"},
    Text{"Delete", "Eliminar"},
    Text{"Select All", "Seleccionar todo"},
    Text{"OK", "Aceptar"},
    Text{"&OK", "&Aceptar"},
    Text{"Cancel", "Cancelar"},
    Text{"&Cancel", "&Cancelar"},
    Text{"&Yes", "&Sí"},
    Text{"&No", "&No"},
    Text{"Close", "Cerrar"},
    Text{"&Close", "&Cerrar"},
    Text{"Save", "Guardar"},
    Text{"&Save", "&Guardar"},
    Text{"Scroll here", "Desplazar aquí"},
    Text{"Top", "Principio"},
    Text{"Bottom", "Final"},
    Text{"Left edge", "Borde izquierdo"},
    Text{"Right edge", "Borde derecho"},
    Text{"Page up", "Página anterior"},
    Text{"Page down", "Página siguiente"},
    Text{"Page left", "Página a la izquierda"},
    Text{"Page right", "Página a la derecha"},
    Text{"Scroll up", "Subir"},
    Text{"Scroll down", "Bajar"},
    Text{"Scroll left", "Mover a la izquierda"},
    Text{"Scroll right", "Mover a la derecha"},
    Text{"Computer", "Equipo"},
    Text{"Name", "Nombre"},
    Text{"Size", "Tamaño"},
    Text{"Type", "Tipo"},
    Text{"Date Modified", "Modificado"},
    Text{"Back", "Atrás"},
    Text{"Forward", "Adelante"},
    Text{"Parent Directory", "Carpeta superior"},
    Text{"Create New Folder", "Crear una carpeta"},
    Text{"List View", "Lista"},
    Text{"Detail View", "Detalles"},
    Text{"Go back", "Atrás"},
    Text{"Go forward", "Adelante"},
    Text{"Go to the parent directory", "Ir a la carpeta superior"},
    Text{"Create a New Folder", "Crear una carpeta"},
    Text{"Change to list view mode", "Ver como lista"},
    Text{"Change to detail view mode", "Ver detalles"},
    Text{"&New Folder", "&Nueva carpeta"},
    Text{"New Folder", "Nueva carpeta"},
    Text{"&Rename", "Cambiar &nombre"},
    Text{"&Delete", "&Eliminar"},
    Text{"Show &hidden files", "Mostrar archivos &ocultos"},
    Text{"Look in:", "Buscar en:"},
    Text{"File &name:", "&Nombre:"},
    Text{"Files of type:", "Tipo:"},
    Text{"&Open", "&Abrir"},
    Text{"Open", "Abrir"},
    Text{"&Choose", "&Elegir"},
    Text{"Directory:", "Carpeta:"},
    Text{"All Files (*)", "Todos los archivos (*)"},
    Text{"Folder", "Carpeta"},
    Text{"Drive", "Unidad"},
    Text{"Recent Places", "Lugares recientes"},
    Text{"Remove", "Quitar"},
    Text{"Copy &Link Location", "Copiar la &dirección del enlace"},
    Text{"&Step up", "&Aumentar"},
    Text{"Step &down", "&Disminuir"},
    Text{"Usage: %1", "Uso: %1"},
    Text{"[options]", "[opciones]"},
    Text{"Options:", "Opciones:"},
    Text{"Unknown option '%1'.", "Opción desconocida: «%1»."},
    Text{"Unknown options: %1.", "Opciones desconocidas: %1."},
    Text{"Missing value after '%1'.", "Falta el valor de «%1»."},
    Text{"Unexpected value after '%1'.", "«%1» no lleva ningún valor."},
};

class TableTranslator : public QTranslator {
public:
    using QTranslator::QTranslator;

    bool isEmpty() const override { return false; }

    /// The toolkit's own classes alone: the host's texts are the host's.
    QString translate(const char* context, const char* source, const char*, int) const override
    {
        if (std::string_view(context).substr(0, 1) != "Q") return {};
        for (const Text& text : texts)
            if (text.english == source) return QString::fromUtf8(text.spanish);
        return {};
    }
};

} // namespace

// The one installed last is asked first.
void speakSpanish(QCoreApplication& application)
{
    // NOLINTBEGIN(clang-analyzer-cplusplus.NewDeleteLeaks): owned by the application
    QCoreApplication::installTranslator(new TableTranslator(&application));
    auto* const full = new QTranslator(&application);
    if (full->load(QStringLiteral("qtbase_es"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(full);
    // NOLINTEND(clang-analyzer-cplusplus.NewDeleteLeaks)
}

} // namespace dn::screen::qt
