// SPDX-License-Identifier: Apache-2.0
#include "valuepublishing.h"

#include "deviceconnection.h"
#include "livevalues.h"
#include "valuepolling.h"

#include "driver/model/valueconversion.h"
#include "driver/text/connectiontext.h"
#include "driver/text/sentences.h"

#include <asio/co_spawn.hpp>

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <cmath>
#include <iterator>

using ConnectionText::text;
using ConnectionText::withoutPeriod;
using std::chrono::milliseconds;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(IedDriver)
};

/// Between the bytes of a model and the browser that listens.
constexpr milliseconds browserStart{1500};
/// How long, and how often, a value is shown again after another one was refused.
constexpr std::chrono::seconds showingTime{60};
constexpr milliseconds showingInterval{500};
/// Bits of a quality that records carry (IEC 61850-7-3, 6.2).
constexpr int qualityLength = 13;
/// Failed references that a sentence names.
constexpr int namedFailures = 5;

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

    void add(const Failures &others)
    {
        for (const QString &each : others.m_sentences) {
            if (m_sentences.size() < namedFailures)
                m_sentences.append(each);
        }
        m_count += others.m_count;
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

/// Nothing that is shown would change. QVariant takes numbers that are near each other for equal,
/// and a text for the number that it reads as.
bool isSame(const QVariant &left, const QVariant &right)
{
    if (left.userType() != right.userType())
        return false;
    const bool isReal = left.userType() == QMetaType::Double || left.userType() == QMetaType::Float;
    if (!isReal)
        return left == right;
    const double first = left.toDouble();
    const double second = right.toDouble();
    return std::equal_to<>()(first, second) || (std::isnan(first) && std::isnan(second));
}

ValueCurrency::Source sourceOf(std::uint32_t cause)
{
    if (cause == PublishCause::Polled)
        return ValueCurrency::Source::Poll;
    return (cause & PublishCause::Report) != 0 ? ValueCurrency::Source::Report
                                               : ValueCurrency::Source::Read;
}

bool isQuality(const acsi::Reference &reference, const mms::Data &data)
{
    return reference.path.size() > 1 && reference.path.back().name == "q" &&
           data.kind() == mms::Data::Kind::BitString;
}

} // namespace

ValuePublishing::ValuePublishing(DeviceConnection &connection)
    : m_connection(connection)
{
}

OnlineModel *ValuePublishing::model() const
{
    return m_connection.model();
}

ValueCurrency *ValuePublishing::currency() const
{
    return m_connection.polling().currency();
}

void ValuePublishing::send(std::vector<MMSValue> records)
{
    if (m_recentUsers > 0) {
        for (const MMSValue &record : records)
            m_recent.insert(record.reference, record);
    }
    m_connection.count(&DeviceCounters::publishedValues, records.size());
    m_connection.environment().values->publish(std::move(records));
}

bool ValuePublishing::publish(const acsi::Reference &reference, const mms::Data &data,
                              const Publication &publication)
{
    OnlineModel *const known = model();
    if (!known)
        return false;
    std::vector<MMSValue> records;
    const bool fits = add(records, known->find(reference), data, publication);
    if (fits && isQuality(reference, data))
        addQualityOf(records, known->leavesWithQuality(reference), data, publication.cause);
    send(std::move(records));
    return fits;
}

bool ValuePublishing::add(std::vector<MMSValue> &records, const OnlineModel::Found &found,
                          const mms::Data &data, const Publication &publication)
{
    OnlineModel *const known = model();
    ValueCurrency *const account = currency();
    const ValueCurrency::Source source = sourceOf(publication.cause);
    const Time asOf = publication.asOf == Time() ? m_connection.now() : publication.asOf;
    const auto visit = [&](const OnlineModel::Leaf &leaf) {
        const bool isNew = !account || account->take(leaf.number, source, asOf);
        if (!leaf.attribute)
            return;
        if (!isNew) {
            if (!publication.onlyChanges && leaf.attribute->value.isValid())
                records.push_back(knownRecord(known->accompanied(leaf.number), publication.cause));
            return;
        }
        QVariant value = ValueConversion::toVariant(leaf.attribute->basicType, *leaf.data);
        const mms::Data *quality = leaf.quality ? leaf.quality : publication.quality;
        const bool hasOtherQuality = quality && known->setQuality(leaf.number, *quality);
        if (publication.onlyChanges && !hasOtherQuality && isSame(value, leaf.attribute->value) &&
            m_unwritten.count(leaf.number) == 0)
            return;
        leaf.attribute->value = value;
        MMSValue &record = records.emplace_back();
        record.value = std::move(value);
        record.reference = leaf.attribute->reference;
        if (quality)
            record.quality = ValueConversion::qualityText(*quality).left(qualityLength);
        if (const mms::Data *time = leaf.time ? leaf.time : publication.time)
            record.timeStamp = ValueConversion::timeText(*time);
        record.deviceNo = m_connection.configuration().number;
        record.cause = publication.cause;
    };
    // By reference: what it captures need not be put anywhere for each value.
    return known && known->forEachLeaf(found, data, std::cref(visit), OnlineModel::Names::LeftOut);
}

