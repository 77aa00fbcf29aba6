// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The program `dncontacts`: opens the database, asks who works, and shows the window with the control.

#include "host/database/database.h"
#include "host/database/server_folder.h"
#include "host/desktop/beginning.h"
#include "host/desktop/choosing.h"
#include "host/desktop/connection_test.h"
#include "host/desktop/secret_keyring.h"
#include "host/desktop/view_menu.h"
#include "host/desktop/window_memory.h"
#include "host/ending.h"
#include "host/main_window.h"
#include "host/picture.h"
#include "host/program_options.h"
#include "host/waiting_note.h"
#include "host/worker.h"
#include "screen/qt/theme.h"

#include <QApplication>
#include <QIcon>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>

#include <cstdio>
#include <exception>
#include <string>
#include <vector>

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

Database open(const DatabaseOptions& options)
{
    WaitingNote note;
    return openDatabase(options, [&note](const std::string& step) {
        std::fprintf(stderr, "%s\n", step.c_str());
        note.tell(QString::fromStdString(step));
    });
}

/// What the options name; without any the operator's own choice, which he is asked for once.
std::optional<Database> openChosen(const ProgramOptions& options, Beginning& beginning)
{
    const bool picture = !options.screenshot.isEmpty();
    const bool firstTime = !beginning.knows();
    if (picture || options.saysWhichDatabase() || (firstTime && options.saysWhoWorks()))
        return open(databaseOptions(options));
    std::optional<Database> database;
    beginning.open([&](const std::vector<std::string>& servers, bool createSchema) {
        DatabaseOptions chosen = databaseOptions(options);
        if (!servers.empty()) {
            chosen.connect = servers.front();
            chosen.further.assign(servers.begin() + 1, servers.end());
        }
        chosen.createSchema = createSchema;
        database.emplace(open(chosen));
    });
    return database;
}

void warn(const Database& database, bool silent)
{
    for (const std::string& warning : database.warnings()) {
        std::fprintf(stderr, "%s\n", warning.c_str());
        if (!silent)
            QMessageBox::warning(nullptr, QApplication::applicationDisplayName(), QString::fromStdString(warning));
    }
}

std::optional<Worker> whoWorks(const ProgramOptions& options, dn::data::Connection& connection)
{
    const auto agents = readAgents(connection);
    if (!options.screenshot.isEmpty() || options.saysWhoWorks()) return workerFrom(options, agents);
    const QString file = settingsFile("ventana.ini");
    std::optional<Worker> worker = askWhoWorks(agents, rememberedAgent(file));
    if (!worker) return worker;
    rememberAgent(file, worker->agent);
    if (!options.user.isEmpty()) worker->user = options.user;
    return worker;
}

int run(const ProgramOptions& options, const QPalette& desktop)
{
    const bool picture = !options.screenshot.isEmpty();
    const QString memoryFile = settingsFile("ventana.ini");
    const QString theme = !options.theme.isEmpty() || picture ? options.theme : rememberedTheme(memoryFile);
    if (!theme.isEmpty()) useTheme(themeNamed(theme), desktop);
    SecretKeyring keyring;
    Beginning beginning(settingsFile("inicio.ini"), keyring, testServers);
    std::optional<Database> chosen = openChosen(options, beginning);
    if (!chosen) return 0;
    Database& database = *chosen;
    warn(database, picture);
    const std::optional<Worker> worker = whoWorks(options, database.connection());
    if (!worker) return 0;

    MainWindow window(database, *worker);
    constexpr QSize designed(1280, 800);
    if (options.size || picture)
        window.resize(options.size.value_or(designed));
    else
        takeFirstPlace(window, designed);
    window.sendMails(options.dataFolder.isEmpty() ? defaultDataFolder()
                                                  : std::filesystem::path(options.dataFolder.toStdString()),
                     keyring);
    if (options.dial) window.dialCalls();
    WindowMemory memory(window, window.widget(), memoryFile);
    memory.resetColumns();
    addViewMenu(*window.menuBar(), memory, memoryFile, theme, desktop);
    addChoosing(*window.menuBar()->actions().constFirst()->menu(), beginning, window);
    if (picture) {
        window.start(options.tab);
        savePicture(window, options.screenshot);
        return 0;
    }
    memory.restore(!options.size);
    // A window that closes while a box stands before it does not end the program by itself.
    const EndingSignals ending([&window] {
        window.close();
        QApplication::exit();
    });
    window.show();
    window.start(options.tab);
    // Closed while it started, it would be no news to a loop that begins later.
    const int status = window.isVisible() ? QApplication::exec() : 0;
    memory.save();
    return status;
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
    const QPalette desktop = QApplication::palette();
    dn::screen::qt::applyTheme(application);
    ProgramOptions options;
    try {
        options = readProgramOptions();
        if (!options.answer.isEmpty()) {
            std::fputs(qUtf8Printable(options.answer), stdout);
            return 0;
        }
        return run(options, desktop);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        if (options.screenshot.isEmpty() && QGuiApplication::platformName() != "offscreen")
            QMessageBox::critical(nullptr, QApplication::applicationDisplayName(),
                                  QString::fromUtf8(failure.what()));
        return 1;
    }
}
