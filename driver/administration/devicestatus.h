// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QDateTime>
#include <QtCore/QString>

#include <chrono>
#include <cstdint>

/// Where the association with a device is in its life.
enum class DeviceState {
    Disconnected, ///< nobody wants an association
    Connecting,
    ReadingModel, ///< the association stands, the model is being read
    Online,
    Waiting, ///< there is no association; the next attempt comes by itself
};

struct DeviceCounters
{
    std::uint64_t sentPdus = 0;
    std::uint64_t receivedPdus = 0;
    std::uint64_t reports = 0; ///< that brought values
    std::uint64_t publishedValues = 0;
    std::uint64_t connections = 0;      ///< associations since the device was added
    std::uint64_t unclaimedReports = 0; ///< information that nobody had asked for
    /// Times that reports were found missing: by their numbers, a segment, an overflown buffer, an
    /// entry that the device does not know any more.
    std::uint64_t reportGaps = 0;
    std::uint64_t unreadableReports = 0; ///< that could not be decoded or brought other data
    std::uint64_t dataSetReadings = 0;   ///< data sets read whole to make good for such
    std::uint64_t droppedEvents = 0;     ///< report events that an observer did not take in time

    friend bool operator==(const DeviceCounters &, const DeviceCounters &) = default;
};

/// A device as the driver sees it. A value type.
struct DeviceStatus
{
    int number = 0;
    QString name;
    DeviceState state = DeviceState::Disconnected;
    /// Why the state is as it is, one sentence; empty while all is well.
    QString reason;
    QString vendor;
    QString model;
    QString revision;
    QDateTime since; ///< when the state began, local time
    /// Since when the device has been away, local time: from the loss of its association, or the
    /// first attempt that failed, through all further attempts until it is online again or nobody
    /// wants it any more. Invalid otherwise.
    QDateTime lostSince;
    /// Values that are known not to be current: of a lost device all that it had shown, otherwise
    /// those whose last question was not answered or was refused for the moment.
    int staleValues = 0;
    QDateTime staleSince; ///< how old the oldest of them is, local time; invalid when there is none
    int refusedValues = 0; ///< that the device denies or does not have; they are not asked again
    std::chrono::microseconds roundTrip{0}; ///< of the last measured call; 0: not measured yet
    int modelStepsDone = 0;                 ///< while the model is being read
    int modelSteps = 0;
    int refusedObjects = 0; ///< that the device did not describe
    DeviceCounters counters;

    friend bool operator==(const DeviceStatus &, const DeviceStatus &) = default;
};
