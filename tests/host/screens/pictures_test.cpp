// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A picture of each window with something in it, held against the approved one and left in the folder "pantallas"
// below the working folder, for the documents. That each one shows every text in full is asserted here too.

#include "tests/approved/approval.h"
#include "tests/host/screens/projects_at_work.h"

#include <QCheckBox>
#include <QDateTimeEdit>
#include <QDir>
#include <QPushButton>
#include <QTest>

namespace dn::host::tests {
namespace {

using dn::tests::pressButton;

class Pictures : public ProjectsAtWork {
protected:
    void SetUp() override
    {
        ProjectsAtWork::SetUp();
        server().execute("INSERT INTO Ciudad (Sys_PK, Nombre, Estado) VALUES (4, 'Tuxtla Gutiérrez', 'Chiapas')");
        server().execute(
            "UPDATE Persona SET Codigo = 'P-0021', Apellido2 = 'Martínez', EMail = 'ana.lopez@acme.example', "
            "Puesto = "
            "'Jefa de compras', IEjecutivo = 7, Tel_Trabajo = '961 111 1111 ext. 204', Domicilio = 'Av. Central "
            "Poniente 1240, local 3', Colonia = 'Centro', CodPostal = '29000', ICiudad = 4 WHERE Sys_PK = 21");
        server().execute(
            "UPDATE Organizacion SET Codigo = 'O-0011', NomComercial = 'Acme', EMail = 'ventas@acme.example', "
            "WebSite "
            "= 'www.acme.example', IEjecutivo = 7, Domicilio = 'Av. Central Poniente 1240', Colonia = 'Centro', "
            "CodPostal = '29000', ICiudad = 4, Nacionalidad = 'México' WHERE Sys_PK = 11");
        server().execute(
            "INSERT INTO actividad (IProyecto, ITpActividad, Asunto, FInicio, Hecho) SELECT 41, 1 + seq % "
            "2, CONCAT('Seguimiento a la propuesta, punto ', seq), '2026-02-01 09:30' + INTERVAL seq DAY, "
            "seq % 3 = 0 FROM seq_1_to_9");
        server().execute(
            "INSERT INTO Proyecto (IOrganizacion, IContacto, IMeta, Descripcion, UF_Status1, UF_monto, "
            "FInicio) SELECT 11, 21, 4, CONCAT('Ampliación de la planta, etapa ', seq), 1 + seq % 6, seq "
            "* 12500.5, '2026-01-10' + INTERVAL seq DAY FROM seq_1_to_7");
    }

    /// @param compared not where a line has the button that empties it: that fades, and nobody can ask when it is
    /// done.
    static void takes(QWidget& window, bool compared = true)
    {
        QDir().mkpath("pantallas");
        QTest::qWait(0);
        EXPECT_TRUE(window.grab().save("pantallas/" + window.objectName() + ".png"));
        if (compared) dn::tests::looksAsApproved(window, window.objectName());
        for (const QPushButton* button : window.findChildren<QPushButton*>())
            EXPECT_TRUE(!button->isVisible() || button->width() >= button->sizeHint().width()) << name(*button);
        for (const QLabel* label : window.findChildren<QLabel*>())
            EXPECT_TRUE(!label->isVisible() || label->wordWrap() || label->width() >= label->sizeHint().width())
                << name(*label);
        for (const QWidget* one : window.findChildren<QWidget*>())
            EXPECT_TRUE(!one->isVisible() || !isReached(*one) || !one->accessibleName().isEmpty()) << name(*one);
        for (const QComboBox* box : window.findChildren<QComboBox*>())
            EXPECT_GE(box->width(), box->fontMetrics().horizontalAdvance(box->currentText()) + 24) << name(*box);
    }
    void pictures(const char* window)
    {
        operatorAt.expect(window, [](QWidget& shown) {
            takes(shown);
            QTest::keyClick(&shown, Qt::Key_Escape);
        });
    }

private:
    /// What an operator enters something into, and a screen reader therefore has to call by a name.
    static bool isReached(const QWidget& one)
    {
        return qobject_cast<const QComboBox*>(&one) || qobject_cast<const QTreeWidget*>(&one) ||
               qobject_cast<const QCheckBox*>(&one) || qobject_cast<const QDateTimeEdit*>(&one) ||
               (qobject_cast<const QLineEdit*>(&one) && !one.objectName().startsWith("qt_"));
    }
    static std::string name(const QWidget& widget) { return widget.objectName().toStdString(); }
};

TEST_F(Pictures, of_each_window)
{
    std::any result;
    std::int32_t by = 0;
    std::int32_t key = ana;
    pictures("EditarPersona");
    crm->EditarPersona(key, by, result);
    key = acme;
    pictures("EditarOrganizacion");
    crm->EditarOrganizacion(key, by, result);
    operatorAt.expect("EditarProyecto", [](QWidget& window) {
        takes(window);
        pressButton(window, "Cambiar fecha…");
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    pictures("EditarActividad");
    opens();
    operatorAt.expect("CrearProyecto", [](QWidget& window) {
        fillsWhatIsRequired(window);
        types(window, "Monto", "125,000");
        picks(window, "Temperatura", "Tibio");
        picks(window, "Color", "Verde");
        takes(window, false);
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    newProject(0, ana);
    std::int16_t kind = 1;
    std::string caption = "Relaciones de la organización: Acme del Sureste";
    pictures("MostrarRelaciones");
    crm->MostrarRelaciones(kind, key, caption);
    std::string found;
    pictures("BuscarEntidad");
    crm->BuscarEntidad("a", true, true, found);
    operatorAt.expect("Aviso", [](QWidget& box) {
        takes(box);
        pressButton(box, "Aceptar");
    });
    bool confirm = true;
    std::int32_t gone = 0;
    crm->BorrarOrganizacion(key, confirm, gone);
    operatorAt.expect("Pregunta", [](QWidget& box) {
        takes(box);
        pressButton(box, "Conservar");
    });
    key = bruno;
    crm->BorrarPersona(key, confirm, gone);
}

TEST_F(Pictures, of_what_is_wrong)
{
    std::any result;
    std::int32_t by = 0;
    std::int32_t key = ana;
    operatorAt.expect("EditarPersona", [](QWidget& window) {
        types(window, "Puesto", "Directora");
        types(window, "Colonia", "Norte");
        server().execute("UPDATE Persona SET Puesto = 'Gerente', Colonia = 'Sur' WHERE Sys_PK = 21");
        pressButton(window, "Aceptar");
        window.setObjectName("EditarPersonaEnDuda");
        takes(window, false);
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    expectNotice("Otra persona");
    crm->EditarPersona(key, by, result);
}

} // namespace
} // namespace dn::host::tests
