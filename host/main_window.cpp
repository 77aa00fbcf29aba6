// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/main_window.h"

#include "host/connection_bar.h"
#include "host/dialler.h"
#include "host/mail/mailer.h"
#include "host/screens/boxes.h"
#include "screen/qt/hourglass.h"
#include "shell/ctr_dn_contacts.h"

#include <QAction>
#include <QApplication>
#include <QMenuBar>
#include <QMessageBox>
#include <QStandardPaths>
#include <QVBoxLayout>

#include <stdexcept>
#include <utility>

namespace dn::host {
namespace {

constexpr std::int16_t prospectsTab = 0;
constexpr std::int16_t todayTab = 2;

} // namespace

MainWindow::MainWindow(Database& database, const Worker& worker, Rhythm rhythm)
    : database_(database),
      worker_(worker),
      screens_([&database] { return database.openConnection(); }, this),
      reconnection_(database, std::move(rhythm)),
      bar_(new ConnectionBar(reconnection_, this)),
      widget_(new screen::qt::CtrDnContactsWidget(this))
{
    setObjectName("VentanaPrincipal");
    setWindowTitle(worker.user + (worker.admin ? " (administrador)" : ""));
    auto* const below = new QWidget(this);
    auto* const layout = new QVBoxLayout(below);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(bar_);
    layout->addWidget(widget_, 1);
    setCentralWidget(below);
    widget_->onError([this](const std::exception& failure) { reportError(failure); });
    addMenus();
    watches_.push_back(reconnection_.alive.connect([this] {
        if (atRest() && !isLoading() && !waiting_) place_ = placeOf(control());
    }));
    watches_.push_back(control().elements().detail.txtText.Change.connect([this] { watchNote(); }));
    watches_.push_back(reconnection_.back.connect([this] {
        ++arrivals_;
        if (!std::exchange(waiting_, true)) QTimer::singleShot(0, this, [this] { resumeWhenAtRest(); });
    }));
}

// The control goes ahead of the factory that it may ask, and the bar ahead of what it listens to.
MainWindow::~MainWindow()
{
    delete widget_;
    delete bar_;
}

void MainWindow::start(std::optional<std::int16_t> tab)
{
    try {
        bind();
    } catch (const std::exception&) {
        if (isOpen() && arrivals_ == 0) throw;
        leading_.emplace(); // lost since it was opened: the control is started on the next one
        leading_->tab = tab.value_or(leading_->tab);
        return;
    }
    openFirst(tab);
    place_ = placeOf(control());
}

void MainWindow::openFirst(std::optional<std::int16_t> tab)
{
    // An agent's queue stands there by itself, but without its commands, and no tab is in front.
    if (!tab && control().activeTab() < 0) tab = todayTab;
    // A row of the queue leads to a record in the list of the prospects, which only their own tab loads.
    if (tab == todayTab) control().openTab(prospectsTab);
    if (tab) control().openTab(*tab);
}

void MainWindow::bind()
{
    control().hostObjects(&screens_);
    control().SetObjects(&database_.connection(), worker_.agent, worker_.admin, worker_.user.toStdString());
    HostObject lands;
    control().InitUICRM(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation).toStdString(), lands);
    if (mailSettings_)
        if (const auto templates = mailSettings_().templates; !templates.empty())
            control().TemplatePath(templates.string()); // the binding has set a folder that is not this program's
    control().RefreshData();
}

// Nobody's window is open, and no call is in hand, whose end goes by the selected row.
bool MainWindow::atRest()
{
    return QApplication::activeModalWidget() == nullptr && QApplication::activePopupWidget() == nullptr &&
           !control().Call_Progress();
}

bool MainWindow::isLoading() { return QGuiApplication::overrideCursor() != nullptr; }

bool MainWindow::ready() const
{
    return reconnection_.state() == Reconnection::State::connected && isOpen() && !waiting_ && !leading_;
}

// What the control does meanwhile goes over the new connection already. An hourglass is that of a load in its
// yield, which is over soon, or one that a failure left behind, which is not.
void MainWindow::resumeWhenAtRest()
{
    constexpr int hourglassAtMost = 10;
    const bool connected = reconnection_.state() == Reconnection::State::connected && isOpen();
    if (connected && (!atRest() || (isLoading() && looks_++ < hourglassAtMost))) {
        QTimer::singleShot(100, this, [this] { resumeWhenAtRest(); });
        return;
    }
    looks_ = 0;
    const std::optional<std::string> failure = connected ? resume() : std::nullopt;
    waiting_ = leading_ && isOpen(); // lost and found again meanwhile
    if (waiting_) QTimer::singleShot(100, this, [this] { resumeWhenAtRest(); });
    if (failure) reportError(std::runtime_error(*failure)); // last: the connection may be lost before its box
}

