// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/progress_bar.h"

#include "base/runtime_error.h"

namespace dn::screen {

void ProgressBar::Value(int value)
{
    if (value < min_ || value > max_) throw RuntimeError("Valor de propiedad no válido");
    set(value_, value);
}

} // namespace dn::screen
