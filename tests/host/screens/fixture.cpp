// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/host/screens/fixture.h"

#include "host/database/database_choice.h"
#include "host/database/schema.h"
#include "tests/support/maria_server.h"
#include "tests/support/recording_connection.h"
#include "tests/support/sql_server_stand_in.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDateTimeEdit>
#include <QMessageBox>
#include <QTest>

#include <cstdlib>

namespace dn::host::tests {
namespace {

std::unique_ptr<data::Connection> openTo(const char* database, std::string_view user, std::string_view password)
{
    MariadbTarget target;
    target.socket = dn::tests::sharedServer().socket();
    target.user = user;
    target.password = password;
    target.database = database;
    return connect(target);
}

std::unique_ptr<data::Connection> openTo(const char* database)
{
    return openTo(database, dn::tests::MariaServer::user, dn::tests::MariaServer::password);
}

std::unique_ptr<data::Connection> openToStandIn(std::string_view database)
{
    return connect(OdbcTarget{dn::tests::sharedStandIn().connectionString(database, "pantallas")});
}

/// For the test's own rows on SQL Server, which are told their keys there only when asked to.
class WithKeysOfTheTest final : public data::Connection {
public:
    explicit WithKeysOfTheTest(std::unique_ptr<data::Connection> real) : real_(std::move(real)) {}

