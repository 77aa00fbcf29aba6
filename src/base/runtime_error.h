// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The error of everything that is not a database: an element that is asked for what it does not hold, a
// value that does not fit. Its text is Spanish, because a trap shows it to the operator as it stands.
#pragma once

#include "base/export.h"

#include <stdexcept>
#include <string>

namespace dn {

/// A mistake in the use of the control or of one of its elements.
class DN_EXPORT RuntimeError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;

    /// A number that does not fit its field: "Desbordamiento".
    static RuntimeError overflow();
    /// A null where a value is needed: "Uso no válido de Null".
    static RuntimeError invalidUseOfNull();
    /// A text that is no number, a number that is no date: "No coinciden los tipos".
    static RuntimeError typeMismatch();
    /// An object that was never handed over: "Variable de objeto no establecida".
    static RuntimeError objectNotSet();
};

} // namespace dn
