// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A captioned drop-down list whose entries carry a key beside their text.
#pragma once

#include "base/export.h"
#include "screen/combo_box.h"
#include "screen/label.h"
#include "screen/panels.h"

#include <cstdint>
#include <string>

namespace dn::screen {

/// A panel with a label and a list, named after it: "dxColor.caption" and "dxColor.InnerList". The list takes the
/// width that the caption leaves.
class DN_INTERNAL eOptionLstField : public PicturePanel {
public:
    eOptionLstField(Container* parent, const std::string& name);

    const std::string& caption() const { return title_.Caption(); }

    void caption(std::string text) { title_.Caption(std::move(text)); }

    /// Width of the caption.
    void titleWidth(Twips width);

    /// Adds an entry at the end.
    void AddOption(std::int32_t key, std::string text);

    int OptionCount() const { return list_.ListCount(); }

    /// The key of the selected entry. @throws RuntimeError when none is selected.
    std::int32_t SelectedKey() const { return list_.selectedData(); }

    ComboBox& InnerList() { return list_; }

private:
    void arrange();

    Label title_;
    ComboBox list_;
    Twips titleWidth_ = 1500;
    Subscription resized_;
};

} // namespace dn::screen
