// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "scl/findings.h"
#include "scl/value.h"

#include <algorithm>
#include <cstdint>
#include <memory_resource>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// The contents of an SCL file (IEC 61850-6), resolved: every instance knows its type, every data
/// set its members, every control block its data set.
///
/// Everything is owned by the `Document` and lives in one arena: views, spans and pointers stay
/// valid for the life of the document and none of them is ever to be freed. The types of data
/// objects and attributes are shared by all their instances; `DataNode` walks the tree that a
/// logical node has with them. A document is immutable after reading, so any number of threads may
/// read it.
namespace scl {

struct Template;

/// A configured value of an attribute: a default of the type, or the value of an instance.
struct ConfiguredValue
{
    std::uint32_t settingGroup = 0; ///< attribute `sGroup`; 0 when the value is not of a group
    std::string_view text;          ///< as written
    Value value;                    ///< empty when the text does not fit the type
};

enum class NodeKind : std::uint8_t { DataObject, SubDataObject, Attribute };

/// One DO, SDO, DA or BDA of a type. Shared by all instances.
struct TemplateNode
{
    std::string_view name;
    NodeKind kind = NodeKind::Attribute;
    BasicType basicType = BasicType::Struct;
    bool array = false;
    bool transient = false;
    bool dataChange = false;
    bool qualityChange = false;
    bool dataUpdate = false;
    std::uint32_t arraySize = 0;         ///< number of elements when it is a number in the file
    std::string_view arraySizeAttribute; ///< sibling that holds the number of elements, or empty
    std::string_view basicTypeName;      ///< spelled as in the standard; empty for DO and SDO
    std::string_view fc;                 ///< functional constraint of a DA; empty for the others
    std::string_view typeId;             ///< as written
    std::string_view desc;
    std::string_view shortAddress;  ///< attribute `sAddr`
    std::string_view valueKind;     ///< attribute `valKind`, or empty
    const Template *type = nullptr; ///< null for a leaf and for a type that is missing in the file
    const Enumeration *enumeration = nullptr;
    std::span<const ConfiguredValue> defaults;

    /// True for an attribute that has a value of its own.
    bool isLeaf() const { return kind == NodeKind::Attribute && basicType != BasicType::Struct; }
};

/// A LNodeType, DOType or DAType.
struct Template
{
    std::string_view id;
    std::string_view cdc;     ///< common data class of a DOType; empty for others and when missing
    std::string_view lnClass; ///< of a LNodeType
    std::string_view desc;
    std::span<const TemplateNode> nodes; ///< in the order of the file, names unique
    std::uint64_t leafCount = 0; ///< leaf attributes below, array elements one by one, saturating
    std::uint64_t nodeCount = 0; ///< all nodes below, array elements one by one, saturating
    bool sizeVaries = false;     ///< an array below gets its size from an attribute's value
    std::uint16_t height = 0;    ///< levels below, arrays count two

    const TemplateNode *find(std::string_view nodeName) const;
};

/// What an instance (DOI, SDI, DAI) adds to a node of its type.
struct InstanceNode
{
    std::uint32_t node = 0;  ///< position in the nodes of the type one level up
    std::int32_t index = -1; ///< array element, or -1
    std::string_view desc;
    std::string_view shortAddress;
    std::string_view valueKind;
    std::span<const ConfiguredValue> values;
    std::span<const InstanceNode> children; ///< ordered by `node`, then `index`
};

/// A node of the instantiated tree of a logical node: the template together with what the
/// instance says. Cheap to copy; made by `LogicalNode::root` and by its own children.
class DataNode
{
public:
    using Overlay = std::span<const InstanceNode>;

    DataNode() = default;

    bool isValid() const { return m_node != nullptr; }
    const TemplateNode &node() const { return *m_node; }
    std::string_view name() const { return m_node->name; }

    /// Functional constraint, inherited from the DA that encloses a BDA; empty for DO and SDO.
    std::string_view fc() const { return m_fc; }

    /// Element number for the element of an array, else -1. An element shares its array's node.
    std::int32_t element() const { return m_element; }

    /// True for an array as a whole; its children are its elements.
    bool isArray() const { return m_node->array && m_element < 0; }
    bool isLeaf() const { return m_node->isLeaf() && !isArray(); }

    /// Number of elements of an array; nothing when the attribute that should hold it has no value.
    std::optional<std::uint32_t> arraySize() const;

