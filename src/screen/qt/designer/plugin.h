// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The control among the widgets of Qt Designer, to be dropped on a form. What it shows there is the control as it
// is made: its constructor asks for nothing beyond the process, so that a form can be drawn where no database is.
#pragma once

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

namespace dn::screen::qt::designer {

class Plugin : public QObject, public QDesignerCustomWidgetInterface {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QDesignerCustomWidgetInterface_iid)
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    QString name() const override; ///< with its namespaces, as the code of a form needs it
    QString includeFile() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QIcon icon() const override;
    QString domXml() const override;
    bool isContainer() const override { return false; }
    QWidget* createWidget(QWidget* parent) override;
};

} // namespace dn::screen::qt::designer
