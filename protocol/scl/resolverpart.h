// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "xmltree.h"

#include <charconv>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace scl {

/// What the parts that make a document out of a file's elements work on together.
struct ResolverState
{
    const XmlTree &tree;
    const ReadOptions &options;
    Document &document;
    XmlError error; ///< what makes the file unusable, if anything
};

template <typename Number>
std::optional<Number> toNumber(std::string_view text)
{
    text = trimmed(text);
    Number number{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || text.empty())
        return std::nullopt;
    return number;
}

/// What every part needs: findings, memory of the document, attributes of elements.
class ResolverPart
{
protected:
    explicit ResolverPart(ResolverState &state)
        : m_state(state)
        , m_tree(state.tree)
        , m_options(state.options)
        , m_document(state.document)
    {
    }

    void addFinding(Finding finding);
    /// False, and the finding counted as left out, when there are as many as the options allow.
    bool roomForFinding(Severity severity);
    void report(Severity severity, std::uint32_t element, wording::Text text);

    void info(std::uint32_t element, wording::Text text)
    {
        report(Severity::Info, element, std::move(text));
    }
    void warn(std::uint32_t element, wording::Text text)
    {
        report(Severity::Warning, element, std::move(text));
    }
    void error(std::uint32_t element, wording::Text text)
    {
        report(Severity::Error, element, std::move(text));
    }

    /// True when there is an error, or when the reader was cancelled, which makes one.
    bool stopped();

    // What is kept lives as long as the document.

    template <typename Item>
    std::span<Item> keepMutable(const std::vector<Item> &items)
    {
        static_assert(std::is_trivially_destructible_v<Item>);
        if (items.empty())
            return {};
        void *place = m_document.memory().allocate(items.size() * sizeof(Item), alignof(Item));
        auto *first = static_cast<Item *>(place);
        std::uninitialized_copy(items.begin(), items.end(), first);
        return {first, items.size()};
    }

    template <typename Item>
    std::span<const Item> keep(const std::vector<Item> &items)
    {
        return keepMutable(items);
    }

    template <typename Item>
    const Item *keepOne(const Item &item)
    {
        static_assert(std::is_trivially_destructible_v<Item>);
        void *place = m_document.memory().allocate(sizeof(Item), alignof(Item));
        return new (place) Item(item);
    }

    std::string_view keepText(std::string_view text);
    /// The texts one behind the other.
    std::string_view joined(std::string_view a, std::string_view b, std::string_view c = {});

    std::string_view value(std::uint32_t element, Attr attribute) const
    {
        return m_tree.value(element, attribute);
    }
    std::uint32_t number(std::uint32_t element, Attr attribute, std::string_view name,
                         std::uint32_t fallback);
    bool flag(std::uint32_t element, Attr attribute, bool fallback);

    ResolverState &m_state;
    const XmlTree &m_tree;
    const ReadOptions &m_options;
    Document &m_document;

private:
    std::string m_scratch;
};

} // namespace scl
