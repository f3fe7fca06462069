// SPDX-License-Identifier: Apache-2.0
#include "scl/model.h"

#include <string>

namespace scl {
namespace {

const InstanceNode *find(std::span<const InstanceNode> run, std::int32_t index)
{
    const auto found = std::find_if(run.begin(), run.end(), [index](const InstanceNode &instance) {
        return instance.index == index;
    });
    return found == run.end() ? nullptr : &*found;
}

std::span<const InstanceNode> asRun(const InstanceNode *instance)
{
    return instance ? std::span(instance, 1) : std::span<const InstanceNode>();
}

std::uint64_t bounded(std::uint64_t left, std::uint64_t right, std::uint64_t limit)
{
    return right != 0 && left > limit / right ? limit + 1 : left * right;
}

} // namespace

const TemplateNode *Template::find(std::string_view nodeName) const
{
    for (const TemplateNode &node : nodes) {
        if (node.name == nodeName)
            return &node;
    }
    return nullptr;
}

DataNode DataNode::childOf(const Template *type, Overlay own, Overlay common, std::string_view fc,
                           std::string_view name)
{
    DataNode child;
    if (!type)
        return child;
    for (std::uint32_t i = 0; i < type->nodes.size(); ++i) {
        if (type->nodes[i].name != name)
            continue;
        child.m_node = &type->nodes[i];
        child.m_scope = type;
        child.m_scopeOwn = own;
        child.m_scopeCommon = common;
        child.m_fc = child.m_node->fc.empty() ? fc : child.m_node->fc;
        child.m_own = takeRun(own, i);
        child.m_common = takeRun(common, i);
        break;
    }
    return child;
}

DataNode DataNode::child(std::string_view name) const
{
    if (isArray())
        return {};
    return childOf(m_node->type, m_own.empty() ? Overlay() : m_own.front().children,
                   m_common.empty() ? Overlay() : m_common.front().children, m_fc, name);
}

DataNode DataNode::elementAt(std::uint32_t index) const
{
    DataNode element = *this;
    element.m_element = static_cast<std::int32_t>(index);
    const InstanceNode *own = ::scl::find(m_own, element.m_element);
    element.m_own = asRun(own ? own : ::scl::find(m_common, element.m_element));
    const InstanceNode *common = ::scl::find(m_own, -1);
    element.m_common = asRun(common ? common : ::scl::find(m_common, -1));
    return element;
}

std::optional<std::uint32_t> DataNode::arraySize() const
{
    if (m_node->arraySizeAttribute.empty())
        return m_node->arraySize;
    const DataNode attribute =
        childOf(m_scope, m_scopeOwn, m_scopeCommon, {}, m_node->arraySizeAttribute);
    if (!attribute.isValid() || !attribute.isLeaf())
        return std::nullopt;
    const ConfiguredValue *configured = attribute.value();
    if (!configured)
        return std::nullopt;
    if (const auto *size = std::get_if<std::uint64_t>(&configured->value)) {
        if (*size <= 0x7FFFFFFFU)
            return static_cast<std::uint32_t>(*size);
    } else if (const auto *number = std::get_if<std::int64_t>(&configured->value)) {
        if (*number >= 0 && *number <= 0x7FFFFFFF)
            return static_cast<std::uint32_t>(*number);
    }
    return std::nullopt;
}

std::span<const ConfiguredValue> DataNode::values() const
{
    if (isArray())
        return {};
    if (!m_own.empty() && !m_own.front().values.empty())
        return m_own.front().values;
    if (!m_common.empty() && !m_common.front().values.empty())
        return m_common.front().values;
    return m_node->defaults;
}

const ConfiguredValue *DataNode::value(std::uint32_t settingGroup) const
{
    const ConfiguredValue *general = nullptr;
    for (const ConfiguredValue &configured : values()) {
        if (configured.settingGroup == settingGroup)
            return &configured;
        if (configured.settingGroup == 0 && !general)
            general = &configured;
    }
    return general;
}

std::string_view DataNode::desc() const
{
    if (!m_own.empty() && !m_own.front().desc.empty())
        return m_own.front().desc;
    return m_node->desc;
}

std::string_view DataNode::shortAddress() const
{
    if (!m_own.empty() && !m_own.front().shortAddress.empty())
        return m_own.front().shortAddress;
    return m_node->shortAddress;
}

std::uint64_t DataNode::leafCount() const
{
    if (isLeaf())
        return 1;
    if (m_node->arraySizeAttribute.empty() && (!m_node->type || !m_node->type->sizeVaries)) {
        const std::uint64_t each = m_node->type       ? m_node->type->leafCount
                                   : m_node->isLeaf() ? 1
                                                      : 0;
        return isArray() ? each * m_node->arraySize : each;
    }
    std::uint64_t count = 0;
    forEachChild([&count](const DataNode &child) { count += child.leafCount(); });
    return count;
}

std::uint64_t DataNode::nodeCount(std::uint64_t limit) const
{
    if (isArray()) {
        const std::uint64_t size = arraySize().value_or(0);
        if (size == 0)
            return 0;
        if (!m_node->type || !m_node->type->sizeVaries) {
            const std::uint64_t below = m_node->type ? m_node->type->nodeCount : 0;
            return below >= limit ? limit + 1 : bounded(below + 1, size, limit);
        }
        std::uint64_t count = 0;
        for (std::uint32_t i = 0; i < size && count <= limit; ++i)
            count += elementAt(i).nodeCount(limit - count) + 1;
        return count;
    }
    if (!m_node->type)
        return 0;
    if (!m_node->type->sizeVaries)
        return m_node->type->nodeCount;
    std::uint64_t count = 0;
    forEachChild([&count, limit](const DataNode &child) {
        if (count <= limit)
            count += child.nodeCount(limit - count) + 1;
    });
    return count;
}

DataNode LogicalNode::dataObject(std::string_view dataObjectName) const
{
    return DataNode::childOf(type, instances, {}, {}, dataObjectName);
}

std::uint64_t LogicalNode::leafCount() const
{
    if (!type || !type->sizeVaries)
        return type ? type->leafCount : 0;
    std::uint64_t count = 0;
    forEachDataObject([&count](const DataNode &object) { count += object.leafCount(); });
    return count;
}

std::string_view Service::attribute(std::string_view attributeName) const
{
    for (const auto &attribute : attributes) {
        if (attribute.first == attributeName)
            return attribute.second;
    }
    return {};
}

const Service *Services::find(std::string_view serviceName) const
{
    for (const Service &service : list) {
        if (service.name == serviceName)
            return &service;
    }
    return nullptr;
}

std::string_view ConnectedAccessPoint::part(std::string_view type) const
{
    for (const AddressPart &candidate : address) {
        if (candidate.type == type)
            return candidate.value;
    }
    return {};
}

IedCounts countsOf(const Ied &ied)
{
    IedCounts counts;
    ied.forEachDevice([&counts](const LogicalDevice &device) {
        ++counts.logicalDevices;
        for (const LogicalNode &node : device.nodes) {
            ++counts.logicalNodes;
            counts.dataObjects += node.type ? node.type->nodes.size() : 0;
            counts.attributes += node.leafCount();
            counts.dataSets += node.dataSets.size();
            for (const DataSet &set : node.dataSets)
                counts.dataSetMembers += set.members.size();
            for (const ReportControlBlock &report : node.reports) {
                (report.buffered ? counts.bufferedReports : counts.unbufferedReports) +=
                    report.instanceNames.size();
            }
        }
    });
    return counts;
}

Document::Document()
    : m_memory(std::size_t{64} * 1024)
{
}

Document::~Document() = default;

std::string_view Document::edition() const
{
    if (version.empty() || version == "2003")
        return "1";
    return release >= 4 ? "2.1" : "2";
}

std::string Document::schemaVersion() const
{
    std::string result(version.empty() ? std::string_view("2003") : version);
    result += revision;
    if (release > 0)
        result += std::to_string(release);
    return result;
}

const Ied *Document::findIed(std::string_view name) const
{
    for (const Ied &ied : ieds) {
        if (ied.name == name)
            return &ied;
    }
    return nullptr;
}

const ConnectedAccessPoint *Document::findConnection(std::string_view iedName,
                                                     std::string_view apName) const
{
    for (const ConnectedAccessPoint &connection : connections) {
        if (connection.iedName == iedName && connection.apName == apName)
            return &connection;
    }
    return nullptr;
}

} // namespace scl
