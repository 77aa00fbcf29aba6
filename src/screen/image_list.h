// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The small pictures of a list, counted from 1. A picture is known by its name; the view draws it sharp at
// any scale.
#pragma once

#include "base/export.h"

#include <string>
#include <utility>
#include <vector>

namespace dn::screen {

class DN_INTERNAL ImageList {
public:
    ImageList(std::string name, std::vector<std::string> images)
        : name_(std::move(name)), images_(std::move(images))
    {
    }

    const std::string& name() const { return name_; }

    int Count() const { return static_cast<int>(images_.size()); }

    /// The name of a picture; empty for 0 and for a number that the list does not have.
    const std::string& image(int number) const
    {
        static const std::string none;
        return number >= 1 && number <= Count() ? images_[static_cast<std::size_t>(number - 1)] : none;
    }

private:
    std::string name_;
    std::vector<std::string> images_;
};

} // namespace dn::screen
