// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "leafrange.h"

#include "acsi/discovery.h"
#include "acsi/reference.h"

#include <devicemodel/mmsvalue.h>
#include <devicemodel/physicaldevice.h>

#include <QtCore/QByteArray>
#include <QtCore/QHash>
#include <QtCore/QString>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

/// What the driver knows of a connected device: what the device told of itself, and the model that
/// the browser shows, with the last known values. In the strand of the device's connection. Shared
/// so that who has looked something up in it can see whether it is still there.
class OnlineModel : public std::enable_shared_from_this<OnlineModel>
{
public:
    /// A leaf of structured data.
    struct Leaf
    {
        QString reference;                          ///< full; empty where nobody asked for it
        std::uint32_t number = 0;                   ///< as in leafRange()
        DataAttribute *attribute = nullptr;         ///< null for one that the model does not show
        const mms::TypeDescription *type = nullptr; ///< of the leaf
        const mms::Data *data = nullptr;
        const mms::Data *quality = nullptr; ///< that goes with the value, where there is one
        const mms::Data *time = nullptr;
    };
    using LeafVisitor = std::function<void(const Leaf &leaf)>;

    /// @param fromFile the model of the device's SCL file, or null; what the two disagree in is
    ///                 marked
    OnlineModel(acsi::ServerDescription description, const QString &name,
                const PhysicalDevice *fromFile);

    PhysicalDevice &device() { return *m_device; }
    const PhysicalDevice &device() const { return *m_device; }
    const acsi::ServerDescription &description() const { return *m_description; }

    /// The live type of what the reference names; null when the device did not describe it, or not
    /// as a whole.
    const mms::TypeDescription *type(const acsi::Reference &reference) const;
    /// Whether the device itself told the order of what is in the structure. A value of one that it
    /// described in parts must not be taken apart, nor be put together to be written.
    bool isWholeKnown(const acsi::Reference &reference) const;
    /// What has to be read to get all of the reference: itself, or the largest parts of it of which
    /// the device told the order; nothing for what it did not describe.
    std::vector<acsi::Reference> readableParts(const acsi::Reference &reference) const;
    /// Whether it has to be read, and understood, in parts.
    bool isInParts(const acsi::Reference &reference) const
    {
        return !isWholeKnown(reference) && !readableParts(reference).empty();
    }
    /// All leaves, those included that the model does not show.
    std::uint32_t leafCount() const { return static_cast<std::uint32_t>(m_attributes.size()); }
    /// Null for one that the model does not show.
    const DataAttribute *attribute(std::uint32_t leaf) const { return m_attributes[leaf]; }
    /// The leaves of what the reference names, "LD/LN" at least; none of what the device did not
    /// describe.
    LeafRange leafRange(const acsi::Reference &reference) const;
    /// The components, or elements, of what the reference names, in the order of its leaves. None
    /// of a leaf, and none of an array that is too long to be asked for one by one.
    std::vector<acsi::Reference> partsOf(const acsi::Reference &reference) const;
    /// Remembers the quality that goes with the value of a leaf; true when it is another one.
    bool setQuality(std::uint32_t leaf, const mms::Data &quality);
    LogicalNode *node(const QString &device, const QString &node) const;
    ReportControlBlock *reportControlBlock(const QString &device, const QString &reference) const;

    /// What a reference names, looked up once. Valid as long as the model is.
    struct Found
    {
        const mms::TypeDescription *type = nullptr; ///< as type() gives it
        std::uint32_t firstLeaf = 0;
        QString name; ///< the reference as a text
    };
    Found find(const acsi::Reference &reference) const;
    /// A leaf that is shown, with what goes with it.
    struct Accompanied
    {
        std::uint32_t leaf = 0;
        const DataAttribute *attribute = nullptr;
        const DataAttribute *quality = nullptr; ///< may be null
        const DataAttribute *time = nullptr;    ///< may be null
    };
    Accompanied accompanied(std::uint32_t leaf) const;
    /// The leaves that have their quality from the attribute @p quality ("...$q"): those below its
    /// parent that have none nearer to them.
    std::vector<Accompanied> leavesWithQuality(const acsi::Reference &quality) const;

    enum class Names { Given, LeftOut };
    /// Takes structured data apart to the leaves of the model, in the order of the type. False when
    /// the value does not have the shape of the live type, and when that is not known as a whole;
    /// leaves before the mistake were visited.
    bool forEachLeaf(const Found &found, const mms::Data &data, const LeafVisitor &visitor,
                     Names names = Names::Given) const;
    bool forEachLeaf(const acsi::Reference &reference, const mms::Data &data,
                     const LeafVisitor &visitor) const
    {
        return forEachLeaf(find(reference), data, visitor);
    }
    /// The leaves of a data set member or of whatever a reference names, without values.
    std::vector<Leaf> leavesOf(const acsi::Reference &reference) const;

    /// Takes over the data sets of a newer description.
    void setDataSets(const acsi::ServerDescription &read, const PhysicalDevice *fromFile);

    QByteArray toBytes() const;

private:
    struct Walk;

    struct Node
    {
        const acsi::NodeDescription *description = nullptr; ///< null for one of the file alone
        LogicalNode *shown = nullptr;
        std::uint32_t firstLeaf = 0;
    };
    /// Where a type stands among the others.
    struct Place
    {
        const mms::TypeDescription *type = nullptr; ///< null for what was not described
        /// Leaves before its node, and before the wanted elements in the arrays on the way.
        std::uint32_t before = 0;
    };

    void addNodes();
    void findAttributes(bool isCompared);
    const Node *nodeOf(const acsi::Reference &reference) const;
    const acsi::NodeDescription *description(const acsi::Reference &reference) const;
    Place placeOf(const acsi::Reference &reference) const;
    const mms::TypeDescription *describedType(const acsi::Reference &reference) const;
    std::uint32_t firstLeafOf(const mms::TypeDescription *type) const;
    const DataAttribute *companionOf(const QString &leaf, const QString &name) const;

    std::unique_ptr<acsi::ServerDescription> m_description;
    std::unique_ptr<PhysicalDevice> m_device;
    QHash<QString, Node> m_nodes; ///< by "LD/LN"
    /// The number of the first leaf of each type in its node, in the order of the addresses; of the
    /// first element's in arrays.
    std::vector<std::pair<const mms::TypeDescription *, std::uint32_t>> m_firstLeaves;
    std::vector<DataAttribute *> m_attributes; ///< by number of the leaf; null for one not shown
    std::vector<std::uint32_t> m_qualities;    ///< by number of the leaf; 0 until there was one
};
