// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What the pieces of code in docs/embedding.md take for granted, so that they compile: things of the reader's own.
#pragma once

#include "data/connection.h"
#include "desk/host_objects.h"
#include "screen/qt/ctr_dn_contacts_widget.h"
#include "shell/ctr_dn_contacts.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

struct Cursor {
    std::vector<std::string> columnNames() const;
    std::vector<dn::data::Value::Kind> kinds() const;
    bool next();
    bool atEnd() const;
    bool isNull(std::size_t column) const;
    std::string_view text(std::size_t column) const;
};

struct Line {
    void dial(const std::string& number);
    void hangUp();
    void onBusy(std::function<void()> handler);
    void onNoAnswer(std::function<void()> handler);
};

extern QWidget* window;
extern dn::screen::qt::CtrDnContactsWidget* contacts;
dn::screen::qt::ColumnLayouts readLayouts();
extern dn::HostFactory& factory;
extern dn::data::Connection& connection;
extern dn::ctrDnContacts& control;
extern dn::HostObject lands;
extern dn::screen::Subscription calls_, ends_, next_;
extern Line line;
extern const std::int32_t agent;
extern const bool admin;
extern const std::string user, path, secret;
void log(const char* text);
void startNext();
