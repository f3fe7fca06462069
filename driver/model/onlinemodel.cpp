// SPDX-License-Identifier: Apache-2.0
#include "onlinemodel.h"

#include "discoveredmodel.h"

#include "acsi/typedvalue.h"

#include <algorithm>
#include <limits>
#include <map>
#include <span>
#include <unordered_map>

using mms::Data;
using mms::TypeDescription;

namespace {

QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
}

/// Elements of an array that may be asked for one by one.
constexpr std::uint32_t mostElements = 256;

std::uint32_t leavesBelow(const TypeDescription &type)
{
    if (type.kind == TypeDescription::Kind::Array)
        return type.components.empty()
                   ? 0
                   : type.elementCount * leavesBelow(type.components.front().type);
    if (type.kind != TypeDescription::Kind::Structure)
        return 1;
    std::uint32_t count = 0;
    for (const TypeDescription::Component &component : type.components)
        count += leavesBelow(component.type);
    return count;
}

/// Numbers the leaves below a type from @p first on; the number behind the last. Those of an
/// array's later elements have no entry of their own.
std::uint32_t number(const TypeDescription &type, std::uint32_t first,
                     std::vector<std::pair<const TypeDescription *, std::uint32_t>> &places)
{
    places.emplace_back(&type, first);
    if (type.kind == TypeDescription::Kind::Array) {
        if (type.components.empty())
            return first;
        const std::uint32_t end = number(type.components.front().type, first, places);
        return first + type.elementCount * (end - first);
    }
    if (type.kind != TypeDescription::Kind::Structure)
        return first + 1;
    for (const TypeDescription::Component &component : type.components)
        first = number(component.type, first, places);
    return first;
}

/// The attributes of a node as they are shown, from the first to the last.
class ShownAttributes
{
public:
    explicit ShownAttributes(const LogicalNode &node)
    {
        for (const DataObject *object : node.dataObjects)
            add(object->attributes);
    }

    const std::vector<DataAttribute *> &all() const { return m_all; }

private:
    void add(const QList<DAO *> &nodes)
    {
        for (const DAO *node : nodes) {
            if (node->attribute)
                m_all.push_back(node->attribute);
            add(node->children);
        }
    }

    std::vector<DataAttribute *> m_all;
};

/// Where the leaves of a node stand among its shown attributes; the same for all nodes of a form.
class LeafPlaces
{
public:
    LeafPlaces(const LogicalNode &node, std::span<DataAttribute *const> leaves)
    {
        const ShownAttributes shown(node);
        std::unordered_map<const DataAttribute *, std::size_t> places;
        for (std::size_t i = 0; i < shown.all().size(); ++i)
            places.emplace(shown.all()[i], i);
        for (const DataAttribute *leaf : leaves) {
            const auto place = places.find(leaf);
            m_places.push_back(place == places.end() ? notShown : place->second);
        }
    }

    /// Enters the attributes of another node from the first of its leaves on.
    void fill(const LogicalNode &node, std::span<DataAttribute *> leaves) const
    {
        const ShownAttributes shown(node);
        for (std::size_t i = 0; i < m_places.size(); ++i)
            leaves[i] = m_places[i] == notShown ? nullptr : shown.all()[m_places[i]];
    }

private:
    static constexpr std::size_t notShown = std::numeric_limits<std::size_t>::max();

    std::vector<std::size_t> m_places;
};

} // namespace

/// The way through type and data to the leaves.
struct OnlineModel::Walk
{
    const std::vector<DataAttribute *> &attributes;
    const LeafVisitor &visitor;
    QString reference;
    std::uint32_t number = 0; ///< of the next leaf
    bool isNamed = true;      ///< gives the references of leaves
    bool fits = true;

    void visit(const TypeDescription &type, const Data *data, const Data *quality, const Data *time)
    {
        if (type.kind == TypeDescription::Kind::Structure)
            visitStructure(type, data, quality, time);
        else if (type.kind == TypeDescription::Kind::Array)
            visitArray(type, data, quality, time);
        else
            visitLeaf(type, data, quality, time);
    }

