// SPDX-License-Identifier: Apache-2.0
#include "answers.h"

#include "acsi/discoveryplan.h"
#include "driver/model/discoveredmodel.h"
#include "driver/model/onlinemodel.h"
#include "driver/model/sclimport.h"
#include "driver/model/valueconversion.h"
#include "mms/pdu.h"

#include <QtCore/QDataStream>

#include <memory>

namespace {

using namespace fuzz;
using mms::CallFailure;
using mms::CallOutcome;
using mms::ResponseService;
using mms::TypeDescription;

/// Far below those of the driver, so that inputs of a few octets reach them.
acsi::DiscoveryLimits limits()
{
    acsi::DiscoveryLimits limits;
    limits.devices = 4;
    limits.nodes = 40;
    limits.names = 400;
    limits.octets = 400'000;
    limits.depth = 8;
    limits.elements = 100;
    limits.values = 4000;
    return limits;
}

/// Of a file with the names that the answers have, too; the two are compared.
const PhysicalDevice &deviceOfFile()
{
    static const std::unique_ptr<PhysicalDevice> device = [] {
        const std::string_view text =
            R"(<SCL xmlns="http://www.iec.ch/61850/2003/SCL" version="2007" revision="B">
<Header id="h"/><IED name="FUZZ"><AccessPoint name="S1"><Server><LDevice inst="LD">
<LN0 lnClass="LLN0" inst="" lnType="N0"><DataSet name="ds"><FCDA ldInst="LD" lnClass="XCBR"
lnInst="1" doName="Pos" fc="ST"/></DataSet><ReportControl name="urcb01" datSet="ds" confRev="1"
indexed="false"><TrgOps dchg="true"/><OptFields seqNum="true"/></ReportControl></LN0>
<LN lnClass="XCBR" inst="1" lnType="N1"/></LDevice></Server></AccessPoint></IED>
<DataTypeTemplates><LNodeType id="N0" lnClass="LLN0"><DO name="NamPlt" type="P"/></LNodeType>
<LNodeType id="N1" lnClass="XCBR"><DO name="Pos" type="D"/></LNodeType>
<DOType id="P" cdc="LPL"><DA name="configRev" bType="VisString255" fc="DC"/></DOType>
<DOType id="D" cdc="DPC"><DA name="stVal" bType="Dbpos" fc="ST"/><DA name="q" bType="Quality"
fc="ST"/><DA name="t" bType="Timestamp" fc="ST"/></DOType></DataTypeTemplates></SCL>)";
        const scl::ReadResult read = scl::readBytes({text.data(), text.size()}, {});
        require(read.document != nullptr);
        return SclImport::makeDevice(read.document->ieds.front());
    }();
    return *device;
}

/// What an answer has on the wire, as far as it can be read.
CallOutcome fromOctets(mms::Bytes octets)
{
    auto pdu = mms::decodePdu(octets);
    if (pdu) {
        if (auto *response = std::get_if<mms::ConfirmedResponsePdu>(&*pdu))
            return std::move(response->response);
        if (auto *error = std::get_if<mms::ConfirmedErrorPdu>(&*pdu))
            return std::move(error->error);
        if (auto *reject = std::get_if<mms::RejectPdu>(&*pdu))
            return *reject;
    }
    return CallFailure{CallFailure::Kind::Malformed, mms::verbatim("The answer cannot be read.")};
}

mms::VariableAccess memberFrom(Material &material)
{
    acsi::Reference reference;
    reference.device = name(material);
    reference.node = name(material);
    reference.constraint = acsi::FunctionalConstraint::ST;
    reference.path.push_back({name(material), {}});
    if (material.below(4) == 0)
        reference.path.back().element = material.number();
    return acsi::accessOf(reference);
}

