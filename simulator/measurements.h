// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "simulator/feeder.h"
#include "simulator/model.h"

#include "mms/data.h"

#include <optional>
#include <string_view>
#include <vector>

namespace sim {

/// "XCBR" of "QA1XCBR1"; empty when the name has no class of four letters.
std::string_view lnClassOf(std::string_view logicalNode);

/// The measured values of a model, which follow a feeder: what it knows of currents, voltages and
/// powers as they are, everything else drifts around its value at the start, or the middle of its
/// configured range. Scaled by configured units and scale factors. A value that a client has
/// substituted or blocked stays.
class Measurements
{
public:
    explicit Measurements(Model &model, Random &random);

    /// What the values at the start say of the feeder, else the usual.
    Feeder::Ratings ratings() const;
    /// Gives every value what it is after @p seconds. Time stamps are @p now.
    void update(const Feeder &feeder, double seconds, const mms::UtcTime &now);
    /// Values that update() gives.
    std::size_t count() const { return m_values.size(); }

private:
    class Gatherer;

    struct Value
    {
        Part part;                        ///< the leaf
        std::optional<Quantity> quantity; ///< none for what the feeder does not know
        bool isAngle = false;
        std::size_t place = 0;
        std::size_t harmonic = 0; ///< order plus 1; 0 when it is no harmonic
        double scale = 1;         ///< units of the value in SI units
        double offset = 0;
        double base = 0;
        double swing = 0;
        double period = 1; ///< seconds
        double phase = 0;
        std::size_t point = 0;
    };

    /// What values, quality and time stamp have in common.
    struct Point
    {
        std::optional<Leaf> time;
        std::optional<Leaf> substituted;
        std::optional<Leaf> blocked;
    };

    bool isHeld(const Point &point) const;

    Model &m_model;
    Random &m_random;
    std::vector<Value> m_values;
    std::vector<Point> m_points;
};

/// A number as a value of the leaf, within what the type can hold; none when the type has no
/// numbers.
std::optional<mms::Data> numberFor(const Part &leaf, double number);
/// The number that a value is; 0 for none.
double numberOf(const mms::Data &data);

} // namespace sim
