// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Persons and organisations, column by column: what their forms show, and how their rows are read and written.
#pragma once

#include "host/screens/form.h"
#include "host/screens/party_field.h"
#include "host/screens/record.h"

#include <span>

namespace dn::host {

enum class Entry : std::uint8_t { text, name, mail, organisation, city, agent };

struct EntryField {
    const char* name; ///< of the widget; also the column's where it holds a text
    const char* label;
    std::size_t longest; ///< in characters; 0 for a key
    Entry kind;
    Width width;
};

struct EntryKind {
    const char* newName; ///< the windows' object names and titles
    const char* newTitle;
    const char* editName;
    const char* editTitle;
    const char* nameMissing;
    std::span<const EntryField> fields;
    RecordKind record; ///< columns in the order of the fields
};

const EntryKind& entryKind(PartyField::Kind kind);

} // namespace dn::host