// The box is emptied by what is stored and by what is opened: what it held is known here by then.
void MainWindow::watchNote()
{
    if (control().elements().detail.txtText.Text().empty() || !atRest() || leading_) return;
    place_ = isOpen() ? placeOf(control()) : restored(placeOf(control()), place_);
}

bool MainWindow::isOpen() const { return database_.connection().State() == data::Connection::open; }

void MainWindow::rememberPlace()
{
    if (!leading_) {
        leading_ = restored(placeOf(control()), place_);
        leading_->checked = checkedProspects(control());
        keyboard_ = KeyboardPlace(*this);
        return;
    }
    // Since the last time, which came to nothing.
    const std::string typed = control().elements().detail.txtText.Text();
    if (!typed.empty() && typed != leading_->note) leading_->notesLeft.push_back(typed);
}

/// @return what kept the control from being started.
std::optional<std::string> MainWindow::resume()
{
    rememberPlace();
    const unsigned arrival = arrivals_;
    std::optional<std::string> failure;
    bool noteIsBack = false;
    try {
        bind();
        noteIsBack = returnTo(control(), *leading_);
        openFirst({});
    } catch (const std::exception& thrown) {
        failure = thrown.what();
    }
    keyboard_.restore(); // ahead of what follows: he may type on while the connection is lost again
    if (!isOpen() || arrival != arrivals_) return std::nullopt; // lost again: there is a next time
    if (!noteIsBack) leading_->notesLeft.push_back(leading_->note);
    for (const std::string& note : leading_->notesLeft)
        if (!note.empty()) bar_->keepNote(QString::fromStdString(note));
    leading_.reset();
    reconnection_.works();
    return failure;
}

void MainWindow::sendMails(const std::filesystem::path& dataFolder, Keyring& keyring)
{
    mailPassword_ = std::make_unique<MailPassword>(keyring);
    mailSettings_ = [dataFolder, &password = *mailPassword_] {
        MailSettings settings = readMailSettings(mailSettingsFile(), dataFolder);
        password.takeIn(settings);
        return settings;
    };
    screens_.mailBy(
        [settings = mailSettings_, &password = *mailPassword_](const std::shared_ptr<ScreenContext>& context) {
            return std::make_shared<Mailer>(context, settings, password);
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
    file->setObjectName("menuArchivo");
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
    help->setObjectName("menuAyuda");
    QAction* manual = help->addAction("&Manual");
    manual->setShortcut(QKeySequence::HelpContents);
    connect(manual, &QAction::triggered, this, [this] { showManual(); });
    connect(help->addAction("Acerca &de..."), &QAction::triggered, this, [this] { tellAbout(); });
}

void MainWindow::tellAbout()
{
    constexpr int side = 48; // logical pixels
    QMessageBox box(QMessageBox::NoIcon, "Acerca de",
                    QApplication::applicationDisplayName() + " " + QApplication::applicationVersion() +
                        "\n\nBase de datos: " + QString::fromStdString(database_.description()),
                    QMessageBox::NoButton, this);
    box.setObjectName("AcercaDe");
    box.setTextFormat(Qt::PlainText);
    box.setIconPixmap(QIcon(":/dn/icons/dncontacts.svg").pixmap(QSize(side, side), devicePixelRatioF()));
    box.addButton("&Aceptar", QMessageBox::AcceptRole);
    box.exec();
}

// One window: the key that opens it also brings it back to the front.
void MainWindow::showManual()
{
    if (manual_.isNull()) {
        const auto folder = manualFolder();
        if (!folder) {
            tell(this, "El manual no está instalado junto al programa.");
            return;
        }
        manual_ = new ManualWindow(*folder, this);
    }
    manual_->show();
    manual_->raise();
    manual_->activateWindow();
}

// Opening the tab in view loads its list anew. None is in front while a control that could not be started waits
// for its server.
void MainWindow::refresh()
{
    const std::int16_t tab = control().activeTab();
    if (tab < 0) return;
    const screen::qt::Hourglass hourglass;
    control().openTab(tab);
}

void MainWindow::reportError(const std::exception& failure)
{
    QMessageBox::warning(this, QApplication::applicationDisplayName(), QString::fromUtf8(failure.what()));
}

} // namespace dn::host
