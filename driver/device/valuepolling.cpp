// SPDX-License-Identifier: Apache-2.0
#include "valuepolling.h"

#include "deviceconnection.h"
#include "valuepublishing.h"

#include "driver/text/connectiontext.h"

#include "acsi/callgroup.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <map>

using acsi::FunctionalConstraint;
using ConnectionText::text;
using std::chrono::milliseconds;
using Pace = ValueCurrency::Pace;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(IedDriver)
};

const QString staleValues = QStringLiteral("values, stale");
const QString refusedValues = QStringLiteral("values, refused");

/// The setting group control block stands among the data, but is none.
bool isControlBlock(const acsi::Reference &reference)
{
    return reference.constraint == FunctionalConstraint::SP && reference.node == "LLN0" &&
           reference.path.size() == 1 && reference.path.front().name == "SGCB";
}

QString localTime(ValueCurrency::Time time, ValueCurrency::Time now, QDateTime &asDate)
{
    const auto ago = std::chrono::duration_cast<milliseconds>(now - time);
    asDate = QDateTime::currentDateTime().addMSecs(-ago.count());
    return asDate.toString(QStringLiteral("yyyy-MM-dd hh:mm:ss"));
}

} // namespace

ValuePolling::ValuePolling(DeviceConnection &connection)
    : m_connection(connection)
{
}

ValueCurrency *ValuePolling::currency() const
{
    return m_polling ? &m_polling->currency() : nullptr;
}

std::vector<ValueCurrency::Part> ValuePolling::partsOf(const ValueCurrency::Part &whole) const
{
    std::vector<ValueCurrency::Part> parts;
    const OnlineModel *const model = m_connection.model();
    if (!model)
        return parts;
    for (const acsi::Reference &component : model->partsOf(whole.reference)) {
        if (isControlBlock(component))
            continue;
        for (acsi::Reference &part : model->readableParts(component)) {
            const std::size_t octets = acsi::readSize(acsi::accessOf(part));
            const LeafRange leaves = model->leafRange(part);
            parts.push_back({std::move(part), leaves, octets});
        }
    }
    return parts;
}

void ValuePolling::begin(const ClientPointer &client)
{
    const OnlineModel &model = *m_connection.model();
    ValueCurrency::Options options;
    options.interval = m_connection.configuration().pollInterval;
    const std::size_t limit = client->association().pduSize();
    options.room = limit - std::min(limit, acsi::readFrameSize());
    options.places = client->outstanding();
    options.grace = client->options().association.grace;
    const auto divide = [this](const ValueCurrency::Part &whole) { return partsOf(whole); };
    m_polling = std::make_shared<Polling>(model.leafCount(), divide, options);
    m_reportedChanged = true;
    m_triggers.clear();
    m_knowsTriggers.clear();
    m_connection.setProblem(staleValues, {});
    m_connection.setProblem(refusedValues, {});
    for (const acsi::DeviceDescription &device : model.description().devices) {
        for (const acsi::NodeDescription &node : device.nodes) {
            for (const mms::TypeDescription::Component &component : node.type->components) {
                const auto constraint = acsi::functionalConstraintFrom(component.name);
                const std::optional<Pace> pace =
                    constraint ? Polling::paceOf(*constraint) : std::nullopt;
                if (!pace)
                    continue;
                ValueCurrency::Part part;
                part.reference = acsi::Reference{device.name, node.name, *constraint, {}};
                part.leaves = model.leafRange(part.reference);
                part.octets = acsi::readSize(acsi::accessOf(part.reference));
                acsi::Reference block = part.reference;
                block.path.push_back({"SGCB", {}});
                const bool isDivided = !model.isWholeKnown(part.reference) ||
                                       (isControlBlock(block) && model.leafRange(block).count > 0);
                m_polling->currency().add(*pace, std::move(part), isDivided);
            }
        }
    }
}

asio::awaitable<void> ValuePolling::readConfiguration(ClientPointer client)
{
    m_polling->readConfiguration();
    co_await carryOut(client);
}

asio::awaitable<void> ValuePolling::poll(ClientPointer client)
{
    m_polling->start(m_connection.now());
    co_await carryOut(client);
}

