// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/screens/activity_form.h"

#include <algorithm>

namespace dn::host {

ActivityForm::ActivityForm(const Activity& activity, const std::vector<Choice>& kinds, QWidget* over)
    : FieldsForm(activity.now.empty() ? "NuevaActividad" : "EditarActividad",
                 activity.now.empty() ? "Nueva actividad" : "Actividad", over),
      activity_(activity)
{
    auto* const when = new QDateTimeEdit(this);
    when->setObjectName("Fecha");
    add(std::make_unique<MomentField>(when, "Escriba la fecha de la actividad."), "&Fecha y hora:", Width::half);
    addChoice("Tipo", "&Tipo:", kinds, {}, Width::half,
              kinds.empty()
                  ? "No hay tipos de actividad en la base de datos. Pida a su administrador que registre "
                    "al menos uno."
                  : "Elija el tipo de actividad.");
    addLine("Asunto", "A&sunto:", 500, Width::whole, "Escriba el asunto de la actividad.");
    auto* const done = new QCheckBox("Ya se hizo", this);
    done->setObjectName("Hecho");
    add(std::make_unique<CheckField>(done), "&Hecha:");
    addButtons();
    if (!activity.now.empty()) show(activity.now);
}

Activity ActivityForm::activity() const
{
    Activity result = activity_;
    const Values shown = values();
    result.now.resize(std::max(result.now.size(), shown.size()));
    std::copy(shown.begin(), shown.end(), result.now.begin());
    return result;
}

void ActivityForm::startAtDate() { field(activity_column::when).widget()->setFocus(Qt::OtherFocusReason); }

} // namespace dn::host