MMSValue ValuePublishing::knownRecord(const OnlineModel::Accompanied &leaf,
                                      std::uint32_t cause) const
{
    MMSValue record;
    record.value = leaf.attribute->value;
    record.reference = leaf.attribute->reference;
    record.deviceNo = m_connection.configuration().number;
    record.cause = cause;
    if (leaf.quality)
        record.quality = leaf.quality->value.toString().left(qualityLength);
    if (leaf.time)
        record.timeStamp = leaf.time->value.toString();
    return record;
}

void ValuePublishing::addQualityOf(std::vector<MMSValue> &records,
                                   const std::vector<OnlineModel::Accompanied> &leaves,
                                   const mms::Data &data, std::uint32_t cause)
{
    for (const OnlineModel::Accompanied &each : leaves) {
        if (each.attribute->value.isValid() && model()->setQuality(each.leaf, data))
            records.push_back(knownRecord(each, cause));
    }
}

void ValuePublishing::publishKnown(const LeafRange &leaves, std::uint32_t cause)
{
    std::vector<MMSValue> records;
    for (std::uint32_t leaf = leaves.first; model() && leaf < leaves.end(); ++leaf) {
        const DataAttribute *attribute = model()->attribute(leaf);
        if (attribute && attribute->value.isValid())
            records.push_back(knownRecord(model()->accompanied(leaf), cause));
    }
    send(std::move(records));
}

void ValuePublishing::haveWritten(const acsi::Reference &reference)
{
    if (!model() || !currency())
        return;
    const LeafRange leaves = model()->leafRange(reference);
    for (std::uint32_t leaf = leaves.first; leaf < leaves.end(); ++leaf) {
        currency()->take(leaf, ValueCurrency::Source::Write, m_connection.now());
        m_unwritten.erase(leaf);
    }
}

void ValuePublishing::showUnwritten(const acsi::Reference &reference)
{
    if (!model())
        return;
    const LeafRange leaves = model()->leafRange(reference);
    bool isShown = leaves.count > 0;
    for (std::uint32_t leaf = leaves.first; leaf < leaves.end(); ++leaf)
        isShown = !m_unwritten.insert(leaf).second && isShown;
    publishKnown(leaves, PublishCause::Read);
    // One that is running already goes on.
    if (!isShown)
        asio::co_spawn(m_connection.strand(), keepShowing(reference),
                       [self = m_connection.shared_from_this()](const std::exception_ptr &) {});
}

asio::awaitable<void> ValuePublishing::keepShowing(acsi::Reference reference)
{
    const std::shared_ptr<acsi::Client> client = m_connection.client();
    if (!client || !model())
        co_return;
    const Time end = m_connection.now() + showingTime;
    const std::uint32_t leaf = model()->leafRange(reference).first;
    const Publication publication;
    std::vector<acsi::Reference> references;
    references.push_back(reference);
    static_cast<void>(co_await readAndPublish(std::move(references), publication));
    const auto isWanted = [&] {
        return m_connection.client() == client && client->isOpen() && model() &&
               m_unwritten.count(leaf) != 0;
    };
    for (Time next = m_connection.now(); isWanted() && next < end;) {
        next += showingInterval;
        for (Time now = m_connection.now(); isWanted() && now < next; now = m_connection.now())
            co_await m_connection.pause(std::chrono::ceil<milliseconds>(next - now));
        if (isWanted())
            publishKnown(model()->leafRange(reference), PublishCause::Polled);
    }
    if (m_connection.client() != client || !model())
        co_return;
    const LeafRange shown = model()->leafRange(reference);
    for (std::uint32_t each = shown.first; each < shown.end(); ++each)
        m_unwritten.erase(each);
}

