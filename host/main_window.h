// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The window of the reference application: the control, and around it what a business application has.
#pragma once

#include "host/database/database.h"
#include "host/desktop/manual_window.h"
#include "host/keyboard_place.h"
#include "host/mail/mail_password.h"
#include "host/mail/mail_settings.h"
#include "host/program_options.h"
#include "host/reconnection.h"
#include "host/screens/screens_factory.h"
#include "host/work_place.h"
#include "host/worker.h"
#include "screen/qt/ctr_dn_contacts_widget.h"
#include "screen/signal.h"

#include <QMainWindow>
#include <QPointer>

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>

namespace dn::host {

class ConnectionBar;

class MainWindow : public QMainWindow {
public:
    /// @param database outlives the window.
    /// @param rhythm of the attempts to reach a database that was lost.
    MainWindow(Database& database, const Worker& worker, Rhythm rhythm = {});
    ~MainWindow() override;

    /// Hands the connection, the worker and the host's screens to the control and shows its first screen: an
    /// agent's queue of the day, else the prospects that are nobody's.
    /// @param tab the tab to open instead, if one was asked for.
    void start(std::optional<std::int16_t> tab);

    /// From now on the control can write mails. To be called ahead of `start`.
    /// @param dataFolder with the outbox, where the user's settings name no server.
    /// @param keyring keeps the password of the mail server; outlives the window.
    void sendMails(const std::filesystem::path& dataFolder, Keyring& keyring);

    /// From now on hands the number of each call to the desktop's own telephone program.
    void dialCalls();

    ctrDnContacts& control() { return widget_->control(); }

    /// Whether the control stands on the connection as it is: not while a lost one is away, nor until the control
    /// was started anew on the one that came back.
    bool ready() const;
    /// The control as a widget.
    screen::qt::CtrDnContactsWidget& widget() { return *widget_; }

private:
    void addMenus();
    void bind();
    void openFirst(std::optional<std::int16_t> tab);
    bool atRest();
    static bool isLoading();
    bool isOpen() const;
    void watchNote();
    void resumeWhenAtRest();
    void rememberPlace();
    std::optional<std::string> resume();
    void refresh();
    void tellAbout();
    void showManual();
    void reportError(const std::exception& failure);

    Database& database_;
    Worker worker_;
    std::unique_ptr<MailPassword> mailPassword_;
    ScreensFactory screens_;
    Reconnection reconnection_;
    ConnectionBar* bar_;
    QPointer<ManualWindow> manual_;
    screen::qt::CtrDnContactsWidget* widget_;
    WorkPlace place_;                  // a moment ago, or where the last note was typed
    std::optional<WorkPlace> leading_; // where to take the operator back to; until it is done
    KeyboardPlace keyboard_;           // with it
    bool waiting_ = false;             // for the control to be at rest
    int looks_ = 0;                    // how often it was not
    unsigned arrivals_ = 0;            // of connections in the place of lost ones
    screen::Subscription calls_;
    std::function<MailSettings()> mailSettings_;
    screen::Subscriptions watches_;
};

} // namespace dn::host
