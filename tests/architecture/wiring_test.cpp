// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The handlers that the rooms and dialogs declare against the lines that join them to events: a handler is named
// after its element and its event, so that a line which forgets one, or joins it to another element's event, is
// found.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <string>
#include <vector>

namespace dn::tests {
namespace {

namespace fs = std::filesystem;

const fs::path source = fs::path(DN_SOURCE_DIR) / "src";

std::string textOf(const fs::path& path)
{
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), {}};
}

struct Handler {
    std::string name;
    std::string element;
    std::string event;
};

/// The handlers that a header declares: named ELEMENT_EVENT, and not a virtual operation, which somebody else
/// calls.
std::vector<Handler> handlersIn(const std::string& header)
{
    static const std::regex declaration(
        R"(\n\s*void ((\w+?)_(Click|DblClick|ItemClick|ItemCheck|ColumnClick|KeyPress|Timer|Resize))\([^;{]*\);)");
    std::vector<Handler> found;
    for (std::sregex_iterator match(header.begin(), header.end(), declaration), none; match != none; ++match)
        found.push_back({(*match)[1], (*match)[2], (*match)[3]});
    return found;
}

std::vector<std::string> statementsOf(const std::string& text)
{
    std::vector<std::string> statements;
    std::size_t begin = 0;
    for (std::size_t end = text.find(';'); end != std::string::npos; end = text.find(';', begin)) {
        statements.push_back(text.substr(begin, end - begin));
        begin = end + 1;
    }
    return statements;
}

/// Whether a statement joins the handler to the event of its own element, an array's member included.
bool joins(const std::string& statement, const Handler& handler)
{
    const std::string element = handler.element == "UserControl" ? "control" : handler.element;
    const std::string signal = handler.event == "Timer" ? "TimerEvent" : handler.event; // Timer is the class
    const std::regex event("\\b" + element + R"((\(\w+\))?\.)" + signal + "\\b");
    const std::regex name("\\b" + handler.name + "\\b");
    return std::regex_search(statement, event) && std::regex_search(statement, name);
}

void expectJoined(const std::string& header, const std::string& wiring, const fs::path& place)
{
    const std::vector<std::string> statements = statementsOf(wiring);
    for (const Handler& handler : handlersIn(header)) {
        const auto lines = std::count_if(statements.begin(), statements.end(),
                                         [&](const std::string& statement) { return joins(statement, handler); });
        EXPECT_EQ(lines, 1) << handler.name << " of " << place;
    }
}

std::vector<fs::path> headersIn(const fs::path& folder)
{
    std::vector<fs::path> headers;
    for (const auto& entry : fs::directory_iterator(folder))
        if (entry.path().extension() == ".h") headers.push_back(entry.path());
    return headers;
}

TEST(Wiring, joins_each_handler_of_the_rooms_to_the_event_that_it_is_named_after)
{
    const std::string wiring = textOf(source / "shell/wiring.cpp");
    std::size_t handlers = 0;
    for (const auto& room : fs::directory_iterator(source)) {
        const std::string name = room.path().filename();
        if (!room.is_directory() || name == "dialogs" || name == "screen" || name == "data") continue;
        for (const fs::path& header : headersIn(room.path())) {
            if (header.filename() == "ctr_dn_contacts.h") continue; // its operations are the host's to call
            handlers += handlersIn(textOf(header)).size();
            expectJoined(textOf(header), wiring, header);
        }
    }
    EXPECT_GT(handlers, 12U) << "the handlers were not found";
}

TEST(Wiring, joins_each_handler_of_a_dialog_in_the_dialog_itself)
{
    for (const fs::path& header : headersIn(source / "dialogs"))
        expectJoined(textOf(header), textOf(fs::path(header).replace_extension(".cpp")), header);
}

TEST(Wiring, is_found_wanting_where_a_handler_is_forgotten_or_joined_to_another)
{
    const Handler handler{"cmdCall_Click", "cmdCall", "Click"};
    EXPECT_TRUE(joins("join(call.cmdCall.Click, flow_, &CallFlow::cmdCall_Click)", handler));
    EXPECT_TRUE(
        joins("x.bColor(i).Click.connect([this, i] { m_.bColor_Click(i)", {"bColor_Click", "bColor", "Click"}));
    EXPECT_FALSE(joins("join(call.cmdCall.Click, flow_, &CallFlow::cmdSend_Click)", handler));
    EXPECT_FALSE(joins("join(call.cmdSend.Click, flow_, &CallFlow::cmdCall_Click)", handler));
    const std::vector<Handler> found = handlersIn("class X {\n    void cmdCall_Click();\n    void Load();\n"
                                                  "    virtual void cmdSend_Click() = 0;\n};");
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].name, handler.name);
    EXPECT_EQ(found[0].element, handler.element);
}

} // namespace
} // namespace dn::tests
