// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/report/document.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace dn::bench {
namespace {

std::size_t onlyPlaceOf(const std::string& document, std::string_view mark)
{
    const std::size_t place = document.find(mark);
    if (place == std::string::npos) throw std::runtime_error("the document lacks " + std::string(mark));
    if (document.find(mark, place + 1) != std::string::npos)
        throw std::runtime_error("the document has more than one " + std::string(mark));
    return place;
}

} // namespace

std::string withFigures(const std::string& document, std::string_view figures)
{
    const std::size_t begin = onlyPlaceOf(document, figuresBegin) + figuresBegin.size();
    const std::size_t end = onlyPlaceOf(document, figuresEnd);
    if (end < begin) throw std::runtime_error("the marks of the document stand the wrong way round");
    std::string text = document.substr(0, begin);
    text.append("\n\n").append(figures).append("\n");
    return text.append(document, end);
}

void writeFigures(const std::string& path, std::string_view figures)
{
    std::ifstream old(path, std::ios::binary);
    if (!old) throw std::runtime_error("cannot read " + path);
    const std::string document{std::istreambuf_iterator<char>(old), {}};
    const std::string text = withFigures(document, figures);
    const std::string beside = path + ".new";
    std::ofstream file(beside, std::ios::binary);
    file << text;
    file.close();
    if (!file) throw std::runtime_error("cannot write " + beside);
    std::filesystem::rename(beside, path);
}

} // namespace dn::bench
