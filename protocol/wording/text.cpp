// SPDX-License-Identifier: Apache-2.0
#include "wording/text.h"

#include <algorithm>
#include <array>

namespace wording {

namespace {

using namespace std::string_view_literals;

constexpr std::array fullStops{"."sv, "。"sv};
constexpr std::array sentenceEnds{"."sv,  "!"sv,  "?"sv,  "…"sv, ":"sv,
                                  "。"sv, "！"sv, "？"sv, "："sv};
/// Before these an argument loses its own full stop.
constexpr std::array punctuation{" ("sv, "（"sv, "."sv,  ";"sv,  ","sv,  ":"sv,
                                 ")"sv,  "。"sv, "；"sv, "，"sv, "："sv, "）"sv};

template <typename Ends>
bool endsWithOneOf(std::string_view text, const Ends &ends)
{
    return std::any_of(ends.begin(), ends.end(),
                       [&](std::string_view end) { return text.ends_with(end); });
}

struct Part
{
    std::string text;
    bool isName = false; ///< a full stop at its end belongs to it
};

std::string filled(std::string_view words, const std::vector<Part> &arguments)
{
    std::string result;
    for (std::size_t at = 0; at < words.size(); ++at) {
        const std::size_t number = words[at] == '%' && at + 1 < words.size() &&
                                           words[at + 1] >= '1' && words[at + 1] <= '9'
                                       ? static_cast<std::size_t>(words[at + 1] - '0')
                                       : 0;
        if (number == 0 || number > arguments.size()) {
            result += words[at];
            continue;
        }
        ++at;
        std::string_view argument = arguments[number - 1].text;
        const std::string_view behind = words.substr(at + 1);
        if (!arguments[number - 1].isName &&
            std::any_of(punctuation.begin(), punctuation.end(),
                        [&](std::string_view mark) { return behind.starts_with(mark); })) {
            for (const std::string_view stop : fullStops) {
                if (argument.ends_with(stop) && !argument.ends_with("..."))
                    argument.remove_suffix(stop.size());
            }
        }
        result += argument;
    }
    return result;
}

std::string joined(const std::vector<Part> &sentences)
{
    std::string result;
    for (const auto &[sentence, isName] : sentences) {
        if (!result.empty() && !result.ends_with("。"))
            result += ' ';
        result += sentence;
        if (!endsWithOneOf(sentence, sentenceEnds))
            result += '.';
    }
    return result;
}

std::string arranged(Text::Kind kind, std::string_view words, const std::vector<Part> &parts)
{
    switch (kind) {
    case Text::Kind::Words:
        break;
    case Text::Kind::Pattern:
        return filled(words, parts);
    case Text::Kind::Sequence:
        return joined(parts);
    }
    return std::string(words);
}

/// What others say in several words is a sentence.
template <typename Pointer>
bool isName(const Pointer &content)
{
    return !content ||
           (content->kind == Text::Kind::Words && content->words.find(' ') == std::string::npos);
}

struct SystemWords
{
    std::errc error;
    Pattern<0> words;
};

constexpr SystemWords systemWords[] = {
    {std::errc::connection_refused, pattern("Connection refused")},
    {std::errc::timed_out, pattern("Connection timed out")},
    {std::errc::host_unreachable, pattern("No route to host")},
    {std::errc::network_unreachable, pattern("Network is unreachable")},
    {std::errc::network_down, pattern("Network is down")},
    {std::errc::connection_reset, pattern("Connection reset by peer")},
    {std::errc::connection_aborted, pattern("Software caused connection abort")},
    {std::errc::broken_pipe, pattern("Broken pipe")},
    {std::errc::operation_canceled, pattern("Operation canceled")},
    {std::errc::address_in_use, pattern("Address already in use")},
    {std::errc::address_not_available, pattern("Cannot assign requested address")},
    {std::errc::permission_denied, pattern("Permission denied")},
    {std::errc::operation_not_permitted, pattern("Operation not permitted")},
    {std::errc::no_such_file_or_directory, pattern("No such file or directory")},
    {std::errc::not_a_directory, pattern("Not a directory")},
    {std::errc::is_a_directory, pattern("Is a directory")},
    {std::errc::no_space_on_device, pattern("No space left on device")},
    {std::errc::read_only_file_system, pattern("Read-only file system")},
    {std::errc::too_many_files_open, pattern("Too many open files")},
    {std::errc::not_enough_memory, pattern("Cannot allocate memory")},
    {std::errc::io_error, pattern("Input/output error")},
};

} // namespace

Text::Text(Kind kind, std::string_view words, std::vector<Text> parts)
{
    std::vector<Part> english;
    english.reserve(parts.size());
    for (const Text &part : parts)
        english.push_back({part.english(), isName(part.m_content)});
    auto content = std::make_shared<Content>();
    content->kind = kind;
    content->words = words;
    content->parts = std::move(parts);
    content->english = arranged(kind, words, english);
    m_content = std::move(content);
}

const std::string &Text::english() const
{
    static const std::string none;
    return m_content ? m_content->english : none;
}

std::string Text::inLanguage(const Translate &translate) const
{
    if (!m_content)
        return {};
    std::vector<Part> parts;
    parts.reserve(m_content->parts.size());
    for (const Text &part : m_content->parts)
        parts.push_back({part.inLanguage(translate), isName(part.m_content)});
    return arranged(
        m_content->kind,
        m_content->kind == Kind::Pattern ? translate(m_content->words) : m_content->words, parts);
}

Text verbatim(std::string_view words)
{
    return words.empty() ? Text() : Text(Text::Kind::Words, words, {});
}

Text ofSystem(const std::error_code &error)
{
    for (const SystemWords &known : systemWords) {
        if (error == known.error)
            return say(known.words);
    }
    return verbatim(error.message());
}

Text sequence(const std::vector<Text> &each)
{
    std::vector<Text> given;
    std::copy_if(each.begin(), each.end(), std::back_inserter(given),
                 [](const Text &text) { return !text.empty(); });
    if (given.size() == 1)
        return given.front();
    return given.empty() ? Text() : Text(Text::Kind::Sequence, {}, std::move(given));
}

} // namespace wording