    int State() const override { return real_->State(); }
    std::unique_ptr<data::Recordset> execute(std::string_view statement) override
    {
        constexpr std::string_view insert = "INSERT INTO ";
        const std::size_t columns = statement.find(" (Sys_PK");
        if (!statement.starts_with(insert) || columns == std::string_view::npos) return real_->execute(statement);
        const std::string table(statement.substr(insert.size(), columns - insert.size()));
        real_->execute("SET IDENTITY_INSERT " + table + " ON");
        auto result = real_->execute(statement);
        real_->execute("SET IDENTITY_INSERT " + table + " OFF");
        return result;
    }

private:
    std::unique_ptr<data::Connection> real_;
};

void makeDatabase()
{
    openTo("")->execute("CREATE OR REPLACE DATABASE pantallas CHARACTER SET utf8mb4");
    createSchema(*openTo("pantallas"), Engine::mariadb);
}

void makeDatabaseOnStandIn()
{
    openToStandIn(dn::tests::SqlServerStandIn::database)->execute("CREATE DATABASE pantallas");
    createSchema(*openToStandIn("pantallas"), Engine::sqlServer);
}

} // namespace

bool Screens::onSqlServer()
{
    const char* const wanted = std::getenv("DN_STORIES_SERVER");
    return wanted != nullptr && std::string_view(wanted) == "sqlserver";
}

std::unique_ptr<data::Connection> Screens::open()
{
    return onSqlServer() ? openToStandIn("pantallas") : openTo("pantallas");
}

std::unique_ptr<data::Connection> Screens::openAs(const char* user, const char* password)
{
    return openTo("pantallas", user, password);
}

void Screens::SetUpTestSuite()
{
    static const bool made = [] {
        onSqlServer() ? makeDatabaseOnStandIn() : makeDatabase();
        return true;
    }();
    ASSERT_TRUE(made);
    connection_ = open();
    if (onSqlServer()) connection_ = std::make_unique<WithKeysOfTheTest>(std::move(connection_));
}

void Screens::TearDownTestSuite() { connection_.reset(); }

void Screens::SetUp()
{
    for (const char* table : {"actividad", "mdtpactividad", "Proyecto", "Meta", "Persona", "Organizacion",
                              "ut_icontact", "Agente", "Ciudad"})
        server().execute("TRUNCATE TABLE " + std::string(table));
    server().execute("INSERT INTO Meta (Sys_PK, Descripcion) VALUES (3, 'Venta de licencias'), (4, 'Asesoría')");
    server().execute(
        "INSERT INTO Organizacion (Sys_PK, Nombre, Tel1) VALUES (11, 'Acme del Sureste', '9611111111'), "
        "(12, 'Acero y Forja', NULL)");
    server().execute("INSERT INTO Persona (Sys_PK, Nombre, Apellido1, Tel_Movil, IOrganizacion) VALUES "
                     "(21, 'Ana', 'López', '9612222222', 11), (22, 'Bruno', 'Díaz', NULL, NULL)");
    crm->SetAgente(agent);
}

std::unique_ptr<data::Connection> Screens::watched()
{
    auto connection = std::make_unique<dn::tests::RecordingConnection>(open());
    connection->refuses = [this](std::string_view statement) {
        sent.emplace_back(statement);
        return untilFailure_ >= 0 && untilFailure_-- == 0;
    };
    return connection;
}

void Screens::expectNotice(const char* part)
{
    operatorAt.expect("Aviso", [part](QWidget& box) {
        EXPECT_THAT(boxText(box), testing::HasSubstr(part));
        dn::tests::pressButton(box, "Aceptar");
    });
}

void Screens::expectQuestion(const char* part, const char* answer)
{
    operatorAt.expect("Pregunta", [part, answer](QWidget& box) {
        EXPECT_THAT(boxText(box), testing::HasSubstr(part));
        dn::tests::pressButton(box, answer);
    });
}

std::vector<Row> Screens::rows(std::string_view statement)
{
    std::vector<Row> result;
    const auto found = server().execute(statement);
    for (; !found->Eof(); found->MoveNext()) {
        Row row;
        for (std::size_t i = 0; i < found->names().size(); ++i) {
            const data::Value cell = found->value(i);
            row.push_back(cell.isNull() ? "NULL" : std::string(cell.raw()));
        }
        result.push_back(std::move(row));
    }
    return result;
}

std::string Screens::value(std::string_view statement) { return rows(statement).at(0).at(0); }

std::string Screens::keys(const std::string& table)
{
    std::string all;
    for (const Row& row : rows("SELECT Sys_PK FROM " + table + " ORDER BY Sys_PK"))
        all += (all.empty() ? "" : ",") + row.at(0);
    return all;
}

std::string Screens::isRecent(const std::string& column)
{
    const std::string seconds = onSqlServer() ? "DATEDIFF(SECOND, " + column + ", GETDATE())"
                                              : "TIMESTAMPDIFF(SECOND, " + column + ", NOW())";
    return "CASE WHEN ABS(" + seconds + ") < 60 THEN 1 ELSE 0 END";
}

std::int32_t Screens::newProject(std::int16_t kind, std::int32_t party)
{
    std::int32_t result = -1;
    projects->CrearProyecto(kind, party, result);
    return result;
}

QLineEdit& line(QWidget& window, const char* name)
{
    auto* const found = window.findChild<QLineEdit*>(name);
    if (found == nullptr) throw std::runtime_error(std::string("no line ") + name);
    return *found;
}

void types(QWidget& window, const char* name, const char* text)
{
    QLineEdit& edit = line(window, name);
    edit.setFocus();
    edit.selectAll();
    QTest::keyClick(&edit, Qt::Key_Delete);
    presses(edit, QString::fromUtf8(text));
}

void picks(QWidget& window, const char* combo, const char* entry)
{
    auto* const box = window.findChild<QComboBox*>(combo);
    ASSERT_NE(box, nullptr) << combo;
    box->setFocus();
    presses(*box, QString::fromUtf8(entry).section(' ', 0, 0)); // a blank would open the list
    EXPECT_EQ(box->currentText().toStdString(), entry);
}

void finds(QWidget& window, const char* field, const char* letters)
{
    window.activateWindow(); // without a window manager nobody gives it back what a list took
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    types(window, (std::string("txt") + field).c_str(), letters);
    ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; })) << letters;
    QWidget& list = *QApplication::activePopupWidget();
    // The platform activates the list by an event that is still on its way. Coming later, it would take the focus
    // back to this field from the one that the operator has gone on to.
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&list));
    QApplication::processEvents();
    QTest::keyClick(&list, Qt::Key_Return);
    QApplication::processEvents();
}

void typesMoment(QWidget& window, const char* name, const char* digits)
{
    auto* const edit = window.findChild<QDateTimeEdit*>(name);
    ASSERT_NE(edit, nullptr) << name;
    edit->setFocus();
    edit->setSelectedSection(QDateTimeEdit::DaySection);
    QTest::keyClicks(edit, digits);
}

std::string messageBelow(QWidget& window, const char* field)
{
    const auto* const label = window.findChild<QLabel*>(QString("msg") + field);
    if (label == nullptr) throw std::runtime_error(std::string("no message below ") + field);
    return label->isVisible() ? label->text().toStdString() : "";
}

std::string boxText(const QWidget& box) { return dynamic_cast<const QMessageBox&>(box).text().toStdString(); }

std::string focus()
{
    const QWidget* const widget = QApplication::focusWidget();
    return widget == nullptr ? "" : widget->objectName().toStdString();
}

void fillsWhatIsRequired(QWidget& window)
{
    picks(window, "Meta", "Venta de licencias");
    types(window, "Descripcion", "Licencias para ventas");
}

} // namespace dn::host::tests
