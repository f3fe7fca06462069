// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>

/// Whether a device that sends nothing is still there: when it is to be asked, how, and what
/// becomes of the answer. A plain object: it knows no sockets and has no clock. Not thread-safe.
class SignOfLife
{
public:
    using Time = std::chrono::steady_clock::time_point;

    enum class Question { Status, Identify, Read };
    enum class Judgement {
        Alive,
        Waits, ///< the question found no place behind calls without an answer: nothing is known yet
        Silent
    };

    /// A device that has been silent for so long is asked.
    static constexpr std::chrono::milliseconds silence{2000};
    /// One that sends is asked as well, to measure the time of an answer.
    static constexpr std::chrono::milliseconds measurement{10000};

    /// What the device will answer: Status where it says that it has it; else Identify, unless it
    /// is known not to answer it; else the reading of a variable, of which an error is an answer.
    static Question questionFor(bool hasStatus, bool hasIdentify, bool answersIdentify);

    explicit SignOfLife(Time now);

    Time due(Time lastHeard) const;
    void asked(Time now);
    /// @param lastHeard when anything came from the device for the last time
    Judgement judge(bool wasAnswered, bool wasSent, Time lastHeard) const;

private:
    Time m_asked;
    Time m_nextMeasurement;
};
