// SPDX-License-Identifier: Apache-2.0
#include "simulator/animation.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <string>
#include <utility>

namespace sim {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds shortestStep = 10ms;
constexpr std::chrono::milliseconds switchTime = 60ms;
constexpr std::array<std::string_view, 3> phaseNames{"phsA", "phsB", "phsC"};
constexpr std::array<std::string_view, 3> phaseDirections{"dirPhsA", "dirPhsB", "dirPhsC"};
constexpr std::int64_t forward = 1;
constexpr double ohmPerKilometre = 0.4;

// AutoRecSt (IEC 61850-7-4).
constexpr double reclosingReady = 1;
constexpr double reclosingInProgress = 2;
constexpr double reclosingSuccessful = 3;

std::chrono::milliseconds seconds(double count)
{
    return std::chrono::milliseconds(static_cast<std::int64_t>(count * 1000));
}

bool isPosition(const Part &part)
{
    return part.isValid() && part.isLeaf() && part.node().basicType == scl::BasicType::Dbpos;
}

/// What is left of the name of a logical node without its class: prefix and number.
std::string bayOf(std::string_view name, std::string_view lnClass)
{
    const std::size_t position = name.rfind(lnClass);
    return std::string(name.substr(0, position)) + "/" +
           std::string(name.substr(position + lnClass.size()));
}

} // namespace

/// Finds in the model what can move.
class Animation::Scout
{
public:
    explicit Scout(Animation &animation)
        : m_animation(animation)
        , m_model(animation.m_host.model)
    {
    }

    void run()
    {
        for (std::uint32_t i = 0; i < m_model.logicalNodes().size(); ++i) {
            const std::string_view lnClass = lnClassOf(m_model.logicalNodes()[i].name);
            const Part root = m_model.logicalNode(i);
            if (lnClass == "RFLO") {
                keepPart(m_animation.m_observers.faultDistances, root.descendant("MX$FltDiskm"));
                keepPart(m_animation.m_observers.faultImpedances, root.descendant("MX$FltZ"));
            }
            if (const Part status = root.child("ST"); status.isValid() && !lnClass.empty())
                visit(i, lnClass, status);
        }
        for (const auto &[bay, position] : m_controllers) {
            if (const auto found = m_switchOfBay.find(bay); found != m_switchOfBay.end())
                m_animation.m_switches[found->second].positions.push_back(position);
        }
    }

private:
    static Status statusOf(const Part &object, std::string_view value = "stVal")
    {
        Status status;
        if (!object.isValid())
            return status;
        if (const Part part = object.child(value); part.isValid() && part.isLeaf())
            status.value = part;
        if (const Part time = object.child("t"); time.isValid() && time.isLeaf())
            status.time = time.firstLeaf();
        return status;
    }

    void keepStatus(std::vector<Status> &list, const Part &object)
    {
        if (const Status status = statusOf(object); status.value.isValid())
            list.push_back(status);
    }

    static void keepPart(std::vector<Part> &list, const Part &part)
    {
        if (part.isValid())
            list.push_back(part);
    }

    void visit(std::uint32_t number, std::string_view lnClass, const Part &status)
    {
        Observers &observers = m_animation.m_observers;
        const Part root = m_model.logicalNode(number);
        if (lnClass == "XCBR" || lnClass == "XSWI") {
            visitSwitch(number, lnClass, status);
        } else if (lnClass == "CSWI") {
            if (const Status position = statusOf(status.child("Pos")); isPosition(position.value))
                m_controllers.emplace_back(bayKey(number, lnClass), position);
        } else if (lnClass == "PTRC") {
            keepPart(observers.started, status.child("Str"));
            keepPart(observers.tripped, status.child("Op"));
            keepPart(observers.tripped, status.child("Tr"));
        } else if (lnClass.front() == 'P') {
            const Protection protection{status.child("Str"), status.child("Op")};
            if (protection.start.isValid() || protection.operate.isValid())
                m_animation.m_protections.push_back(protection);
        } else if (lnClass == "RDRE") {
            keepStatus(observers.recorded, status.child("RcdMade"));
            keepStatus(observers.faultNumbers, status.child("FltNum"));
        } else if (lnClass == "RREC") {
            keepPart(observers.reclosings, status.child("OpCls"));
            keepPart(observers.reclosings, status.child("Op"));
            keepStatus(observers.reclosingStates, status.child("AutoRecSt"));
        } else if (lnClass == "CALH") {
            keepStatus(observers.groupAlarms, status.child("GrAlm"));
        }
        visitObjects(root, status);
    }

    std::string bayKey(std::uint32_t number, std::string_view lnClass) const
    {
        return bayOf(m_model.logicalNodes()[number].name, lnClass);
    }

