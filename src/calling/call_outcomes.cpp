// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "calling/call_outcomes.h"

#include "base/text.h"
#include "data/failure_modes.h"
#include "desk/row_key.h"

#include <string_view>

namespace dn::calling {
namespace {

using data::resumeNext;

constexpr std::int16_t reached = 6;     // from here on the call reached whom it was for
constexpr std::int16_t otherReason = 5; // the operator says which
constexpr int firstAnswered = 11;       // the code of the first of the other answers

/// A number as a text, with a blank in the place of its sign.
std::string blankAhead(int number) { return (number < 0 ? "" : " ") + std::to_string(number); }

/// What a call that reached nobody is logged as, by its code; empty for codes that mean nothing.
std::string_view resultOf(std::int16_t motivo)
{
    switch (motivo) {
    case 1:
        return "Línea ocupada";
    case 2:
        return "No contestan";
    case 3:
        return "Fuera de servicio";
    default:
        return {};
    }
}

bool lies(const screen::Element* element, const screen::Container& container)
{
    for (; element != nullptr; element = element->parent())
        if (element == &container) return true;
    return false;
}

} // namespace

void CallOutcomes::Call_Connect(std::int16_t R) // continue-on-error
{
    if (R >= reached) {
        toSummary();
        return;
    }
    const Turn::Hold hold(turn_, Turn::Work::ending);
    const std::string reason = reasonOf(R);
    note("Se estableció llamada al: " + session_.Call_Tel + " pero no se pudo contactar al prospecto. " +
         std::string(crlf) + "<" + reason + ">");
    resumeNext([&] { Call_NoConnect(0); });
    resumeNext([&] { elements_.detail.cmdCall.Enabled(true); });
    // Only now, behind the question; the list is loaded once more to show the attempt.
    execute("UPDATE " + session_.Call_Tabla + " SET uf_ultimointento= CURRENT_TIMESTAMP, uf_res_ultimointento = " +
            blankAhead(R + firstAnswered) + " Where Sys_PK = " + std::to_string(session_.Call_PK));
    resumeNext([&] { list_.Call_RefreshList(); });
}

void CallOutcomes::toSummary() // continue-on-error
{
    desk::CallElements& call = elements_.call;
    resumeNext([&] { call.txtResCall.Text(""); });
    resumeNext([&] { call.picContacto.Visible(false); });
    resumeNext([&] { call.picLlamando.Visible(false); }); // the host has no step between ringing and this
    resumeNext([&] { call.picResumen.Visible(true); });
    if (call.txtResCall.usable()) resumeNext([&] { call.txtResCall.SetFocus(); });
}

std::string CallOutcomes::reasonOf(std::int16_t R) // continue-on-error
{
    std::string reason;
    resumeNext([&] { reason = elements_.call.cmdCallCon(R).Caption(); });
    if (R != otherReason) return reason;
    // Cancelling is no way out. Where no question can be put any more the caption stays.
    std::string typed;
    while (typed.empty())
        if (!resumeNext([&] { typed = dialogs_.InputBox("Motivo para no comunicarme:"); })) return reason;
    return typed;
}

void CallOutcomes::Call_Resumen(const std::string& S) // continue-on-error
{
    const Turn::Hold hold(turn_, Turn::Work::ending);
    resumeNext([&] { elements_.detail.cmdCall.Enabled(true); });
    note("Se estableció llamada al " + session_.Call_Tel + " Con éxito. Resumen: " + std::string(crlf) + S);
    // One form on both engines: SQL Server refuses it and keeps its values.
    execute("UPDATE " + session_.Call_Tabla +
            " SET uf_contactado = 1, uf_primercontac = CURRENT_TIMESTAMP Where "
            "Sys_PK=" +
            std::to_string(session_.Call_PK) + " and isnull(uf_contactado)");
    execute("UPDATE " + session_.Call_Tabla +
            " SET uf_ultimointento = CURRENT_TIMESTAMP, uf_res_ultimointento = "
            "50, uf_ultimocontac = CURRENT_TIMESTAMP Where Sys_PK = " +
            std::to_string(session_.Call_PK));
    resumeNext([&] { Call_NoConnect(0); });
    resumeNext([&] { list_.Call_RefreshList(); });
}

void CallOutcomes::Call_NoConnect(std::int16_t motivo) // continue-on-error
{
    const Turn::Hold hold(turn_, Turn::Work::ending);
    toIdle();
    if (motivo != 0) {
        const std::string result(resultOf(motivo));
        if (!result.empty())
            execute("UPDATE " + session_.Call_Tabla +
                    " SET uf_ultimointento=CURRENT_TIMESTAMP, "
                    "uf_res_ultimointento=" +
                    std::to_string(motivo) + " Where Sys_PK=" + std::to_string(session_.Call_PK));
        note("No se pudo establecer llamada al: " + session_.Call_Tel + " " + result);
    }
    resumeNext([&] { ended.emit(); });
    resumeNext([&] { decision_.Call_QueHacer(); });
    resumeNext([&] { list_.Call_RefreshList(); });
}

void CallOutcomes::toIdle() // continue-on-error
{
    desk::CallElements& call = elements_.call;
    const bool wasHere = lies(elements_.control.focused(), call.picLlamada);
    resumeNext([&] { call.lbltel.Caption(""); });
    resumeNext([&] { call.picLlamada.Visible(false); });
    resumeNext([&] { call.picLlamando.Visible(false); });
    resumeNext([&] { session_.Call_Progress = false; });
    resumeNext([&] { elements_.prospects.lvw.Enabled(true); });
    resumeNext([&] { elements_.projects.lvwProy.Enabled(true); });
    resumeNext([&] { elements_.today.lvwHoy.Enabled(true); });
    resumeNext([&] { elements_.detail.cmdCall.Enabled(true); });
    if (wasHere) resumeNext([&] { list_.takeFocus(); });
}

void CallOutcomes::note(const std::string& text) // continue-on-error
{
    resumeNext([&] { elements_.detail.txtText.Text(text); });
    resumeNext([&] { notes_.cmdIntro_Click(); });
}

void CallOutcomes::execute(const std::string& statement) // continue-on-error
{
    resumeNext([&] { session_.cnn().execute(statement); });
}

void CallOutcomes::lvw_DblClick() // continue-on-error
{
    if (session_.Call_Progress || turn_.taken()) return;
    const auto row = elements_.prospects.lvw.SelectedItem();
    if (!row) return;
    const Turn::Hold hold(turn_, Turn::Work::other);
    resumeNext([&] { session_.Call_PK = desk::keyNumber(*row); });
    resumeNext([&] { decision_.Call_QueHacer(); });
    resumeNext([&] { list_.Call_RefreshList(); });
}

} // namespace dn::calling
