// SPDX-License-Identifier: Apache-2.0
#include "resolver.h"

#include "communicationreader.h"
#include "controlreader.h"
#include "instancereader.h"
#include "saturating.h"
#include "typeresolver.h"

#include <unordered_set>

namespace scl {

using wording::say;
namespace {

/// Builds the IEDs of a document, from access points down to logical nodes.
class Resolver : private ResolverPart
{
public:
    Resolver(ResolverState &state, const std::function<void(double)> &progress)
        : ResolverPart(state)
        , m_progress(progress)
        , m_types(state)
        , m_instances(state)
        , m_fcdas(state, m_types)
        , m_controls(state, m_fcdas)
        , m_communication(state)
    {
    }

    void run()
    {
        for (const Finding &finding : m_tree.findings)
            addFinding(finding);
        readRoot();
        m_types.resolve();
        readIeds();
        if (m_state.error.error == ReadError::None)
            m_communication.readCommunication();
    }

private:
    void readRoot()
    {
        m_document.version = trimmed(value(0, Attr::Version));
        m_document.revision = trimmed(value(0, Attr::Revision));
        m_document.release = number(0, Attr::Release, "release", 0);
        if (const std::uint32_t header = m_tree.firstChild(0, Tag::Header); header != noElement) {
            m_document.headerId = value(header, Attr::Id);
            m_document.toolId = value(header, Attr::ToolId);
        }
    }

    void readIeds()
    {
        std::vector<Ied> ieds;
        std::uint32_t total = 0;
        m_tree.forEachChild(0, [&](std::uint32_t, Tag tag) { total += tag == Tag::Ied ? 1U : 0U; });
        std::uint32_t done = 0;
        std::unordered_set<std::string_view> names;
        m_tree.forEachChild(0, [&](std::uint32_t element, Tag tag) {
            if (tag != Tag::Ied || stopped())
                return;
            const Ied ied = readIed(element);
            if (!names.insert(ied.name).second)
                error(element, say("There is another IED of the name \"%1\".", ied.name));
            ieds.push_back(ied);
            ++done;
            if (m_progress)
                m_progress(static_cast<double>(done) / static_cast<double>(total));
        });
        m_document.ieds = keep(ieds);
    }

    Ied readIed(std::uint32_t element)
    {
        Ied ied;
        ied.line = m_tree.at(element).line;
        ied.name = trimmed(value(element, Attr::Name));
        ied.desc = value(element, Attr::Desc);
        ied.type = value(element, Attr::Type);
        ied.manufacturer = value(element, Attr::Manufacturer);
        ied.configVersion = value(element, Attr::ConfigVersion);
        if (ied.name.empty())
            error(element, say("The IED has no name."));
        m_iedNodes = 0;
        m_iedElement = element;

        std::vector<AccessPoint> points;
        std::vector<std::uint32_t> pointElements;
        m_tree.forEachChild(element, [&](std::uint32_t child, Tag tag) {
            if (tag == Tag::Services) {
                ied.services = readServices(child);
            } else if (tag == Tag::AccessPoint) {
                points.push_back(readAccessPoint(child, ied));
                pointElements.push_back(child);
            }
        });
        for (std::size_t i = 0; i < points.size(); ++i) {
            if (!points[i].serverAt.empty())
                shareServer(points, i, pointElements[i]);
        }
        const std::span<const AccessPoint> kept = keep(points);
        ied.accessPoints = kept;
        m_fcdas.resolve(ied);
        return ied;
    }

    void shareServer(std::vector<AccessPoint> &points, std::size_t index, std::uint32_t element)
    {
        for (const AccessPoint &other : points) {
            if (&other != &points[index] && other.name == points[index].serverAt &&
                other.serverAt.empty() && other.server) {
                points[index].server = other.server;
                return;
            }
        }
        error(element,
              say("The access point \"%1\" whose server is shared does not exist or has none.",
                  points[index].serverAt));
    }

