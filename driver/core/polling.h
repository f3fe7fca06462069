// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "valuecurrency.h"

#include "acsi/functionalconstraint.h"
#include "acsi/readcalls.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>

/// The polling of a device during one association: what is to be asked at a time, what an answer
/// means, and when it is told which values are not current. First all of the configuration once,
/// then in rounds. A plain machine around ValueCurrency, without association, timer and clock.
class Polling
{
public:
    using Time = ValueCurrency::Time;
    using Question = ValueCurrency::Question;

    struct Step
    {
        enum class What {
            Ask,
            Tell,   ///< which values are not current has changed
            Pause,  ///< nothing is on the way, and nothing is to be asked before a time
            Listen, ///< for an answer to what is on the way, at most until a time if there is one
            Done
        };

        What what = What::Done;
        Question question{};         ///< of Ask
        std::optional<Time> until{}; ///< of Pause and Listen
    };
    /// Takes a value of the part that was asked for; false when it has not the form of its type.
    using Take = std::function<bool(const acsi::Reference &part, const mms::Data &value)>;

    /// How often what is not current is told within one round.
    static constexpr std::chrono::milliseconds tellingInterval{1000};

    Polling(std::size_t leaves, ValueCurrency::Divide divide, ValueCurrency::Options options);

    /// How often data of a functional constraint are asked for; none for what is not polled.
    static std::optional<ValueCurrency::Pace> paceOf(acsi::FunctionalConstraint constraint);
    /// What an access error says of a part.
    static ValueCurrency::Reply replyOf(mms::DataAccessError error);

    ValueCurrency &currency() { return m_currency; }
    const ValueCurrency &currency() const { return m_currency; }

    /// Ask for the configuration once; Done when it has come.
    void readConfiguration();
    /// Ask for all but the configuration, then in rounds.
    void start(Time now);

    /// What is to be done now. What it says counts as done.
    Step next(Time now);
    /// What became of a question.
    void answered(const Question &question, const acsi::ReadAnswer &answer, Time now,
                  const Take &take);

private:
    bool hasNews(Time now);

    ValueCurrency m_currency;
    bool m_isForConfiguration = false;
    std::size_t m_onTheWay = 0;
    /// Of the last telling. Of the values of an outage nothing is told until the first round is
    /// over.
    std::optional<std::uint64_t> m_toldChanges;
    Time m_nextTelling{};
};
