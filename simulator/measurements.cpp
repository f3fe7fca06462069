// SPDX-License-Identifier: Apache-2.0
#include "simulator/measurements.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numbers>
#include <string>

namespace sim {

namespace {

struct NamedQuantity
{
    std::string_view name;
    Quantity quantity;
    std::size_t place;
};

// Data objects of IEC 61850-7-4; the place holds unless a phase is named below the object.
constexpr std::array<NamedQuantity, 30> quantities{{
    {"PhV", Quantity::PhaseVoltage, Feeder::total},
    {"PNV", Quantity::PhaseVoltage, Feeder::total},
    {"PPV", Quantity::LineVoltage, Feeder::total},
    {"Vol", Quantity::PhaseVoltage, 0},
    {"CtlV", Quantity::LineVoltage, 0},
    {"A", Quantity::Current, Feeder::total},
    {"Amp", Quantity::Current, 0},
    {"LodA", Quantity::Current, 0},
    {"W", Quantity::ActivePower, Feeder::total},
    {"Watt", Quantity::ActivePower, 0},
    {"TotW", Quantity::ActivePower, Feeder::total},
    {"VAr", Quantity::ReactivePower, Feeder::total},
    {"VolAmpr", Quantity::ReactivePower, 0},
    {"TotVAr", Quantity::ReactivePower, Feeder::total},
    {"VA", Quantity::ApparentPower, Feeder::total},
    {"VolAmp", Quantity::ApparentPower, 0},
    {"TotVA", Quantity::ApparentPower, Feeder::total},
    {"PF", Quantity::PowerFactor, Feeder::total},
    {"PwrFact", Quantity::PowerFactor, 0},
    {"TotPF", Quantity::PowerFactor, Feeder::total},
    {"Z", Quantity::Impedance, 0},
    {"Imp", Quantity::Impedance, 0},
    {"Hz", Quantity::Frequency, Feeder::total},
    {"SeqV", Quantity::SequenceVoltage, 0},
    {"SeqA", Quantity::SequenceCurrent, 0},
    {"HPhV", Quantity::PhaseVoltage, 0},
    {"HA", Quantity::Current, 0},
    {"ThdPhV", Quantity::VoltageDistortion, 0},
    {"ThdA", Quantity::CurrentDistortion, 0},
    {"ImbNgA", Quantity::Unbalance, 0},
}};

struct NamedPlace
{
    std::string_view name;
    std::size_t place;
};

constexpr std::array<NamedPlace, 17> places{{
    {"phsA", 0},
    {"phsB", 1},
    {"phsC", 2},
    {"neut", Feeder::neutral},
    {"net", Feeder::neutral},
    {"res", Feeder::neutral},
    {"phsAB", 0},
    {"phsBC", 1},
    {"phsCA", 2},
    {"c1", 0},
    {"c2", 1},
    {"c3", 2},
    {"phsAHar", 0},
    {"phsBHar", 1},
    {"phsCHar", 2},
    {"neutHar", Feeder::neutral},
    {"netHar", Feeder::neutral},
}};

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

bool isCapital(char character)
{
    return character >= 'A' && character <= 'Z';
}

std::string_view withoutNumber(std::string_view name)
{
    while (!name.empty() && isDigit(name.back()))
        name.remove_suffix(1);
    return name;
}

/// Classes whose currents and voltages are not those of the feeder.
bool isOfTheFeeder(std::string_view lnClass)
{
    return lnClass != "ZBAT" && lnClass != "ZBTC" && lnClass != "RFLO" && lnClass != "GGIO";
}

bool isPhasor(Quantity quantity)
{
    switch (quantity) {
    case Quantity::PhaseVoltage:
    case Quantity::LineVoltage:
    case Quantity::Current:
    case Quantity::Impedance:
    case Quantity::SequenceVoltage:
    case Quantity::SequenceCurrent:
        return true;
    default:
        return false;
    }
}

} // namespace

std::string_view lnClassOf(std::string_view logicalNode)
{
    constexpr std::size_t classSize = 4;
    if (logicalNode == "LLN0")
        return logicalNode;
    const std::string_view name = withoutNumber(logicalNode);
    if (name.size() < classSize)
        return {};
    const std::string_view lnClass = name.substr(name.size() - classSize);
    return std::ranges::all_of(lnClass, isCapital) ? lnClass : std::string_view();
}

std::optional<mms::Data> numberFor(const Part &leaf, double number)
{
    using Kind = mms::TypeDescription::Kind;
    const LayoutNode &node = leaf.node();
    const auto bits = std::clamp<std::int32_t>(node.size, 1, 64);
    switch (node.mmsKind) {
    case Kind::FloatingPoint:
        return node.size == 64 ? mms::Data::float64(number)
                               : mms::Data::float32(static_cast<float>(number));
    case Kind::Integer: {
        const double limit = std::ldexp(1.0, std::min(bits - 1, 53));
        return mms::Data::integer(
            static_cast<std::int64_t>(std::clamp(std::round(number), -limit, limit - 1)));
    }
    case Kind::Unsigned: {
        const double limit = std::ldexp(1.0, std::min(bits, 53));
        return mms::Data::unsignedInteger(
            static_cast<std::uint64_t>(std::clamp(std::round(number), 0.0, limit - 1)));
    }
    default:
        return std::nullopt;
    }
}

double numberOf(const mms::Data &data)
{
    if (const auto number = data.toDouble())
        return std::isfinite(*number) ? *number : 0;
    if (const auto number = data.toInteger())
        return static_cast<double>(*number);
    if (const auto number = data.toUnsigned())
        return static_cast<double>(*number);
    return 0;
}

/// Finds the measured values of a logical node.
class Measurements::Gatherer
{
public:
    Gatherer(Measurements &measurements, std::uint32_t logicalNode)
        : m_measurements(measurements)
        , m_node(measurements.m_model.logicalNodes()[logicalNode])
        , m_root(measurements.m_model.logicalNode(logicalNode))
        , m_lnClass(lnClassOf(m_node.name))
    {
    }