    Services readServices(std::uint32_t element)
    {
        Services services;
        services.present = true;
        services.nameLength = number(element, Attr::NameLength, "nameLength", 32);
        std::vector<Service> list;
        collectServices(element, {}, list);
        services.list = keep(list);
        return services;
    }

    void collectServices(std::uint32_t element, std::string_view path, std::vector<Service> &list)
    {
        m_tree.forEachChild(element, [&](std::uint32_t child, Tag) {
            Service service;
            const std::string_view name = m_tree.at(child).name;
            service.name = path.empty() ? name : joined(path, "/", name);
            std::vector<std::pair<std::string_view, std::string_view>> attributes;
            for (const XmlAttribute &attribute : m_tree.attributesOf(child))
                attributes.emplace_back(attribute.name, attribute.value);
            service.attributes = keep(attributes);
            list.push_back(service);
            collectServices(child, service.name, list);
        });
    }

    AccessPoint readAccessPoint(std::uint32_t element, const Ied &ied)
    {
        AccessPoint point;
        point.line = m_tree.at(element).line;
        point.name = trimmed(value(element, Attr::Name));
        point.desc = value(element, Attr::Desc);
        std::vector<LogicalNode> nodes;
        m_tree.forEachChild(element, [&](std::uint32_t child, Tag tag) {
            if (tag == Tag::Server) {
                point.server = readServer(child, ied);
            } else if (tag == Tag::ServerAt) {
                point.serverAt = trimmed(value(child, Attr::ApName));
                if (point.serverAt.empty())
                    error(child, say("The element does not name an access point."));
            } else if (tag == Tag::Services) {
                point.services = readServices(child);
            } else if (tag == Tag::Ln && !stopped()) {
                nodes.push_back(readLogicalNode(child));
            }
        });
        if (point.server)
            point.serverAt = {};
        point.nodes = keep(nodes);
        return point;
    }

    const Server *readServer(std::uint32_t element, const Ied &ied)
    {
        Server server;
        server.timeout = number(element, Attr::Timeout, "timeout", 30);
        std::vector<LogicalDevice> devices;
        std::unordered_set<std::string_view> insts;
        m_tree.forEachChild(element, [&](std::uint32_t child, Tag tag) {
            if (tag != Tag::LDevice || stopped())
                return;
            const LogicalDevice device = readDevice(child, ied);
            if (!insts.insert(device.inst).second)
                error(child, say("There is another logical device \"%1\".", device.inst));
            devices.push_back(device);
        });
        server.devices = keep(devices);
        return keepOne(server);
    }

    LogicalDevice readDevice(std::uint32_t element, const Ied &ied)
    {
        LogicalDevice device;
        device.line = m_tree.at(element).line;
        device.inst = trimmed(value(element, Attr::Inst));
        device.ldName = trimmed(value(element, Attr::LdName));
        device.desc = value(element, Attr::Desc);
        device.name = device.ldName.empty() ? joined(ied.name, device.inst) : device.ldName;
        if (device.inst.empty())
            error(element, say("The logical device has no instance name (attribute inst)."));
        m_currentDevice = device.inst;
        std::vector<LogicalNode> nodes;
        std::unordered_set<std::string_view> names;
        m_tree.forEachChild(element, [&](std::uint32_t child, Tag tag) {
            if ((tag != Tag::Ln0 && tag != Tag::Ln) || stopped())
                return;
            const LogicalNode node = readLogicalNode(child);
            if (!names.insert(node.name).second)
                error(child, say("There is another logical node \"%1\".", node.name));
            if (tag == Tag::Ln0)
                nodes.insert(nodes.begin(), node);
            else
                nodes.push_back(node);
        });
        if (m_tree.firstChild(element, Tag::Ln0) == noElement)
            error(element, say("The logical device has no LN0."));
        device.nodes = keep(nodes);
        m_currentDevice = {};
        return device;
    }

