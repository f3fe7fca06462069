// SPDX-License-Identifier: Apache-2.0
// DeviceConnection's carrying out of what ValueCurrency wants to be asked, and the telling of what
// is not current.
#include "deviceconnection.h"

#include "driver/text/connectiontext.h"

#include "acsi/callgroup.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <map>

using acsi::FunctionalConstraint;
using ConnectionText::text;
using std::chrono::milliseconds;
using std::chrono::steady_clock;
using Pace = ValueCurrency::Pace;
using Reply = ValueCurrency::Reply;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(IedDriver)
};

/// How often what is not current is told within one round.
constexpr milliseconds tellingInterval{1000};
constexpr std::uint64_t nothingTold = ~std::uint64_t(0);
const QString staleValues = QStringLiteral("values, stale");
const QString refusedValues = QStringLiteral("values, refused");

std::optional<Pace> paceOf(FunctionalConstraint constraint)
{
    switch (constraint) {
    case FunctionalConstraint::ST:
    case FunctionalConstraint::MX:
        return Pace::Fast;
    case FunctionalConstraint::SP:
    case FunctionalConstraint::SG:
    case FunctionalConstraint::SV:
    case FunctionalConstraint::DC:
    case FunctionalConstraint::EX:
    case FunctionalConstraint::BL:
    case FunctionalConstraint::OR:
    case FunctionalConstraint::SR:
        return Pace::Slow;
    case FunctionalConstraint::CF:
        return Pace::Configuration;
    default:
        return std::nullopt;
    }
}

Reply replyOf(mms::DataAccessError error)
{
    switch (error) {
    case mms::DataAccessError::ObjectAccessDenied:
    case mms::DataAccessError::ObjectUndefined:
    case mms::DataAccessError::ObjectNonExistent:
        return Reply::Refused;
    default:
        return Reply::Unavailable;
    }
}

/// The setting group control block stands among the data, but is none.
bool isControlBlock(const acsi::Reference &reference)
{
    return reference.constraint == FunctionalConstraint::SP && reference.node == "LLN0" &&
           reference.path.size() == 1 && reference.path.front().name == "SGCB";
}

QString localTime(ValueCurrency::Time time, QDateTime &asDate)
{
    const auto ago = std::chrono::duration_cast<milliseconds>(steady_clock::now() - time);
    asDate = QDateTime::currentDateTime().addMSecs(-ago.count());
    return asDate.toString(QStringLiteral("yyyy-MM-dd hh:mm:ss"));
}

} // namespace

std::vector<ValueCurrency::Part> DeviceConnection::partsOf(const ValueCurrency::Part &whole) const
{
    std::vector<ValueCurrency::Part> parts;
    if (!m_model)
        return parts;
    for (const acsi::Reference &component : m_model->partsOf(whole.reference)) {
        if (isControlBlock(component))
            continue;
        for (acsi::Reference &part : m_model->readableParts(component)) {
            const std::size_t octets = acsi::readSize(acsi::accessOf(part));
            const LeafRange leaves = m_model->leafRange(part);
            parts.push_back({std::move(part), leaves, octets});
        }
    }
    return parts;
}

void DeviceConnection::makeCurrency(const ClientPointer &client)
{
    ValueCurrency::Options options;
    options.interval = m_configuration.pollInterval;
    const std::size_t limit = client->association().pduSize();
    options.room = limit - std::min(limit, acsi::readFrameSize());
    options.places = client->outstanding();
    options.grace = client->options().association.grace;
    const auto divide = [this](const ValueCurrency::Part &whole) { return partsOf(whole); };
    m_currency = std::make_shared<ValueCurrency>(m_model->leafCount(), divide, options);
    m_reportedChanged = true;
    // Of the values of the outage nothing is known until the first round is over.
    m_toldChanges = nothingTold;
    m_unwritten.clear();
    m_problems.remove(staleValues);
    m_problems.remove(refusedValues);
    for (const acsi::DeviceDescription &device : m_model->description().devices) {
        for (const acsi::NodeDescription &node : device.nodes) {
            for (const mms::TypeDescription::Component &component : node.type->components) {
                const auto constraint = acsi::functionalConstraintFrom(component.name);
                const std::optional<Pace> pace = constraint ? paceOf(*constraint) : std::nullopt;
                if (!pace)
                    continue;
                ValueCurrency::Part part;
                part.reference = acsi::Reference{device.name, node.name, *constraint, {}};
                part.leaves = m_model->leafRange(part.reference);
                part.octets = acsi::readSize(acsi::accessOf(part.reference));
                acsi::Reference block = part.reference;
                block.path.push_back({"SGCB", {}});
                const bool isDivided =
                    !m_model->isWholeKnown(part.reference) ||
                    (isControlBlock(block) && m_model->leafRange(block).count > 0);
                m_currency->add(*pace, std::move(part), isDivided);
            }
        }
    }
}