    void visitSwitch(std::uint32_t number, std::string_view lnClass, const Part &status)
    {
        const Status position = statusOf(status.child("Pos"));
        if (!isPosition(position.value))
            return;
        Switch found;
        found.positions.push_back(position);
        found.isBreaker = lnClass == "XCBR";
        if (const Status count = statusOf(status.child("OpCnt")); count.value.isValid())
            found.operations = count;
        const Status kind = statusOf(status.child("SwTyp"));
        const double type =
            kind.value.isValid() ? numberOf(m_model.value(kind.value.firstLeaf())) : 0;
        constexpr double earthingSwitch = 3;
        constexpr double fastEarthingSwitch = 4;
        found.isEarthing =
            !found.isBreaker && (type == earthingSwitch || type == fastEarthingSwitch ||
                                 m_model.logicalNodes()[number].name.starts_with("QC"));
        m_switchOfBay.emplace(bayKey(number, lnClass), m_animation.m_switches.size());
        m_animation.m_switches.push_back(std::move(found));
    }

    /// Counters and indications, whatever the logical node.
    void visitObjects(const Part &root, const Part &status)
    {
        for (std::uint32_t i = 0; i < status.childCount(); ++i) {
            const Part object = status.childAt(i);
            const std::string name(object.name());
            if (const Status value = statusOf(object, "actVal"); value.value.isValid()) {
                addCounter(root, name, value);
            } else if (name.starts_with("Ind") && !root.descendant("CO$" + name).isValid()) {
                const Status indication = statusOf(object);
                if (indication.value.isValid() &&
                    indication.value.node().basicType == scl::BasicType::Boolean)
                    m_animation.m_indications.push_back(indication);
            }
        }
    }

    void addCounter(const Part &root, const std::string &name, const Status &value)
    {
        Counter counter;
        counter.value = value;
        counter.isReactive = name.find("VArh") != std::string::npos;
        counter.isEnergy = counter.isReactive || name.find("Wh") != std::string::npos;
        counter.isDemand = name.starts_with("Dmd") || name.starts_with("Tot");
        const Part quantity = root.descendant("CF$" + name + "$pulsQty");
        if (quantity.isValid() && quantity.isLeaf())
            counter.perCount = numberOf(m_model.value(quantity.firstLeaf()));
        if (counter.perCount <= 0)
            counter.perCount = 1;
        m_animation.m_counters.push_back(std::move(counter));
    }

    Animation &m_animation;
    Model &m_model;
    std::vector<std::pair<std::string, Status>> m_controllers;
    std::map<std::string, std::size_t> m_switchOfBay;
};

Animation::Animation(const Host &host, AnimationOptions options)
    : m_host(host)
    , m_options(options)
    , m_random(options.seed)
    , m_measurements(host.model, m_random)
    , m_feeder(m_measurements.ratings(), m_random)
    , m_start(host.clock.steadyNow())
    , m_measured(m_start)
    , m_timer(host.clock.makeTimer())
{
    m_options.step = std::max(m_options.step, shortestStep);
    Scout(*this).run();
    // A description in which nothing is closed says nothing about positions.
    const bool isDescribed =
        std::ranges::any_of(m_switches, [this](const Switch &each) { return isClosed(each); });
    for (std::size_t i = 0; i < m_switches.size() && !isDescribed; ++i)
        move(i, m_switches[i].isEarthing ? DoublePosition::Off : DoublePosition::On);
    at(0ms, [this] { measure(); });
    if (!m_indications.empty())
        at(3s, [this] { toggleIndication(); });
    if (m_options.events) {
        at(seconds(m_random.between(25, 35)), [this] { startFault(); });
        at(seconds(m_random.between(60, 90)), [this] { startSwitching(); });
    }
}

Animation::~Animation() = default;

void Animation::at(std::chrono::milliseconds delay, std::function<void()> event)
{
    const auto place = m_events.emplace(m_host.clock.steadyNow() + delay, std::move(event));
    if (place == m_events.begin())
        arm();
}

void Animation::arm()
{
    if (!m_events.empty())
        m_timer->start(m_events.begin()->first - m_host.clock.steadyNow(), [this] { runDue(); });
}

void Animation::runDue()
{
    const Moment now = m_host.clock.steadyNow();
    while (!m_events.empty() && m_events.begin()->first <= now) {
        const auto event = m_events.extract(m_events.begin());
        event.mapped()();
    }
    arm();
}

void Animation::set(const Status &status, const mms::Data &value)
{
    Model &model = m_host.model;
    if (!status.value.isValid() || Model::check(status.value, value))
        return;
    const Model::Batch batch(model);
    if (status.time)
        model.set(*status.time, mms::Data::utcTime(m_host.clock.utcTime()));
    model.set(status.value, value);
}

