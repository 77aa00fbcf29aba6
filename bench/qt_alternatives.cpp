// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/alternatives.h"
#include "bench/frames.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQueryModel>
#include <QTableView>
#include <QTreeWidget>

#include <stdexcept>

namespace dn::bench {
namespace {

constexpr const char* connectionName = "bench";

QSqlDatabase open(const host::MariadbTarget& target)
{
    QSqlDatabase database = QSqlDatabase::addDatabase("QMYSQL", connectionName);
    database.setConnectOptions("UNIX_SOCKET=" + QString::fromStdString(target.socket));
    database.setDatabaseName(QString::fromStdString(target.database));
    database.setUserName(QString::fromStdString(target.user));
    if (!database.open()) throw std::runtime_error(database.lastError().text().toStdString());
    return database;
}

std::size_t readEveryCell(const QSqlQueryModel& model)
{
    std::size_t characters = 0;
    for (int row = 0; row < model.rowCount(); ++row)
        for (int column = 0; column < model.columnCount(); ++column)
            characters += static_cast<std::size_t>(model.data(model.index(row, column)).toString().size());
    return characters;
}

constexpr int viewWidth = 1000;
constexpr int viewHeight = 600;

} // namespace

Cost sqlQueryModel(const BenchDatabase& database, Reading reading, std::size_t& rows)
{
    Cost cost;
    {
        const QSqlDatabase connection = open(database.target());
        QTableView view;
        QSqlQueryModel model;
        view.resize(viewWidth, viewHeight);
        view.show();
        PaintCounter counter(view);
        const QString statement = QString::fromStdString(database.statement());
        cost = measure([&] {
            model.setQuery(statement, connection);
            while (model.canFetchMore())
                model.fetchMore();
            if (reading == Reading::everyCell && readEveryCell(model) == 0)
                throw std::runtime_error("the model's cells are empty");
            view.setModel(&model);
            counter.awaitPaint();
        });
        rows = static_cast<std::size_t>(model.rowCount());
    }
    QSqlDatabase::removeDatabase(connectionName);
    return cost;
}

Cost treeWidget(const Texts& texts)
{
    QTreeWidget tree;
    tree.setRootIsDecorated(false);
    tree.setUniformRowHeights(true);
    tree.setColumnCount(static_cast<int>(texts.front().size()));
    tree.resize(viewWidth, viewHeight);
    tree.show();
    PaintCounter counter(tree);
    return measure([&] {
        for (const auto& row : texts) {
            auto* item = new QTreeWidgetItem(&tree);
            for (std::size_t column = 0; column < row.size(); ++column)
                item->setText(static_cast<int>(column), QString::fromStdString(row[column]));
        }
        counter.awaitPaint();
    });
}

} // namespace dn::bench
