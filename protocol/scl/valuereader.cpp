// SPDX-License-Identifier: Apache-2.0
#include "valuereader.h"

#include <array>

namespace scl {

using wording::say;

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
            info(element, say("The value is empty, so the attribute has none."));
        break;
    case ValueNote::OrdinalForText:
        if (roomForFinding(Severity::Info))
            info(element, say("The value is given by its number \"%1\" instead of its text.",
                              trimmed(result.text)));
        break;
    case ValueNote::Blanks:
        if (roomForFinding(Severity::Info))
            info(element,
                 say("The value \"%1\" differs in blanks or capitals from what is expected.",
                     result.text));
        break;
    case ValueNote::BooleanSpelling:
        if (roomForFinding(Severity::Info))
            info(element, say("The truth value is written \"%1\" instead of \"true\" or \"false\".",
                              result.text));
        break;
    case ValueNote::Unfit: {
        const std::string_view type = node.basicTypeName;
        error(element, node.enumeration && !type.empty()
                           ? say("\"%1\" is not a value of %2 \"%3\"; the attribute has no value.",
                                 result.text, type, node.enumeration->id)
                       : type.empty()
                           ? say("\"%1\" is not a value of its type; the attribute has no value.",
                                 result.text)
                           : say("\"%1\" is not a value of %2; the attribute has no value.",
                                 result.text, type));
        break;
    }
    }
    return result;
}

} // namespace scl