    void visitStructure(const TypeDescription &type, const Data *data, const Data *quality,
                        const Data *time)
    {
        if (!hasForm(type, data)) {
            fits = false;
            number += leavesBelow(type);
            return;
        }
        for (std::size_t i = 0; data && i < type.components.size(); ++i) {
            const Data &member = data->children()[i];
            if (type.components[i].name == "q" && member.kind() == Data::Kind::BitString)
                quality = &member;
            else if (type.components[i].name == "t" && member.kind() == Data::Kind::UtcTime)
                time = &member;
        }
        const int length = reference.size();
        for (std::size_t i = 0; i < type.components.size(); ++i) {
            if (isNamed) {
                reference += QLatin1Char('$');
                reference += text(type.components[i].name);
            }
            visit(type.components[i].type, data ? &data->children()[i] : nullptr, quality, time);
            reference.truncate(length);
        }
    }

    /// A structure with one member of another type has perhaps all of them in another order: then
    /// none of them is taken.
    static bool hasForm(const TypeDescription &type, const Data *data)
    {
        if (!data)
            return true;
        if (!acsi::isSentAs(type, *data))
            return false;
        const std::span<const Data> members = data->children();
        for (std::size_t i = 0; i < type.components.size(); ++i) {
            const TypeDescription &member = type.components[i].type;
            // What is wrong within a member that is a group is that one's own affair.
            if (!isGroup(member) && !acsi::isSentAs(member, members[i]))
                return false;
        }
        return true;
    }

    static bool isGroup(const TypeDescription &type)
    {
        return type.kind == TypeDescription::Kind::Structure ||
               type.kind == TypeDescription::Kind::Array;
    }

    void visitArray(const TypeDescription &type, const Data *data, const Data *quality,
                    const Data *time)
    {
        if (type.components.empty() || (data && !acsi::isSentAs(type, *data))) {
            fits = false;
            number += leavesBelow(type);
            return;
        }
        const int length = reference.size();
        for (std::uint32_t i = 0; i < type.elementCount; ++i) {
            if (isNamed)
                reference += QLatin1Char('(') + QString::number(i) + QLatin1Char(')');
            visit(type.components.front().type, data ? &data->children()[i] : nullptr, quality,
                  time);
            reference.truncate(length);
        }
    }

    void visitLeaf(const TypeDescription &type, const Data *data, const Data *quality,
                   const Data *time)
    {
        const std::uint32_t own = number++;
        if (data && !acsi::isSentAs(type, *data)) {
            fits = false;
            return;
        }
        visitor({reference, own, attributes[own], &type, data, quality == data ? nullptr : quality,
                 time == data ? nullptr : time});
    }
};

OnlineModel::OnlineModel(acsi::ServerDescription description, const QString &name,
                         const PhysicalDevice *fromFile)
    : m_description(std::make_unique<acsi::ServerDescription>(std::move(description)))
    , m_device(DiscoveredModel::makeDevice(*m_description, name, fromFile))
{
    addNodes();
    findAttributes(fromFile != nullptr);
}

void OnlineModel::addNodes()
{
    std::uint32_t count = 0;
    std::unordered_map<const TypeDescription *, std::uint32_t> leaves;
    for (const acsi::DeviceDescription &device : m_description->devices) {
        for (const acsi::NodeDescription &node : device.nodes) {
            const TypeDescription &type = *node.type;
            const auto [known, isNew] = leaves.try_emplace(&type);
            if (isNew)
                known->second = ::number(type, 0, m_firstLeaves);
            m_nodes.insert(text(device.name) + QLatin1Char('/') + text(node.name),
                           {&node, nullptr, count});
            count += known->second;
        }
    }
    std::sort(m_firstLeaves.begin(), m_firstLeaves.end());
    m_firstLeaves.shrink_to_fit();
    m_attributes.resize(count);
    m_qualities.resize(count);
    for (const LogicalDevice *device : qAsConst(m_device->logicalDevices)) {
        for (LogicalNode *node : device->logicalNodes)
            m_nodes[device->name + QLatin1Char('/') + node->name].shown = node;
    }
}

void OnlineModel::findAttributes(bool isCompared)
{
    const std::vector<DataAttribute *> none(m_attributes.size());
    const LeafVisitor remember = [this](const Leaf &leaf) {
        m_attributes[leaf.number] = m_device->findTag(leaf.reference);
    };
    std::map<std::pair<const TypeDescription *, QString>, LeafPlaces> forms;
    for (const acsi::DeviceDescription &device : m_description->devices) {
        for (const acsi::NodeDescription &each : device.nodes) {
            const QString name = text(device.name) + QLatin1Char('/') + text(each.name);
            const Node node = m_nodes.value(name);
            // Octets that are no UTF-8 may give two nodes one name; the last of them has it.
            if (node.description != &each)
                continue;
            const std::pair form(&*each.type, node.shown ? node.shown->lnClass : QString());
            const auto known = forms.find(form);
            if (known != forms.end()) {
                known->second.fill(*node.shown, std::span(m_attributes).subspan(node.firstLeaf));
                continue;
            }
            Walk walk{none, remember, name, node.firstLeaf};
            walk.visit(*each.type, nullptr, nullptr, nullptr);
            // What a file says of a node is said of that node alone.
            if (node.shown && !isCompared) {
                const auto leaves =
                    std::span(m_attributes).subspan(node.firstLeaf, walk.number - node.firstLeaf);
                forms.emplace(form, LeafPlaces(*node.shown, leaves));
            }
        }
    }
}

