// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Looks into a program of somebody else: a plugin that any program with Qt loads when QT_QPA_GENERIC_PLUGINS names
// it. It waits until a list in view has rows, prints how many and what the first one shows, and ends the program.
// So an example is tested as it stands in the documents, without a line in it for the test.

#include <QApplication>
#include <QGenericPlugin>
#include <QTableView>
#include <QTimer>

#include <cstdio>

namespace dn::tests {

class Watcher : public QObject {
public:
    explicit Watcher(QObject* parent = nullptr) : QObject(parent)
    {
        connect(&timer_, &QTimer::timeout, this, [] { look(); });
        timer_.start(20);
    }

private:
    static void look()
    {
        for (QWidget* widget : QApplication::allWidgets()) {
            const auto* const list = qobject_cast<QTableView*>(widget);
            if (list == nullptr || !list->isVisible() || list->model() == nullptr) continue;
            if (list->model()->rowCount() == 0) continue;
            tell(*list);
            QApplication::exit(0);
        }
    }

    static void tell(const QTableView& list)
    {
        QStringList cells;
        for (int column = 0; column < list.model()->columnCount(); ++column)
            cells << list.model()->index(0, column).data().toString();
        std::printf("%s: %d rows, first: %s\n", qPrintable(list.objectName()), list.model()->rowCount(),
                    qPrintable(cells.join('|')));
        std::fflush(stdout);
    }

    QTimer timer_;
};

class WatcherPlugin : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "watcher.json")

public:
    QObject* create(const QString&, const QString&) override { return new Watcher; }
};

} // namespace dn::tests

#include "watcher.moc"
