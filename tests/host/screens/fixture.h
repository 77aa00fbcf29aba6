// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The host's screens as an operator meets them: real windows under real keys, over a real server. A test starts
// with a small directory and looks at the tables afterwards.
#pragma once

#include "data/connection.h"
#include "host/screens/screens_factory.h"
#include "tests/screen/qt/keyboard.h"
#include "tests/screen/qt/modal_driver.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace dn::host::tests {

using Row = std::vector<std::string>;

class Screens : public testing::Test {
protected:
    static constexpr std::int32_t agent = 7;
    static constexpr std::int32_t goal = 3;       ///< "Venta de licencias"
    static constexpr std::int32_t acme = 11;      ///< an organisation
    static constexpr std::int32_t ana = 21;       ///< a person of Acme's
    static constexpr std::int32_t bruno = 22;     ///< a person without an organisation
    static constexpr std::int32_t sale = 41;      ///< a project of Acme's with Ana, and two activities
    static constexpr std::int32_t nobody = 99999; ///< no key of anything

    static void SetUpTestSuite();
    static void TearDownTestSuite();
    void SetUp() override;

    /// A connection beside that of the screens, to look at what they stored and to disturb them.
    static data::Connection& server() { return *connection_; }
    static std::unique_ptr<data::Connection> open();
    static std::unique_ptr<data::Connection> openAs(const char* user, const char* password);
    /// The rows of a statement, a null as "NULL".
    static std::vector<Row> rows(std::string_view statement);
    static std::string value(std::string_view statement);
    /// The keys of a table, in order and with commas between.
    static std::string keys(const std::string& table);
    /// For a statement: 1 where a column holds a moment of the last minute.
    static std::string isRecent(const std::string& column);
    /// The server is the stand-in for SQL Server, where the variable DN_STORIES_SERVER says "sqlserver".
    static bool onSqlServer();

    /// Opens the screen of a new project and lets the driver act. @return the operation's result.
    std::int32_t newProject(std::int16_t kind = 2, std::int32_t party = 0);

    /// Of the statements that the screens send from here on, the one after so many more fails, as if the server
    /// had refused it.
    void failAfter(int more) { untilFailure_ = more; }
    /// Every statement that the screens sent from here on.
    void forgetSent() { sent.clear(); }
    /// Expects a box with a text in it, and closes it.
    void expectNotice(const char* part);
    /// Expects a question with a text in it, and answers with the button of a caption.
    void expectQuestion(const char* part, const char* answer);

    std::vector<std::string> sent;
    ScreensFactory factory{[this] { return watched(); }};
    std::shared_ptr<UI_CRM> crm = factory.newUI_CRM();
    std::shared_ptr<UIProyectos> projects = factory.newUIProyectos();
    dn::tests::ModalDriver operatorAt;

private:
    std::unique_ptr<data::Connection> watched();

    int untilFailure_ = -1;
    inline static std::unique_ptr<data::Connection> connection_;
};

// What an operator does and sees in a window, by the fields' names.

QLineEdit& line(QWidget& window, const char* name);
using dn::tests::presses;
/// Types over whatever the line holds.
void types(QWidget& window, const char* name, const char* text);
void picks(QWidget& window, const char* combo, const char* entry);
/// Types letters into a field for a person or an organisation and takes the first of the list that comes.
void finds(QWidget& window, const char* field, const char* letters);
/// The message below a field; an empty text while none shows.
std::string messageBelow(QWidget& window, const char* field);
/// Types a date and time into its field, digit by digit: "ddmmyyyyhhnn".
void typesMoment(QWidget& window, const char* name, const char* digits);
/// What a box says.
std::string boxText(const QWidget& box);
/// The name of the widget with the focus.
std::string focus();
/// Fills goal and description, without which there is no project.
void fillsWhatIsRequired(QWidget& window);

} // namespace dn::host::tests
