// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <chrono>
#include <complex>
#include <cstdint>
#include <random>

namespace sim {

/// Random numbers that are the same on every machine for the same seed.
class Random
{
public:
    explicit Random(std::uint64_t seed)
        : m_engine(seed)
    {
    }

    /// From 0, never 1.
    double uniform();
    double between(double low, double high) { return low + (high - low) * uniform(); }
    /// Of mean 0 and standard deviation 1.
    double normal();
    /// Below @p limit, which is not 0.
    std::size_t below(std::size_t limit);

private:
    std::mt19937_64 m_engine;
};

/// What is measured of a feeder. Voltages in V, currents in A, powers in W, var and VA, impedances
/// in ohm, frequencies in Hz, distortion and unbalance in percent.
enum class Quantity : std::uint8_t {
    PhaseVoltage,
    LineVoltage,
    Current,
    ActivePower,
    ReactivePower,
    ApparentPower,
    PowerFactor,
    Impedance,
    Frequency,
    SequenceVoltage,
    SequenceCurrent,
    VoltageDistortion,
    CurrentDistortion,
    Unbalance,
};

/// A three-phase feeder whose load, voltage and frequency drift at random. Everything that is
/// measured of it at a moment comes from the same phasors and so agrees.
class Feeder
{
public:
    /// Phases A to C, or the three conductor pairs or sequences; then neutral, then all together.
    static constexpr std::size_t neutral = 3;
    static constexpr std::size_t total = 4;

    struct Ratings
    {
        double lineVoltage = 110000; ///< V
        double current = 400;        ///< A at full load
        double frequency = 50;       ///< Hz
    };

    Feeder(Ratings ratings, Random &random);

    /// Time goes on. @p closed says whether current can flow; bit 0 to 2 of @p faulted whether
    /// there is a short circuit in the phase A to C, which needs a closed feeder.
    void advance(std::chrono::nanoseconds step, bool closed, unsigned faulted);

    /// Magnitude and angle for voltages, currents and impedances; a real number, with its sign, for
    /// the rest. @p place is a phase, pair or sequence (0 to 2), neutral or total.
    std::complex<double> measure(Quantity quantity, std::size_t place) const;
    /// Of a voltage or current of a phase: harmonic of order @p order, 1 is the fundamental.
    std::complex<double> harmonic(Quantity quantity, std::size_t place, std::size_t order) const;

private:
    std::complex<double> powerOf(std::size_t place) const;
    void drift(double &value, double mean, double deviation, double seconds, double timeConstant);

    Ratings m_ratings;
    Random &m_random;
    double m_load;
    double m_level;
    double m_frequency;
    double m_angle;
    std::array<double, 3> m_imbalance{};
    std::array<std::complex<double>, 3> m_voltage{};
    std::array<std::complex<double>, 3> m_current{};
};

} // namespace sim
