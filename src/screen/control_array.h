// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Elements of one kind under one name and an index: `lblItem(0)` to `lblItem(4)`.
#pragma once

#include "base/runtime_error.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace dn::screen {

class Container;

template <class Kind>
class ControlArray {
public:
    ControlArray(Container* parent, const std::string& name, int count)
    {
        for (int index = 0; index < count; ++index)
            members_.push_back(std::make_unique<Kind>(parent, name + "(" + std::to_string(index) + ")"));
    }

    int Count() const { return static_cast<int>(members_.size()); }

    /// @throws RuntimeError for a member that does not exist.
    Kind& operator()(int index) const
    {
        if (index < 0 || index >= Count())
            throw RuntimeError("No existe el elemento " + std::to_string(index) + " de la matriz de controles");
        return *members_[static_cast<std::size_t>(index)];
    }

private:
    std::vector<std::unique_ptr<Kind>> members_;
};

} // namespace dn::screen