const OnlineModel::Node *OnlineModel::nodeOf(const acsi::Reference &reference) const
{
    const auto found =
        m_nodes.find(text(reference.device) + QLatin1Char('/') + text(reference.node));
    return found == m_nodes.end() ? nullptr : &*found;
}

const acsi::NodeDescription *OnlineModel::description(const acsi::Reference &reference) const
{
    const Node *node = nodeOf(reference);
    return node ? node->description : nullptr;
}

bool OnlineModel::isWholeKnown(const acsi::Reference &reference) const
{
    const acsi::NodeDescription *node = description(reference);
    return node && acsi::isToldWhole(*node, acsi::itemText(reference));
}

std::vector<acsi::Reference> OnlineModel::readableParts(const acsi::Reference &reference) const
{
    std::vector<acsi::Reference> parts;
    const acsi::NodeDescription *node = description(reference);
    if (!node || !describedType(reference))
        return parts;
    for (const std::string &item : acsi::partsToldWhole(*node, acsi::itemText(reference))) {
        if (const auto part = acsi::parseReference(reference.device, item))
            parts.push_back(*part);
    }
    return parts;
}

const mms::TypeDescription *OnlineModel::type(const acsi::Reference &reference) const
{
    return isWholeKnown(reference) ? describedType(reference) : nullptr;
}

/// Step by step and not by the text of the reference: what a device calls its data may look like
/// several steps.
OnlineModel::Place OnlineModel::placeOf(const acsi::Reference &reference) const
{
    const Node *node = nodeOf(reference);
    if (!node || !node->description)
        return {};
    Place place{&*node->description->type, node->firstLeaf};
    if (!reference.constraint)
        return place;
    place.type = acsi::componentOf(*place.type, acsi::toText(*reference.constraint));
    for (const acsi::PathStep &step : reference.path) {
        if (place.type)
            place.type = acsi::componentOf(*place.type, step.name);
        if (!place.type || !step.element)
            continue;
        const TypeDescription &array = *place.type;
        const bool isThere = array.kind == TypeDescription::Kind::Array &&
                             !array.components.empty() && *step.element < array.elementCount;
        place.type = isThere ? &array.components.front().type : nullptr;
        if (place.type)
            place.before += *step.element * leavesBelow(*place.type);
    }
    return place;
}

const mms::TypeDescription *OnlineModel::describedType(const acsi::Reference &reference) const
{
    return placeOf(reference).type;
}

std::uint32_t OnlineModel::firstLeafOf(const TypeDescription *type) const
{
    const auto found = std::lower_bound(
        m_firstLeaves.begin(), m_firstLeaves.end(), type,
        [](const auto &entry, const TypeDescription *wanted) { return entry.first < wanted; });
    return found == m_firstLeaves.end() || found->first != type ? 0 : found->second;
}

LeafRange OnlineModel::leafRange(const acsi::Reference &reference) const
{
    const Place place = placeOf(reference);
    if (!place.type)
        return {};
    return {place.before + firstLeafOf(place.type), leavesBelow(*place.type)};
}

std::vector<acsi::Reference> OnlineModel::partsOf(const acsi::Reference &reference) const
{
    std::vector<acsi::Reference> parts;
    const TypeDescription *whole = describedType(reference);
    if (!whole || !reference.constraint)
        return parts;
    if (whole->kind == TypeDescription::Kind::Structure) {
        for (const TypeDescription::Component &component : whole->components) {
            acsi::Reference part = reference;
            part.path.push_back({component.name, {}});
            parts.push_back(std::move(part));
        }
    } else if (whole->kind == TypeDescription::Kind::Array && whole->elementCount <= mostElements &&
               !reference.path.empty() && !reference.path.back().element) {
        for (std::uint32_t i = 0; i < whole->elementCount; ++i) {
            acsi::Reference part = reference;
            part.path.back().element = i;
            parts.push_back(std::move(part));
        }
    }
    return parts;
}

