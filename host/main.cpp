// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The program `dncontacts`: opens the database, asks who works, and shows the window with the control.

#include "host/database/database.h"
#include "host/database/server_folder.h"
#include "host/ending.h"
#include "host/main_window.h"
#include "host/picture.h"
#include "host/program_options.h"
#include "host/waiting_note.h"
#include "host/worker.h"
#include "screen/qt/theme.h"

#include <QApplication>
#include <QIcon>
#include <QMessageBox>

#include <cstdio>
#include <exception>
#include <string>

namespace {

using namespace dn::host;

DatabaseOptions databaseOptions(const ProgramOptions& options)
{
    DatabaseOptions result;
    result.connect = options.connect.toStdString();
    for (const QString& further : options.furtherServers)
        result.further.push_back(further.toStdString());
    result.createSchema = options.createSchema;
    result.demoRows = options.demoRows;
    result.server.folder = options.dataFolder.toStdString();
    return result;
}

Database open(const ProgramOptions& options)
{
    WaitingNote note;
    return openDatabase(databaseOptions(options), [&note](const std::string& step) {
        std::fprintf(stderr, "%s\n", step.c_str());
        note.tell(QString::fromStdString(step));
    });
}

void warn(const Database& database, bool silent)
{
    for (const std::string& warning : database.warnings()) {
        std::fprintf(stderr, "%s\n", warning.c_str());
        if (!silent)
            QMessageBox::warning(nullptr, QApplication::applicationDisplayName(), QString::fromStdString(warning));
    }
}

int run(const ProgramOptions& options)
{
    Database database = open(options);
    const bool picture = !options.screenshot.isEmpty();
    warn(database, picture);
    const auto agents = readAgents(database.connection());
    std::optional<Worker> worker;
    if (picture || options.saysWhoWorks())
        worker = workerFrom(options, agents);
    else
        worker = askWhoWorks(agents);
    if (!worker) return 0;

    MainWindow window(database, *worker);
    window.resize(options.size);
    window.sendMails(options.dataFolder.isEmpty() ? defaultDataFolder()
                                                  : std::filesystem::path(options.dataFolder.toStdString()));
    if (options.dial) window.dialCalls();
    if (picture) {
        window.start(options.tab);
        savePicture(window, options.screenshot);
        return 0;
    }
    // A window that closes while a box stands before it does not end the program by itself.
    const EndingSignals ending([&window] {
        window.close();
        QApplication::exit();
    });
    window.show();
    window.start(options.tab);
    if (!window.isVisible()) return 0; // closed while it started, which is no news to a loop that begins later
    return QApplication::exec();
}

// What the toolkit does not need a display for.
bool needsNoDisplay(const std::string& argument)
{
    for (const char* option : {"--screenshot", "--help", "--version"})
        if (argument.rfind(option, 0) == 0) return true;
    return argument == "-h" || argument == "-v";
}

// Chooses the platform ahead of the toolkit, which would abort the program where it finds no display.
bool findDisplay(int argc, char** argv)
{
    if (!qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) return true;
    for (int i = 1; i < argc; ++i) {
        if (std::string(argv[i]) == "-platform") return true;
        if (!needsNoDisplay(argv[i])) continue;
        qputenv("QT_QPA_PLATFORM", "offscreen");
        return true;
    }
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

} // namespace

int main(int argc, char** argv)
{
    if (!findDisplay(argc, argv)) {
        std::fputs(
            "No hay pantalla. Use --screenshot ARCHIVO.png para guardar la ventana como imagen, o inicie el "
            "programa en un escritorio.\n",
            stderr);
        return 1;
    }
    QApplication application(argc, argv);
    QApplication::setApplicationName("dncontacts");
    QApplication::setApplicationDisplayName("DN Contactos");
    QApplication::setApplicationVersion(DN_VERSION);
    QApplication::setDesktopFileName("dncontacts"); // by which a desktop finds the entry of its menu
    QApplication::setWindowIcon(QIcon(":/dn/icons/dncontacts.svg"));
    dn::screen::qt::applyTheme(application);
    ProgramOptions options;
    try {
        options = readProgramOptions();
        return run(options);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        if (options.screenshot.isEmpty() && QGuiApplication::platformName() != "offscreen")
            QMessageBox::critical(nullptr, QApplication::applicationDisplayName(),
                                  QString::fromUtf8(failure.what()));
        return 1;
    }
}
