// SPDX-License-Identifier: Apache-2.0
// ReportSubscriptions: what is looked at again and again while blocks are enabled or waited for,
// and what the operator was shown of them.
#include "reportsubscriptions.h"

#include <QtCore/QCoreApplication>

#include <algorithm>

using std::chrono::milliseconds;
using std::chrono::seconds;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(IedDriver)
};

/// How often the device is asked whether the blocks are still enabled, and blocks that could not be
/// enabled again are tried once more.
constexpr milliseconds watchInterval{3000};
/// A pause that took so much longer than it should: nothing ran meanwhile, and reports may be lost.
constexpr milliseconds standstill{2000};
/// How long it is told who has a block that the operator has looked at.
constexpr seconds notedTime{60};

QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
}

QString text(const acsi::Reference &reference)
{
    return text(acsi::toText(reference));
}

acsi::Reference attributeOf(acsi::Reference block, const char *name)
{
    block.path.push_back({name, {}});
    return block;
}

} // namespace

void ReportSubscriptions::setShown(const acsi::Reference &block, Shown shown)
{
    const std::string reference = acsi::toText(block);
    const QString holder = holderSentence(block, shown.block);
    if (shown.block.rptEna && !holder.isEmpty()) {
        m_noted[reference] = m_connection.now() + notedTime;
        m_connection.setProblem(text(reference) + QStringLiteral(" holder"), holder);
        listen();
    }
    m_shown.insert_or_assign(reference, std::move(shown));
}

const ReportSubscriptions::Shown *ReportSubscriptions::shown(const acsi::Reference &block) const
{
    const auto found = m_shown.find(acsi::toText(block));
    return found == m_shown.end() ? nullptr : &found->second;
}

QString ReportSubscriptions::holderSentence(const acsi::Reference &block,
                                            const acsi::ReportBlock &read) const
{
    const std::string reference = acsi::toText(block);
    const SubscriptionPointer subscription = find(reference);
    const bool isOwn =
        (subscription && subscription->life.state() != SubscriptionLife::State::Waiting) ||
        m_reserved.count(reference) != 0 || m_leftEnabled.count(reference) != 0 ||
        m_working.count(reference) != 0;
    const ClientPointer client = m_connection.client();
    if (isOwn || !client)
        return {};
    return holderText(block, acsi::holderOf(read, client->association().localAddress()));
}

asio::awaitable<void> ReportSubscriptions::watch(ClientPointer client)
{
    while (client->isOpen() && m_connection.isKept()) {
        const auto next = m_connection.now() + watchInterval;
        for (auto now = m_connection.now(); now < next && client->isOpen() && m_connection.isKept();
             now = m_connection.now())
            co_await m_connection.pause(std::chrono::ceil<milliseconds>(next - now));
        if (!client->isOpen() || !m_connection.isKept())
            break;
        const auto now = m_connection.now();
        const bool stoodStill = now - next > standstill;
        const std::vector<std::string> expired = m_stream.expire(now);
        for (const std::string &each : expired) {
            if (const SubscriptionPointer subscription = find(each))
                fault(subscription, ReportFault::MissingSegment);
        }
        co_await lookAtBlocks(client);
        co_await lookAtHolders(client);
        std::vector<SubscriptionPointer> all;
        for (const auto &each : m_subscriptions)
            all.push_back(each.second);
        for (const SubscriptionPointer &each : all) {
            if (!client->isOpen() || !m_connection.isKept())
                break;
            if (each->life.isDue(m_connection.now()))
                co_await resume(each, Texts::tr("enabled again"));
            else if (stoodStill && each->life.isTaking())
                mend(each);
        }
        m_entries.save();
    }
}

asio::awaitable<void> ReportSubscriptions::lookAtBlocks(ClientPointer client)
{
    enum class What { Number, Entry };
    struct Question
    {
        SubscriptionPointer subscription;
        What what;
    };
    std::vector<Question> questions;
    std::vector<mms::VariableAccess> attributes;
    const auto ask = [&](const SubscriptionPointer &subscription, What what, const char *name) {
        questions.push_back({subscription, what});
        attributes.push_back(acsi::accessOf(attributeOf(subscription->block, name)));
    };
    std::vector<SubscriptionPointer> watched;
    std::vector<mms::VariableAccess> flags;
    for (const auto &each : m_subscriptions) {
        if (!each.second->life.isTaking() || m_working.count(each.first) != 0)
            continue;
        watched.push_back(each.second);
        flags.push_back(acsi::accessOf(attributeOf(each.second->block, "RptEna")));
        ask(each.second, What::Number, "SqNum");
        if (each.second->readsEntry)
            ask(each.second, What::Entry, "EntryID");
    }
    if (questions.empty())
        co_return;
    const auto isStill = [this](const SubscriptionPointer &subscription) {
        return isCurrent(subscription) && subscription->life.isTaking() &&
               m_working.count(subscription->reference) == 0;
    };
    const auto enabled = co_await client->read(std::move(flags));
    for (std::size_t i = 0; enabled && i < watched.size() && i < enabled->size(); ++i) {
        const mms::AccessResult &value = (*enabled)[i];
        if (!value.ok() || value.data().toBoolean() != false || !isStill(watched[i]))
            continue;
        stop(*watched[i]);
        watched[i]->life.stopped(m_connection.now());
        const QString sentence =
            Texts::tr("The device has disabled %1 by itself.").arg(text(watched[i]->block));
        m_connection.setProblem(text(watched[i]->reference), sentence);
        tellSeen(*watched[i], sentence);
    }
    if (!client->isOpen())
        co_return;
    const auto values = co_await client->read(std::move(attributes));
    for (std::size_t i = 0; values && i < questions.size() && i < values->size(); ++i) {
        const SubscriptionPointer &subscription = questions[i].subscription;
        const mms::AccessResult &value = (*values)[i];
        if (!value.ok() || !isStill(subscription))
            continue;
        const mms::Data &data = value.data();
        if (questions[i].what == What::Number) {
            const auto number = data.toUnsigned();
            const bool isNumber = number && *number <= 0xffff;
            if (isNumber &&
                m_stream.isBehind(subscription->reference, static_cast<std::uint32_t>(*number)))
                fault(subscription, ReportFault::Gap);
        } else {
            const mms::Bytes entry = data.octets();
            const bool isEntry = data.kind() == mms::Data::Kind::OctetString &&
                                 std::ranges::any_of(entry, [](auto octet) { return octet != 0; });
            if (isEntry) {
                m_entries.set(text(subscription->reference), subscription->terms,
                              {entry.begin(), entry.end()});
            }
        }
    }
}

asio::awaitable<void> ReportSubscriptions::lookAtHolders(ClientPointer client)
{
    std::vector<std::string> noted;
    for (const auto &each : m_noted)
        noted.push_back(each.first);
    for (const std::string &reference : noted) {
        const auto block = acsi::parseReference(reference);
        QString sentence;
        if (block && client->isOpen()) {
            const auto live = co_await acsi::readReportBlock(client, *block);
            if (live && live->rptEna)
                sentence = holderSentence(*block, *live);
        }
        const auto found = m_noted.find(reference);
        if (found == m_noted.end())
            continue;
        if (m_connection.now() >= found->second)
            sentence.clear();
        if (sentence.isEmpty())
            m_noted.erase(found);
        m_connection.setProblem(text(reference) + QStringLiteral(" holder"), sentence);
    }
}
