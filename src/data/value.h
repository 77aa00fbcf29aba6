// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The value of a field in the present row of a recordset.
//
// A list of 100,000 rows reads some four million values, so a value is a view: it points to the text that the
// driver holds and converts on demand. It is good until the recordset moves on or goes away; copy what must live
// longer.
#pragma once

#include "base/date_time.h"
#include "base/export.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace dn::data {

/// A null, or a kind and a text.
class DN_EXPORT Value {
public:
    /// What the column holds, and so the form of the raw text.
    enum class Kind : std::uint8_t {
        null,     ///< no value
        boolean,  ///< a bit column; raw text "1" or "0"
        whole,    ///< a whole number; raw text in decimal digits
        number,   ///< a decimal or floating number; raw text exact, with "." and without separators
        text,     ///< UTF-8
        dateTime, ///< raw text "yyyy-mm-dd", "yyyy-mm-dd hh:nn:ss[.ffffff]" or "hh:nn:ss"
    };

    /// A null.
    Value() = default;
    /// @param raw the text in the form that the kind asks for; the caller keeps it alive.
    Value(Kind kind, std::string_view raw) : raw_(raw), kind_(kind) {}

    Kind kind() const { return kind_; }                 ///< null also in a column of another kind
    bool isNull() const { return kind_ == Kind::null; } ///< which no conversion takes

    /// The text as the driver delivered it, to the byte. Empty for a null.
    std::string_view raw() const { return raw_; }

    // The conversions throw RuntimeError: "Uso no válido de Null" for a null, "No coinciden los tipos" for a
    // text that does not read as what is asked for, "Desbordamiento" for a number that does not fit.

    /// The default text form: text and numbers as they stand, "Verdadero" or "Falso", dates as
    /// "dd/mm/yyyy hh:nn:ss", "dd/mm/yyyy" at midnight and "hh:nn:ss" without a date.
    std::string toText() const;
    std::int64_t toWhole() const; ///< rounded to the nearest
    std::int32_t toInt32() const; ///< rounded to the nearest
    std::int16_t toInt16() const; ///< rounded to the nearest
    double toNumber() const;      ///< to the precision of the type
    bool toBoolean() const;       ///< any number but 0 is true
    DateTime toDateTime() const;  ///< also of a text in the form of a date

private:
    std::string_view raw_;
    Kind kind_ = Kind::null;
};

} // namespace dn::data
