// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/main_window.h"

#include "host/dialler.h"
#include "host/mail/mailer.h"
#include "shell/ctr_dn_contacts.h"

#include <QAction>
#include <QApplication>
#include <QMenuBar>
#include <QMessageBox>
#include <QStandardPaths>

namespace dn::host {
namespace {

constexpr std::int16_t prospectsTab = 0;
constexpr std::int16_t todayTab = 2;

} // namespace

MainWindow::MainWindow(Database& database, const Worker& worker)
    : database_(database),
      worker_(worker),
      screens_([&database] { return database.openConnection(); }, this),
      widget_(new screen::qt::CtrDnContactsWidget(this))
{
    setObjectName("VentanaPrincipal");
    setWindowTitle(worker.user + (worker.admin ? " (administrador)" : ""));
    setCentralWidget(widget_);
    widget_->onError([this](const std::exception& failure) { reportError(failure); });
    addMenus();
}

// The control goes ahead of the factory that it may ask.
MainWindow::~MainWindow() { delete widget_; }

void MainWindow::start(std::optional<std::int16_t> tab)
{
    control().hostObjects(&screens_);
    control().SetObjects(&database_.connection(), worker_.agent, worker_.admin, worker_.user.toStdString());
    HostObject lands;
    control().InitUICRM(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation).toStdString(), lands);
    if (mailSettings_)
        if (const auto templates = mailSettings_().templates; !templates.empty())
            control().TemplatePath(templates.string()); // the binding has set a folder that is not this program's
    control().RefreshData();
    if (!tab) return;
    // A row of the queue leads to a record in the list of the prospects, which only their own tab loads.
    if (*tab == todayTab) control().openTab(prospectsTab);
    control().openTab(*tab);
}

void MainWindow::sendMails(const std::filesystem::path& dataFolder)
{
    mailSettings_ = [dataFolder] { return readMailSettings(mailSettingsFile(), dataFolder); };
    screens_.mailBy([settings = mailSettings_](const std::shared_ptr<ScreenContext>& context) {
        return std::make_shared<Mailer>(context, settings);
    });
}

// The control does not dial. A number that nobody can dial is the operator's to dial by hand.
void MainWindow::dialCalls()
{
    calls_ = control().callStarted().connect(
        [](const std::string& /*table*/, std::int32_t /*key*/, const std::string& number) { dial(number); });
}

void MainWindow::addMenus()
{
    QMenu* file = menuBar()->addMenu("&Archivo");
    QAction* reload = file->addAction("&Actualizar");
    reload->setShortcut(QKeySequence::Refresh);
    connect(reload, &QAction::triggered, this, [this] { refresh(); });
    connect(file->addAction("&Exportar listas de correo..."), &QAction::triggered, this,
            [this] { control().ExportarListas(); });
    file->addSeparator();
    QAction* quit = file->addAction("&Salir");
    quit->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
    connect(quit, &QAction::triggered, this, &QWidget::close);

    QMenu* help = menuBar()->addMenu("A&yuda");
    connect(help->addAction("Acerca de..."), &QAction::triggered, this, [this] {
        QMessageBox::about(this, "Acerca de",
                           QApplication::applicationDisplayName() + " " + QApplication::applicationVersion() +
                               "\n\nBase de datos: " + QString::fromStdString(database_.description()));
    });
}

// Opening the tab in view loads its list anew. The first screen shows an agent's queue without a tab.
void MainWindow::refresh()
{
    const std::int16_t tab = control().activeTab();
    if (tab >= 0)
        control().openTab(tab);
    else
        control().RefreshRobot();
}

void MainWindow::reportError(const std::exception& failure)
{
    QMessageBox::warning(this, QApplication::applicationDisplayName(), QString::fromUtf8(failure.what()));
}

} // namespace dn::host
