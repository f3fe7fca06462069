// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>
#include <system_error>
#include <type_traits>
#include <utility>
#include <vector>

/// What this code says to people: made below, where no language is known, and read above, where one
/// is. The English words are the code by which the words of another language are found; what is put
/// into them travels beside them.
namespace wording {

/// English words with a place, "%1" to "%9", for each of so many arguments.
template <std::size_t arguments>
struct Pattern
{
    const char *words;

    consteval Pattern(const char *text)
        : words(text)
    {
        bool used[10] = {};
        for (const char *at = text; *at; ++at) {
            if (*at == '%' && at[1] >= '1' && at[1] <= '9')
                used[at[1] - '0'] = true;
        }
        for (std::size_t number = 1; number < 10; ++number) {
            if (used[number] != (number <= arguments))
                throw "the words have not a place for each argument";
        }
    }
};

/// Words for a table.
template <std::size_t arguments = 0>
consteval Pattern<arguments> pattern(const char *words)
{
    return Pattern<arguments>(words);
}

/// A sentence, several, or a part of one, with what is put in. A sentence ends in one full stop; it
/// loses it where it stands within another one. Cheap to copy, never changes; any thread.
class Text
{
public:
    enum class Kind {
        Words,    ///< in nobody's language: a name, a number, what a peer or the system says
        Pattern,  ///< English words with texts in their places
        Sequence, ///< sentences behind each other
    };
    /// From the English words of a pattern to those of another language.
    using Translate = std::function<std::string(const std::string &words)>;

    Text() = default;
    Text(Kind kind, std::string_view words, std::vector<Text> parts);

    bool empty() const { return english().empty(); }
    /// For programs, logs and tests.
    const std::string &english() const;
    /// UTF-8.
    std::string inLanguage(const Translate &translate) const;

    friend bool operator==(const Text &one, const Text &other)
    {
        return one.english() == other.english();
    }
    friend bool operator==(const Text &one, std::string_view other)
    {
        return one.english() == other;
    }
    friend std::ostream &operator<<(std::ostream &stream, const Text &text)
    {
        return stream << text.english();
    }

private:
    struct Content
    {
        Kind kind = Kind::Words;
        std::string words;
        std::vector<Text> parts;
        std::string english;
    };

    std::shared_ptr<const Content> m_content;
};

/// What nobody translates.
Text verbatim(std::string_view words);
/// Sentences behind each other, each with its full stop; empty ones are left out.
Text sequence(const std::vector<Text> &each);
template <typename... Texts>
Text sentences(const Texts &...each)
{
    return sequence({each...});
}
/// What the operating system says; in its own words where this code has none for it.
Text ofSystem(const std::error_code &error);

inline Text asText(Text text)
{
    return text;
}
inline Text asText(std::string_view text)
{
    return verbatim(text);
}
template <typename Number, typename = std::enable_if_t<std::is_integral_v<Number>>>
Text asText(Number number)
{
    return verbatim(std::to_string(number));
}

/// The words with texts, strings and whole numbers in their places.
template <typename... Arguments>
Text say(Pattern<sizeof...(Arguments)> pattern, Arguments &&...each)
{
    return Text(Text::Kind::Pattern, pattern.words, {asText(std::forward<Arguments>(each))...});
}

} // namespace wording
