// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/commands.h"

#include "bench/frames.h"
#include "bench/measure.h"
#include "data/failure_modes.h"
#include "desk/elements.h"
#include "screen/list_box.h"
#include "screen/qt/panel_views.h"
#include "screen/qt/ports.h"
#include "shell/ctr_dn_contacts.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QPlainTextEdit>

#include <algorithm>
#include <stdexcept>

namespace dn::bench {
namespace {

using screen::Element;

constexpr int thousand = 1000;
constexpr int longTimeline = 10'000;

/// Agrees to everything at once, so that only the work is measured.
class AgreeingDialogs : public screen::Dialogs {
public:
    screen::Answer MsgBox(const screen::MessageBox& box) override
    {
        return box.buttons == screen::MessageBox::Buttons::yesNo ? screen::Answer::yes : screen::Answer::ok;
    }
    std::string InputBox(const std::string&) override { return "limpieza"; }
    std::optional<screen::SaveChoice> ShowSave(const std::string&) override { return std::nullopt; }
};

/// Yields for real, and accepts the last line of the list in whatever window comes.
class AcceptingLoop : public screen::EventLoop {
public:
    void DoEvents() override { QCoreApplication::processEvents(); }
    void ShowModal(screen::Form& form) override
    {
        form.Visible(true);
        for (Element* element : std::vector<Element*>(form.children()))
            if (auto* list = dynamic_cast<screen::ListBox*>(element)) list->doubleClick(list->ListCount() - 1);
        if (form.Visible()) throw std::runtime_error("a window did not close: " + form.name());
    }
};

/// The control under its views, as an administrator has it.
class Desk {
public:
    Desk(BenchDatabase& database, std::int32_t agent)
    {
        view_.resize(1280, 760);
        view_.show();
        list_ = view_.findChild<QAbstractItemView*>("lvw");
        timeline_ = view_.findChild<QPlainTextEdit*>("txtBit");
        if (list_ == nullptr || timeline_ == nullptr) throw std::runtime_error("the control lacks a view");
        counter_ = new PaintCounter(*list_);             // owned by the list
        timelineCounter_ = new PaintCounter(*timeline_); // owned by the timeline
        control.SetObjects(&database.connection(), agent, true, "bench");
        control.RefreshData();
        load();
    }

    void load()
    {
        control.elements().top.lblItem(desk::prospectos).click();
        list_->viewport()->update();
        counter_->awaitPaint();
    }

    screen::ListView& lvw() { return control.elements().prospects.lvw; }
    std::size_t rows() { return static_cast<std::size_t>(lvw().ListItems().Count()); }
    std::size_t shownLines() const { return static_cast<std::size_t>(timeline_->blockCount()); }

    /// A gesture to the frame that shows what became of the list.
    Cost toFrame(const std::function<void()>& gesture)
    {
        return measure([&] {
            gesture();
            list_->viewport()->update();
            counter_->awaitPaint();
        });
    }

    /// A gesture to the frame that shows the timeline.
    Cost toTimeline(const std::function<void()>& gesture)
    {
        return measure([&] {
            gesture();
            timeline_->viewport()->update();
            timelineCounter_->awaitPaint();
        });
    }

private:
    AgreeingDialogs dialogs_;
    screen::qt::QtPointer pointer_;
    AcceptingLoop events_;
    screen::qt::QtClock clock_;
    screen::qt::Guard guard_;

public:
    ctrDnContacts control{screen::Ports{dialogs_, pointer_, events_, clock_}};

private:
    screen::qt::ControlView view_{control.root(), nullptr, guard_};
    QAbstractItemView* list_ = nullptr;
    QPlainTextEdit* timeline_ = nullptr;
    PaintCounter* counter_ = nullptr;
    PaintCounter* timelineCounter_ = nullptr;
};

double benchChecks(Desk& desk, const Scale& scale, int rounds, Report& report)
{
    std::vector<Cost> checks;
    screen::CheckBox& all = desk.control.elements().prospects.chkProsSelPros;
    for (int round = 0; round < rounds; ++round) {
        desk.load();
        if (all.Value() == 1) all.toggle();
        checks.push_back(desk.toFrame([&] { all.toggle(); }));
    }
    screen::ListItems rows = desk.lvw().ListItems();
    std::size_t checked = 0;
    for (int i = 1; i <= rows.Count(); ++i)
        checked += rows(i).Checked() ? 1U : 0U;
    if (checked != scale.rows) report.wrong("checking all rows", "some are not checked");
    report.figure("check of all " + readable(static_cast<double>(scale.rows)) + " rows, to the frame, client CPU",
                  median(checks).cpu, "ms");
    return median(checks).cpu;
}

void benchDetail(Desk& desk, BenchDatabase& database, int rounds, Report& report)
{
    desk.load();
    const auto first = std::string(desk.lvw().ListItems()(1).Key()).substr(1);
    const std::string ours = "FROM xt_biticontact WHERE uf_Usuario = 'bench'";
    database.connection().execute("DELETE " + ours);
    database.connection().execute("INSERT INTO xt_biticontact (uf_Tiempo, uf_Mensaje, uf_Usuario, uf_Iicontact) "
                                  "SELECT NOW(), CONCAT('llamada "
                                  "número ', seq), 'bench', " +
                                  first + " FROM seq_1_to_" + std::to_string(longTimeline));
    std::vector<Cost> clicks;
    std::vector<Cost> timelines;
    for (int round = 0; round < rounds; ++round) {
        clicks.push_back(desk.toTimeline([&] { desk.lvw().clickRow(static_cast<std::size_t>(round) + 1); }));
        const std::string_view key = desk.lvw().ListItems()(round + 2).Key();
        if (!desk.control.elements().detail.txtInfo.Text().starts_with(key))
            report.wrong("click", "the detail is not that of the row");
        timelines.push_back(desk.toTimeline([&] { desk.lvw().clickRow(0); }));
    }
    if (desk.shownLines() < 3U * longTimeline) report.wrong("timeline", "lines are missing");
    database.connection().execute("DELETE " + ours);
    report.figure("click on a row to the filled panel, client CPU", median(clicks).cpu, "ms");
    report.figure("click on a row to the filled panel, wall", median(clicks).wall, "ms");
    report.figure("timeline of 10,000 entries, to the frame, client CPU", median(timelines).cpu, "ms");
    report.figure("timeline of 10,000 entries, to the frame, wall", median(timelines).wall, "ms");
}

/// A thousand rows, which are all of an agent's.
class Thousand {
public:
    Thousand(Desk& desk, BenchDatabase& database)
        : desk_(desk), cnn_(database.connection()), agent_(std::to_string(database.scale(thousand).agent))
    {
        const auto keys = cnn_.execute("SELECT MIN(Sys_PK), MAX(Sys_PK), COUNT(*) FROM ut_icontact WHERE "
                                       "uf_IEjecutivo = " +
                                       agent_);
        rows_ = "Sys_PK BETWEEN " + keys->value(0).toText() + " AND " + keys->value(1).toText();
        if (keys->value(2).toWhole() != thousand || count("TRUE") != thousand)
            throw std::runtime_error("the agent of the thousand has not his own thousand");
        desk_.control.SelAgente(database.scale(thousand).agent);
    }
    Thousand(const Thousand&) = delete;
    Thousand& operator=(const Thousand&) = delete;
    ~Thousand()
    {
        data::resumeNext([this] { putBack(); });
    }