void Animation::setNumber(const Status &status, double number)
{
    if (const auto data = numberFor(status.value, number))
        set(status, *data);
}

/// The flags of a protection (ACD, ACT) for the phases that are faulted, or none.
void Animation::setFlags(const Part &object, bool on)
{
    if (!object.isValid())
        return;
    Model &model = m_host.model;
    const Model::Batch batch(model);
    const auto setChild = [&model, &object](std::string_view name, const mms::Data &value) {
        const Part part = object.child(name);
        if (part.isValid() && part.isLeaf() && !Model::check(part, value))
            model.set(part, value);
    };
    setChild("general", mms::Data::boolean(on));
    setChild("dirGeneral", mms::Data::integer(on ? forward : 0));
    for (std::size_t phase = 0; phase < phaseNames.size(); ++phase) {
        const bool faulted = on && (m_faulted & (1U << phase)) != 0;
        setChild(phaseNames[phase], mms::Data::boolean(faulted));
        setChild(phaseDirections[phase], mms::Data::integer(faulted ? forward : 0));
    }
    const bool toEarth = on && (m_faulted & (m_faulted - 1)) == 0;
    setChild("neut", mms::Data::boolean(toEarth));
    setChild("dirNeut", mms::Data::integer(toEarth ? forward : 0));
    setChild("t", mms::Data::utcTime(m_host.clock.utcTime()));
}

void Animation::setAnalogue(const Part &object, std::complex<double> value)
{
    Model &model = m_host.model;
    const Model::Batch batch(model);
    const auto setNumberAt = [&model, &object](const std::string &path, double number) {
        const Part part = object.descendant(path);
        if (!part.isValid() || !part.isLeaf())
            return;
        if (auto data = numberFor(part, number))
            model.set(part.firstLeaf(), std::move(*data));
    };
    for (const char *form : {"mag", "instMag", "cVal$mag", "instCVal$mag"})
        setNumberAt(std::string(form) + "$f", std::abs(value));
    for (const char *form : {"cVal$ang", "instCVal$ang"})
        setNumberAt(std::string(form) + "$f", std::arg(value) * 180 / std::numbers::pi);
    if (const Part time = object.child("t"); time.isValid() && time.isLeaf())
        model.set(time.firstLeaf(), mms::Data::utcTime(m_host.clock.utcTime()));
}

bool Animation::isClosed(const Switch &which) const
{
    return doublePositionFrom(m_host.model.value(which.positions.front().value.firstLeaf())) ==
           DoublePosition::On;
}

bool Animation::isInService() const
{
    bool hasDisconnector = false;
    bool throughDisconnector = false;
    for (const Switch &each : m_switches) {
        if (each.isBreaker && !isClosed(each))
            return false;
        if (!each.isBreaker && !each.isEarthing) {
            hasDisconnector = true;
            // One of two busbars is enough.
            throughDisconnector = throughDisconnector || isClosed(each);
        }
    }
    return !hasDisconnector || throughDisconnector;
}

void Animation::measure()
{
    const Moment now = m_host.clock.steadyNow();
    const auto passed = now - m_measured;
    m_measured = now;
    m_feeder.advance(passed, isInService(), m_faulted);
    m_measurements.update(m_feeder, std::chrono::duration<double>(now - m_start).count(),
                          m_host.clock.utcTime());
    count(std::chrono::duration<double>(passed).count());
    at(m_options.step, [this] { measure(); });
}

void Animation::count(double seconds)
{
    constexpr double secondsPerHour = 3600;
    const Model::Batch batch(m_host.model);
    for (Counter &counter : m_counters) {
        if (counter.isEnergy) {
            const Quantity quantity =
                counter.isReactive ? Quantity::ReactivePower : Quantity::ActivePower;
            const double power = m_feeder.measure(quantity, Feeder::total).real();
            // Supply goes to the busbar, demand away from it.
            counter.rest += std::max(counter.isDemand ? power : -power, 0.0) * seconds /
                            secondsPerHour / counter.perCount;
        } else {
            counter.rest += seconds / 5;
        }
        const double whole = std::floor(counter.rest);
        if (whole < 1)
            continue;
        counter.rest -= whole;
        setNumber(counter.value,
                  numberOf(m_host.model.value(counter.value.value.firstLeaf())) + whole);
    }
}

void Animation::toggleIndication()
{
    const Status &indication = m_indications[m_random.below(m_indications.size())];
    const bool isOn = m_host.model.value(indication.value.firstLeaf()).toBoolean().value_or(false);
    set(indication, mms::Data::boolean(!isOn));
    at(seconds(m_random.between(2, 8)), [this] { toggleIndication(); });
}

