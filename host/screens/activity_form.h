// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The form of one activity of a project. It stores nothing by itself: its values go into the project's list.
#pragma once

#include "host/screens/activities.h"
#include "host/screens/fields_form.h"

namespace dn::host {

class ActivityForm : public FieldsForm {
public:
    /// @param kinds that an activity can have.
    ActivityForm(const Activity& activity, const std::vector<Choice>& kinds, QWidget* over);

    /// The activity with what the form holds.
    Activity activity() const;
    /// Begins at the date, for whoever only puts it off.
    void startAtDate();

private:
    void store() override {}

    Activity activity_;
};

} // namespace dn::host
