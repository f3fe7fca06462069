// SPDX-License-Identifier: Apache-2.0
#include "xmlencoding.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

namespace scl {

using wording::say;

namespace {

std::string lowered(std::string_view text)
{
    std::string result(text);
    for (char &c : result) {
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    }
    return result;
}

/// Encoding named by the XML declaration of a file in an encoding that contains ASCII, else empty.
std::string_view declaredEncoding(std::string_view head)
{
    if (head.starts_with("\xEF\xBB\xBF"))
        head.remove_prefix(3);
    if (!head.starts_with("<?xml"))
        return {};
    head = head.substr(0, head.find("?>"));
    std::size_t position = head.find("encoding");
    if (position == std::string_view::npos)
        return {};
    position = head.find_first_of("'\"", position);
    if (position == std::string_view::npos)
        return {};
    const std::size_t end = head.find(head[position], position + 1);
    if (end == std::string_view::npos)
        return {};
    return head.substr(position + 1, end - position - 1);
}

/// Windows-1252 differs from ISO-8859-1 in these 32 positions; -1 marks those without a character.
constexpr std::array<int, 32> windows1252 = {
    0x20AC, -1,     0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, -1,     0x017D, -1,     -1,     0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, -1,     0x017E, 0x0178};

} // namespace

EncodingChoice chooseEncoding(std::string_view head)
{
    // The mark at the start is right even where the declaration names another encoding.
    if (head.starts_with("\xFF\xFE") || head.starts_with("\xFE\xFF"))
        return {"UTF-16", {}};
    const std::string_view declared = declaredEncoding(head);
    const std::string name = lowered(declared);
    if (name == "utf8" || name == "utf_8") {
        return {"UTF-8",
                say("The encoding is written \"%1\" instead of \"UTF-8\"; it is read as UTF-8.",
                    declared)};
    }
    if (name.starts_with("utf-16") || name.starts_with("utf16") || name == "ucs-2" ||
        name == "unicode") {
        return {
            "UTF-8",
            say("The encoding is declared as \"%1\", but the file holds single bytes; it is read as UTF-8.",
                declared)};
    }
    if (name == "iso8859-1" || name == "iso_8859-1" || name == "iso-8859-1" || name == "latin1" ||
        name == "latin-1") {
        const bool usual = name == "iso-8859-1";
        return {"ISO-8859-1",
                usual ? wording::Text()
                      : say("The encoding is written \"%1\" instead of \"ISO-8859-1\".", declared)};
    }
    return {};
}

int XMLCALL unknownEncoding(void *, const XML_Char *name, XML_Encoding *info)
{
    const std::string encoding = lowered(name);
    if (encoding != "windows-1252" && encoding != "cp1252" && encoding != "iso-8859-15")
        return XML_STATUS_ERROR;
    for (int i = 0; i < 256; ++i)
        info->map[i] = i;
    if (encoding == "iso-8859-15") {
        constexpr std::array<std::pair<int, int>, 8> changes = {{{0xA4, 0x20AC},
                                                                 {0xA6, 0x0160},
                                                                 {0xA8, 0x0161},
                                                                 {0xB4, 0x017D},
                                                                 {0xB8, 0x017E},
                                                                 {0xBC, 0x0152},
                                                                 {0xBD, 0x0153},
                                                                 {0xBE, 0x0178}}};
        for (const auto &[position, character] : changes)
            info->map[position] = character;
    } else {
        std::copy(windows1252.begin(), windows1252.end(), info->map + 0x80);
    }
    info->data = nullptr;
    info->convert = nullptr;
    info->release = nullptr;
    return XML_STATUS_OK;
}

} // namespace scl
