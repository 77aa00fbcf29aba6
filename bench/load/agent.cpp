// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/load/agent.h"

#include "bench/order.h"
#include "host/database/database_choice.h"
#include "screen/button.h"

#include <time.h>

#include <algorithm>
#include <stdexcept>

namespace dn::bench {
namespace {

// How often each of the actions comes among a hundred.
constexpr std::array<unsigned, actionNames.size()> shares{13, 29, 11, 8, 8, 6, 4, 8, 3, 2, 2, 3, 2, 1};

constexpr std::size_t rowsInView = 30; // an agent works at the top of his list

template <class Kind>
Kind& childOf(screen::Form& form, const char* name)
{
    for (screen::Element* element : form.children())
        if (element->name() == name) return dynamic_cast<Kind&>(*element);
    throw std::runtime_error(form.name() + " has no " + name);
}

bool isSorted(screen::ListView& list)
{
    return isInOrder(list.rows(), static_cast<std::size_t>(list.SortKey()),
                     list.SortOrder() == screen::ListView::descending);
}

} // namespace

void AnsweringLoop::ShowModal(screen::Form& form)
{
    form.Visible(true);
    if (form.name() == "dlgQueH" && schedules) childOf<screen::OptionButton>(form, "Option1").choose();
    if (form.name() == "dlgAgendarContacto" || (form.name() == "dlgQueH" && schedules))
        childOf<screen::Button>(form, "cmdOk").press();
    if (form.Visible()) form.closeWindow();
}

DateTime MachineClock::Now() const
{
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return {static_cast<std::int16_t>(local.tm_year + 1900), static_cast<std::int8_t>(local.tm_mon + 1),
            static_cast<std::int8_t>(local.tm_mday),         static_cast<std::int8_t>(local.tm_hour),
            static_cast<std::int8_t>(local.tm_min),          static_cast<std::int8_t>(local.tm_sec)};
}

Agent::Agent(const LoadOptions& options, std::size_t number)
    : random_(options.seed * 1'000'003 + number),
      thinking_(options.thinking),
      connection_(host::connect(options.server)),
      agent_(options.agents.at(number)),
      supervises_(number % 10 == 0),
      kept_(options.stepsKept)
{
    const double before = wallNow();
    control_.SetObjects(&connection_, options.agents.at(number), supervises_, userPrefix + std::to_string(number));
    control_.RefreshData();
    openTab(desk::prospectos);
    start_ = wallNow() - before;
    prospects_ = lvw().ListItems().Count();
    if (prospects_ < 1)
        throw std::runtime_error("the agent " + std::to_string(options.agents.at(number)) + " has no prospects");
}

std::chrono::milliseconds Agent::thought()
{
    std::uniform_real_distribution<double> around(0.5, 1.5);
    return std::chrono::milliseconds(static_cast<long>(around(random_) * static_cast<double>(thinking_.count())));
}

void Agent::openTab(int tab) { control_.elements().top.lblItem(tab).click(); }

bool Agent::timelineHolds(const std::string& text)
{
    return control_.elements().detail.txtBit.Text().find(text) != std::string::npos;
}

Step Agent::timed(Action action, const std::function<void()>& work)
{
    connection_.spent = {};
    const double queued = threadQueuedNow();
    const double cpu = threadCpuNow();
    const double wall = wallNow();
    work();
    Step step{.action = action,
              .wall = wallNow() - wall,
              .server = 0,
              .cpu = threadCpuNow() - cpu,
              .queued = threadQueuedNow() - queued,
              .driver = 0};
    step.driver = connection_.spent.cpu;
    // All waiting for a processor is taken for ours, wherever it happened: the server gets what is left.
    step.server = std::max(0.0, connection_.spent.wall - connection_.spent.cpu - step.queued);
    statements_ += connection_.spent.statements;
    for (const std::string& failure : connection_.spent.failures)
        wrong_.push_back(std::string(actionNames[static_cast<std::size_t>(action)]) + ": " + failure);
    return step;
}

void Agent::keep(const Step& step)
{
    if (kept_ == 0 || steps_.size() < kept_)
        steps_.push_back(step);
    else
        steps_[actions_ % kept_] = step;
    ++actions_;
}

void Agent::record(Action action, const std::function<void()>& work, const std::function<bool()>& right)
{
    keep(timed(action, work));
    if (!right())
        wrong_.push_back(std::string(actionNames[static_cast<std::size_t>(action)]) + ": not what was to be seen");
}

Action Agent::choose()
{
    std::discrete_distribution<std::size_t> among(shares.begin(), shares.end());
    return static_cast<Action>(among(random_));
}

void Agent::act()
{
    const Action action = choose();
    // Whatever was done last, the prospects are where most work begins.
    const bool elsewhere = action >= Action::queue && action <= Action::companies;
    if (!elsewhere && !lvw().Visible()) openTab(desk::prospectos);
    switch (action) {
    case Action::refresh:
        record(
            action, [&] { openTab(desk::prospectos); },
            [&] { return lvw().ListItems().Count() == prospects_ && lvw().SelectedItem().has_value(); });
        break;
    case Action::click:
        clickSomeRow();
        break;
    case Action::note: {
        clickSomeRow();
        const std::string text = "nota " + std::to_string(random_());
        ++notes_;
        record(
            action, [&] { control_.elements().detail.txtText.type(text + "\n"); },
            [&] { return timelineHolds(text); });
        break;
    }
    case Action::call:
    case Action::noAnswer:
        callOnce(action == Action::call);
        break;
    case Action::schedule:
        scheduleNext();
        break;
    case Action::status:
        changeStatus();
        break;
    case Action::queue:
        workTheQueue();
        break;
    case Action::projects:
        openList(action, desk::proyectos, control_.elements().projects.lvwProy);
        break;
    case Action::directory:
        openList(action, desk::contactos, control_.elements().persons.lvwContactos);
        break;
    case Action::companies:
        openList(action, desk::organizaciones, control_.elements().organisations.lvwOrganizaciones);
        break;
    case Action::search:
        searchLast();
        break;
    case Action::sort:
        sortBySome();
        break;
    case Action::bulk:
        if (supervises_) discardSome();
        break;
    }
}

// The list holds what the database holds, whoever works beside.
void Agent::openList(Action action, desk::Tab tab, screen::ListView& list)
{
    record(
        action, [&] { openTab(tab); }, [&] { return list.ListItems().Count() == expectedRows(tab); });
}

int Agent::expectedRows(desk::Tab tab)
{
    const auto [known, added] = rowsOfTab_.try_emplace(tab, 0);
    if (added) {
        const char* const table = tab == desk::proyectos   ? "Proyecto"
                                  : tab == desk::contactos ? "Persona"
                                                           : "Organizacion";
        const std::string listed = tab == desk::proyectos ? " AND UF_Status1 < 5" : "";
        known->second = static_cast<int>(connection_
                                             .execute(std::string("SELECT COUNT(*) FROM ") + table +
                                                      " WHERE IEjecutivo = " + std::to_string(agent_) + listed)
                                             ->value(0)
                                             .toWhole());
    }
    return known->second;
}

void Agent::searchLast()
{
    screen::ListItems rows = lvw().ListItems();
    if (rows.Count() < 1) return;
    constexpr int name = 3; // the sub-item; it ends with a number that no other has
    const std::string text(rows(rows.Count()).ListSubItems()(name).Text());
    control_.elements().top.txtBuscar.Text(text);
    record(
        Action::search, [&] { control_.elements().top.cmdOkBuscar.press(); },
        [&] {
            const auto found = lvw().SelectedItem();
            return found && found->ListSubItems()(name).Text().find(text) != std::string_view::npos;
        });
}

void Agent::sortBySome()
{
    const auto column = static_cast<int>(random_() % lvw().ColumnHeaders().size());
    const int rows = lvw().ListItems().Count();
    record(
        Action::sort,
        [&] {
            lvw().clickHeader(column);
            lvw().ListItems()(1); // rows are sorted once somebody looks at them, as a view does
        },
        [&] { return lvw().SortKey() == column && lvw().ListItems().Count() == rows && isSorted(lvw()); });
}

// Put back behind the control's back, so that the lists stay as long as they are.
void Agent::discardSome()
{
    constexpr int some = 5;
    screen::ListItems rows = lvw().ListItems();
    if (rows.Count() < some) return;
    std::string keys;
    for (int row = 1; row <= some; ++row) {
        rows(row).Checked(true);
        keys += (keys.empty() ? "" : ", ") + std::string(rows(row).Key().substr(1));
    }
    const int before = rows.Count();
    notes_ += some;
    record(
        Action::bulk, [&] { control_.elements().prospects.cmdProsDiscart.press(); },
        [&] { return lvw().ListItems().Count() == before - some; });
    connection_.execute("UPDATE ut_icontact SET uf_Status = 0, uf_NotaStatus = NULL, uf_FechaStatus = NULL WHERE "
                        "Sys_PK IN (" +
                        keys + ")");
    openTab(desk::prospectos);
}

// The key of the row.
std::string Agent::clickSomeRow()
{
    const auto count = std::min(rowsInView, static_cast<std::size_t>(lvw().ListItems().Count()));
    if (count == 0) return {};
    const std::size_t position = random_() % count;
    const std::string key(lvw().ListItems()(static_cast<int>(position) + 1).Key());
    record(
        Action::click, [&] { lvw().clickRow(position); },
        [&] { return control_.elements().detail.txtInfo.Text().starts_with(key); });
    return key;
}

void Agent::callOnce(bool reaches)
{
    if (clickSomeRow().empty()) return;
    desk::CallElements& call = control_.elements().call;
    const std::string summary = "resumen " + std::to_string(random_());
    notes_ += 1;
    events_.schedules = reaches;
    const auto talk = [&] {
        control_.elements().detail.cmdCall.press();
        if (!reaches) {
            call.cmdNoContestan.press();
            return;
        }
        call.cmdContesta.press();
        call.cmdCallCon(6).press();
        call.txtResCall.type(summary);
        call.cmdOkCall.press();
    };
    record(reaches ? Action::call : Action::noAnswer, talk,
           [&] { return !control_.Call_Progress() && timelineHolds(reaches ? summary : "No contestan"); });
}

void Agent::scheduleNext()
{
    const std::string key = clickSomeRow();
    if (key.empty()) return;
    constexpr int nextContact = 2; // the sub-item "Prox. Contacto"
    events_.schedules = true;
    const auto position = lvw().selectedPosition();
    if (!position) return;
    record(
        Action::schedule, [&] { lvw().doubleClickRow(*position); },
        [&] {
            return lvw().ListItems().Contains(key) &&
                   lvw().ListItems()(key).ListSubItems()(nextContact).Text() != "Agendar";
        });
}

// There and, so that the lists stay as long as they are, back again.
void Agent::changeStatus()
{
    screen::ComboBox& to = control_.elements().detail.Combo1;
    screen::ComboBox& filter = control_.elements().prospects.cbStatus;
    const std::string key = clickSomeRow();
    if (key.empty()) return;
    const auto gone = [&] { return !lvw().ListItems().Contains(key); };
    notes_ += 2;
    record(
        Action::status, [&] { to.pick("Descartado"); }, gone);
    record(
        Action::refresh, [&] { filter.pick("Descartado"); }, [&] { return lvw().ListItems().Contains(key); });
    if (!gone()) {
        lvw().clickRow(static_cast<std::size_t>(lvw().ListItems()(key).Index()) - 1);
        record(
            Action::status, [&] { to.pick("Recibido"); }, gone);
    }
    record(
        Action::refresh, [&] { filter.pick("Recibido"); }, [&] { return lvw().ListItems().Contains(key); });
}

// The detail of a prospect begins with his key, that of a project with the text of its row.
bool Agent::detailShows(const std::string& key)
{
    desk::Elements& elements = control_.elements();
    const std::string& shown = elements.detail.txtInfo.Text();
    if (key.starts_with('K')) return shown.starts_with(key);
    screen::ListItems projects = elements.projects.lvwProy.ListItems();
    return projects.Contains(key) && shown.starts_with(std::string(projects(key).Text()) + "\r\n") &&
           shown.size() > 2;
}

// A party of both views has one row.
int Agent::dueRows()
{
    const std::string agent = " WHERE ejecutivo = " + std::to_string(agent_);
    return static_cast<int>(connection_
                                .execute("SELECT COUNT(*) FROM (SELECT tipo, sys_pk FROM qhoy" + agent +
                                         " UNION SELECT tipo, sys_pk FROM qatascados" + agent + ") AS due")
                                ->value(0)
                                .toWhole());
}

void Agent::workTheQueue()
{
    screen::ListView& queue = control_.elements().today.lvwHoy;
    record(
        Action::queue,
        [&] {
            openTab(desk::hoy);
            queue.clickRow(0);
        },
        [&] {
            const auto first = queue.SelectedItem();
            const int due = dueRows();
            return queue.ListItems().Count() == due &&
                   (due == 0 || (first && detailShows(std::string(first->Key()))));
        });
}

} // namespace dn::bench
