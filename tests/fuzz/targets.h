// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What is given texts that nobody meant to write: each target takes the bytes of an input apart, hands them to one
// place where text comes in, and requires what must hold of the answer whatever the text is.
#pragma once

#include <string_view>
#include <vector>

namespace dn::fuzz {

class Input;

struct Target {
    const char* name;
    void (*run)(Input&);
};

/// All targets, by name.
const std::vector<Target>& targets();

/// @throws std::logic_error with `property` when it does not hold.
void require(bool holds, const char* property);

void dates(Input& input);
void formats(Input& input);
void values(Input& input);
void texts(Input& input);
void order(Input& input);
void rows(Input& input);
void copies(Input& input);
void parameters(Input& input);
void notes(Input& input);
void prospects(Input& input);
void projects(Input& input);
void queue(Input& input);
void directories(Input& input);
void timelines(Input& input);
void calls(Input& input);
void reasons(Input& input);
void corrections(Input& input);
void searches(Input& input);
void workbooks(Input& input);
void documents(Input& input);
void starts(Input& input);
void statements(Input& input);
void literals(Input& input);
void binds(Input& input);
void patterns(Input& input);
void mariadbTexts(Input& input);
void odbcTexts(Input& input);
void headers(Input& input);
void bodies(Input& input);
void mails(Input& input);
void addresses(Input& input);
void replies(Input& input);
void settings(Input& input);
void templates(Input& input);
void options(Input& input);
void telephones(Input& input);
void amounts(Input& input);

} // namespace dn::fuzz
