// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "dialogs/dialog.h"

namespace dn::dialogs {

Dialog::Dialog(std::string name, std::string title, screen::Ports screenPorts)
    : form(std::move(name)), ports(screenPorts)
{
    form.Caption(std::move(title));
}

void Dialog::Show()
{
    Form_Load();
    ports.events.ShowModal(form);
}

} // namespace dn::dialogs
