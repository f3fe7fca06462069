// SPDX-License-Identifier: Apache-2.0
#include "xmltree.h"

#include <algorithm>

namespace scl {

const std::string_view *XmlTree::find(std::uint32_t element, Attr attribute) const
{
    const XmlElement &e = elements[element];
    for (std::uint32_t i = e.attributesBegin; i < e.attributesEnd; ++i) {
        if (attributes[i].id == attribute)
            return &attributes[i].value;
    }
    return nullptr;
}

std::string_view XmlTree::value(std::uint32_t element, Attr attribute) const
{
    const std::string_view *found = find(element, attribute);
    return found ? *found : std::string_view();
}

std::span<const XmlAttribute> XmlTree::attributesOf(std::uint32_t element) const
{
    const XmlElement &e = elements[element];
    return std::span(attributes).subspan(e.attributesBegin, e.attributesEnd - e.attributesBegin);
}

std::uint32_t XmlTree::firstChild(std::uint32_t element, Tag tag) const
{
    std::uint32_t child = elements[element].firstChild;
    while (child != noElement && elements[child].tag != tag)
        child = elements[child].next;
    return child;
}

std::string XmlTree::pathOf(std::uint32_t element) const
{
    std::vector<std::uint32_t> chain;
    for (std::uint32_t i = element; i != noElement; i = elements[i].parent)
        chain.push_back(i);
    std::reverse(chain.begin(), chain.end());
    std::string path;
    for (const std::uint32_t i : chain) {
        const XmlElement &e = elements[i];
        if (!path.empty())
            path += '/';
        path += e.name.empty() ? tagName(e.tag) : e.name;
        std::string key;
        if (e.tag == Tag::Ln || e.tag == Tag::Ln0) {
            key = std::string(value(i, Attr::Prefix)) + std::string(value(i, Attr::LnClass)) +
                  std::string(value(i, Attr::Inst));
        } else {
            for (const Attr attribute : {Attr::Name, Attr::Inst, Attr::Id, Attr::ApName,
                                         Attr::DoName, Attr::CbName, Attr::Ord}) {
                if (const std::string_view *found = find(i, attribute)) {
                    key = *found;
                    break;
                }
            }
            if (e.tag == Tag::Fcda && find(i, Attr::DaName))
                key.append(1, '.').append(value(i, Attr::DaName));
        }
        if (!key.empty()) {
            path += '[';
            path += key;
            path += ']';
        }
    }
    return path;
}

} // namespace scl
