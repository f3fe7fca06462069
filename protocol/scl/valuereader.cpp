// SPDX-License-Identifier: Apache-2.0
#include "valuereader.h"

#include <array>

namespace scl {

std::span<const ConfiguredValue> ValueReader::readValues(std::uint32_t element,
                                                         const TemplateNode &node)
{
    std::array<ConfiguredValue, 1> single;
    std::size_t count = 0;
    std::vector<ConfiguredValue> several;
    m_tree.forEachChild(element, [&](std::uint32_t child, Tag tag) {
        if (tag != Tag::Val)
            return;
        const ConfiguredValue configured = readValue(child, node);
        if (count == 1 && several.empty())
            several.push_back(single.front());
        if (count == 0)
            single.front() = configured;
        else
            several.push_back(configured);
        ++count;
    });
    if (count == 0)
        return {};
    return count == 1 ? std::span<const ConfiguredValue>(keepOne(single.front()), 1)
                      : keep(several);
}

ConfiguredValue ValueReader::readValue(std::uint32_t element, const TemplateNode &node)
{
    ConfiguredValue result;
    result.settingGroup = number(element, Attr::SGroup, "sGroup", 0);
    result.text = m_tree.at(element).text;
    const ParsedValue parsed =
        parseValue(node.basicType, node.enumeration, result.text, m_document.memory());
    result.value = parsed.value;
    if (parsed.note == ValueNote::None)
        return result;
    switch (parsed.note) {
    case ValueNote::None:
        break;
    case ValueNote::Empty:
        if (roomForFinding(Severity::Info))
            info(element, "The value is empty, so the attribute has none.");
        break;
    case ValueNote::OrdinalForText:
        if (roomForFinding(Severity::Info))
            info(element, "The value is given by its number " + quoted(trimmed(result.text)) +
                              " instead of its text.");
        break;
    case ValueNote::Blanks:
        if (roomForFinding(Severity::Info))
            info(element, "The value " + quoted(result.text) +
                              " differs in blanks or capitals from what is expected.");
        break;
    case ValueNote::BooleanSpelling:
        if (roomForFinding(Severity::Info))
            info(element, "The truth value is written " + quoted(result.text) +
                              " instead of \"true\" or \"false\".");
        break;
    case ValueNote::Unfit: {
        const std::string_view type = node.basicTypeName.empty() ? "its type" : node.basicTypeName;
        std::string text = quoted(result.text);
        text.append(" is not a value of ").append(type);
        if (node.enumeration)
            text.append(1, ' ').append(quoted(node.enumeration->id));
        error(element, text + "; the attribute has no value.");
        break;
    }
    }
    return result;
}

} // namespace scl
