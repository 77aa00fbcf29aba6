// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/qt/designer/plugin.h"

#include "screen/qt/ctr_dn_contacts_widget.h"

#include <QIcon>

namespace dn::screen::qt::designer {

QString Plugin::name() const { return QString::fromLatin1(CtrDnContactsWidget::staticMetaObject.className()); }
QString Plugin::includeFile() const { return "screen/qt/ctr_dn_contacts_widget.h"; }
QString Plugin::group() const { return "DN Contactos"; }
QString Plugin::toolTip() const { return "Fuerza de ventas: prospectos, proyectos, llamadas"; }
QString Plugin::whatsThis() const { return "El control ctrDnContacts. El programa le entrega la conexión."; }
QIcon Plugin::icon() const { return QIcon(":/dn/icons/dncontacts.svg"); }

QString Plugin::domXml() const
{
    return R"(<ui language="c++" displayname="ctrDnContacts"><widget class=")" + name() +
           R"(" name="contactos">)"
           R"(<property name="geometry"><rect><x>0</x><y>0</y><width>1048</width><height>677</height></rect>)"
           R"(</property></widget></ui>)";
}

QWidget* Plugin::createWidget(QWidget* parent) { return new CtrDnContactsWidget(parent); }

} // namespace dn::screen::qt::designer
