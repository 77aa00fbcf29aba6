// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The field of a form in which an operator names a person or an organisation: some letters bring a list of those
// that fit, and a button makes a new one.
#pragma once

#include "host/screens/context.h"
#include "host/screens/entity_search.h"

#include <QCompleter>
#include <QLineEdit>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTimer>

#include <functional>
#include <optional>
#include <vector>

namespace dn::host {

class PartyField : public QWidget {
public:
    enum class Kind : bool { person, organisation };
    /// Makes a new entry in a window of its own. @param name as far as it was typed. @return its key, 0 for none.
    using Maker = std::function<std::int32_t(const QString& name)>;
    using Changed = std::function<void()>;

    /// @param name the field's object name; its parts are "txt" and "cmd" with that name.
    PartyField(const QString& name, Kind kind, ScreenContext& context, QWidget* parent);
    /// @param caption of the button, with its mnemonic.
    void offerNew(const QString& caption, Maker make);
    void onChange(Changed changed) { changed_ = std::move(changed); }

    /// The chosen entry, 0 for none.
    std::int32_t key() const { return key_; }
    /// Shows an entry; a key without an entry leaves the field empty. @throws data::Error
    void choose(std::int32_t key);
    /// Takes a name that was typed in full. @return whether the field names one entry, or is empty.
    /// @throws data::Error
    bool resolve();
    /// The name of any entry of the field's kind. @throws data::Error
    QString nameOf(std::int32_t key) const;
    bool isEmpty() const { return edit_->text().trimmed().isEmpty(); }

private:
    void typedAnew();
    void search();
    void goOn();
    void stopSearch();
    void offer();
    void take(std::int32_t key, const QString& name);
    void makeNew();
    SearchScope scope() const;

    ScreenContext& context_;
    Kind kind_;
    QLineEdit* edit_;
    QPushButton* button_ = nullptr;
    QStandardItemModel model_;
    QCompleter completer_;
    EntitySearch search_;
    QTimer pause_; // until the operator stops typing
    QTimer next_;  // the next slice of the search, once the operator's keys and clicks are taken
    std::int32_t key_ = 0;
    Maker make_;
    Changed changed_;
};

} // namespace dn::host