    LogicalNode readLogicalNode(std::uint32_t element)
    {
        const bool zero = m_tree.at(element).tag == Tag::Ln0;
        LogicalNode node;
        node.line = m_tree.at(element).line;
        node.prefix = trimmed(value(element, Attr::Prefix));
        node.lnClass = trimmed(value(element, Attr::LnClass));
        node.inst = trimmed(value(element, Attr::Inst));
        node.desc = value(element, Attr::Desc);
        node.typeId = value(element, Attr::LnType);
        if (zero && node.lnClass.empty())
            node.lnClass = "LLN0";
        if (zero && node.lnClass != "LLN0")
            warn(element, say("The class of an LN0 is \"%1\" instead of \"LLN0\".", node.lnClass));
        if (node.lnClass.empty())
            error(element, say("The logical node has no class (attribute lnClass)."));
        if (!zero && node.inst.empty())
            error(element, say("The logical node has no instance number (attribute inst)."));
        node.name = joined(node.prefix, node.lnClass, node.inst);

        const std::string_view typeId = trimmed(node.typeId);
        if (typeId.empty()) {
            error(element, say("The logical node has no type (attribute lnType)."));
        } else if (node.type = m_types.nodeType(typeId); node.type) {
            if (!node.type->lnClass.empty() && node.type->lnClass != node.lnClass) {
                warn(element,
                     say("The class is \"%1\", but the LNodeType \"%2\" is of class \"%3\".",
                         node.lnClass, typeId, node.type->lnClass));
            }
        } else {
            error(element, say("The LNodeType \"%1\" does not exist.", typeId));
        }

        node.instances = m_instances.readInstances(element, node.type);
        countNodes(element, node);
        m_controls.readControls(element, m_currentDevice, node);
        return node;
    }

    void reportUnknownSizes(std::uint32_t element, const DataNode &data, const std::string &path)
    {
        if (data.isArray() && !data.arraySize()) {
            warn(
                element,
                say("The attribute \"%1\" that holds the number of elements of \"%2\" has no value; the array is empty.",
                    data.node().arraySizeAttribute, path));
        }
        if (!data.node().type || !data.node().type->sizeVaries)
            return;
        data.forEachChild([&](const DataNode &child) {
            reportUnknownSizes(element, child,
                               child.element() >= 0
                                   ? path + "(" + std::to_string(child.element()) + ")"
                                   : path + "." + std::string(child.name()));
        });
    }

    void countNodes(std::uint32_t element, const LogicalNode &node)
    {
        if (!node.type)
            return;
        if (!node.type->sizeVaries) {
            m_iedNodes = saturatingAdd(m_iedNodes, node.type->nodeCount);
        } else {
            node.forEachDataObject([this, element](const DataNode &object) {
                const std::uint64_t below = object.nodeCount(m_options.maxDataNodes);
                m_iedNodes = saturatingAdd(m_iedNodes, saturatingAdd(below, 1));
                if (m_iedNodes <= m_options.maxDataNodes)
                    reportUnknownSizes(element, object, std::string(object.name()));
            });
        }
        if (m_iedNodes > m_options.maxDataNodes && m_state.error.error == ReadError::None) {
            m_state.error = {ReadError::TooLarge,
                             say("The IED \"%1\" has more than %2 nodes of data.",
                                 value(m_iedElement, Attr::Name), m_options.maxDataNodes),
                             node.line};
        }
    }

    const std::function<void(double)> &m_progress;
    TypeResolver m_types;
    InstanceReader m_instances;
    FcdaResolver m_fcdas;
    ControlReader m_controls;
    CommunicationReader m_communication;
    std::string_view m_currentDevice;
    std::uint32_t m_iedElement = noElement;
    std::uint64_t m_iedNodes = 0;
};

} // namespace

XmlError resolve(const XmlTree &tree, const ReadOptions &options,
                 const std::function<void(double)> &progress, Document &document)
{
    ResolverState state{tree, options, document, {}};
    Resolver(state, progress).run();
    return std::move(state.error);
}

} // namespace scl