    std::int64_t count(const std::string& condition)
    {
        return cnn_.execute("SELECT COUNT(*) FROM ut_icontact WHERE " + rows_ + " AND " + condition)
            ->value(0)
            .toWhole();
    }

    /// As they were, and all checked.
    void checkAll()
    {
        putBack();
        desk_.load();
        screen::CheckBox& all = desk_.control.elements().prospects.chkProsSelPros;
        if (all.Value() == 1) all.toggle();
        all.toggle();
        QCoreApplication::processEvents();
        if (desk_.rows() != thousand) throw std::runtime_error("the list of the thousand holds others");
    }

private:
    void putBack()
    {
        cnn_.execute("UPDATE ut_icontact SET uf_IEjecutivo = " + agent_ +
                     ", uf_Status = 0, uf_NotaStatus = NULL, uf_FechaStatus = NULL WHERE " + rows_);
    }

    Desk& desk_;
    data::Connection& cnn_;
    std::string agent_;
    std::string rows_;
};

void benchBulk(Desk& desk, BenchDatabase& database, int rounds, Report& report)
{
    data::Connection& cnn = database.connection();
    const std::int64_t last =
        cnn.execute("SELECT Sys_PK FROM Agente ORDER BY Nombre DESC LIMIT 1")->value(0).toWhole();
    Thousand some(desk, database);
    std::vector<Cost> discards;
    std::vector<Cost> assignments;
    double server = 0;
    desk::ProspectElements& commands = desk.control.elements().prospects;
    for (int round = 0; round < rounds; ++round) {
        some.checkAll();
        const double before = database.serverCpu();
        discards.push_back(desk.toFrame([&] { commands.cmdProsDiscart.press(); }));
        server += database.serverCpu() - before;
        if (some.count("uf_Status = 1 AND uf_NotaStatus = 'limpieza'") != thousand || desk.rows() != 0)
            report.wrong("discarding", "not all of them went");
        some.checkAll();
        assignments.push_back(desk.toFrame([&] { commands.cmdProsAsignPros.press(); }));
        if (some.count("uf_IEjecutivo = " + std::to_string(last)) != thousand || desk.rows() != 0)
            report.wrong("assigning", "not all of them went");
    }
    cnn.execute("DELETE FROM xt_biticontact WHERE uf_Usuario = 'bench'");
    report.figure("discard of 1,000 checked rows (2,000 statements), client CPU", median(discards).cpu, "ms");
    report.figure("discard of 1,000 checked rows (2,000 statements), wall", median(discards).wall, "ms");
    report.figure("discard of 1,000 checked rows (2,000 statements), the server's CPU", server / rounds, "ms");
    report.figure("assignment of 1,000 checked rows, client CPU", median(assignments).cpu, "ms");
    report.figure("assignment of 1,000 checked rows, wall", median(assignments).wall, "ms");
}

} // namespace

void benchCommands(BenchDatabase& database, const Scale& few, const Scale& many, int rounds, Report& report)
{
    double small = 0;
    {
        Desk desk(database, few.agent);
        small = benchChecks(desk, few, rounds, report);
        benchDetail(desk, database, rounds, report);
        benchBulk(desk, database, rounds, report);
    }
    Desk desk(database, many.agent);
    const double large = benchChecks(desk, many, rounds, report);
    report.growth("check of all rows", few.rows, many.rows, small, large, mostGrowth);
}

} // namespace dn::bench