bool OnlineModel::setQuality(std::uint32_t leaf, const mms::Data &quality)
{
    const mms::BitString bits = quality.bits();
    std::uint32_t folded = 1;
    for (std::size_t i = 0; i < std::min<std::size_t>(bits.size(), 31); ++i)
        folded = (folded << 1U) | (bits.test(i) ? 1U : 0U);
    return leaf < m_qualities.size() && std::exchange(m_qualities[leaf], folded) != folded;
}

LogicalNode *OnlineModel::node(const QString &device, const QString &node) const
{
    return m_nodes.value(device + QLatin1Char('/') + node).shown;
}

ReportControlBlock *OnlineModel::reportControlBlock(const QString &device,
                                                    const QString &reference) const
{
    const LogicalNode *owner = node(device, reference.section(QLatin1Char('$'), 0, 0));
    if (!owner)
        return nullptr;
    for (ReportControlBlock *block : qAsConst(owner->reportControls->blocks)) {
        if (block->reference == reference)
            return block;
    }
    return nullptr;
}

/// The quality or time, by @p name, that goes with a leaf: the nearest beside or above it; null
/// without, and for itself.
const DataAttribute *OnlineModel::companionOf(const QString &leaf, const QString &name) const
{
    QString place = leaf;
    // Not above the data object: "LD/LN$FC$Object".
    while (place.count(QLatin1Char('$')) > 2) {
        place.truncate(place.lastIndexOf(QLatin1Char('$')));
        const QString companion = place + QLatin1Char('$') + name;
        if (const DataAttribute *found = m_device->findTag(companion))
            return companion == leaf ? nullptr : found;
    }
    return nullptr;
}

OnlineModel::Accompanied OnlineModel::accompanied(std::uint32_t leaf) const
{
    const DataAttribute *const shown = attribute(leaf);
    if (!shown)
        return {leaf};
    return {leaf, shown, companionOf(shown->reference, QStringLiteral("q")),
            companionOf(shown->reference, QStringLiteral("t"))};
}

std::vector<OnlineModel::Accompanied>
OnlineModel::leavesWithQuality(const acsi::Reference &quality) const
{
    std::vector<Accompanied> leaves;
    acsi::Reference parent = quality;
    parent.path.pop_back();
    const QString own = text(acsi::toText(quality));
    for (const Leaf &leaf : leavesOf(parent)) {
        if (!leaf.attribute || leaf.reference == own)
            continue;
        const Accompanied each = accompanied(leaf.number);
        if (each.quality && each.quality->reference == own)
            leaves.push_back(each);
    }
    return leaves;
}

OnlineModel::Found OnlineModel::find(const acsi::Reference &reference) const
{
    return {type(reference), leafRange(reference).first, text(acsi::toText(reference))};
}

bool OnlineModel::forEachLeaf(const Found &found, const mms::Data &data, const LeafVisitor &visitor,
                              Names names) const
{
    if (!found.type)
        return false;
    const bool isNamed = names == Names::Given;
    Walk walk{m_attributes, visitor, isNamed ? found.name : QString(), found.firstLeaf, isNamed};
    walk.visit(*found.type, &data, nullptr, nullptr);
    return walk.fits;
}

std::vector<OnlineModel::Leaf> OnlineModel::leavesOf(const acsi::Reference &reference) const
{
    std::vector<Leaf> leaves;
    const TypeDescription *described = describedType(reference);
    if (!described)
        return leaves;
    const LeafVisitor visitor = [&leaves](const Leaf &leaf) { leaves.push_back(leaf); };
    Walk walk{m_attributes, visitor, text(acsi::toText(reference)), leafRange(reference).first};
    walk.visit(*described, nullptr, nullptr, nullptr);
    return leaves;
}

void OnlineModel::setDataSets(const acsi::ServerDescription &read, const PhysicalDevice *fromFile)
{
    bool isOther = m_description->associationDataSets != read.associationDataSets;
    m_description->associationDataSets = read.associationDataSets;
    for (acsi::DeviceDescription &device : m_description->devices) {
        const auto found =
            std::ranges::find(read.devices, device.name, &acsi::DeviceDescription::name);
        if (found == read.devices.end() || found->dataSets == device.dataSets)
            continue;
        device.dataSets = found->dataSets;
        isOther = true;
    }
    if (isOther)
        DiscoveredModel::setDataSets(*m_device, *m_description, fromFile);
}

QByteArray OnlineModel::toBytes() const
{
    return m_device->toBytes();
}
