// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "simulator/layout.h"

#include "mms/data.h"
#include "mms/variableaccess.h"
#include "scl/model.h"

#include <cstdint>
#include <map>
#include <memory>
#include <memory_resource>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace sim {

/// Number of a leaf attribute in a model. The leaves of a part follow each other.
using Leaf = std::uint32_t;

/// A node of the tree of a model: a logical node, all its data with one functional constraint, a
/// data object, a control block, a structure, an array, one of its elements, or a leaf. Cheap to
/// copy; valid as long as the model.
class Part
{
public:
    Part() = default;
    Part(const Layout *layout, const LayoutNode *node, std::uint32_t logicalNode, Leaf firstLeaf)
        : m_layout(layout)
        , m_node(node)
        , m_logicalNode(logicalNode)
        , m_firstLeaf(firstLeaf)
    {
    }

    bool isValid() const { return m_node != nullptr; }
    const LayoutNode &node() const { return *m_node; }
    std::string_view name() const { return m_node->name; }
    /// Not of a logical node as a whole.
    Fc fc() const { return m_node->fc; }
    bool isLeaf() const { return m_node->isLeaf(); }
    /// Position of the logical node in the model.
    std::uint32_t logicalNode() const { return m_logicalNode; }
    /// Of a leaf: its number.
    Leaf firstLeaf() const { return m_firstLeaf; }
    std::uint32_t leafCount() const { return m_node->leafCount; }
    bool contains(Leaf leaf) const
    {
        return leaf >= m_firstLeaf && leaf - m_firstLeaf < m_node->leafCount;
    }

    /// By name; invalid when there is none.
    Part child(std::string_view name) const;
    /// By position, in the order of the type; elements for an array. @p index is below
    /// childCount().
    Part childAt(std::uint32_t index) const;
    std::uint32_t childCount() const
    {
        return m_node->isArray() ? m_node->elementCount : m_node->childCount;
    }
    /// "DO$SDO$DA" below this part; empty text for the part itself. Invalid when there is none.
    Part descendant(std::string_view path) const;

    mms::TypeDescription type() const;

    friend bool operator==(const Part &left, const Part &right)
    {
        return left.m_node == right.m_node && left.m_logicalNode == right.m_logicalNode &&
               left.m_firstLeaf == right.m_firstLeaf;
    }

private:
    friend class Model;

    const Layout *m_layout = nullptr;
    const LayoutNode *m_node = nullptr;
    std::uint32_t m_logicalNode = 0;
    Leaf m_firstLeaf = 0;
};

/// That a leaf was given a value, and which of its trigger options the value fired.
struct Change
{
    Leaf leaf = 0;
    Trigger fired = Trigger::None;
};

/// Hears of changes that fire a trigger.
class ChangeListener
{
public:
    virtual ~ChangeListener() = default;

    /// Values that were given together, in the order in which they were given; all of them are in
    /// the model. Listeners may change the model; they hear of that afterwards.
    virtual void changed(std::span<const Change> changes) = 0;
};

/// The data of an IED, made from its SCL description: logical devices, logical nodes, functional
/// constraints, data, and the control blocks, with their MMS names, types and values.
///
/// Structures are shared by all logical nodes of a type, so that an attribute costs little more
/// than its value. Values come from the instance, else from the type, else are what a healthy
/// device would show. The model keeps nothing of the SCL document. It belongs to one strand.
class Model
{
public:
    struct LogicalNode
    {
        std::string_view name;
        std::uint32_t domain = 0; ///< position of its logical device
        Leaf firstLeaf = 0;
        const Layout *layout = nullptr;
    };

    struct Domain
    {
        std::string_view name; ///< of the MMS domain
        std::string_view inst; ///< attribute `inst` of the logical device
        std::uint32_t firstNode = 0;
        std::uint32_t nodeCount = 0;
        std::vector<std::uint32_t> nodesByName;
        std::unordered_map<std::string_view, std::uint32_t> nodeOfName;
    };

    /// A setting, once as it is active (SG) and once as it is edited (SE).
    struct Setting
    {
        Leaf active = 0;
        Leaf edited = 0;
    };

    /// @p now is the time stamp of everything that has one. Control blocks of a device of the first
    /// edition have no owner and no reservation time.
    Model(const scl::Ied &ied, const mms::UtcTime &now, bool firstEdition = false);
    Model(const Model &) = delete;
    Model &operator=(const Model &) = delete;
    ~Model();