    void gather()
    {
        // Where a fault is and what it looks like is known only after one.
        const Part measured = m_root.child("MX");
        if (!measured.isValid() || m_lnClass == "RFLO")
            return;
        for (std::uint32_t i = 0; i < measured.childCount(); ++i) {
            const Part object = measured.childAt(i);
            Value value;
            const auto known =
                std::ranges::find(quantities, withoutNumber(object.name()), &NamedQuantity::name);
            if (known != quantities.end() && isOfTheFeeder(m_lnClass)) {
                value.quantity = known->quantity;
                value.place = known->place;
            }
            gatherObject(object, std::string(object.name()), value);
        }
    }

private:
    /// @p path is that of the object in every functional constraint.
    void gatherObject(const Part &object, const std::string &path, Value value)
    {
        Part time = object.child("t");
        Point point;
        if (time.isValid() && time.isLeaf())
            point.time = time.firstLeaf();
        point.substituted = leafOf("SV$" + path + "$subEna");
        point.blocked = leafOf("BL$" + path + "$blkEna");
        value.point = m_measurements.m_points.size();
        m_measurements.m_points.push_back(point);
        readScale(path, value);
        for (std::uint32_t i = 0; i < object.childCount(); ++i) {
            const Part child = object.childAt(i);
            const bool isObject = child.node().level == Level::SubDataObject;
            if (!isObject) {
                gatherValue(child, path, value);
                continue;
            }
            const std::string childPath = path + "$" + std::string(child.name());
            Value inside = value;
            if (const auto place = std::ranges::find(places, child.name(), &NamedPlace::name);
                place != places.end()) {
                inside.place = place->place;
            }
            if (!child.node().isArray()) {
                gatherObject(child, childPath, inside);
                continue;
            }
            for (std::uint32_t element = 0; element < child.childCount(); ++element) {
                inside.harmonic = element + 1;
                gatherObject(child.childAt(element), childPath, inside);
            }
        }
    }

    void gatherValue(const Part &part, const std::string &path, Value value)
    {
        const std::string_view name = part.name();
        if (part.node().isArray())
            return;
        if (!part.isLeaf()) {
            const bool isValue = name == "mag" || name == "instMag" || name == "cVal" ||
                                 name == "instCVal" || name == "ang";
            if (!isValue)
                return;
            value.isAngle = value.isAngle || name == "ang";
            for (std::uint32_t i = 0; i < part.childCount(); ++i)
                gatherValue(part.childAt(i), path, value);
            return;
        }
        if ((name != "f" && name != "i") || !numberFor(part, 0))
            return;
        value.part = part;
        if (name == "f" || value.isAngle) {
            value.scale = value.isAngle ? 1 : m_multiplier;
            value.offset = 0;
        } else {
            value.scale = m_multiplier * m_factor;
            value.offset = m_offset / m_factor;
        }
        if (!value.quantity)
            makeDrift(path, value);
        m_measurements.m_values.push_back(value);
    }

