// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Finding persons and organisations by what an operator remembers of them, at every key that he presses.
//
// What begins with the text is found by the indexes over the names, in a few milliseconds whatever the size of the
// directory. What holds the text elsewhere takes a pass over the tables: some tenths of a second on 100,000
// entries. It goes in slices, so that a window can take the operator's next key in between.
#pragma once

#include "host/database/own_connection.h"
#include "host/screens/directory.h"

#include <string>
#include <vector>

namespace dn::host {

/// As many as a search gives.
inline constexpr std::int32_t searchLimit = 200;

struct SearchScope {
    bool persons = true;
    bool organisations = true;
};

class EntitySearch {
public:
    EntitySearch(OwnConnection& database, SearchScope scope) : database_(database), scope_(scope) {}

    /// Finds the entries whose name, trade name or first surname begins with the text; an empty text gives the
    /// first entries. Nothing in the text is a wildcard. @throws data::Error; then nothing is left to do.
    void begin(const std::string& text);
    /// Goes on with the entries that hold the text anywhere in name, code, telephone or mail address: from three
    /// letters on, and while there is room. @return whether something is left to do. @throws data::Error as above
    bool goOn();
    bool isDone() const { return slices_.empty(); }

    /// Those that begin with the text, in alphabetical order, then the others, once the search is done.
    const std::vector<Entity>& found() const { return found_; }

private:
    struct Slice {
        bool organisations;
        std::int32_t first, last; // keys
    };

    void addBeginnings(const std::string& text);
    void cut(bool organisations);
    void finish();

    OwnConnection& database_;
    SearchScope scope_;
    std::string pattern_;
    std::vector<Slice> slices_; // the next one last
    std::vector<Entity> found_;
    std::vector<Entity> elsewhere_;
};

/// A search from its beginning to its end. @throws data::Error
std::vector<Entity> searchEntities(OwnConnection& database, const std::string& text, SearchScope scope);

/// Those of exactly that name, without regard to case.
std::vector<Entity> entitiesNamed(const std::vector<Entity>& found, const std::string& name);

} // namespace dn::host
