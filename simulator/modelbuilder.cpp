// SPDX-License-Identifier: Apache-2.0
#include "simulator/modelbuilder.h"

#include "simulator/initialvalues.h"
#include "simulator/memorytext.h"

#include <algorithm>
#include <string>

namespace sim {

namespace {

bool belongs(const scl::TemplateNode &node, Fc fc)
{
    if (node.fc.empty() || node.fc == acsi::toText(fc))
        return true;
    return (fc == Fc::SE && node.fc == "SG") || (fc == Fc::SG && node.fc == "SE");
}

template <typename Visitor>
void forEachElement(const Part &part, Visitor &&visit)
{
    if (!part.node().isArray()) {
        visit(part);
        return;
    }
    for (std::uint32_t i = 0; i < part.childCount(); ++i)
        visit(part.childAt(i));
}

} // namespace

Model::Builder::Builder(Model &model, const scl::Ied &ied, const mms::UtcTime &now,
                        bool firstEdition)
    : m_model(model)
    , m_ied(ied)
    , m_now(now)
    , m_settings{model.m_memory, firstEdition}
{
}

void Model::Builder::build()
{
    m_model.m_iedName = keep(m_model.m_memory, m_ied.name);
    m_ied.forEachDevice([this](const scl::LogicalDevice &device) {
        if (!m_model.findDomain(device.name))
            addDomain(device);
    });
    m_model.m_values.shrink_to_fit();
    m_model.m_flags.shrink_to_fit();
}

void Model::Builder::addDomain(const scl::LogicalDevice &device)
{
    const auto position = static_cast<std::uint32_t>(m_model.m_domains.size());
    Domain &domain = m_model.m_domains.emplace_back();
    domain.name = keep(m_model.m_memory, device.name);
    domain.inst = keep(m_model.m_memory, device.inst);
    domain.firstNode = static_cast<std::uint32_t>(m_model.m_logicalNodes.size());
    m_activeGroup = 1;
    for (const scl::LogicalNode &node : device.nodes) {
        if (node.settingControl)
            m_activeGroup = node.settingControl->activeGroup;
    }
    for (const scl::LogicalNode &node : device.nodes) {
        if (!domain.nodeOfName.contains(node.name))
            addNode(node, position);
    }
    domain.nodeCount = static_cast<std::uint32_t>(m_model.m_logicalNodes.size()) - domain.firstNode;
    for (std::uint32_t i = 0; i < domain.nodeCount; ++i)
        domain.nodesByName.push_back(domain.firstNode + i);
    std::ranges::sort(domain.nodesByName, {},
                      [this](std::uint32_t node) { return m_model.m_logicalNodes[node].name; });
}

void Model::Builder::addNode(const scl::LogicalNode &node, std::uint32_t domain)
{
    const auto position = static_cast<std::uint32_t>(m_model.m_logicalNodes.size());
    LogicalNode added;
    added.name = keep(m_model.m_memory, node.name);
    added.domain = domain;
    added.firstLeaf = m_model.leafCount();
    const auto known = hasOwnLayout(node) ? m_prototypes.end() : m_prototypes.find(node.type);
    added.layout = known == m_prototypes.end() ? addLayout(node) : known->second.layout;
    m_model.m_logicalNodes.push_back(added);
    m_model.m_domains[domain].nodeOfName.emplace(added.name, position);

    const Part root = m_model.logicalNode(position);
    auto &values = m_model.m_values;
    auto &flags = m_model.m_flags;
    if (known != m_prototypes.end()) {
        const Prototype &prototype = known->second;
        values.insert(values.end(), prototype.values.begin(), prototype.values.end());
        flags.insert(flags.end(), prototype.flags.begin(), prototype.flags.end());
    } else {
        addInitialValues(root);
        if (node.type)
            applyDefaults(root, *node.type);
        if (!hasOwnLayout(node)) {
            const auto first = static_cast<std::ptrdiff_t>(added.firstLeaf);
            m_prototypes.emplace(node.type, Prototype{added.layout,
                                                      {values.begin() + first, values.end()},
                                                      {flags.begin() + first, flags.end()}});
        }
    }
    if (node.type)
        applyInstances(root, node);
    nameItself(root, node);
    describeBlocks(root, node, m_model.m_domains[domain].name);
}

const Layout *Model::Builder::addLayout(const scl::LogicalNode &node)
{
    m_model.m_layouts.push_back(makeLayout(node, m_settings));
    return m_model.m_layouts.back().get();
}

void Model::Builder::addInitialValues(const Part &root)
{
    const Layout &layout = *root.m_layout;
    const Part controls = root.child("CO");
    for (const std::uint32_t position : layout.leafNodes) {
        const LayoutNode &leaf = layout.nodes[position];
        LeafPlace place{layout, leaf, {}, {}, false};
        for (std::uint32_t above = leaf.parent; above != 0; above = layout.nodes[above].parent) {
            const LayoutNode &node = layout.nodes[above];
            if (place.cdc.empty())
                place.cdc = node.cdc;
            if (node.level == Level::DataObject && !node.name.empty())
                place.dataObject = node.name;
        }
        place.controllable = controls.isValid() && controls.child(place.dataObject).isValid();
        m_model.m_values.push_back(initialValue(place, m_now));
        m_model.m_flags.push_back(static_cast<std::uint8_t>(static_cast<unsigned>(leaf.triggers) |
                                                            (leaf.readOnly ? readOnlyFlag : 0U)));
    }
}

void Model::Builder::applyDefaults(const Part &root, const scl::Template &type)
{
    for (std::uint32_t i = 0; i < root.childCount(); ++i)
        applyDefaultsInside(root.childAt(i), type);
}

void Model::Builder::applyDefaultsInside(const Part &part, const scl::Template &type)
{
    for (const scl::TemplateNode &node : type.nodes) {
        if (!belongs(node, part.fc()))
            continue;
        const Part child = part.child(node.name);
        if (!child.isValid())
            continue;
        forEachElement(child, [&](const Part &element) {
            if (element.isLeaf())
                configure(element.firstLeaf(), element.node(), node.defaults);
            else if (node.type)
                applyDefaultsInside(element, *node.type);
        });
    }
}

void Model::Builder::applyInstances(const Part &root, const scl::LogicalNode &node)
{
    for (std::uint32_t i = 0; i < root.childCount(); ++i)
        applyInside(root.childAt(i), *node.type, node.instances);
}

void Model::Builder::applyInside(const Part &part, const scl::Template &type,
                                 std::span<const scl::InstanceNode> instances)
{
    for (const scl::InstanceNode &instance : instances) {
        const scl::TemplateNode &node = type.nodes[instance.node];
        if (!belongs(node, part.fc()))
            continue;
        const Part child = part.child(node.name);
        if (!child.isValid())
            continue;
        if (!child.node().isArray() || instance.index < 0) {
            forEachElement(child, [&](const Part &element) { applyTo(element, node, instance); });
        } else if (static_cast<std::uint32_t>(instance.index) < child.childCount()) {
            applyTo(child.childAt(static_cast<std::uint32_t>(instance.index)), node, instance);
        }
    }
}

void Model::Builder::applyTo(const Part &part, const scl::TemplateNode &node,
                             const scl::InstanceNode &instance)
{
    if (part.isLeaf()) {
        configure(part.firstLeaf(), part.node(), instance.values);
        std::uint8_t &flags = m_model.m_flags[part.firstLeaf()];
        if (instance.valueKind == "RO" || instance.valueKind == "Conf")
            flags |= readOnlyFlag;
        else if (instance.valueKind == "Set")
            flags &= static_cast<std::uint8_t>(~readOnlyFlag);
        return;
    }
    if (part.node().level != Level::Attribute && part.fc() == Fc::DC && !instance.desc.empty())
        setText(part.child("d"), instance.desc);
    if (node.type)
        applyInside(part, *node.type, instance.children);
}

void Model::Builder::configure(Leaf leaf, const LayoutNode &node,
                               std::span<const scl::ConfiguredValue> values)
{
    std::uint32_t best = 0;
    for (const scl::ConfiguredValue &configured : values) {
        auto data = configuredData(node, configured.value);
        if (!data)
            continue;
        if (configured.settingGroup != 0)
            m_model.m_groupValues.insert_or_assign({leaf, configured.settingGroup}, *data);
        if (configured.settingGroup == m_activeGroup ||
            (configured.settingGroup == 0 && best == 0)) {
            best = configured.settingGroup;
            m_model.m_values[leaf] = std::move(*data);
        }
    }
}

void Model::Builder::nameItself(const Part &root, const scl::LogicalNode &node)
{
    const Part descriptions = root.child("DC");
    if (!descriptions.isValid())
        return;
    const Part plate = descriptions.child("NamPlt");
    if (plate.isValid()) {
        setText(plate.child("vendor"), m_ied.manufacturer);
        setText(plate.child("swRev"), m_ied.configVersion);
        setText(plate.child("configRev"), m_ied.configVersion);
        setText(plate.child("d"), node.desc);
    }
    const Part device = descriptions.child("PhyNam");
    if (device.isValid()) {
        setText(device.child("vendor"), m_ied.manufacturer);
        setText(device.child("model"), m_ied.type);
        setText(device.child("name"), m_ied.name);
    }
}

void Model::Builder::describeBlocks(const Part &root, const scl::LogicalNode &node,
                                    std::string_view domain)
{
    const auto reference = [&](std::string_view name) {
        return name.empty()
                   ? std::string()
                   : std::string(domain) + "/" + std::string(node.name) + "$" + std::string(name);
    };
    for (const scl::GooseControlBlock &goose : node.gooseControls) {
        const Part block = root.child("GO").child(goose.name);
        setText(block.child("GoID"), goose.appId);
        setText(block.child("DatSet"), reference(goose.dataSetName));
        setNumber(block.child("ConfRev"), goose.confRev);
    }
    for (const scl::SampledValueControlBlock &sampled : node.sampledValueControls) {
        const Part block = root.child(sampled.multicast ? "MS" : "US").child(sampled.name);
        setText(block.child(sampled.multicast ? "MsvID" : "UsvID"), sampled.svId);
        setText(block.child("DatSet"), reference(sampled.dataSetName));
        setNumber(block.child("ConfRev"), sampled.confRev);
        setNumber(block.child("SmpRate"), sampled.sampleRate);
        setNumber(block.child("noASDU"), sampled.asduCount);
    }
    for (const scl::LogControlBlock &log : node.logControls) {
        const Part block = root.child("LG").child(log.name);
        setText(block.child("LogRef"), reference(log.logName));
        setText(block.child("DatSet"), reference(log.dataSetName));
        setNumber(block.child("IntgPd"), log.integrityPeriod);
    }
}

void Model::Builder::setText(const Part &part, std::string_view text)
{
    if (!part.isValid() || !part.isLeaf() || text.empty() ||
        !m_model.m_values[part.firstLeaf()].text().empty())
        return;
    if (auto data = configuredData(part.node(), scl::Value(text)))
        m_model.m_values[part.firstLeaf()] = std::move(*data);
}

void Model::Builder::setNumber(const Part &part, std::uint64_t number)
{
    if (part.isValid() && part.isLeaf())
        m_model.m_values[part.firstLeaf()] = mms::Data::unsignedInteger(number);
}

} // namespace sim
