// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Texts written to do harm, and an operator who types them into every place where a text goes into a statement as
// it was typed.
#pragma once

#include "tests/stories/project_operator.h"

#include <array>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace dn::tests {

/// What the server says to a statement that it refuses.
namespace refused {
constexpr int syntax = 1064; // a second statement among it: no connection takes one
constexpr int table = 1142;
constexpr int column = 1143;
constexpr int file = 1227;
constexpr int count = 1136; // of the values
constexpr int arguments = 1318;
constexpr int null = 1048;
constexpr int unknown = 1054; // column
} // namespace refused
constexpr int taken = 0;

/// A text that breaks out of a literal in quotes, and what the server says to it in each kind of statement.
struct Harm {
    std::string text;
    int update;
    int row;  ///< of the log, in the place of its message
    int user; ///< in such a row, in the place of the user's name
    int search;
    int call;
};

extern const std::vector<Harm> harms;

class RightsAndInjectedTexts : public ProjectOperator {
protected:
    RightsAndInjectedTexts();
    ~RightsAndInjectedTexts() override { database("DROP DATABASE otra"); }

    /// A prospect and one of another agent, as each text finds them.
    void layOut(const std::string& city = "San Juan");

    /// Whatever the account may not change, and what it may do at all.
    std::vector<std::string> beyondTheAccount();

    /// Nothing of that changed, and the secret stands in no place that it was not in.
    void expectConfined(const std::string& text);

    /// The statement went out to the byte, and the server said this to it.
    void expectSent(const std::string& statement, int code);

    /// Does what may or may not end in a message of the server.
    void doesWhatMayBeRefused(const std::function<void()>& action)
    {
        ports.dialogs.expectAnyBox();
        action();
        if (!ports.dialogs.done()) ports.dialogs.MsgBox({}); // nobody asked
    }

    std::string logRow(const std::string& message, const std::string& user = "ana") const
    {
        return "INSERT INTO xt_biticontact (uf_Tiempo, uf_Mensaje, uf_Usuario, uf_Iicontact) VALUES "
               "(CURRENT_TIMESTAMP, '" +
               message + "','" + user + "'," + key_ + ")";
    }

    std::string statusChange(const std::string& status, const std::string& reason) const
    {
        return "UPDATE ut_icontact SET uf_Status = " + status + ", uf_NotaStatus = '" + reason +
               "', uf_FechaStatus = CURRENT_TIMESTAMP WHERE Sys_PK = " + key_;
    }
    std::string discard(const std::string& reason) const
    {
        return "UPDATE ut_icontact SET uf_Status=1, uf_NotaStatus='" + reason +
               "', uf_FechaStatus = CURRENT_TIMESTAMP WHERE Sys_PK=" + key_;
    }
    std::string correction(const std::array<std::string, 5>& texts) const
    {
        const auto& [nombre, correo, telefono, empresa, puesto] = texts;
        return "UPDATE ut_icontact set uf_Nombre='" + nombre + "',uf_EMail='" + correo + "',uf_Telefono='" +
               telefono + "',uf_Empresa='" + empresa + "',uf_Puesto='" + puesto + "' WHERE Sys_PK=" + key_;
    }

    /// An administrator of that name discards María.
    void discards(const std::string& reason, const std::string& user);

    /// Corrects María: name, address, telephone, company, position.
    void corrects(const std::array<std::string, 5>& texts);

    /// Takes down a new prospect, with these texts in the place of harmless ones.
    void addsProspect(const std::map<std::string, std::string>& texts);

    std::string key_; ///< of María

private:
    std::vector<std::string> before_;
};

} // namespace dn::tests
