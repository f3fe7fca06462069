// SPDX-License-Identifier: Apache-2.0
// DeviceConnection's way from what a device answers to published values: polling, reading, taking
// data apart to the leaves of the model.
#include "deviceconnection.h"

#include "connectiontext.h"
#include "valueconversion.h"

#include <asio/co_spawn.hpp>

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <iterator>

using acsi::FunctionalConstraint;
using ConnectionText::text;
using ConnectionText::withoutPeriod;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(IedDriver)
};

/// What is not expected to change is read every so many times.
constexpr int slowPolls = 10;
/// Between the bytes of a model and the browser that listens.
constexpr milliseconds browserStart{1500};
/// Failed references that a sentence names.
constexpr int namedFailures = 5;

const std::vector<FunctionalConstraint> fastConstraints = {FunctionalConstraint::ST,
                                                           FunctionalConstraint::MX};
const std::vector<FunctionalConstraint> slowConstraints = {
    FunctionalConstraint::SP, FunctionalConstraint::SG, FunctionalConstraint::SV,
    FunctionalConstraint::DC, FunctionalConstraint::EX, FunctionalConstraint::BL,
    FunctionalConstraint::OR, FunctionalConstraint::SR};
const std::vector<FunctionalConstraint> configurationConstraints = {FunctionalConstraint::CF};

/// Sentences about single references in one.
class Failures
{
public:
    void add(const QString &reference, const QString &reason)
    {
        if (m_sentences.size() < namedFailures)
            m_sentences.append(Texts::tr("%1: %2").arg(reference, withoutPeriod(reason)));
        ++m_count;
    }

    Outcome outcome() const
    {
        if (m_count == 0)
            return {};
        QString sentence = m_sentences.join(QStringLiteral("; "));
        if (m_count > m_sentences.size())
            sentence = Texts::tr("%1; and %2 more").arg(sentence).arg(m_count - m_sentences.size());
        return Outcome::failed(sentence + QLatin1Char('.'));
    }

private:
    QStringList m_sentences;
    int m_count = 0;
};

} // namespace

std::vector<acsi::Reference> DeviceConnection::polled(FunctionalConstraint constraint) const
{
    // An object stays as long as one of its leaves may change unreported.
    const auto isReported = [this](const acsi::Reference &object) {
        const std::vector<OnlineModel::Leaf> leaves = m_model->leavesOf(object);
        return std::all_of(leaves.begin(), leaves.end(), [this](const OnlineModel::Leaf &leaf) {
            const auto reference = acsi::parseReference(leaf.reference.toStdString());
            return reference &&
                   m_reported.covers(*reference, std::nullopt, m_configuration.pollInterval);
        });
    };
    const std::set<std::string> reportedNodes = m_reported.constraints();

    std::vector<acsi::Reference> result;
    const std::string_view name = acsi::toText(constraint);
    for (const acsi::DeviceDescription &device : m_model->description().devices) {
        for (const acsi::NodeDescription &node : device.nodes) {
            const mms::TypeDescription *type = acsi::typeBelow(node.type, name, {});
            if (!type)
                continue;
            acsi::Reference reference{device.name, node.name, constraint, {}};
            const std::string whole = acsi::toText(reference);
            const bool isControlBlockThere =
                constraint == FunctionalConstraint::SP && node.name == "LLN0";
            if (!isControlBlockThere && m_inParts.count(whole) == 0 &&
                reportedNodes.count(whole) == 0 && m_model->isWholeKnown(reference)) {
                result.push_back(std::move(reference));
                continue;
            }
            reference.path.resize(1);
            for (const mms::TypeDescription::Component &object : type->components) {
                if (isControlBlockThere && object.name == "SGCB")
                    continue;
                reference.path.front().name = object.name;
                for (acsi::Reference &part : m_model->readableParts(reference)) {
                    const std::string full = acsi::toText(part);
                    if (m_refused.count(full) == 0 && !isReported(part))
                        result.push_back(std::move(part));
                }
            }
        }
    }
    return result;
}

asio::awaitable<void>
DeviceConnection::readValues(ClientPointer client,
                             const std::vector<FunctionalConstraint> &constraints,
                             Publication publication)
{
    for (const FunctionalConstraint constraint : constraints) {
        // Twice: what is refused as a whole is asked for in parts.
        std::set<std::string> done;
        for (int pass = 0; pass < 2 && client->isOpen() && m_model; ++pass) {
            std::vector<acsi::Reference> references = polled(constraint);
            std::vector<mms::VariableAccess> variables;
            std::erase_if(references, [&](const acsi::Reference &reference) {
                return !done.insert(acsi::toText(reference)).second;
            });
            for (const acsi::Reference &reference : references)
                variables.push_back(acsi::accessOf(reference));
            if (variables.empty())
                break;
            const mms::Result<std::vector<mms::AccessResult>> values =
                co_await client->read(std::move(variables));
            if (!values || !m_model)
                break;
            for (std::size_t i = 0; i < references.size() && i < values->size(); ++i) {
                const mms::AccessResult &value = (*values)[i];
                if (value.ok() && publish(references[i], value.data(), publication))
                    continue;
                (references[i].path.empty() ? m_inParts : m_refused)
                    .insert(acsi::toText(references[i]));
            }
        }
    }
}

