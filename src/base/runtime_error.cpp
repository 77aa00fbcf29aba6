// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "base/runtime_error.h"

namespace dn {

RuntimeError RuntimeError::overflow() { return RuntimeError("Desbordamiento"); }

RuntimeError RuntimeError::invalidUseOfNull() { return RuntimeError("Uso no válido de Null"); }

RuntimeError RuntimeError::typeMismatch() { return RuntimeError("No coinciden los tipos"); }

RuntimeError RuntimeError::objectNotSet() { return RuntimeError("Variable de objeto no establecida"); }

} // namespace dn
