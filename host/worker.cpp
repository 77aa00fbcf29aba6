// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/worker.h"

#include "host/database/host_error.h"

#include <QCheckBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace dn::host {
namespace {

QString nameOf(const std::vector<Agent>& agents, std::int32_t key)
{
    const auto found =
        std::find_if(agents.begin(), agents.end(), [&](const Agent& agent) { return agent.key == key; });
    if (found == agents.end())
        throw HostError("No existe ningún agente con la clave " + std::to_string(key) + ".");
    return found->name;
}

// One window: who works, and with which rights.
class WhoWorksDialog : public QDialog {
public:
    WhoWorksDialog(const std::vector<Agent>& agents, std::optional<std::int32_t> last) : agents_(agents)
    {
        setObjectName("QuienTrabaja");
        setWindowTitle("¿Quién trabaja?");
        list_->setObjectName("lstAgentes");
        list_->setAccessibleName("Agentes");
        for (const Agent& agent : agents_)
            list_->addItem(agent.name);
        list_->setCurrentRow(rowOf(last));
        admin_->setObjectName("chkAdmon");

        auto* buttons = new QDialogButtonBox(this);
        auto* enter = buttons->addButton("&Entrar", QDialogButtonBox::AcceptRole);
        enter->setDefault(true);
        enter->setEnabled(!agents_.empty() || admin_->isChecked());
        buttons->addButton("&Cancelar", QDialogButtonBox::RejectRole);
        connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
        connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
        connect(list_, &QListWidget::itemActivated, this, &QDialog::accept);
        connect(admin_, &QCheckBox::toggled, enter,
                [this, enter] { enter->setEnabled(!agents_.empty() || admin_->isChecked()); });

        auto* layout = new QVBoxLayout(this);
        layout->addWidget(new QLabel("Elija su nombre para abrir su trabajo del día:", this));
        layout->addWidget(list_);
        layout->addWidget(admin_);
        layout->addWidget(buttons);
        resize(360, 420);
        list_->setFocus();
    }

    Worker worker() const
    {
        const int row = list_->currentRow();
        Worker result;
        result.admin = admin_->isChecked();
        if (row < 0) {
            result.user = "Administrador";
            return result;
        }
        result.agent = agents_[static_cast<std::size_t>(row)].key;
        result.user = agents_[static_cast<std::size_t>(row)].name;
        return result;
    }

private:
    int rowOf(std::optional<std::int32_t> key) const
    {
        const auto found =
            std::find_if(agents_.begin(), agents_.end(), [&](const Agent& agent) { return agent.key == key; });
        return found == agents_.end() ? 0 : static_cast<int>(found - agents_.begin());
    }

    const std::vector<Agent>& agents_;
    QListWidget* list_ = new QListWidget(this);
    QCheckBox* admin_ = new QCheckBox("Entrar como &administrador", this);
};

} // namespace

std::vector<Agent> readAgents(data::Connection& connection)
{
    std::vector<Agent> agents;
    const auto rows = connection.execute("SELECT Sys_PK, Nombre FROM Agente ORDER BY Nombre");
    for (; rows && !rows->Eof(); rows->MoveNext())
        agents.push_back({rows->value(0).toInt32(), QString::fromStdString(rows->value(1).toText())});
    return agents;
}

Worker workerFrom(const ProgramOptions& options, const std::vector<Agent>& agents)
{
    Worker worker;
    worker.admin = options.admin;
    if (options.agent)
        worker.agent = *options.agent;
    else if (!options.admin && !agents.empty())
        worker.agent = agents.front().key;
    worker.user = options.user;
    if (worker.user.isEmpty())
        worker.user = worker.agent == 0 ? "Administrador" : nameOf(agents, worker.agent);
    else if (worker.agent != 0)
        nameOf(agents, worker.agent);
    return worker;
}

std::optional<Worker> askWhoWorks(const std::vector<Agent>& agents, std::optional<std::int32_t> last)
{
    WhoWorksDialog dialog(agents, last);
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return dialog.worker();
}

} // namespace dn::host
