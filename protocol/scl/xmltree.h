// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "xmlnames.h"

#include "scl/reader.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace scl {

struct XmlAttribute
{
    Attr id = Attr::Other;
    std::string_view name; ///< set only below Services
    std::string_view value;
};

constexpr std::uint32_t noElement = 0xFFFFFFFFU;

struct XmlElement
{
    Tag tag = Tag::Other;
    std::uint32_t line = 0;
    std::uint32_t parent = noElement;
    std::uint32_t firstChild = noElement;
    std::uint32_t next = noElement;
    std::uint32_t attributesBegin = 0;
    std::uint32_t attributesEnd = 0;
    std::string_view name; ///< set only below Services
    std::string_view text;
};

/// The elements of an SCL file that matter, in one vector, parents before children. Texts live in
/// the memory resource that was given to parseXml().
class XmlTree
{
public:
    std::vector<XmlElement> elements; ///< the root element first
    std::vector<XmlAttribute> attributes;
    std::vector<Finding> findings; ///< about encoding and name spaces

    const XmlElement &at(std::uint32_t element) const { return elements[element]; }
    /// Value of an attribute, empty when it is not given.
    std::string_view value(std::uint32_t element, Attr attribute) const;
    /// Null when the attribute is not given.
    const std::string_view *find(std::uint32_t element, Attr attribute) const;
    std::span<const XmlAttribute> attributesOf(std::uint32_t element) const;
    std::uint32_t firstChild(std::uint32_t element, Tag tag) const;

    template <typename Visitor>
    void forEachChild(std::uint32_t element, Visitor &&visit) const
    {
        for (std::uint32_t i = elements[element].firstChild; i != noElement; i = elements[i].next)
            visit(i, elements[i].tag);
    }

    /// "SCL/IED[BAY1]/AccessPoint[S1]".
    std::string pathOf(std::uint32_t element) const;
};

/// What makes a file unusable.
struct XmlError
{
    ReadError error = ReadError::None;
    wording::Text text;
    std::uint32_t line = 0;
};

} // namespace scl
