// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A table as an HTML document: its text, what is escaped, and what becomes of it on a full disk.

#include "tables/html_document.h"

#include "base/runtime_error.h"
#include "tests/support/table_files.h"

#include <gmock/gmock.h>

namespace dn::tests {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

class HtmlDocument : public testing::Test {
protected:
    std::string written(const tables::Table& table)
    {
        tables::writeHtml(path, "Listas <1>", table);
        return contentsOf(path);
    }

    OutputFolder folder;
    std::string path = folder.file("lista.html");
};

TEST_F(HtmlDocument, is_one_document_with_the_captions_as_head_and_a_row_for_each_row)
{
    const std::string text =
        written(MadeTable({{"Nombre", 200}, {"Correos", 150}}, {{"Ana", "a@x"}, {"", "b@x"}}));
    EXPECT_THAT(text, StartsWith("<!DOCTYPE html>\n<html xmlns=\"http://www.w3.org/1999/xhtml\" lang=\"es\">\n"));
    EXPECT_THAT(text, HasSubstr("<meta charset=\"utf-8\" />\n<title>Listas &lt;1&gt;</title>"));
    EXPECT_THAT(text,
                EndsWith("<table>\n<thead>\n<tr><th scope=\"col\">Nombre</th><th scope=\"col\">Correos</th></tr>\n"
                         "</thead>\n<tbody>\n<tr><td>Ana</td><td>a@x</td></tr>\n<tr><td></td><td>b@x</td></tr>\n"
                         "</tbody>\n</table>\n</body>\n</html>\n"));
}

TEST_F(HtmlDocument, escapes_every_cell)
{
    const std::string text =
        written(MadeTable({{"<b>", 1}}, {{"<script>alert('1' & \"2\")</script>"}, {"ñ 😀 a\r\nb"}, {"\xFF"}}));
    EXPECT_THAT(text, HasSubstr("<td>&lt;script&gt;alert(&#39;1&#39; &amp; &quot;2&quot;)&lt;/script&gt;</td>"));
    EXPECT_THAT(text, HasSubstr("<th scope=\"col\">&lt;b&gt;</th>"));
    EXPECT_THAT(text, HasSubstr("<td>ñ 😀 a\nb</td>"));
    EXPECT_THAT(text, HasSubstr("<td>\xEF\xBF\xBD</td>"));
    EXPECT_THAT(text, Not(HasSubstr("<script>")));
}

TEST_F(HtmlDocument, of_an_empty_table_has_its_captions)
{
    EXPECT_THAT(written(MadeTable({{"Nombre", 200}}, {})), HasSubstr("<tbody>\n</tbody>"));
}

TEST_F(HtmlDocument, that_does_not_fit_on_the_disk_is_no_file)
{
    const MadeTable table({{"Nombre", 200}}, 10'000,
                          [](std::size_t, std::size_t) { return std::string(100, 'x'); });
    for (const std::size_t room : {0U, 10U, 70'000U, 1'000'000U}) {
        const FullDisk disk(room);
        EXPECT_THROW(tables::writeHtml(path, "", table), RuntimeError) << room;
    }
    EXPECT_THAT(folder.names(), IsEmpty());
}

} // namespace
} // namespace dn::tests
