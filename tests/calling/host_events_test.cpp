// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Each method of the host in each state of a call: none of them depends on where the call stands.

#include "tests/calling/call_fixture.h"

#include <cstdlib>

namespace dn::tests {
namespace {

using Steps = std::vector<std::string>;

struct Event {
    std::string name;
    std::function<void(ctrDnContacts&)> tell;
    bool toSummary = false;
    Steps written = {};    ///< ahead of the question
    Steps afterwards = {}; ///< behind its list
    bool twice = false;    ///< the list is loaded once more
};

std::string noted(const std::string& message)
{
    return "INSERT INTO xt_biticontact (uf_Tiempo, uf_Mensaje, uf_Usuario, uf_Iicontact) VALUES "
           "(CURRENT_TIMESTAMP, '" +
           message + "','ana',12)";
}

Event noConnect(std::int16_t motivo, const std::string& result)
{
    Event event{"NoConnect_" + (motivo < 0 ? "minus_" : std::string()) + std::to_string(std::abs(motivo)),
                [motivo](ctrDnContacts& control) { control.Call_NoConnect(motivo); }};
    if (!result.empty())
        event.written.push_back("UPDATE ut_icontact SET uf_ultimointento=CURRENT_TIMESTAMP, "
                                "uf_res_ultimointento=" +
                                std::to_string(motivo) + " Where Sys_PK=12");
    if (motivo != 0)
        event.written.push_back(
            noted("No se pudo establecer llamada al: 5512345678" + (result.empty() ? result : " " + result)));
    return event;
}

Event connect(std::int16_t R, const std::string& reason)
{
    Event event{"Connect_" + std::to_string(R), [R](ctrDnContacts& control) { control.Call_Connect(R); }};
    event.toSummary = R >= 6;
    if (event.toSummary) return event;
    event.written = {
        noted("Se estableció llamada al: 5512345678 pero no se pudo contactar al prospecto. <" + reason + ">")};
    event.afterwards = {"UPDATE ut_icontact SET uf_ultimointento= CURRENT_TIMESTAMP, uf_res_ultimointento =  " +
                        std::to_string(R + 11) + " Where Sys_PK = 12"};
    event.twice = true;
    return event;
}

std::vector<Event> events()
{
    Event summary{"Resumen", [](ctrDnContacts& control) { control.Call_Resumen("hecho"); }};
    summary.written = {noted("Se estableció llamada al 5512345678 Con éxito. Resumen: hecho"),
                       "UPDATE ut_icontact SET uf_contactado = 1, uf_primercontac = CURRENT_TIMESTAMP Where "
                       "Sys_PK=12 and isnull(uf_contactado)",
                       "UPDATE ut_icontact SET uf_ultimointento = CURRENT_TIMESTAMP, uf_res_ultimointento = 50, "
                       "uf_ultimocontac = CURRENT_TIMESTAMP Where Sys_PK = 12"};
    summary.twice = true;
    return {noConnect(0, ""),
            noConnect(1, "Línea ocupada"),
            noConnect(2, "No contestan"),
            noConnect(3, "Fuera de servicio"),
            noConnect(9, ""),
            noConnect(-1, ""),
            connect(0, "No se encuentra"),
            connect(1, "Ocupado o \"en junta\""),
            connect(2, "Número equivocado"),
            connect(3, "Me colgaron"),
            connect(4, "No quiere saber nada"),
            connect(5, "habla otra lengua"),
            connect(6, ""),
            connect(7, ""),
            summary};
}

class HostEvents : public CallTest, public testing::WithParamInterface<std::tuple<Event, CallState>> {
protected:
    void enters(CallState from)
    {
        switch (from) {
        case CallState::ringing:
            rings();
            break;
        case CallState::onTheLine:
            isOnTheLine();
            break;
        case CallState::summary:
            isInSummary();
            break;
        default:
            control.Call_Tabla("ut_icontact");
            control.Call_PK(12);
            control.Call_Tel("5512345678");
        }
    }
};

TEST_P(HostEvents, do_the_same_wherever_the_call_stands)
{
    const auto& [event, from] = GetParam();
    enters(from);
    if (event.toSummary) {
        event.tell(control);
        EXPECT_THAT(steps, testing::IsEmpty());
        EXPECT_EQ(state(), from == CallState::idle ? CallState::idle : CallState::summary);
        return;
    }
    if (event.name == "Connect_5") ports.dialogs.expectInput("Motivo para no comunicarme:", "habla otra lengua");
    closesTheQuestion();
    event.tell(control);
    Steps expected = event.written;
    expected.insert(expected.end(), {question, load, timeline});
    expected.insert(expected.end(), event.afterwards.begin(), event.afterwards.end());
    if (event.twice) expected.insert(expected.end(), {load, timeline});
    EXPECT_THAT(steps, testing::ElementsAreArray(expected));
    EXPECT_EQ(state(), CallState::idle);
}

INSTANTIATE_TEST_SUITE_P(Calls, HostEvents,
                         testing::Combine(testing::ValuesIn(events()),
                                          testing::Values(CallState::idle, CallState::ringing,
                                                          CallState::onTheLine, CallState::summary)),
                         [](const auto& one) {
                             constexpr std::array states{"idle", "ringing", "on_the_line", "summary"};
                             return std::get<0>(one.param).name + "_from_" +
                                    states.at(static_cast<std::size_t>(std::get<1>(one.param)));
                         });

} // namespace
} // namespace dn::tests