    std::string_view iedName() const { return m_iedName; }
    std::span<const Domain> domains() const { return m_domains; }
    std::span<const LogicalNode> logicalNodes() const { return m_logicalNodes; }
    const Domain *findDomain(std::string_view name) const;
    /// Names of all domains, sorted.
    std::vector<std::string> domainNames() const;

    /// "LN", "LN$FC" or "LN$FC$DO$…"; invalid when there is none.
    Part find(std::string_view domain, std::string_view item) const;
    Part logicalNode(std::uint32_t index) const;
    /// The part that @p access names: a variable, or what one unbranched alternate access selects
    /// of it. Invalid when there is none.
    Part find(const mms::VariableAccess &access) const;
    /// The leaf as a part; @p leaf is below leafCount().
    Part leafPart(Leaf leaf) const;
    /// The logical node of a leaf.
    std::uint32_t logicalNodeOf(Leaf leaf) const;
    /// "LN$FC$DO", with "(3)" behind the name of an array for one of its elements.
    std::string itemName(const Part &part) const;

    enum class NameOrder : std::uint8_t {
        Sorted,  ///< octet by octet
        OfTypes, ///< logical nodes as in the description, what is inside them as in their types
    };
    /// Names of the variables of a domain behind @p after, or from the first when it is empty; as
    /// many as @p octets of an answer have room for. None when @p after does not exist.
    struct NamePage
    {
        std::vector<std::string> names;
        bool moreFollows = false;
    };
    std::optional<NamePage> variableNames(const Domain &domain, std::string_view after,
                                          std::size_t octets,
                                          NameOrder order = NameOrder::Sorted) const;

    std::uint32_t leafCount() const { return static_cast<std::uint32_t>(m_values.size()); }
    const mms::Data &value(Leaf leaf) const { return m_values[leaf]; }
    /// The value of a part as one piece of data.
    mms::Data value(const Part &part) const;
    bool isReadOnly(Leaf leaf) const { return (m_flags[leaf] & readOnlyFlag) != 0; }
    /// Trigger options of a leaf.
    Trigger triggers(Leaf leaf) const { return static_cast<Trigger>(m_flags[leaf] & triggerFlags); }

    /// None when @p data can be a value of @p part, else why not: TypeInconsistent or
    /// ObjectValueInvalid.
    static std::optional<mms::DataAccessError> check(const Part &part, const mms::Data &data);

    /// Gives a leaf a value, which must be of its type. Fires data-update where the leaf has that
    /// option, data-change and quality-change where the value is another than before as well.
    void set(Leaf leaf, mms::Data value);
    /// Likewise for every leaf of a part; @p value has passed check().
    void set(const Part &part, const mms::Data &value);

    /// While one exists, changes are gathered; listeners hear of them together at its end.
    class Batch
    {
    public:
        explicit Batch(Model &model)
            : m_model(model)
        {
            ++m_model.m_batches;
        }
        Batch(const Batch &) = delete;
        Batch &operator=(const Batch &) = delete;
        ~Batch()
        {
            if (--m_model.m_batches == 0)
                m_model.notify();
        }

    private:
        Model &m_model;
    };

    /// @p listener is removed before it dies.
    void addListener(ChangeListener *listener);
    void removeListener(ChangeListener *listener);

    /// All settings of a logical device, which its setting group control block governs.
    std::vector<Setting> settings(const Domain &domain) const;
    /// The value that the SCL file gives a setting in a group (from 1), else its present value.
    mms::Data configuredValue(Leaf setting, std::uint32_t group) const;

private:
    class Builder;

    static constexpr std::uint8_t triggerFlags = 7;
    static constexpr std::uint8_t readOnlyFlag = 8;

    void notify();

    std::pmr::monotonic_buffer_resource m_memory; ///< names
    std::string_view m_iedName;
    std::vector<std::unique_ptr<const Layout>> m_layouts;
    std::vector<LogicalNode> m_logicalNodes;
    std::vector<Domain> m_domains;
    std::vector<mms::Data> m_values;
    std::vector<std::uint8_t> m_flags; ///< of leaves: triggers and readOnlyFlag
    std::map<std::pair<Leaf, std::uint32_t>, mms::Data> m_groupValues;
    std::vector<ChangeListener *> m_listeners;
    std::vector<Change> m_changes;
    unsigned m_batches = 0;
    bool m_notifying = false;
};

} // namespace sim