    /// Value of the instance, else the type's default, else null.
    /// @param settingGroup the group whose value is taken where the file gives one per group
    const ConfiguredValue *value(std::uint32_t settingGroup = 1) const;

    /// All values of the instance (one per setting group), else the defaults of the type.
    std::span<const ConfiguredValue> values() const;

    std::string_view desc() const;
    std::string_view shortAddress() const;

    /// Child by name; an element is taken with `elementAt`. Invalid when there is none.
    DataNode child(std::string_view name) const;
    DataNode elementAt(std::uint32_t index) const;

    /// Leaf attributes at and below this node.
    std::uint64_t leafCount() const;
    /// Nodes below this one. Counting stops, and any larger number is returned, beyond @p limit.
    std::uint64_t nodeCount(std::uint64_t limit) const;

    /// Calls @p visit with each child in the order of the type, or each element of an array.
    template <typename Visitor>
    void forEachChild(Visitor &&visit) const
    {
        if (isArray()) {
            const std::uint32_t size = arraySize().value_or(0);
            for (std::uint32_t i = 0; i < size; ++i)
                visit(elementAt(i));
            return;
        }
        forEachChildOf(m_node->type, m_own.empty() ? Overlay() : m_own.front().children,
                       m_common.empty() ? Overlay() : m_common.front().children, m_fc, visit);
    }

private:
    friend struct LogicalNode;

    static Overlay takeRun(Overlay &rest, std::uint32_t node)
    {
        std::size_t begin = 0;
        while (begin < rest.size() && rest[begin].node < node)
            ++begin;
        std::size_t end = begin;
        while (end < rest.size() && rest[end].node == node)
            ++end;
        const Overlay run = rest.subspan(begin, end - begin);
        rest = rest.subspan(end);
        return run;
    }

    template <typename Visitor>
    static void forEachChildOf(const Template *type, Overlay own, Overlay common,
                               std::string_view fc, Visitor &&visit)
    {
        if (!type)
            return;
        const Overlay scopeOwn = own;
        const Overlay scopeCommon = common;
        for (std::uint32_t i = 0; i < type->nodes.size(); ++i) {
            DataNode child;
            child.m_node = &type->nodes[i];
            child.m_scope = type;
            child.m_scopeOwn = scopeOwn;
            child.m_scopeCommon = scopeCommon;
            child.m_fc = child.m_node->fc.empty() ? fc : child.m_node->fc;
            if (!own.empty())
                child.m_own = takeRun(own, i);
            if (!common.empty())
                child.m_common = takeRun(common, i);
            visit(static_cast<const DataNode &>(child));
        }
    }

    static DataNode childOf(const Template *type, Overlay own, Overlay common, std::string_view fc,
                            std::string_view name);

