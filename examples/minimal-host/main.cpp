// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The smallest application around the control: a window, a connection, the agent who works. It lends no screens of
// its own, so persons, organisations and projects cannot be opened from it; lists, notes and calls work.
//
//     minimal-host SOCKET DATABASE USER AGENT       the password comes from DN_PASSWORD

#include "data/mariadb/connection.h"
#include "screen/qt/ctr_dn_contacts_widget.h"
#include "shell/ctr_dn_contacts.h"

#include <QApplication>
#include <QMainWindow>
#include <QMessageBox>

#include <cstdio>

namespace {

class SalesWindow : public QMainWindow {
public:
    explicit SalesWindow(dn::data::Connection& connection, int agent, const QString& user)
        : contacts_(new dn::screen::qt::CtrDnContactsWidget(this))
    {
        setCentralWidget(contacts_);
        contacts_->onError([this](const std::exception& failure) {
            QMessageBox::warning(this, windowTitle(), QString::fromUtf8(failure.what()));
        });
        contacts_->control().SetObjects(&connection, agent, false, user.toStdString());
        contacts_->control().RefreshData();
    }

private:
    dn::screen::qt::CtrDnContactsWidget* contacts_;
};

int run(const QStringList& arguments)
{
    dn::data::mariadb::Connection connection({.socket = arguments[1].toStdString(),
                                              .user = arguments[3].toStdString(),
                                              .password = qEnvironmentVariable("DN_PASSWORD").toStdString(),
                                              .database = arguments[2].toStdString()});
    SalesWindow window(connection, arguments[4].toInt(), arguments[3]); // goes ahead of the connection
    window.resize(1280, 800);
    window.show();
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setApplicationDisplayName("Ventas");
    try {
        if (argc == 5) return run(QApplication::arguments());
        std::fputs("minimal-host SOCKET DATABASE USER AGENT\n", stderr);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
    }
    return 1;
}
