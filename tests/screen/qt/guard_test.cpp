// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Exceptions on their way out of the control.

#include "screen/qt/guard.h"
#include "tests/screen/qt/modal_driver.h"

#include <QMessageBox>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace dn::tests {
namespace {

using screen::qt::Guard;

TEST(Guard, work_that_ends_well_reports_nothing)
{
    Guard guard;
    guard.onError([](const std::exception&) { ADD_FAILURE(); });
    EXPECT_TRUE(guard.run([] {}));
}

TEST(Guard, what_is_no_exception_of_the_library_is_reported_too)
{
    Guard guard;
    std::vector<std::string> texts;
    guard.onError([&](const std::exception& error) { texts.emplace_back(error.what()); });
    EXPECT_FALSE(guard.run([] { throw 1; }));
    EXPECT_THAT(texts, testing::ElementsAre("Error desconocido"));
}

TEST(Guard, a_handler_that_throws_stops_there)
{
    Guard guard;
    guard.onError([](const std::exception&) { throw std::runtime_error("otra vez"); });
    EXPECT_FALSE(guard.run([] { throw std::runtime_error("una vez"); }));
}

TEST(Guard, without_a_handler_the_text_is_shown_in_one_box_at_a_time)
{
    Guard guard;
    ModalDriver driver;
    driver.expect("ErrorBox", [&](QWidget& box) {
        EXPECT_EQ(dynamic_cast<QMessageBox&>(box).text(), QStringLiteral("se rompió"));
        guard.run([] { throw std::runtime_error("y otra vez"); }); // shows no second box
        pressButton(box, "Aceptar");
    });
    guard.run([] { throw std::runtime_error("se rompió"); });
}

} // namespace
} // namespace dn::tests