/// An answer of the service that was asked for, with any content.
CallOutcome fittingAnswer(Material &material, const mms::RequestService &request)
{
    if (std::holds_alternative<mms::GetNameListRequest>(request)) {
        mms::GetNameListResponse page;
        page.moreFollows = material.below(4) == 0;
        const std::size_t count = material.below(8);
        for (std::size_t i = 0; i < count; ++i) {
            std::string text = name(material);
            for (std::size_t more = material.below(4); more > 0; --more)
                text += '$' + name(material);
            page.names.push_back(std::move(text));
        }
        return ResponseService(std::move(page));
    }
    if (std::holds_alternative<mms::GetVariableAccessAttributesRequest>(request)) {
        mms::GetVariableAccessAttributesResponse response;
        response.type = typeFrom(material, 12);
        return ResponseService(std::move(response));
    }
    if (std::holds_alternative<mms::GetNamedVariableListAttributesRequest>(request)) {
        mms::GetNamedVariableListAttributesResponse response;
        response.deletable = material.below(2) != 0;
        for (std::size_t count = material.below(6); count > 0; --count)
            response.members.push_back(memberFrom(material));
        return ResponseService(std::move(response));
    }
    return ResponseService(
        mms::IdentifyResponse{name(material), name(material), name(material), {}});
}

CallOutcome answer(Material &material, const mms::RequestService &request)
{
    // Nothing is left to decide: the device has nothing more to tell.
    if (material.isUsedUp())
        return mms::ServiceError{
            mms::ErrorClass::Access, mms::serviceerrors::accessNonExistent, {}, {}, {}};
    switch (material.below(16)) {
    case 0:
        return fromOctets(material.chunk());
    case 1:
        return mms::ServiceError{static_cast<mms::ErrorClass>(material.below(13)),
                                 static_cast<std::int32_t>(material.below(16)),
                                 {},
                                 {},
                                 {}};
    case 2:
        return mms::RejectPdu{1, static_cast<mms::RejectedPdu>(1 + material.below(11)),
                              static_cast<std::int32_t>(material.below(16))};
    case 3:
        return CallFailure{static_cast<CallFailure::Kind>(material.below(6)),
                           mms::verbatim("The device did not answer.")};
    default:
        return fittingAnswer(material, request);
    }
}

bool isSentence(const mms::Text &text)
{
    return !text.empty() && text.english().back() == '.';
}

struct Counted
{
    std::uint64_t values = 0;
    std::size_t depth = 0;
};

Counted count(const TypeDescription &type)
{
    Counted counted;
    if (type.kind != TypeDescription::Kind::Structure && type.kind != TypeDescription::Kind::Array)
        counted.values = 1;
    for (const auto &component : type.components) {
        const Counted below = count(component.type);
        counted.values += below.values;
        counted.depth = std::max(counted.depth, below.depth + 1);
    }
    if (type.kind == TypeDescription::Kind::Array) {
        require(type.elementCount <= limits().elements);
        counted.values *= type.elementCount;
    }
    return counted;
}

void checkLimits(const acsi::ServerDescription &server)
{
    require(server.devices.size() <= limits().devices);
    std::size_t nodes = 0;
    std::uint64_t values = 0;
    for (const acsi::DeviceDescription &device : server.devices) {
        nodes += device.nodes.size();
        for (const acsi::NodeDescription &node : device.nodes) {
            const Counted counted = count(node.type);
            values += counted.values;
            require(counted.depth <= limits().depth + 1);
        }
    }
    require(nodes <= limits().nodes);
    require(values <= limits().values);
    for (const mms::Text &sentence : server.refused)
        require(isSentence(sentence));
    for (const mms::Text &sentence : server.leftOut)
        require(isSentence(sentence));
}

QString text(const std::string &utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
}

