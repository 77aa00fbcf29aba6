// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A list of very many rows is as right as one of a few. scripts/soak runs this with a million of them, and
// DN_MANY_ROWS with as many as it says.

#include "tests/stories/operator.h"

#include <malloc.h>

#include <cstdlib>

namespace dn::tests {
namespace {

/// Bytes that are asked for and not given back; 0 under the sanitizers, which count for themselves.
std::size_t bytesInUse()
{
    const auto heap = mallinfo2();
    return heap.uordblks + heap.hblkhd;
}

class ManyRows : public Operator {
protected:
    ManyRows()
    {
        manyRows("INSERT INTO ut_icontact (uf_Nombre, uf_EMail, uf_IEjecutivo, uf_Fecha)", rows, [](int row) {
            return "'" + nameOf(row) + "', '" + std::to_string(row) + "@x.mx', 7, '2026-03-01'";
        });
    }

    /// Names in another order than that of the rows; no two alike.
    static std::string nameOf(int row)
    {
        constexpr std::int64_t step = 7919; // a prime, and none of the numbers of rows has it as a factor
        return placeName(row * step % rows);
    }
    static std::string placeName(std::int64_t place)
    {
        const std::string digits = std::to_string(place);
        return "Prospecto " + std::string(8 - digits.size(), '0') + digits;
    }

    screen::ListItems items() { return control.elements().prospects.lvw.ListItems(); }
    std::string nameAt(int row) { return std::string(items()(row).ListSubItems()(3).Text()); }

    /// The row becomes the selected one, and its detail and its log are those of its key.
    void isItself(int row)
    {
        screen::ListView& lvw = control.elements().prospects.lvw;
        const std::string key(items()(row).Key());
        lvw.clickRow(static_cast<std::size_t>(row) - 1);
        EXPECT_EQ(lvw.SelectedItem()->Key(), key);
        EXPECT_THAT(sees("txtInfo"), testing::StartsWith(key + " | "));
        EXPECT_EQ(cnn->statements.back(),
                  "SELECT * FROM xt_biticontact WHERE uf_Iicontact = " + key.substr(1) + " ORDER BY uf_Tiempo");
        EXPECT_THAT(inTheDatabase("SELECT uf_Nombre FROM ut_icontact WHERE Sys_PK = " + key.substr(1)),
                    testing::ElementsAre(nameAt(row)));
    }

    static inline const int rows = [] {
        const char* const wanted = std::getenv("DN_MANY_ROWS");
        return wanted == nullptr ? 2000 : std::atoi(wanted);
    }();
};

TEST_F(ManyRows, are_listed_selected_sorted_and_found_and_their_memory_is_given_back)
{
    enters(beto);
    const std::size_t before = bytesInUse();
    enters(ana);
    ASSERT_EQ(items().Count(), rows);
    const std::size_t held = bytesInUse() - before;
    for (const int row : {1, rows / 2, rows})
        isItself(row);

    control.elements().prospects.lvw.clickRow(static_cast<std::size_t>(rows) - 1);
    const std::string selected(control.elements().prospects.lvw.SelectedItem()->Key());
    clicksHeader(3);
    const bool ascending = nameAt(1) == placeName(0);
    if (!ascending) clicksHeader(3);
    int misplaced = 0;
    for (int row = 1; row <= rows; ++row)
        misplaced += nameAt(row) == placeName(row - 1) ? 0 : 1;
    EXPECT_EQ(misplaced, 0) << "each name once, in its order";
    EXPECT_EQ(control.elements().prospects.lvw.SelectedItem()->Key(), selected);
    for (const int row : {1, rows / 2, rows})
        isItself(row);

    control.elements().prospects.lvw.clickRow(0);
    control.elements().top.txtBuscar.edit(placeName(rows - 1));
    presses("cmdOkBuscar");
    EXPECT_EQ(control.elements().prospects.lvw.SelectedItem()->Index(), rows);
    EXPECT_THAT(sees("txtInfo"), testing::HasSubstr(placeName(rows - 1)));

    constexpr std::size_t most = 1000; // bytes a row
    EXPECT_LE(held, most * static_cast<std::size_t>(rows));
    RecordProperty("bytes_a_row", static_cast<int>(held / static_cast<std::size_t>(rows)));
    enters(beto);
    EXPECT_EQ(items().Count(), 0);
    EXPECT_LE(bytesInUse(), before + held / 10) << "the rows are given back";
}

} // namespace
} // namespace dn::tests
