// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A picture of each window with something in it, held against the approved one. That each one shows every text in
// full, has a name for everything, and is reached by the keyboard, is asserted here too.

#include "tests/approved/approval.h"
#include "tests/approved/in_scheme.h"
#include "tests/host/screens/projects_at_work.h"
#include "tests/screen/qt/accessible_tree.h"
#include "tests/screen/qt/documented_keys.h"

#include <QTest>

namespace dn::host::tests {
namespace {

using dn::tests::pressButton;
using testing::IsEmpty;

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

    static void takes(QWidget& window, const char* scheme = "")
    {
        QTest::qWait(0);
        dn::tests::looksAsApproved(window, window.objectName() + scheme);
        EXPECT_THAT(dn::tests::cutOff(window), IsEmpty());
        EXPECT_THAT(dn::tests::unnamed(window), IsEmpty());
        EXPECT_THAT(dn::tests::unreached(window), IsEmpty());
        if (window.objectName() != "Pregunta") { // each has letters of its own
            EXPECT_THAT(dn::tests::lettersAgainstPage(window), IsEmpty());
        }
        for (const QComboBox* box : window.findChildren<QComboBox*>())
            EXPECT_GE(box->width(), box->fontMetrics().horizontalAdvance(box->currentText()) + 24) << name(*box);
    }
    void pictures(const char* window, const char* scheme = "")
    {
        operatorAt.expect(window, [scheme](QWidget& shown) {
            takes(shown, scheme);
            QTest::keyClick(&shown, Qt::Key_Escape);
        });
    }

private:
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
        takes(window);
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

class PicturesInSchemes : public Pictures, public testing::WithParamInterface<dn::tests::OtherScheme> {
    dn::tests::InScheme worn_{GetParam().first};
};

TEST_P(PicturesInSchemes, of_windows_with_most_in_them)
{
    const char* const scheme = GetParam().second;
    std::any result;
    std::int32_t by = 0;
    std::int32_t key = ana;
    pictures("EditarPersona", scheme);
    crm->EditarPersona(key, by, result);
    pictures("EditarProyecto", scheme);
    opens();
    std::string found;
    pictures("BuscarEntidad", scheme);
    crm->BuscarEntidad("a", true, true, found);
    bool confirm = true;
    std::int32_t gone = 0;
    operatorAt.expect("Pregunta", [scheme](QWidget& box) {
        takes(box, scheme);
        pressButton(box, "Conservar");
    });
    key = bruno;
    crm->BorrarPersona(key, confirm, gone);
}

INSTANTIATE_TEST_SUITE_P(All, PicturesInSchemes, dn::tests::otherSchemes());

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
        takes(window);
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    expectNotice("Otra persona");
    crm->EditarPersona(key, by, result);
}

} // namespace
} // namespace dn::host::tests