    void readScale(const std::string &path, Value &)
    {
        if (const auto leaf = leafOf("CF$" + path + "$units$multiplier")) {
            const double exponent =
                std::clamp(numberOf(m_measurements.m_model.value(*leaf)), -24.0, 24.0);
            m_multiplier = std::pow(10.0, exponent);
        } else {
            m_multiplier = 1;
        }
        const auto factor = leafOf("CF$" + path + "$sVC$scaleFactor");
        m_factor = factor ? numberOf(m_measurements.m_model.value(*factor)) : 1;
        if (m_factor == 0)
            m_factor = 1;
        const auto offset = leafOf("CF$" + path + "$sVC$offset");
        m_offset = offset ? numberOf(m_measurements.m_model.value(*offset)) : 0;
    }

    /// Around the value at the start; without one, in the middle of the range; else a round number.
    void makeDrift(const std::string &path, Value &value)
    {
        Random &random = m_measurements.m_random;
        value.base = numberOf(m_measurements.m_model.value(value.part.firstLeaf()));
        value.swing = std::abs(value.base) * 0.02;
        if (value.base == 0) {
            const double low = rangeOf(path, "min");
            const double high = rangeOf(path, "max");
            value.base = high > low ? (low + high) / 2 : 50;
            value.swing = high > low ? (high - low) / 4 : 10;
        }
        value.scale = 1;
        value.offset = 0;
        value.period = random.between(20, 120);
        value.phase = random.between(0, 2 * std::numbers::pi);
    }

    double rangeOf(const std::string &path, const std::string &end)
    {
        const auto leaf = leafOf("CF$" + path + "$rangeC$" + end + "$f");
        return leaf ? numberOf(m_measurements.m_model.value(*leaf)) : 0;
    }

    std::optional<Leaf> leafOf(const std::string &path) const
    {
        const Part part = m_root.descendant(path);
        return part.isValid() && part.isLeaf() ? std::optional(part.firstLeaf()) : std::nullopt;
    }

    Measurements &m_measurements;
    const Model::LogicalNode &m_node;
    Part m_root;
    std::string_view m_lnClass;
    double m_multiplier = 1;
    double m_factor = 1;
    double m_offset = 0;
};

Measurements::Measurements(Model &model, Random &random)
    : m_model(model)
    , m_random(random)
{
    for (std::uint32_t i = 0; i < model.logicalNodes().size(); ++i)
        Gatherer(*this, i).gather();
}

Feeder::Ratings Measurements::ratings() const
{
    Feeder::Ratings ratings;
    constexpr double usualLoad = 0.6;
    const auto atStart = [this](Quantity quantity) {
        for (const Value &value : m_values) {
            if (value.quantity == quantity && !value.isAngle && value.place < Feeder::neutral &&
                value.harmonic == 0) {
                const double number =
                    (numberOf(m_model.value(value.part.firstLeaf())) + value.offset) * value.scale;
                if (number > 0)
                    return number;
            }
        }
        return 0.0;
    };
    if (const double voltage = atStart(Quantity::PhaseVoltage); voltage > 0)
        ratings.lineVoltage = voltage * std::numbers::sqrt3;
    else if (const double between = atStart(Quantity::LineVoltage); between > 0)
        ratings.lineVoltage = between;
    if (const double current = atStart(Quantity::Current); current > 0)
        ratings.current = current / usualLoad;
    return ratings;
}

bool Measurements::isHeld(const Point &point) const
{
    const auto isOn = [this](const std::optional<Leaf> &leaf) {
        return leaf && m_model.value(*leaf).toBoolean().value_or(false);
    };
    return isOn(point.substituted) || isOn(point.blocked);
}

void Measurements::update(const Feeder &feeder, double seconds, const mms::UtcTime &now)
{
    const Model::Batch batch(m_model);
    std::vector<bool> held;
    held.reserve(m_points.size());
    for (const Point &point : m_points) {
        held.push_back(isHeld(point));
        if (point.time && !held.back())
            m_model.set(*point.time, mms::Data::utcTime(now));
    }
    for (const Value &value : m_values) {
        if (held[value.point])
            continue;
        double number = 0;
        if (value.quantity) {
            const auto measured =
                value.harmonic == 0
                    ? feeder.measure(*value.quantity, value.place)
                    : feeder.harmonic(*value.quantity, value.place, value.harmonic - 1);
            number = value.isAngle               ? std::arg(measured) * 180 / std::numbers::pi
                     : isPhasor(*value.quantity) ? std::abs(measured)
                                                 : measured.real();
            number = number / value.scale - value.offset;
        } else if (!value.isAngle) {
            number = value.base +
                     value.swing *
                         (std::sin(2 * std::numbers::pi * seconds / value.period + value.phase) +
                          0.05 * m_random.normal());
        }
        if (auto data = numberFor(value.part, number))
            m_model.set(value.part.firstLeaf(), std::move(*data));
    }
}

} // namespace sim
