// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "simulator/model.h"
#include "simulator/peer.h"

#include <cstdint>
#include <initializer_list>
#include <map>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace sim {

/// What a client may write without an engine that decides about it.
class WriteRules
{
public:
    /// SP, CF, SV and BL.
    WriteRules() = default;
    WriteRules(std::initializer_list<Fc> writable);

    bool allows(Fc fc) const { return ((m_writable >> static_cast<unsigned>(fc)) & 1U) != 0; }

private:
    std::uint32_t m_writable =
        (1U << static_cast<unsigned>(Fc::SP)) | (1U << static_cast<unsigned>(Fc::CF)) |
        (1U << static_cast<unsigned>(Fc::SV)) | (1U << static_cast<unsigned>(Fc::BL));
};

/// A part of the model that behaves: a control block, a controllable object, settings. Its values
/// are those of the model; what it keeps elsewhere it brings there in refresh().
class Object
{
public:
    virtual ~Object() = default;

    /// A client is about to read values of this object, perhaps among others.
    virtual void refresh() {}
    /// A client reads @p part, which is this object or inside it. None for the model's value.
    virtual std::optional<mms::AccessResult> read(Peer &client, const Part &part);
    /// A client writes @p part, which is this object or inside it. @p value is of the part's type;
    /// the object puts it into the model itself. None when it was written.
    virtual std::optional<mms::DataAccessError> write(Peer &client, const Part &part,
                                                      const mms::Data &value) = 0;
};

/// What clients may do with a model: reads and writes of its parts, by rules and by the objects
/// that stand in it. Belongs to the device's strand.
class Access
{
public:
    explicit Access(Model &model, WriteRules rules = {});

    Model &model() { return m_model; }

    /// @p object decides about @p part, which is not inside an array, from now on; a deeper one
    /// decides before it. Nothing stands there yet.
    void attach(const Part &part, std::shared_ptr<Object> object);

    mms::AccessResult read(Peer &client, const mms::VariableAccess &access);
    mms::AccessResult read(Peer &client, const Part &part);
    /// None when it was written.
    std::optional<mms::DataAccessError> write(Peer &client, const mms::VariableAccess &access,
                                              const mms::Data &value);
    std::optional<mms::DataAccessError> write(Peer &client, const Part &part,
                                              const mms::Data &value);

private:
    using Key = std::pair<std::uint32_t, const LayoutNode *>; ///< logical node and node of its type

    /// The innermost object around a part.
    Object *around(const Part &part) const;
    bool hasObjectsWithin(const Part &part) const;
    void refreshWithin(const Part &part);
    mms::AccessResult select(Peer &client, const Part &part,
                             const std::vector<mms::AlternateAccess> &parts);
    mms::AccessResult selectOne(Peer &client, const Part &part,
                                const mms::AlternateAccess &selection);
    /// Some elements, or all elements, of an array.
    std::optional<mms::DataAccessError>
    writeElements(Peer &client, const mms::VariableAccess &access, const mms::Data &value);

    Model &m_model;
    WriteRules m_rules;
    std::map<Key, std::shared_ptr<Object>> m_objects;
    std::multimap<Leaf, Object *> m_objectsByLeaf;
};

} // namespace sim
