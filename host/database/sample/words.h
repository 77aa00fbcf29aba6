// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The vocabulary of the sample data, and nothing but it.
#pragma once

#include <span>
#include <string_view>

namespace dn::host::sample {

using Words = std::span<const std::string_view>;

struct City {
    std::string_view name, state;
};

Words agents();     ///< full names
Words givenNames(); ///< in part two of them
Words surnames();
Words companyKinds();
Words companyNames();
Words companyForms(); ///< "S.A. de C.V." and the like
Words jobTitles();
Words streets();
Words quarters(); ///< "colonias"
std::span<const City> cities();
Words otherCountries();
Words mailHosts();
Words interests();     ///< plain ones
Words interestLinks(); ///< of the company's download pages
Words webLinks();      ///< by which a prospect arrived
Words origins();
Words referrals();
Words remarks();
Words discardReasons();
Words noInterestReasons();
Words callSummaries();
Words notes();
Words goals();
Words activityKinds();
Words activitySubjects();
Words projectKinds();

} // namespace dn::host::sample