asio::awaitable<void> DeviceConnection::readConfiguration(ClientPointer client)
{
    m_currency->ask(Pace::Configuration);
    co_await carryOut(client, true);
}

asio::awaitable<void> DeviceConnection::poll(ClientPointer client)
{
    m_currency->start(steady_clock::now());
    co_await carryOut(client, false);
}

asio::awaitable<void> DeviceConnection::carryOut(ClientPointer client, bool untilIdle)
{
    struct Asked
    {
        ValueCurrency::Question question;
        Deadline when;
    };
    const std::shared_ptr<ValueCurrency> currency = m_currency;
    std::map<ValueCurrency::Id, Asked> asked;
    acsi::CallGroup group(client);
    const auto goesOn = [&] {
        return isWanted() && client->isOpen() && m_model && m_currency == currency;
    };
    while (goesOn()) {
        const Deadline now = steady_clock::now();
        followReports(*currency);
        while (auto question = currency->next(now)) {
            std::vector<mms::VariableAccess> variables;
            variables.reserve(question->parts.size());
            for (const ValueCurrency::Id part : question->parts)
                variables.push_back(acsi::accessOf(currency->part(part).reference));
            group.start(question->id, acsi::readRequest(std::move(variables)),
                        m_configuration.callTimeout);
            asked[question->id] = {std::move(*question), now};
        }
        if (untilIdle) {
            if (currency->isIdle())
                co_return;
        } else if (currency->isIdle()) {
            tellCurrency(*currency);
        } else if (now >= m_nextTelling && m_toldChanges != nothingTold) {
            m_nextTelling = now + tellingInterval;
            tellCurrency(*currency);
        }
        const std::optional<Deadline> next = currency->nextTime();
        std::optional<milliseconds> patience;
        if (next)
            patience = std::max(std::chrono::ceil<milliseconds>(*next - now), milliseconds(1));
        if (group.onTheWay() == 0) {
            if (!patience)
                co_return;
            co_await pause(*patience);
            continue;
        }
        std::optional<acsi::CallGroup::Arrival> arrival = co_await group.next(patience);
        if (!goesOn() || !arrival)
            continue;
        const auto found = asked.find(static_cast<ValueCurrency::Id>(arrival->id));
        const Asked answered = std::move(found->second);
        asked.erase(found);
        acsi::ReadAnswer answer =
            acsi::readAnswer(std::move(arrival->outcome), answered.question.parts.size());
        takeAnswer(*currency, answered.question, std::move(answer), answered.when);
    }
}

void DeviceConnection::takeAnswer(ValueCurrency &currency, const ValueCurrency::Question &question,
                                  acsi::ReadAnswer answer, Deadline asked)
{
    const Deadline now = steady_clock::now();
    switch (answer.kind) {
    case acsi::ReadAnswer::Kind::Results:
        break;
    case acsi::ReadAnswer::Kind::TooLarge:
        return currency.refused(question.id, Reply::TooLarge, now);
    case acsi::ReadAnswer::Kind::Refused:
        return currency.refused(question.id, replyOf(answer.error), now);
    case acsi::ReadAnswer::Kind::Silent:
        return currency.silent(question.id, now);
    case acsi::ReadAnswer::Kind::NotSent:
        return currency.unsent(question.id, now);
    case acsi::ReadAnswer::Kind::Ended:
        // A device that rejects a read may answer the next one.
        return currency.refused(question.id, Reply::Unavailable, now);
    }
    Publication publication;
    publication.cause = PublishCause::Polled;
    publication.onlyChanges = true;
    publication.asOf = asked;
    std::vector<Reply> replies;
    replies.reserve(question.parts.size());
    for (std::size_t i = 0; i < question.parts.size(); ++i) {
        const mms::AccessResult &result = answer.results[i];
        if (!result.ok()) {
            replies.push_back(replyOf(result.error()));
            continue;
        }
        const acsi::Reference reference = currency.part(question.parts[i]).reference;
        replies.push_back(publish(reference, result.data(), publication) ? Reply::Taken
                                                                         : Reply::Unfit);
    }
    currency.answered(question.id, replies, now);
}

