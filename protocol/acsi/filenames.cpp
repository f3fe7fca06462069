// SPDX-License-Identifier: Apache-2.0
#include "acsi/filenames.h"

#include <algorithm>
#include <unordered_set>

namespace acsi {

namespace {

bool isSeparator(char c)
{
    return c == '/' || c == '\\';
}

std::string withBackslashes(std::string name)
{
    std::ranges::replace(name, '/', '\\');
    return name;
}

/// The name in the octets of ISO 8859-1; none when it has characters that are not there, or is no
/// UTF-8. Many devices know no other octets, and a name of theirs is shown by them.
std::optional<std::string> inLatin1(const std::string &name)
{
    std::string result;
    bool isOther = false;
    for (std::size_t i = 0; i < name.size(); ++i) {
        const auto octet = static_cast<unsigned char>(name[i]);
        if (octet < 0x80) {
            result += name[i];
            continue;
        }
        // U+0080 to U+00FF are C2 or C3 and one octet more.
        if ((octet != 0xC2 && octet != 0xC3) || i + 1 == name.size() ||
            (static_cast<unsigned char>(name[i + 1]) & 0xC0U) != 0x80U)
            return std::nullopt;
        ++i;
        result += static_cast<char>(((octet & 0x03U) << 6U) |
                                    (static_cast<unsigned char>(name[i]) & 0x3FU));
        isOther = true;
    }
    return isOther ? std::optional<std::string>(std::move(result)) : std::nullopt;
}

template <typename T>
void addOnce(std::vector<T> &list, T value)
{
    if (std::ranges::find(list, value) == list.end())
        list.push_back(std::move(value));
}

} // namespace

std::string plainName(std::string_view name)
{
    while (!name.empty() && isSeparator(name.front()))
        name.remove_prefix(1);
    std::string result(name);
    std::ranges::replace(result, '\\', '/');
    return result;
}

std::string plainName(const mms::FileName &name)
{
    std::string result;
    for (const std::string &part : name) {
        if (!result.empty() && !isSeparator(result.back()) &&
            (part.empty() || !isSeparator(part.front())))
            result += '/';
        result += part;
    }
    return plainName(std::string_view(result));
}

std::vector<std::string> spellingsOf(const std::string &name)
{
    const std::string plain = plainName(std::string_view(name));
    std::vector<std::string> result{name};
    addOnce(result, plain);
    addOnce(result, '/' + plain);
    addOnce(result, withBackslashes(plain));
    addOnce(result, withBackslashes('/' + plain));
    if (const auto octets = inLatin1(name)) {
        for (std::string &spelling : spellingsOf(*octets))
            addOnce(result, std::move(spelling));
    }
    return result;
}

std::vector<std::optional<std::string>> directorySpellingsOf(const std::string &directory)
{
    std::string plain = plainName(std::string_view(directory));
    while (!plain.empty() && plain.back() == '/')
        plain.pop_back();
    if (plain.empty())
        return {std::nullopt, "/", "\\"};
    std::vector<std::optional<std::string>> result{plain + '/', plain, '/' + plain + '/'};
    addOnce<std::optional<std::string>>(result, withBackslashes(plain + '/'));
    addOnce<std::optional<std::string>>(result, withBackslashes('/' + plain));
    if (const auto octets = inLatin1(plain)) {
        for (std::optional<std::string> &spelling : directorySpellingsOf(*octets))
            addOnce(result, std::move(spelling));
    }
    return result;
}

bool isUnknownName(const mms::CallOutcome &outcome)
{
    using namespace mms::serviceerrors;
    const auto *error = std::get_if<mms::ServiceError>(&outcome);
    if (!error)
        return false;
    switch (error->errorClass) {
    case mms::ErrorClass::File:
        return error->code == fileNonExistent || error->code == fileNameSyntaxError ||
               error->code == fileNameAmbiguous || error->code == 0;
    case mms::ErrorClass::Access:
        return error->code == accessNonExistent;
    case mms::ErrorClass::Definition:
        return error->code == definitionObjectUndefined;
    default:
        return false;
    }
}

std::vector<FileEntry> oneLevel(const std::string &directory,
                                const std::vector<mms::DirectoryEntry> &entries)
{
    std::string prefix = plainName(std::string_view(directory));
    if (!prefix.empty() && prefix.back() != '/')
        prefix += '/';
    // Names may be complete or relative to the directory, and a peer may list more than was asked.
    const bool complete =
        !prefix.empty() && std::ranges::any_of(entries, [&prefix](const auto &entry) {
            return plainName(entry.name).starts_with(prefix);
        });
    std::vector<FileEntry> result;
    std::unordered_set<std::string> known;
    for (const mms::DirectoryEntry &entry : entries) {
        std::string name = plainName(entry.name);
        if (complete) {
            if (!name.starts_with(prefix))
                continue;
            name = plainName(std::string_view(name).substr(prefix.size()));
        }
        const std::size_t separator = name.find('/');
        FileEntry found;
        found.name = name.substr(0, separator == std::string::npos ? separator : separator + 1);
        const bool isItself = found.name.empty() || found.name == "." || found.name == "./";
        const bool isParent = found.name == ".." || found.name == "../";
        if (isItself || isParent || !known.insert(found.name).second)
            continue;
        if (separator == std::string::npos || separator + 1 == name.size()) {
            found.size = entry.attributes.size;
            found.lastModified = entry.attributes.lastModified.value_or(std::string());
        }
        result.push_back(std::move(found));
    }
    return result;
}

} // namespace acsi
