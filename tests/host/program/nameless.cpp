// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A window in which a screen reader has no names for a line and a button, and no key leads to a mark: the tests of
// the program show with it that they would see that in the program's own.

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QMainWindow window;
    window.setWindowTitle("Sin nombres");
    auto* const all = new QWidget(&window);
    auto* const layout = new QVBoxLayout(all);
    auto* const table = new QTableWidget(1, 1, all);
    table->setAccessibleName("Prospectos");
    auto* const programmers = new QPushButton(all);
    programmers->setAccessibleName("cmdNada");
    auto* const mark = new QCheckBox("Sin tecla", all);
    mark->setFocusPolicy(Qt::NoFocus);
    for (QWidget* const part : std::initializer_list<QWidget*>{new QPushButton("Prospectos", all), programmers,
                                                               mark, new QLineEdit(all), table})
        layout->addWidget(part);
    window.setCentralWidget(all);
    window.show();
    return QApplication::exec();
}