void Animation::move(std::size_t which, DoublePosition position)
{
    const Model::Batch batch(m_host.model);
    for (const Status &status : m_switches[which].positions)
        set(status, toData(position));
}

void Animation::operate(std::size_t which, bool close, std::function<void()> then)
{
    move(which, DoublePosition::Intermediate);
    at(switchTime, [this, which, close, done = std::move(then)] {
        move(which, close ? DoublePosition::On : DoublePosition::Off);
        if (const auto &operations = m_switches[which].operations)
            setNumber(*operations, numberOf(m_host.model.value(operations->value.firstLeaf())) + 1);
        if (done)
            done();
    });
}

bool Animation::startSwitching()
{
    if (m_options.events)
        at(seconds(m_random.between(90, 180)), [this] { startSwitching(); });
    const auto breaker = std::ranges::find_if(m_switches, &Switch::isBreaker);
    if (breaker == m_switches.end() || !isClosed(*breaker) || m_fault)
        return false;
    const auto which = static_cast<std::size_t>(breaker - m_switches.begin());
    operate(which, false, [this, which] {
        at(6s, [this, which] {
            const mms::Data &position =
                m_host.model.value(m_switches[which].positions.front().value.firstLeaf());
            if (doublePositionFrom(position) == DoublePosition::Off)
                operate(which, true, {});
        });
    });
    return true;
}

bool Animation::startFault()
{
    if (m_options.events)
        at(seconds(m_random.between(60, 120)), [this] { startFault(); });
    if (m_protections.empty() || m_fault || !isInService())
        return false;
    constexpr std::array<unsigned, 5> kinds{1U, 2U, 4U, 6U, 7U};
    m_faulted = kinds[m_random.below(kinds.size())];
    m_fault = m_random.below(m_protections.size());
    setFlags(m_protections[*m_fault].start, true);
    for (const Part &started : m_observers.started)
        setFlags(started, true);
    at(80ms, [this] {
        setFlags(m_protections[*m_fault].operate, true);
        for (const Part &tripped : m_observers.tripped)
            setFlags(tripped, true);
    });
    at(100ms, [this] { trip(); });
    return true;
}

void Animation::trip()
{
    std::vector<std::size_t> opened;
    for (std::size_t i = 0; i < m_switches.size(); ++i) {
        if (m_switches[i].isBreaker && isClosed(m_switches[i])) {
            operate(i, false, {});
            opened.push_back(i);
        }
    }
    at(switchTime + 40ms, [this] {
        const Protection &protection = m_protections[*m_fault];
        const double distance = m_random.between(1, 40);
        setFlags(protection.start, false);
        setFlags(protection.operate, false);
        for (const Part &started : m_observers.started)
            setFlags(started, false);
        for (const Part &tripped : m_observers.tripped)
            setFlags(tripped, false);
        for (const Part &object : m_observers.faultDistances)
            setAnalogue(object, distance);
        for (const Part &object : m_observers.faultImpedances)
            setAnalogue(object, std::polar(distance * ohmPerKilometre, 1.3));
        for (const Status &state : m_observers.reclosingStates)
            setNumber(state, reclosingInProgress);
        for (const Status &alarm : m_observers.groupAlarms)
            set(alarm, mms::Data::boolean(true));
        m_faulted = 0;
    });
    at(300ms, [this] {
        for (const Status &number : m_observers.faultNumbers)
            setNumber(number, numberOf(m_host.model.value(number.value.firstLeaf())) + 1);
        for (const Status &recorded : m_observers.recorded)
            set(recorded, mms::Data::boolean(true));
    });
    at(1500ms, [this, opened] {
        for (const Part &object : m_observers.reclosings)
            setFlags(object, true);
        for (const std::size_t which : opened) {
            const mms::Data &position =
                m_host.model.value(m_switches[which].positions.front().value.firstLeaf());
            if (doublePositionFrom(position) == DoublePosition::Off)
                operate(which, true, {});
        }
    });
    at(1700ms, [this] {
        for (const Part &object : m_observers.reclosings)
            setFlags(object, false);
        for (const Status &state : m_observers.reclosingStates)
            setNumber(state, reclosingSuccessful);
    });
    at(6s, [this] { endFault(); });
}

void Animation::endFault()
{
    for (const Status &state : m_observers.reclosingStates)
        setNumber(state, reclosingReady);
    for (const Status &recorded : m_observers.recorded)
        set(recorded, mms::Data::boolean(false));
    for (const Status &alarm : m_observers.groupAlarms)
        set(alarm, mms::Data::boolean(false));
    m_fault.reset();
}

} // namespace sim