    const TemplateNode *m_node = nullptr;
    std::string_view m_fc;
    // For an array as a whole the overlays hold those of all its elements; else at most one each.
    Overlay m_own;
    Overlay m_common; // what is said of all elements of the enclosing array
    const Template *m_scope = nullptr;
    Overlay m_scopeOwn;
    Overlay m_scopeCommon;
    std::int32_t m_element = -1;
};

/// An FCDA: a member of a data set.
struct Fcda
{
    std::string_view reference; ///< "LD/LN$FC$DO$DA", array elements as in "phsAHar(7)"
    std::string_view fc;
    const TemplateNode *node =
        nullptr;           ///< what it names; null when that does not exist, or a whole LN
    bool resolved = false; ///< false when the file names something that it lacks
    std::uint32_t line = 0;
};

struct DataSet
{
    std::string_view name;
    std::string_view desc;
    std::span<const Fcda> members;
    std::uint32_t line = 0;
};

struct ConfiguredTriggers
{
    bool dataChange = false;
    bool qualityChange = false;
    bool dataUpdate = false;
    bool integrity = false;
    bool generalInterrogation = true; ///< the schema's default
};

struct ReportOptionalFields
{
    bool sequenceNumber = false;
    bool timeStamp = false;
    bool dataSetName = false;
    bool reasonForInclusion = false;
    bool dataReference = false;
    bool bufferOverflow = true; ///< the schema's default
    bool entryId = false;
    bool configurationRevision = false;
    bool segmentation = false;
};

/// Client that a report control block instance is meant for.
struct ClientNode
{
    std::string_view iedName;
    std::string_view apName;
    std::string_view ldInst;
    std::string_view prefix;
    std::string_view lnClass;
    std::string_view lnInst;
};

/// A ReportControl element: the configuration of the blocks that it stands for.
struct ReportControlBlock
{
    std::string_view name; ///< as written, without index
    std::string_view desc;
    std::string_view reportId;    ///< attribute `rptID`, or empty
    std::string_view dataSetName; ///< or empty
    const DataSet *dataSet = nullptr;
    bool buffered = false;
    bool indexed = true;
    std::uint32_t maxInstances = 1;
    std::uint32_t bufferTime = 0;      ///< milliseconds
    std::uint32_t integrityPeriod = 0; ///< milliseconds
    std::uint32_t confRev = 0;
    std::uint32_t reservationTime = 0; ///< attribute `resvTms`, seconds; 0 when not given
    ConfiguredTriggers triggers;
    ReportOptionalFields fields;
    std::span<const std::string_view> instanceNames; ///< "urcb01", "urcb02" …, or just the name
    std::span<const ClientNode> clients;
    std::uint32_t line = 0;
};

struct LogControlBlock
{
    std::string_view name;
    std::string_view desc;
    std::string_view dataSetName;
    std::string_view logName;
    std::string_view ldInst;
    std::string_view prefix;
    std::string_view lnClass;
    std::string_view lnInst;
    const DataSet *dataSet = nullptr;
    bool enabled = true;
    bool reasonCode = true;
    std::uint32_t integrityPeriod = 0; ///< milliseconds
    ConfiguredTriggers triggers;
    std::uint32_t line = 0;
};

struct GooseControlBlock
{
    std::string_view name;
    std::string_view desc;
    std::string_view dataSetName;
    std::string_view appId;
    std::string_view type; ///< "GOOSE" unless written otherwise
    const DataSet *dataSet = nullptr;
    std::uint32_t confRev = 0;
    bool fixedOffsets = false;
    std::uint32_t line = 0;
};

struct SampledValueControlBlock
{
    std::string_view name;
    std::string_view desc;
    std::string_view dataSetName;
    std::string_view svId;
    std::string_view sampleMode; ///< attribute `smpMod`: "SmpPerPeriod" unless written otherwise
    const DataSet *dataSet = nullptr;
    std::uint32_t confRev = 0;
    std::uint32_t sampleRate = 0;
    std::uint32_t asduCount = 0;
    bool multicast = true;
    bool refreshTime = false;
    bool sampleSynchronized = true;
    bool sampleRateIncluded = false;
    bool dataSetIncluded = false;
    bool security = false;
    std::uint32_t line = 0;
};

struct SettingControlBlock
{
    std::string_view desc;
    std::uint32_t groupCount = 1;
    std::uint32_t activeGroup = 1;
    std::uint32_t reservationTime = 0; ///< attribute `resvTms`, seconds; 0 when not given
    std::uint32_t line = 0;
};

struct LogicalNode
{
    std::string_view name; ///< prefix + class + instance
    std::string_view prefix;
    std::string_view lnClass;
    std::string_view inst;
    std::string_view desc;
    std::string_view typeId;
    const Template *type = nullptr; ///< null when the file lacks the LNodeType
    std::span<const InstanceNode> instances;
    std::span<const DataSet> dataSets;
    std::span<const ReportControlBlock> reports;
    std::span<const LogControlBlock> logControls;
    std::span<const GooseControlBlock> gooseControls;
    std::span<const SampledValueControlBlock> sampledValueControls;
    std::span<const std::string_view> logs;
    const SettingControlBlock *settingControl = nullptr;
    std::uint32_t line = 0;

    /// Calls @p visit with a `DataNode` for each data object, in the order of the type.
    template <typename Visitor>
    void forEachDataObject(Visitor &&visit) const
    {
        DataNode::forEachChildOf(type, instances, {}, {}, visit);
    }

    DataNode dataObject(std::string_view dataObjectName) const;
    std::uint64_t leafCount() const;
};

struct LogicalDevice
{
    std::string_view inst;
    std::string_view ldName; ///< attribute `ldName`, or empty
    std::string_view name;   ///< domain name: `ldName`, or the IED's name and `inst`
    std::string_view desc;
    std::span<const LogicalNode> nodes; ///< LLN0 first when there is one
    std::uint32_t line = 0;
};

struct Server
{
    std::uint32_t timeout = 30; ///< seconds
    std::span<const LogicalDevice> devices;
};

/// One child of a Services section with its attributes; nested ones as
/// "ClientServices/TimeSyncProt".
struct Service
{
    std::string_view name;
    std::span<const std::pair<std::string_view, std::string_view>> attributes;

