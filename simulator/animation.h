// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "simulator/engine.h"
#include "simulator/feeder.h"
#include "simulator/measurements.h"
#include "simulator/process.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace sim {

struct AnimationOptions
{
    /// The same seed and the same description give the same values and events.
    std::uint64_t seed = 1;
    /// Between two measurements; not below 10 ms.
    std::chrono::milliseconds step{250};
    /// Breakers operate and protection picks up by itself now and then.
    bool events = true;
};

/// Makes the model of a device move like that of a bay in service, as far as the description has
/// what moves: measurements of one feeder that agree with each other and follow the positions of
/// its switches, counters and energies, indications that come and go, breaker operations, and short
/// circuits on which the protection picks up and trips, the breaker opens, the recorder and fault
/// locator tell of it, and the breaker is reclosed.
///
/// What an operator has switched stays: the animation closes only what it has opened itself, and
/// opens only what is closed. Belongs to the device's strand; time comes from the host's clock
/// alone.
class Animation : public Engine
{
public:
    explicit Animation(const Host &host, AnimationOptions options = {});
    ~Animation() override;

    /// A short circuit now; false when it is impossible: without protection, without current, or
    /// during another one.
    bool startFault();
    /// Opens the first breaker and closes it some seconds later; false when it is not closed.
    bool startSwitching();

private:
    class Scout;

    /// A status with its quality and time stamp.
    struct Status
    {
        Part value;
        std::optional<Leaf> time;
    };

    struct Switch
    {
        std::vector<Status> positions; ///< of the switch itself, then of what controls it
        std::optional<Status> operations;
        bool isBreaker = false;
        bool isEarthing = false;
    };

    struct Protection
    {
        Part start;
        Part operate;
    };

    /// Status values of one kind of logical node that tell of faults.
    struct Observers
    {
        std::vector<Part> started; ///< PTRC.Str
        std::vector<Part> tripped; ///< PTRC.Op and PTRC.Tr
        std::vector<Status> recorded;
        std::vector<Status> faultNumbers;
        std::vector<Part> faultDistances;
        std::vector<Part> faultImpedances;
        std::vector<Part> reclosings;
        std::vector<Status> reclosingStates;
        std::vector<Status> groupAlarms;
    };

    struct Counter
    {
        Status value;
        bool isReactive = false;
        bool isDemand = false;
        bool isEnergy = false;
        double perCount = 1; ///< Wh, varh or pulses
        double rest = 0;
    };

    using Moment = Clock::SteadyTime;

    void at(std::chrono::milliseconds delay, std::function<void()> event);
    void runDue();
    void arm();

    void measure();
    void count(double seconds);
    void toggleIndication();
    void setFlags(const Part &object, bool on);
    bool isClosed(const Switch &which) const;
    bool isInService() const;
    void move(std::size_t which, DoublePosition position);
    void operate(std::size_t which, bool close, std::function<void()> then);
    void set(const Status &status, const mms::Data &value);
    void setNumber(const Status &status, double number);
    void setAnalogue(const Part &object, std::complex<double> value);
    void trip();
    void endFault();

    Host m_host;
    AnimationOptions m_options;
    Random m_random;
    Measurements m_measurements;
    Feeder m_feeder;
    std::vector<Switch> m_switches;
    std::vector<Protection> m_protections;
    Observers m_observers;
    std::vector<Status> m_indications;
    std::vector<Counter> m_counters;
    Moment m_start;
    Moment m_measured;
    std::optional<std::size_t> m_fault; ///< which protection works on it
    unsigned m_faulted = 0;             ///< phases
    std::multimap<Moment, std::function<void()>> m_events;
    std::unique_ptr<Timer> m_timer;
};

} // namespace sim