asio::awaitable<void> DeviceConnection::readConfiguration(ClientPointer client)
{
    Publication publication;
    publication.cause = PublishCause::Polled;
    publication.onlyChanges = true;
    co_await readValues(client, configurationConstraints, publication);
}

asio::awaitable<void> DeviceConnection::poll(ClientPointer client)
{
    Publication publication;
    publication.cause = PublishCause::Polled;
    publication.onlyChanges = true;
    co_await readValues(client, fastConstraints, publication);
    co_await readValues(client, slowConstraints, publication);
    const milliseconds interval = m_configuration.pollInterval;
    int count = 0;
    while (interval > milliseconds::zero() && isWanted() && client->isOpen()) {
        const Deadline next = steady_clock::now() + interval;
        for (Deadline now = steady_clock::now(); now < next && client->isOpen() && isWanted();
             now = steady_clock::now())
            co_await pause(std::chrono::ceil<milliseconds>(next - now));
        if (!isWanted() || !client->isOpen())
            break;
        co_await readValues(client, fastConstraints, publication);
        if (++count % slowPolls == 0) {
            co_await readValues(client, slowConstraints, publication);
            co_await readConfiguration(client);
        }
    }
}

bool DeviceConnection::publish(const acsi::Reference &reference, const mms::Data &data,
                               const Publication &publication)
{
    std::vector<MMSValue> values;
    const auto visit = [&](const OnlineModel::Leaf &leaf) {
        if (!leaf.attribute)
            return;
        QVariant value = ValueConversion::toVariant(leaf.attribute->basicType, *leaf.data);
        if (publication.onlyChanges && value == leaf.attribute->value)
            return;
        leaf.attribute->value = value;
        MMSValue record;
        record.value = std::move(value);
        record.reference = leaf.attribute->reference;
        if (const mms::Data *quality = leaf.quality ? leaf.quality : publication.quality)
            record.quality = ValueConversion::qualityText(*quality);
        if (const mms::Data *time = leaf.time ? leaf.time : publication.time)
            record.timeStamp = ValueConversion::timeText(*time);
        record.deviceNo = m_configuration.number;
        record.cause = publication.cause;
        if (m_recentUsers > 0)
            m_recent.insert(record.reference, record);
        values.push_back(std::move(record));
    };
    const bool fits = m_model && m_model->forEachLeaf(reference, data, visit);
    m_published += values.size();
    m_environment.values->publish(std::move(values));
    return fits;
}

std::vector<acsi::Reference>
DeviceConnection::inReadableParts(const std::vector<acsi::Reference> &references) const
{
    std::vector<acsi::Reference> result;
    for (const acsi::Reference &reference : references) {
        std::vector<acsi::Reference> parts;
        if (m_model)
            parts = m_model->readableParts(reference);
        // The device itself shall say what it thinks of a name that it did not describe.
        if (parts.empty())
            parts.push_back(reference);
        std::ranges::move(parts, std::back_inserter(result));
    }
    return result;
}

asio::awaitable<Outcome> DeviceConnection::readAndPublish(std::vector<acsi::Reference> references,
                                                          Publication publication)
{
    const ClientPointer client = m_client;
    if (!client) {
        const QString sentence = notConnectedSentence();
        co_return Outcome{OperationNotConnected, sentence};
    }
    references = inReadableParts(references);
    std::vector<mms::VariableAccess> variables;
    for (const acsi::Reference &reference : references)
        variables.push_back(acsi::accessOf(reference));
    const mms::Result<std::vector<mms::AccessResult>> values =
        co_await client->read(std::move(variables));
    if (!values)
        co_return Outcome::failed(values.error());
    Failures failures;
    for (std::size_t i = 0; i < references.size() && i < values->size(); ++i) {
        const mms::AccessResult &value = (*values)[i];
        const QString item = text(acsi::itemText(references[i]));
        if (!value.ok())
            failures.add(item, QString::fromStdString(mms::describe(value.error())));
        else if (!publish(references[i], value.data(), publication))
            failures.add(item, Texts::tr("the value does not have the form of its type"));
    }
    co_return failures.outcome();
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
}

QByteArray DeviceConnection::modelBytes()
{
    ++m_recentUsers;
    asio::co_spawn(m_strand, republish(),
                   [self = shared_from_this(), client = m_client](
                       const std::exception_ptr &exception) { self->fail(client, exception); });
    return m_model->toBytes();
}

asio::awaitable<void> DeviceConnection::republish()
{
    const Deadline end = steady_clock::now() + browserStart;
    // Without an association nothing is left to change the values.
    for (Deadline now = steady_clock::now(); now < end && m_client; now = steady_clock::now())
        co_await pause(std::chrono::ceil<milliseconds>(end - now));
    std::vector<MMSValue> values;
    values.reserve(static_cast<std::size_t>(m_recent.size()));
    for (const MMSValue &value : qAsConst(m_recent))
        values.push_back(value);
    if (--m_recentUsers == 0)
        m_recent.clear();
    m_environment.values->publish(std::move(values));
}
