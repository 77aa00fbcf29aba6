// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/database/sample/people.h"

#include "base/text.h"

namespace dn::host::sample {
namespace {

/// The plain letter of an accented small one; 0 for what no mail address holds.
char plainLetter(char32_t c)
{
    switch (c) {
    case U'á':
        return 'a';
    case U'é':
        return 'e';
    case U'í':
        return 'i';
    case U'ó':
        return 'o';
    case U'ú':
    case U'ü':
        return 'u';
    case U'ñ':
        return 'n';
    case U' ':
        return '.';
    default:
        return c >= U'a' && c <= U'z' ? static_cast<char>(c) : '\0';
    }
}

std::string digits(Dice& dice, int count)
{
    std::string text;
    for (int i = 0; i < count; ++i)
        text += static_cast<char>('0' + dice.between(i == 0 ? 1 : 0, 9));
    return text;
}

} // namespace

std::string plainName(std::string_view text)
{
    std::string plain;
    while (!text.empty()) {
        const char letter = plainLetter(foldCase(takeCharacter(text)));
        if (letter != '\0') plain += letter;
    }
    return plain;
}

std::string fullName(Dice& dice)
{
    std::string name(dice.pick(givenNames()));
    (name += ' ') += dice.pick(surnames());
    if (dice.chance(70)) (name += ' ') += dice.pick(surnames());
    return name;
}

std::string company(Dice& dice)
{
    std::string name(dice.pick(companyKinds()));
    (name += ' ') += dice.pick(companyNames());
    const std::string_view form = dice.pick(companyForms());
    if (!form.empty()) (name += ' ') += form;
    return name;
}

std::string mailAddress(Dice& dice, std::string_view name)
{
    std::string address = plainName(name);
    if (dice.chance(40)) address += std::to_string(dice.between(1, 99));
    return (address += '@') += dice.pick(mailHosts());
}

std::string telephone(Dice& dice)
{
    std::string number = digits(dice, 10);
    switch (dice.between(0, 4)) {
    case 0:
        return number;
    case 1:
        return "(" + number.substr(0, 3) + ") " + number.substr(3, 3) + "-" + number.substr(6);
    case 2:
        return number.substr(0, 3) + " " + number.substr(3, 3) + " " + number.substr(6);
    case 3:
        return "01 " + number.substr(0, 3) + " " + number.substr(3) + " ext. " + digits(dice, 3);
    default:
        return "+52 " + number;
    }
}

std::string streetAddress(Dice& dice)
{
    return std::string(dice.pick(streets())) + " No. " + std::to_string(dice.between(1, 2400));
}

std::string postalCode(Dice& dice) { return "2" + digits(dice, 4); }

} // namespace dn::host::sample
