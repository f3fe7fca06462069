// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "valuereader.h"

#include <unordered_map>

namespace scl {

/// Resolves the type section of a file: every type once, cycles cut, sizes measured.
class TypeResolver : private ResolverPart
{
public:
    explicit TypeResolver(ResolverState &state)
        : ResolverPart(state)
        , m_values(state)
    {
    }

    /// Resolves all types, those that no logical node uses included.
    void resolve();

    /// The LNodeType of that id; null when there is none.
    const Template *nodeType(std::string_view id) const;

    /// True when the type holds an attribute of the functional constraint.
    bool hasConstraint(const Template *type, std::string_view fc) const;

private:
    enum class TypeState : std::uint8_t { Untouched, Open, Done };

    struct TypeEntry
    {
        std::uint32_t element = noElement;
        TypeState state = TypeState::Untouched;
        const Template *type = nullptr;
    };

    using TypeIndex = std::unordered_map<std::string_view, TypeEntry>;

    void indexTypes();
    bool isUsableId(std::uint32_t element, std::string_view id, std::string_view kind);
    void indexType(TypeIndex &index, std::uint32_t element, std::string_view kind);
    void reportDuplicate(std::uint32_t element, std::uint32_t first, std::string_view kind,
                         std::string_view id);
    void readEnumeration(std::uint32_t element, std::vector<Enumeration> &enumerations);
    const Template *typeOf(TypeEntry &entry);
    void collectConstraints(const Template &type);
    /// False when the node cannot be part of its type.
    bool readNode(std::uint32_t element, Tag tag, TemplateNode &node);
    void readCount(std::uint32_t element, TemplateNode &node);
    void readFunctionalConstraint(std::uint32_t element, TemplateNode &node);
    void readBasicType(std::uint32_t element, TemplateNode &node);
    void readEnumerationOf(std::uint32_t element, TemplateNode &node);
    bool takeType(std::uint32_t element, TypeIndex &index, std::string_view kind,
                  TemplateNode &node);
    void reportTooDeep(std::uint32_t element);
    void checkArraySizes(std::vector<TemplateNode> &nodes,
                         const std::vector<std::uint32_t> &elements);
    static void measure(Template &type);
    static std::uint32_t constraintBit(std::string_view fc);

    ValueReader m_values;
    TypeIndex m_lnTypes;
    TypeIndex m_doTypes;
    TypeIndex m_daTypes;
    std::unordered_map<std::string_view, const Enumeration *> m_enumerations;
    std::unordered_map<std::string_view, std::uint32_t> m_enumElements;
    std::unordered_map<const Template *, std::uint32_t> m_constraints;
    std::uint16_t m_typeDepth = 0;
};

} // namespace scl
