// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/alternatives.h"
#include "bench/frames.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQueryModel>
#include <QSqlRecord>
#include <QTableView>
#include <QTreeWidget>

#include <algorithm>
#include <limits>
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

// As a sort or a search would ask for them.
std::size_t readCells(const QSqlQueryModel& model, int columns)
{
    std::size_t characters = 0;
    for (int row = 0; row < model.rowCount(); ++row)
        for (int column = 0; column < columns; ++column)
            characters += static_cast<std::size_t>(model.data(model.index(row, column)).toString().size());
    return characters;
}

void fill(QSqlQueryModel& model, const QSqlDatabase& connection, const std::string& statement, int columns)
{
    model.setQuery(QString::fromStdString(statement), connection);
    while (model.canFetchMore())
        model.fetchMore();
    const int there = std::min(columns, model.columnCount());
    if (there > 0 && readCells(model, there) == 0 && model.rowCount() > 0)
        throw std::runtime_error("the model's cells are empty");
}

void look(const QSqlQueryModel& model, const std::string& textField, SeenRows& seen)
{
    const QSqlRecord columns = model.record();
    const int keyColumn = columns.indexOf("Sys_PK");
    const int textColumn = columns.indexOf(QString::fromStdString(textField));
    if (keyColumn < 0 || textColumn < 0) throw std::runtime_error("the model lacks a column");
    for (int row = 0; row < model.rowCount(); ++row)
        seen.add(model.data(model.index(row, keyColumn)).toLongLong(),
                 model.data(model.index(row, textColumn)).toString().toStdString());
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
                QStringList cells;
                cells.reserve(static_cast<qsizetype>(row.size()));
                for (const std::string& cell : row)
                    cells.append(QString::fromStdString(cell));
                new QTreeWidgetItem(&tree_, cells); // owned by the tree
            }
            counter_.awaitPaint();
        });
    }

    bool holdsAll() const
    {
        if (static_cast<std::size_t>(tree_.topLevelItemCount()) != texts_.size()) return false;
        for (std::size_t row = 0; row < texts_.size(); ++row)
            for (std::size_t column = 0; column < texts_[row].size(); ++column)
                if (tree_.topLevelItem(static_cast<int>(row))->text(static_cast<int>(column)).toStdString() !=
                    texts_[row][column])
                    return false;
        return true;
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

Cost sqlQueryModel(const BenchDatabase& database, const Query& query, Reading reading, std::size_t columns,
                   SeenRows& seen)
{
    const Statements& statements = query.statements;
    int read = 0;
    if (reading == Reading::someColumns) read = static_cast<int>(columns);
    if (reading == Reading::everyCell) read = std::numeric_limits<int>::max();
    Cost cost;
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
                fill(*models[i], connection, statements[i], read);
            view.setModel(models.front().get());
            counter.awaitPaint();
        });
        for (const auto& model : models)
            look(*model, query.textField, seen);
    }
    QSqlDatabase::removeDatabase(connectionName);
    return cost;
}

Filled treeWidget(const Texts& texts)
{
    Tree tree(texts);
    const Cost cost = tree.fill();
    return {cost, tree.holdsAll()};
}

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