/// What the driver does with each data that it reads or that is reported.
void useData(Material &material, OnlineModel &model, const acsi::Reference &reference)
{
    const std::vector<OnlineModel::Leaf> leaves = model.leavesOf(reference);
    for (const OnlineModel::Leaf &leaf : leaves)
        require(leaf.number < model.leafCount());
    const LeafRange range = model.leafRange(reference);
    require(std::uint64_t{range.first} + range.count <= model.leafCount());
    model.readableParts(reference);
    model.partsOf(reference);
    const TypeDescription *type = model.type(reference);
    if (!type)
        return;
    const mms::Data value = valueFrom(material, *type);
    model.forEachLeaf(reference, value, [&](const OnlineModel::Leaf &leaf) {
        require(leaf.number < model.leafCount());
        const QString basicType =
            leaf.attribute ? leaf.attribute->basicType : ValueConversion::basicTypeOf(*leaf.type);
        const QVariant shown = ValueConversion::toVariant(basicType, *leaf.data);
        if (leaf.quality) {
            ValueConversion::qualityText(*leaf.quality);
            model.setQuality(leaf.number, *leaf.quality);
        }
        if (leaf.time)
            ValueConversion::timeText(*leaf.time);
        if (shown.isValid()) {
            const auto written = ValueConversion::toData(basicType, *leaf.type, shown);
            require(written || isSentence(written.error().message));
        }
        if (leaf.attribute)
            leaf.attribute->value = shown;
    });
    const auto block = acsi::reportBlockFrom(*type, value);
    require(block || isSentence(block.error().message));
    LogicalNode *node = model.node(text(reference.device), text(reference.node));
    if (node && node->settingGroup)
        DiscoveredModel::setGroups(*node->settingGroup, *type, value);
}

void useModel(Material &material, acsi::ServerDescription server)
{
    const bool hasFile = material.below(2) != 0;
    const PhysicalDevice *fromFile = hasFile ? &deviceOfFile() : nullptr;
    const acsi::ServerDescription copy = server;
    OnlineModel model(std::move(server), QStringLiteral("FUZZ"), fromFile);
    for (const acsi::DeviceDescription &device : copy.devices) {
        for (const acsi::NodeDescription &node : device.nodes) {
            useData(material, model, {device.name, node.name, {}, {}});
            for (const auto &group : node.type->components) {
                const auto constraint = acsi::functionalConstraintFrom(group.name);
                if (!constraint)
                    continue;
                useData(material, model, {device.name, node.name, constraint, {}});
                for (const auto &object : group.type.components) {
                    useData(material, model,
                            {device.name, node.name, constraint, {{object.name, {}}}});
                    useData(material, model,
                            {device.name,
                             node.name,
                             constraint,
                             {{object.name, static_cast<std::uint32_t>(material.octet())}}});
                }
            }
        }
        DiscoveredModel::setRevision(model.device(), text(device.name), text(name(material)),
                                     fromFile);
    }
    model.setDataSets(copy, fromFile);

    const QByteArray bytes = model.toBytes();
    PhysicalDevice again;
    QDataStream stream(bytes);
    again.fromStream(stream);
    require(stream.status() == QDataStream::Ok && stream.atEnd());
    QByteArray written;
    QDataStream out(&written, QIODevice::WriteOnly);
    again.toStream(out);
    require(written == bytes);
}

} // namespace

/// A server answers anything to the questions of a discovery: it ends, within its limits, with
/// sentences for what is missing, and the model that comes of it can be used and survives its byte
/// form.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    Material material(mms::Bytes(data, size));
    acsi::DiscoveryPlan plan(1 + material.below(5), limits());
    constexpr std::size_t mostSteps = 20'000;
    std::vector<acsi::DiscoveryPlan::Request> asked;
    for (std::size_t steps = 0; !plan.finished(); ++steps) {
        require(steps < mostSteps);
        while (auto request = plan.next())
            asked.push_back(std::move(*request));
        require(!asked.empty());
        const std::size_t event = material.isUsedUp() ? 0 : material.octet();
        if (event == 255)
            plan.timeIsOver();
        else if (event == 254)
            plan.confused();
        // Answers come in any order.
        const std::size_t which = event % asked.size();
        const acsi::DiscoveryPlan::Request request = std::move(asked[which]);
        asked.erase(asked.begin() + static_cast<std::ptrdiff_t>(which));
        plan.answered(request.step, answer(material, request.service.service()));
        plan.deviceNames();
        if (event == 255)
            asked.clear();
    }
    auto server = plan.take();
    if (!server) {
        require(isSentence(server.error().message));
        return 0;
    }
    checkLimits(*server);
    useModel(material, std::move(*server));
    return 0;
}
