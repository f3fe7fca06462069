// SPDX-License-Identifier: Apache-2.0
#include "polling.h"

#include <utility>
#include <vector>

using acsi::FunctionalConstraint;
using Pace = ValueCurrency::Pace;
using Reply = ValueCurrency::Reply;

Polling::Polling(std::size_t leaves, ValueCurrency::Divide divide, ValueCurrency::Options options)
    : m_currency(leaves, std::move(divide), options)
{
}

std::optional<Pace> Polling::paceOf(FunctionalConstraint constraint)
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

Reply Polling::replyOf(mms::DataAccessError error)
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

void Polling::readConfiguration()
{
    m_isForConfiguration = true;
    m_currency.ask(Pace::Configuration);
}

void Polling::start(Time now)
{
    m_isForConfiguration = false;
    m_currency.start(now);
}

Polling::Step Polling::next(Time now)
{
    if (std::optional<Question> question = m_currency.next(now)) {
        ++m_onTheWay;
        return {Step::What::Ask, std::move(*question), {}};
    }
    if (m_isForConfiguration && m_currency.isIdle())
        return {};
    if (!m_isForConfiguration && hasNews(now))
        return {Step::What::Tell};
    const std::optional<Time> until = m_currency.nextTime();
    if (m_onTheWay > 0)
        return {Step::What::Listen, {}, until};
    return {until ? Step::What::Pause : Step::What::Done, {}, until};
}

bool Polling::hasNews(Time now)
{
    if (!m_currency.isIdle()) {
        if (!m_toldChanges || now < m_nextTelling)
            return false;
        m_nextTelling = now + tellingInterval;
    }
    if (m_toldChanges == m_currency.changes())
        return false;
    m_toldChanges = m_currency.changes();
    return true;
}

void Polling::answered(const Question &question, const acsi::ReadAnswer &answer, Time now,
                       const Take &take)
{
    --m_onTheWay;
    switch (answer.kind) {
    case acsi::ReadAnswer::Kind::Results:
        break;
    case acsi::ReadAnswer::Kind::TooLarge:
        return m_currency.refused(question.id, Reply::TooLarge, now);
    case acsi::ReadAnswer::Kind::Refused:
        return m_currency.refused(question.id, replyOf(answer.error), now);
    case acsi::ReadAnswer::Kind::Silent:
        return m_currency.silent(question.id, now);
    case acsi::ReadAnswer::Kind::NotSent:
        return m_currency.unsent(question.id, now);
    case acsi::ReadAnswer::Kind::Ended:
        // A device that rejects a read may answer the next one.
        return m_currency.refused(question.id, Reply::Unavailable, now);
    }
    std::vector<Reply> replies;
    replies.reserve(question.parts.size());
    for (std::size_t i = 0; i < question.parts.size() && i < answer.results.size(); ++i) {
        const mms::AccessResult &result = answer.results[i];
        if (!result.ok()) {
            replies.push_back(replyOf(result.error()));
            continue;
        }
        const acsi::Reference reference = m_currency.part(question.parts[i]).reference;
        replies.push_back(take(reference, result.data()) ? Reply::Taken : Reply::Unfit);
    }
    m_currency.answered(question.id, replies, now);
}