std::vector<acsi::Reference>
ValuePublishing::inReadableParts(const std::vector<acsi::Reference> &references) const
{
    std::vector<acsi::Reference> result;
    for (const acsi::Reference &reference : references) {
        std::vector<acsi::Reference> parts;
        if (model())
            parts = model()->readableParts(reference);
        // The device itself shall say what it thinks of a name that it did not describe.
        if (parts.empty())
            parts.push_back(reference);
        std::ranges::move(parts, std::back_inserter(result));
    }
    return result;
}

asio::awaitable<Outcome> ValuePublishing::readAndPublish(std::vector<acsi::Reference> references,
                                                         Publication publication)
{
    const std::shared_ptr<acsi::Client> client = m_connection.client();
    if (!client) {
        const QString sentence = m_connection.notConnectedSentence();
        co_return Outcome{OperationNotConnected, sentence};
    }
    struct Part
    {
        acsi::Reference reference;
        std::size_t origin; ///< which of the references it is part of
    };
    struct Origin
    {
        QString error; ///< of the whole
        Failures parts;
        bool hasValues = false;
    };
    std::vector<Part> parts;
    std::vector<Origin> origins(references.size());
    for (std::size_t i = 0; i < references.size(); ++i) {
        for (acsi::Reference &part : inReadableParts({references[i]}))
            parts.push_back({std::move(part), i});
    }
    while (!parts.empty()) {
        std::vector<mms::VariableAccess> variables;
        for (const Part &part : parts)
            variables.push_back(acsi::accessOf(part.reference));
        publication.asOf = m_connection.now();
        mms::Result<std::vector<acsi::ReadResult>> results =
            co_await acsi::readEach(client, std::move(variables));
        if (!results)
            co_return Outcome::failed(results.error());
        std::vector<Part> smaller;
        for (std::size_t i = 0; i < parts.size() && i < results->size(); ++i) {
            const acsi::ReadResult &result = (*results)[i];
            const acsi::Reference &reference = parts[i].reference;
            Origin &origin = origins[parts[i].origin];
            QString error;
            if (result.kind != acsi::ReadResult::Kind::Answered) {
                error = text(result.reason);
            } else if (!result.result.ok()) {
                error = text(mms::describe(result.result.error()));
            } else if (!publish(reference, result.result.data(), publication)) {
                error = Texts::tr("the value does not have the form of its type");
            } else {
                origin.hasValues = true;
                if (currency() && model())
                    currency()->haveRead(model()->leafRange(reference), m_connection.now());
                continue;
            }
            if (origin.error.isEmpty())
                origin.error = error;
            std::vector<ValueCurrency::Part> divided;
            if (result.kind != acsi::ReadResult::Kind::Missing)
                divided = m_connection.polling().partsOf({reference, {}, 0});
            for (ValueCurrency::Part &part : divided)
                smaller.push_back({std::move(part.reference), parts[i].origin});
            if (divided.empty())
                origin.parts.add(text(acsi::itemText(reference)), error);
        }
        parts = std::move(smaller);
    }
    Failures failures;
    for (std::size_t i = 0; i < origins.size(); ++i) {
        // Of what gives nothing at all the whole is named.
        if (origins[i].hasValues)
            failures.add(origins[i].parts);
        else if (!origins[i].error.isEmpty())
            failures.add(text(acsi::itemText(references[i])), origins[i].error);
    }
    co_return failures.outcome();
}

QByteArray ValuePublishing::modelBytes()
{
    ++m_recentUsers;
    asio::co_spawn(m_connection.strand(), republish(),
                   [self = m_connection.shared_from_this()](const std::exception_ptr &) {});
    return model()->toBytes();
}

asio::awaitable<void> ValuePublishing::republish()
{
    const Time end = m_connection.now() + browserStart;
    // Without an association nothing is left to change the values.
    for (Time now = m_connection.now(); now < end && m_connection.client();
         now = m_connection.now())
        co_await m_connection.pause(std::chrono::ceil<milliseconds>(end - now));
    std::vector<MMSValue> values;
    values.reserve(static_cast<std::size_t>(m_recent.size()));
    for (const MMSValue &value : qAsConst(m_recent))
        values.push_back(value);
    if (--m_recentUsers == 0)
        m_recent.clear();
    m_connection.environment().values->publish(std::move(values));
}