    /// Value of an attribute, empty when it is not given.
    std::string_view attribute(std::string_view attributeName) const;
};

struct Services
{
    bool present = false;
    std::uint32_t nameLength = 32;
    std::span<const Service> list;

    const Service *find(std::string_view serviceName) const;
};

struct AccessPoint
{
    std::string_view name;
    std::string_view desc;
    const Server *server = nullptr; ///< its own, or the one named by ServerAt; null for a client
    std::string_view serverAt;      ///< access point whose server this one shares, or empty
    std::span<const LogicalNode> nodes; ///< logical nodes of a client, outside any server
    Services services;
    std::uint32_t line = 0;
};

struct Ied
{
    std::string_view name;
    std::string_view desc;
    std::string_view type;
    std::string_view manufacturer;
    std::string_view configVersion;
    Services services;
    std::span<const AccessPoint> accessPoints;
    std::uint32_t line = 0;

    /// Calls @p visit with every logical device of every server; shared servers count once.
    template <typename Visitor>
    void forEachDevice(Visitor &&visit) const
    {
        for (const AccessPoint &point : accessPoints) {
            if (!point.server || !point.serverAt.empty())
                continue;
            for (const LogicalDevice &device : point.server->devices)
                visit(device);
        }
    }
};

/// A typed address part (element P).
struct AddressPart
{
    std::string_view type;
    std::string_view value;
};

/// Multicast address of a GOOSE or sampled-value control block.
struct ControlBlockAddress
{
    std::string_view ldInst;
    std::string_view controlBlock;
    std::span<const AddressPart> address;
    std::optional<std::uint32_t> minTime; ///< milliseconds, GOOSE only
    std::optional<std::uint32_t> maxTime; ///< milliseconds, GOOSE only
};

struct ConnectedAccessPoint
{
    std::string_view subNetwork;
    std::string_view subNetworkType;
    std::string_view iedName;
    std::string_view apName;
    std::span<const AddressPart> address;
    std::span<const ControlBlockAddress> goose;
    std::span<const ControlBlockAddress> sampledValues;
    std::uint32_t line = 0;

    /// Value of the first part of that type ("IP", "OSI-TSEL" …), empty when there is none.
    std::string_view part(std::string_view type) const;
};

/// Numbers of what an IED holds.
struct IedCounts
{
    std::uint64_t logicalDevices = 0;
    std::uint64_t logicalNodes = 0;
    std::uint64_t dataObjects = 0;
    std::uint64_t attributes = 0; ///< leaf attributes, array elements one by one
    std::uint64_t dataSets = 0;
    std::uint64_t dataSetMembers = 0;
    std::uint64_t bufferedReports =
        0; ///< blocks, not elements: an indexed one counts its instances
    std::uint64_t unbufferedReports = 0;
};

IedCounts countsOf(const Ied &ied);

/// A file that was read. Not copyable; owns everything that it hands out.
class Document
{
public:
    Document();
    ~Document();
    Document(const Document &) = delete;
    Document &operator=(const Document &) = delete;

    std::string_view version;  ///< "2007", or empty in Edition 1
    std::string_view revision; ///< "A", "B", or empty
    std::uint32_t release = 0; ///< 4 in "2007B4", 0 when not given
    std::string_view headerId;
    std::string_view toolId;
    std::span<const Ied> ieds;
    std::span<const Enumeration> enumerations;
    std::span<const ConnectedAccessPoint> connections;

    std::vector<Finding> findings;     ///< in the order in which they were met
    std::uint64_t findingsLeftOut = 0; ///< further ones, beyond `ReadOptions::maxFindings`
    bool hasErrors = false;            ///< an error is among them, those left out included

    /// Edition of IEC 61850-6: "1", "2" or "2.1".
    std::string_view edition() const;
    /// Version of the schema in one word: "2003", "2007A", "2007B", "2007B4".
    std::string schemaVersion() const;

    const Ied *findIed(std::string_view name) const;
    /// Where an access point is connected to a sub-network; null when the file does not say.
    const ConnectedAccessPoint *findConnection(std::string_view iedName,
                                               std::string_view apName) const;

    std::pmr::memory_resource &memory() { return m_memory; }

private:
    std::pmr::monotonic_buffer_resource m_memory;
};

} // namespace scl