asio::awaitable<void> ValuePolling::carryOut(ClientPointer client)
{
    using What = Polling::Step::What;
    struct Asked
    {
        Polling::Question question;
        Time when;
    };
    const std::shared_ptr<Polling> polling = m_polling;
    std::map<ValueCurrency::Id, Asked> asked;
    acsi::CallGroup group(client);
    const auto goesOn = [&] {
        return m_connection.isKept() && client->isOpen() && m_connection.model() &&
               m_polling == polling;
    };
    while (goesOn()) {
        const Time now = m_connection.now();
        followReports(polling->currency());
        Polling::Step step = polling->next(now);
        std::optional<milliseconds> patience;
        if (step.until)
            patience =
                std::max(std::chrono::ceil<milliseconds>(*step.until - now), milliseconds(1));
        switch (step.what) {
        case What::Ask: {
            std::vector<mms::VariableAccess> variables;
            variables.reserve(step.question.parts.size());
            for (const ValueCurrency::Id part : step.question.parts)
                variables.push_back(acsi::accessOf(polling->currency().part(part).reference));
            const ValueCurrency::Id id = step.question.id;
            group.start(id, acsi::readRequest(std::move(variables)),
                        m_connection.configuration().callTimeout);
            asked[id] = {std::move(step.question), now};
            break;
        }
        case What::Tell:
            tell(polling->currency());
            break;
        case What::Pause:
            co_await m_connection.pause(*patience);
            break;
        case What::Listen: {
            std::optional<acsi::CallGroup::Arrival> arrival = co_await group.next(patience);
            if (!goesOn() || !arrival)
                break;
            const auto found = asked.extract(static_cast<ValueCurrency::Id>(arrival->id));
            const Asked &answered = found.mapped();
            ValuePublishing::Publication publication;
            publication.cause = PublishCause::Polled;
            publication.onlyChanges = true;
            publication.asOf = answered.when;
            polling->answered(
                answered.question,
                acsi::readAnswer(std::move(arrival->outcome), answered.question.parts.size()),
                m_connection.now(), [&](const acsi::Reference &part, const mms::Data &value) {
                    return m_connection.values().publish(part, value, publication);
                });
            break;
        }
        case What::Done:
            co_return;
        }
    }
}

void ValuePolling::setReported(const QString &source,
                               const std::vector<acsi::Reference> &references,
                               const ReportCoverage &coverage)
{
    // Reports cannot be understood of what the device described in parts only.
    const OnlineModel *const model = m_connection.model();
    std::vector<acsi::Reference> understood;
    for (const acsi::Reference &reference : references) {
        if (!model || model->isWholeKnown(reference))
            understood.push_back(reference);
    }
    m_reported.set(source, understood, coverage);
    m_reportedChanged = true;
    m_connection.wake();
}

const LeafTriggers &ValuePolling::triggersOf(std::uint32_t leaf)
{
    const OnlineModel &model = *m_connection.model();
    m_triggers.resize(model.leafCount());
    m_knowsTriggers.resize(model.leafCount());
    if (!m_knowsTriggers[leaf]) {
        m_knowsTriggers[leaf] = true;
        const DataAttribute *attribute = model.attribute(leaf);
        const auto reference =
            acsi::parseReference(attribute ? attribute->reference.toStdString() : std::string());
        if (reference)
            m_triggers[leaf] = standardTriggers(*reference);
    }
    return m_triggers[leaf];
}

void ValuePolling::followReports(ValueCurrency &currency)
{
    if (!std::exchange(m_reportedChanged, false))
        return;
    const OnlineModel &model = *m_connection.model();
    currency.setReported(m_reported.coveredLeaves(
        [&model](const acsi::Reference &member) { return model.leafRange(member); },
        [this](std::uint32_t leaf) { return triggersOf(leaf); },
        m_connection.configuration().pollInterval));
}

void ValuePolling::tell(const ValueCurrency &currency)
{
    const ValueCurrency::Summary summary = currency.summary();
    QDateTime since;
    QString sentence;
    if (summary.stale > 0) {
        const QString time = localTime(summary.staleSince, m_connection.now(), since);
        const QString reference = text(acsi::toText(*summary.firstStale));
        sentence = (summary.isSilent
                        ? Texts::tr("Values that are not current since %1: %2. The device does "
                                    "not answer when it is asked for %3.")
                        : Texts::tr("Values that are not current since %1: %2. The device "
                                    "cannot give %3 for the moment."))
                       .arg(time)
                       .arg(summary.stale)
                       .arg(reference);
    }
    m_connection.setProblem(staleValues, sentence);
    sentence.clear();
    if (summary.refused > 0) {
        QStringList names;
        for (const acsi::Reference &reference : summary.refusedParts)
            names.append(text(acsi::toText(reference)));
        sentence = Texts::tr("Values that the device refuses and that are not asked for again: "
                             "%1 (%2).")
                       .arg(summary.refused)
                       .arg(names.join(QStringLiteral(", ")));
    }
    m_connection.setProblem(refusedValues, sentence);
    m_connection.board().update([&](DeviceStatus &status) {
        status.staleValues = static_cast<int>(summary.stale);
        status.staleSince = since;
        status.refusedValues = static_cast<int>(summary.refused);
    });
}

void ValuePolling::end()
{
    m_reported.clear();
    const std::uint32_t known = m_polling ? m_polling->currency().known() : 0;
    if (known == 0)
        return;
    m_connection.board().update([known](DeviceStatus &status) {
        status.staleValues = static_cast<int>(known);
        if (!status.staleSince.isValid())
            status.staleSince = QDateTime::currentDateTime();
    });
}