void DeviceConnection::setReported(const QString &source,
                                   const std::vector<acsi::Reference> &references,
                                   const ReportCoverage &coverage)
{
    // Reports cannot be understood of what the device described in parts only.
    std::vector<acsi::Reference> understood;
    for (const acsi::Reference &reference : references) {
        if (!m_model || m_model->isWholeKnown(reference))
            understood.push_back(reference);
    }
    m_reported.set(source, understood, coverage);
    m_reportedChanged = true;
    wake();
}

const LeafTriggers &DeviceConnection::triggersOf(std::uint32_t leaf)
{
    m_triggers.resize(m_model->leafCount());
    m_knowsTriggers.resize(m_model->leafCount());
    if (!m_knowsTriggers[leaf]) {
        m_knowsTriggers[leaf] = true;
        const DataAttribute *attribute = m_model->attribute(leaf);
        const auto reference =
            acsi::parseReference(attribute ? attribute->reference.toStdString() : std::string());
        if (reference)
            m_triggers[leaf] = standardTriggers(*reference);
    }
    return m_triggers[leaf];
}

/// Of each leaf what its sources tell together is compared with what may change it.
void DeviceConnection::followReports(ValueCurrency &currency)
{
    if (!std::exchange(m_reportedChanged, false))
        return;
    struct Told
    {
        LeafTriggers on;
        bool isAlways = false;
    };
    std::map<std::uint32_t, Told> told;
    m_reported.forEachMember([&](const acsi::Reference &member, const ReportCoverage &coverage) {
        const LeafRange leaves = m_model->leafRange(member);
        // A time that is a member by itself has nothing that it could be told with.
        const bool isLoneTime =
            leaves.count == 1 && !member.path.empty() && member.path.back().name == "t";
        const bool isAlways = coverage.integrityPeriod > milliseconds::zero() &&
                              coverage.integrityPeriod <= m_configuration.pollInterval;
        for (std::uint32_t leaf = leaves.first; leaf < leaves.end(); ++leaf) {
            Told &each = told[leaf];
            each.isAlways = each.isAlways || isAlways;
            if (isLoneTime)
                continue;
            each.on.dataChange = each.on.dataChange || coverage.dataChange;
            each.on.qualityChange = each.on.qualityChange || coverage.qualityChange;
            each.on.dataUpdate = each.on.dataUpdate || coverage.dataUpdate;
        }
    });
    std::vector<LeafRange> covered;
    for (const auto &[leaf, each] : told) {
        if (!each.isAlways && !areTold(triggersOf(leaf), each.on))
            continue;
        if (!covered.empty() && covered.back().end() == leaf)
            ++covered.back().count;
        else
            covered.push_back({leaf, 1});
    }
    currency.setReported(covered);
}

void DeviceConnection::tellCurrency(const ValueCurrency &currency)
{
    if (currency.changes() == m_toldChanges)
        return;
    m_toldChanges = currency.changes();
    const ValueCurrency::Summary summary = currency.summary();
    QDateTime since;
    QString sentence;
    if (summary.stale > 0) {
        const QString time = localTime(summary.staleSince, since);
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
    setProblem(staleValues, sentence);
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
    setProblem(refusedValues, sentence);
    updateStatus([&](DeviceStatus &status) {
        status.staleValues = static_cast<int>(summary.stale);
        status.staleSince = since;
        status.refusedValues = static_cast<int>(summary.refused);
    });
}

void DeviceConnection::valuesAreLost()
{
    m_unwritten.clear();
    const std::uint32_t known = m_currency ? m_currency->known() : 0;
    if (known == 0)
        return;
    updateStatus([known](DeviceStatus &status) {
        status.staleValues = static_cast<int>(known);
        if (!status.staleSince.isValid())
            status.staleSince = QDateTime::currentDateTime();
    });
}
