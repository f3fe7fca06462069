// SPDX-License-Identifier: Apache-2.0
#include "simulator/feeder.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>

namespace sim {

namespace {

using Phasor = std::complex<double>;

constexpr double pi = std::numbers::pi;
constexpr double meanLoad = 0.6;
constexpr double meanAngle = 0.3;  // rad, current behind voltage
constexpr double faultCurrent = 8; // times the rated one
constexpr double faultVoltage = 0.35;
constexpr double faultAngle = 1.3; // rad

Phasor rotated(double angle)
{
    return std::polar(1.0, angle);
}

/// Symmetrical component of three phasors: 0 positive, 1 negative, 2 zero sequence.
Phasor sequence(const std::array<Phasor, 3> &phases, std::size_t which)
{
    const double step = which == 0 ? 2 * pi / 3 : which == 1 ? -2 * pi / 3 : 0;
    return (phases[0] + phases[1] * rotated(step) + phases[2] * rotated(2 * step)) / 3.0;
}

Phasor sum(const std::array<Phasor, 3> &phases)
{
    return phases[0] + phases[1] + phases[2];
}

double meanMagnitude(const std::array<Phasor, 3> &phases)
{
    return (std::abs(phases[0]) + std::abs(phases[1]) + std::abs(phases[2])) / 3;
}

} // namespace

double Random::uniform()
{
    // The 53 bits that a double can hold.
    return static_cast<double>(m_engine() >> 11U) * 0x1p-53;
}

double Random::normal()
{
    const double radius = std::sqrt(-2 * std::log(1 - uniform()));
    return radius * std::cos(2 * pi * uniform());
}

std::size_t Random::below(std::size_t limit)
{
    return static_cast<std::size_t>(m_engine() % limit);
}

Feeder::Feeder(Ratings ratings, Random &random)
    : m_ratings(ratings)
    , m_random(random)
    , m_load(meanLoad)
    , m_level(1)
    , m_frequency(ratings.frequency)
    , m_angle(meanAngle)
{
    advance(std::chrono::nanoseconds(0), true, 0);
}

void Feeder::drift(double &value, double mean, double deviation, double seconds,
                   double timeConstant)
{
    const double kept = std::exp(-seconds / timeConstant);
    value =
        mean + (value - mean) * kept + deviation * std::sqrt(1 - kept * kept) * m_random.normal();
    value = std::clamp(value, mean - 3 * deviation, mean + 3 * deviation);
}

void Feeder::advance(std::chrono::nanoseconds step, bool closed, unsigned faulted)
{
    const double seconds = std::chrono::duration<double>(step).count();
    drift(m_load, meanLoad, 0.1, seconds, 60);
    drift(m_level, 1, 0.01, seconds, 20);
    drift(m_frequency, m_ratings.frequency, 0.02, seconds, 10);
    drift(m_angle, meanAngle, 0.05, seconds, 60);
    const double phaseVoltage = m_ratings.lineVoltage / std::numbers::sqrt3 * m_level;
    for (std::size_t phase = 0; phase < 3; ++phase) {
        drift(m_imbalance[phase], 0, 0.01, seconds, 5);
        const double angle = -2 * pi / 3 * static_cast<double>(phase);
        const bool shorted = closed && (faulted & (1U << phase)) != 0;
        m_voltage[phase] = phaseVoltage * (1 + m_imbalance[phase] / 5) *
                           (shorted ? faultVoltage : 1) * rotated(angle);
        if (shorted)
            m_current[phase] = m_ratings.current * faultCurrent * rotated(angle - faultAngle);
        else if (closed)
            m_current[phase] =
                m_ratings.current * m_load * (1 + m_imbalance[phase]) * rotated(angle - m_angle);
        else
            m_current[phase] = 0;
    }
}

Phasor Feeder::powerOf(std::size_t place) const
{
    if (place < 3)
        return m_voltage[place] * std::conj(m_current[place]);
    return place == total ? powerOf(0) + powerOf(1) + powerOf(2) : Phasor(0);
}

Phasor Feeder::measure(Quantity quantity, std::size_t place) const
{
    const auto of = [place](const std::array<Phasor, 3> &phases) {
        if (place < 3)
            return phases[place];
        return place == neutral ? sum(phases) : Phasor(meanMagnitude(phases));
    };
    switch (quantity) {
    case Quantity::PhaseVoltage:
        return place == neutral ? sum(m_voltage) / 3.0 : of(m_voltage);
    case Quantity::LineVoltage:
        return of({m_voltage[0] - m_voltage[1], m_voltage[1] - m_voltage[2],
                   m_voltage[2] - m_voltage[0]});
    case Quantity::Current:
        return of(m_current);
    case Quantity::ActivePower:
        return powerOf(place).real();
    case Quantity::ReactivePower:
        return powerOf(place).imag();
    case Quantity::ApparentPower:
        return std::abs(powerOf(place));
    case Quantity::PowerFactor: {
        const Phasor power = powerOf(place);
        return std::abs(power) > 0 ? power.real() / std::abs(power) : 1;
    }
    case Quantity::Impedance: {
        const std::size_t phase = place < 3 ? place : 0;
        // As far as it can be measured, and no further, when nothing flows.
        constexpr double largest = 1e5;
        if (std::abs(m_current[phase]) * largest <= std::abs(m_voltage[phase]))
            return largest;
        return m_voltage[phase] / m_current[phase];
    }
    case Quantity::Frequency:
        return m_frequency;
    case Quantity::SequenceVoltage:
        return sequence(m_voltage, place);
    case Quantity::SequenceCurrent:
        return sequence(m_current, place);
    case Quantity::VoltageDistortion:
        return 2.0 + 10 * m_imbalance[place % 3];
    case Quantity::CurrentDistortion:
        return std::abs(m_current[place % 3]) > 0 ? 4.5 + 20 * m_imbalance[place % 3] : 0;
    case Quantity::Unbalance: {
        const double positive = std::abs(sequence(m_current, 0));
        return positive > 0 ? 100 * std::abs(sequence(m_current, 1)) / positive : 0;
    }
    }
    return 0;
}

Phasor Feeder::harmonic(Quantity quantity, std::size_t place, std::size_t order) const
{
    const Phasor fundamental = measure(quantity, place);
    if (order <= 1)
        return order == 1 ? fundamental : Phasor(0);
    const double part = (order % 2 == 1 ? 0.05 : 0.005) / static_cast<double>(order);
    return fundamental * part * (1 + 5 * m_imbalance[place % 3]) *
           rotated(static_cast<double>(order) * std::arg(fundamental));
}

} // namespace sim
