// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/alternatives.h"
#include "bench/frames.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQueryModel>
#include <QTableView>
#include <QTreeWidget>

#include <memory>
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

void fill(QSqlQueryModel& model, const QSqlDatabase& connection, const std::string& statement, Reading reading)
{
    model.setQuery(QString::fromStdString(statement), connection);
    while (model.canFetchMore())
        model.fetchMore();
    if (reading == Reading::everyCell && readEveryCell(model) == 0 && model.rowCount() > 0)
        throw std::runtime_error("the model's cells are empty");
}

constexpr int viewWidth = 1000;
constexpr int viewHeight = 600;

/// A tree under its view.
class Tree {
public:
    explicit Tree(const Texts& texts) : texts_(texts)
    {
        tree_.setRootIsDecorated(false);
        tree_.setUniformRowHeights(true);
        tree_.setColumnCount(static_cast<int>(texts.front().size()));
        tree_.resize(viewWidth, viewHeight);
        tree_.show();
    }

    Cost fill()
    {
        return measure([&] {
            for (const auto& row : texts_) {
                auto* item = new QTreeWidgetItem(&tree_); // owned by the tree
                for (std::size_t column = 0; column < row.size(); ++column)
                    item->setText(static_cast<int>(column), QString::fromStdString(row[column]));
            }
            counter_.awaitPaint();
        });
    }

    Cost sort(int column)
    {
        return measure([&] {
            tree_.sortItems(column, Qt::AscendingOrder);
            tree_.viewport()->update();
            counter_.awaitPaint();
        });
    }

private:
    const Texts& texts_;
    QTreeWidget tree_;
    PaintCounter& counter_ = *new PaintCounter(tree_); // owned by the tree
};

} // namespace

Cost sqlQueryModel(const BenchDatabase& database, const Statements& statements, Reading reading, std::size_t& rows)
{
    Cost cost;
    rows = 0;
    {
        const QSqlDatabase connection = open(database.target());
        QTableView view;
        std::vector<std::unique_ptr<QSqlQueryModel>> models;
        for (std::size_t i = 0; i < statements.size(); ++i)
            models.push_back(std::make_unique<QSqlQueryModel>());
        view.resize(viewWidth, viewHeight);
        view.show();
        PaintCounter& counter = *new PaintCounter(view); // owned by the view
        cost = measure([&] {
            for (std::size_t i = 0; i < statements.size(); ++i)
                fill(*models[i], connection, statements[i], reading);
            view.setModel(models.front().get());
            counter.awaitPaint();
        });
        for (const auto& model : models)
            rows += static_cast<std::size_t>(model->rowCount());
    }
    QSqlDatabase::removeDatabase(connectionName);
    return cost;
}

Cost treeWidget(const Texts& texts) { return Tree(texts).fill(); }

std::vector<Cost> treeWidgetSorts(const Texts& texts)
{
    Tree tree(texts);
    tree.fill();
    std::vector<Cost> costs;
    for (std::size_t column = 0; column < texts.front().size(); ++column)
        costs.push_back(tree.sort(static_cast<int>(column)));
    return costs;
}

} // namespace dn::bench
