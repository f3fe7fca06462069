// SPDX-License-Identifier: Apache-2.0
#include "simulator/controlengine.h"

#include "simulator/process.h"

#include <algorithm>
#include <string>
#include <utility>

namespace sim {

namespace {

using acsi::ControlRequest;

constexpr std::chrono::milliseconds switchTime{60};
constexpr std::chrono::milliseconds tapTime{250};
constexpr std::chrono::milliseconds numberTime{20};
constexpr std::chrono::milliseconds slowTime{3000};
/// What comes after an answer comes so long after it.
constexpr std::chrono::milliseconds laterTime{20};
constexpr std::chrono::milliseconds usualOperTimeout{10000};
constexpr std::int64_t healthAlarm = 3;
constexpr std::size_t testBit = 11;

/// Class and instance of a logical node's name; all classes have four letters.
struct NodeName
{
    std::string_view prefix;
    std::string_view lnClass;
    std::string_view inst;
};

NodeName split(std::string_view name)
{
    constexpr std::size_t classLength = 4;
    const std::size_t last = name.find_last_not_of("0123456789");
    const std::size_t end = last == std::string_view::npos ? 0 : last + 1;
    if (end < classLength)
        return {{}, name, {}};
    return {name.substr(0, end - classLength), name.substr(end - classLength, classLength),
            name.substr(end)};
}

/// Beh that follows from Mod of the logical device and of the logical node (IEC 61850-7-4, 5.2).
std::int64_t combined(std::int64_t device, std::int64_t node)
{
    constexpr std::int64_t off = 5;
    constexpr std::int64_t on = 1;
    if (device == off || node == off)
        return off;
    // Blocked and test are kept beside each other.
    return std::clamp<std::int64_t>(((device - on) | (node - on)) + on, on, off);
}

} // namespace

/// A controllable object in the model.
class ControlEngine::Point : public Object, private ControlHost
{
public:
    Point(ControlEngine &engine, std::uint32_t domain, std::uint32_t node, const Part &part,
          ControlKind kind)
        : m_engine(engine)
        , m_model(engine.m_host.model)
        , m_domain(domain)
        , m_node(node)
        , m_part(part)
        , m_kind(kind)
        , m_machine(std::string(m_model.domains()[domain].name) + '/' + m_model.itemName(part),
                    *this, engine.m_host.clock)
    {
        for (const std::string_view service : {"Oper", "SBOw", "Cancel"}) {
            const Part found = part.child(service);
            if (found.isValid())
                m_types.emplace_back(service, found.type());
        }
        const auto isAnalogue =
            kind == ControlKind::AnalogueSet || kind == ControlKind::AnalogueSteps;
        m_status = sibling(isAnalogue ? "MX" : "ST");
        m_configuration = sibling("CF");
        findPosition();
        findSurroundings();
    }

    ControlMachine &machine() { return m_machine; }

    std::optional<mms::AccessResult> read(Peer &client, const Part &part) override
    {
        if (part == m_part || part.name() != "SBO")
            return std::nullopt;
        const bool selected = m_machine.select(client);
        m_engine.startTimer();
        return mms::AccessResult(
            mms::Data::visibleString(selected ? m_machine.reference() : std::string()));
    }

    std::optional<mms::DataAccessError> write(Peer &client, const Part &part,
                                              const mms::Data &value) override
    {
        for (const auto &[service, type] : m_types) {
            if (part.name() != service || part.isLeaf() ||
                part.firstLeaf() != m_part.child(service).firstLeaf())
                continue;
            const auto request = acsi::controlRequestFrom(type, value);
            if (!request)
                return mms::DataAccessError::TypeInconsistent;
            m_model.set(part, value);
            const auto refused = perform(client, service, *request, value);
            m_engine.startTimer();
            return refused;
        }
        return mms::DataAccessError::ObjectAccessDenied;
    }

private:
    std::optional<mms::DataAccessError> perform(Peer &client, std::string_view service,
                                                const ControlRequest &request,
                                                const mms::Data &value)
    {
        if (service == "Oper")
            return m_machine.operate(client, request, value);
        if (service == "SBOw")
            return m_machine.selectWithValue(client, request);
        return m_machine.cancel(client, request);
    }

    Part inNode(std::uint32_t node, std::string_view path) const
    {
        return m_model.logicalNode(node).descendant(path);
    }

    Part sibling(std::string_view constraint) const
    {
        return inNode(m_node, std::string(constraint) + '$' + std::string(m_part.name()));
    }

    void findPosition()
    {
        if (!m_status.isValid())
            return;
        switch (m_kind) {
        case ControlKind::BinaryStep:
        case ControlKind::IntegerStep:
            m_position = m_status.descendant("valWTr$posVal");
            m_moving = m_status.descendant("valWTr$transInd");
            break;
        case ControlKind::AnalogueSet:
        case ControlKind::AnalogueSteps: {
            const Part value = m_status.child("mxVal");
            m_position = value.isValid() && !value.isLeaf() ? value.childAt(0) : value;
            break;
        }
        default:
            m_position = m_status.child("stVal");
        }
        if (m_position.isValid() && !m_position.isLeaf())
            m_position = Part();
        m_isSwitch = m_kind == ControlKind::DoublePoint && m_position.isValid() &&
                     m_position.node().basicType == scl::BasicType::Dbpos;
    }

    /// The nodes around the object: those of its own prefix and instance; where one of the two has
    /// no prefix, the instance alone.
    void findSurroundings()
    {
        findSurroundings(true);
        findSurroundings(false);
    }

    void findSurroundings(bool ofOwnPrefix)
    {
        const Model::Domain &domain = m_model.domains()[m_domain];
        const NodeName own = split(m_model.logicalNodes()[m_node].name);
        for (std::uint32_t node = domain.firstNode; node < domain.firstNode + domain.nodeCount;
             ++node) {
            const NodeName other = split(m_model.logicalNodes()[node].name);
            const bool anyPrefix = !ofOwnPrefix && (own.prefix.empty() || other.prefix.empty());
            const bool sameBay =
                other.inst == own.inst && (anyPrefix || other.prefix == own.prefix);
            if (other.lnClass == "LLN0")
                m_rootNode = node;
            else if (other.lnClass == "CILO" && sameBay && m_isSwitch && !m_interlock)
                m_interlock = node;
            else if (other.lnClass == "RSYN" && m_isSwitch && !m_synchrocheck)
                m_synchrocheck = node;
            else if ((other.lnClass == "XCBR" || other.lnClass == "XSWI") && sameBay &&
                     own.lnClass == "CSWI" && m_part.name() == "Pos" && !m_switch)
                m_switch = node;
        }
    }

    bool isTrue(std::optional<std::uint32_t> node, std::string_view object, bool otherwise) const
    {
        const Part part = node ? inNode(*node, "ST$" + std::string(object) + "$stVal") : Part();
        if (!part.isValid() || !part.isLeaf())
            return otherwise;
        return m_model.value(part.firstLeaf()).toBoolean().value_or(otherwise);
    }

    std::int64_t number(std::string_view object, std::int64_t otherwise) const
    {
        const Part part = inNode(m_node, "ST$" + std::string(object) + "$stVal");
        if (!part.isValid() || !part.isLeaf())
            return otherwise;
        return m_model.value(part.firstLeaf()).toInteger().value_or(otherwise);
    }

    std::optional<std::uint64_t> configured(std::string_view name) const
    {
        const Part part = m_configuration.isValid() ? m_configuration.child(name) : Part();
        if (!part.isValid() || !part.isLeaf())
            return std::nullopt;
        return m_model.value(part.firstLeaf()).toUnsigned();
    }

    ControlSettings settings() override
    {
        constexpr std::uint64_t longest = 24ULL * 3600 * 1000;
        ControlSettings settings;
        settings.model = static_cast<acsi::ControlModel>(configured("ctlModel").value_or(0));
        const std::uint64_t sboTimeout = configured("sboTimeout").value_or(0);
        if (sboTimeout != 0)
            settings.sboTimeout = std::chrono::milliseconds(std::min(sboTimeout, longest));
        const std::uint64_t operTimeout = configured("operTimeout").value_or(0);
        settings.operTimeout = operTimeout == 0
                                   ? usualOperTimeout
                                   : std::chrono::milliseconds(std::min(operTimeout, longest));
        settings.operateMany = configured("sboClass").value_or(0) == 1;
        settings.operatingTime = m_isSwitch           ? switchTime
                                 : m_moving.isValid() ? tapTime
                                                      : numberTime;
        const Oddities &odd = m_engine.m_host.oddities;
        if (odd.slowControl)
            settings.operatingTime = slowTime;
        settings.isStrict = odd.strictControl;
        settings.cancelsOperations = !odd.noCancelOfCommands;
        settings.causes.hasNumber = !odd.causeWithoutNumber;
        settings.causes.followsAnswer = odd.causeAfterAnswer;
        settings.causes.name = odd.causeNamesObject      ? CauseForm::Name::Object
                               : odd.causeNamesReference ? CauseForm::Name::Reference
                               : odd.causeNamesOper      ? CauseForm::Name::Oper
                                                         : CauseForm::Name::Service;
        return settings;
    }

    ControlRange range() const
    {
        ControlRange range;
        if (!m_configuration.isValid())
            return range;
        const auto limit = [this](std::string_view name) -> std::optional<double> {
            Part part = m_configuration.child(name);
            if (part.isValid() && !part.isLeaf() && part.childCount() != 0)
                part = part.childAt(0);
            if (!part.isValid() || !part.isLeaf())
                return std::nullopt;
            const mms::Data &value = m_model.value(part.firstLeaf());
            if (const auto real = value.toDouble())
                return real;
            if (const auto integer = value.toInteger())
                return static_cast<double>(*integer);
            return std::nullopt;
        };
        range.minimum = limit("minVal");
        range.maximum = limit("maxVal");
        // Limits that were never given say nothing.
        if (range.minimum == range.maximum) {
            range.minimum.reset();
            range.maximum.reset();
        }
        const auto step = limit("stepSize");
        if (step && *step > 0)
            range.step = *step;
        return range;
    }

    ControlConditions conditions(bool closing) const
    {
        ControlConditions conditions;
        conditions.controlsMode = m_part.name() == "Mod";
        conditions.behaviour = static_cast<std::int32_t>(number("Beh", 1));
        conditions.unhealthy = m_isSwitch && number("Health", 1) == healthAlarm;
        conditions.local = isTrue(m_node, "Loc", false) || isTrue(m_node, "LocKey", false) ||
                           isTrue(m_rootNode, "Loc", false) ||
                           isTrue(m_rootNode, "LocKey", false) || isTrue(m_switch, "Loc", false) ||
                           isTrue(m_switch, "LocKey", false);
        if (m_isSwitch) {
            const std::string_view blocking = closing ? "BlkCls" : "BlkOpn";
            conditions.blocked =
                isTrue(m_node, blocking, false) || isTrue(m_switch, blocking, false);
            conditions.interlocked = !isTrue(m_interlock, closing ? "EnaCls" : "EnaOpn", true);
            conditions.unsynchronized = !isTrue(m_synchrocheck, "Rel", true);
        }
        return conditions;
    }

    ControlTarget target(const ControlRequest &request) const
    {
        if (!m_position.isValid())
            return {AddCause::None, mms::Data()};
        return targetOf(m_kind, request.value, m_model.value(m_position.firstLeaf()), range());
    }

    AddCause check(const ControlRequest &request) override
    {
        const bool closing = closes(m_kind, request.value);
        const AddCause forbidden = forbids(conditions(closing), request, closing);
        if (forbidden != AddCause::None)
            return forbidden;
        const ControlTarget where = target(request);
        if (where.cause != AddCause::None || !m_position.isValid())
            return where.cause;
        // An ordinal that the enumeration lacks.
        if (Model::check(m_position, where.position))
            return AddCause::InconsistentParameters;
        return AddCause::None;
    }

    void selected(bool selected) override
    {
        const Part part = m_status.isValid() ? m_status.child("stSeld") : Part();
        if (part.isValid() && part.isLeaf())
            m_model.set(part.firstLeaf(), mms::Data::boolean(selected));
    }

    /// Nothing reaches the process in the mode "test and blocked".
    bool reachesProcess() const { return number("Beh", 1) != 4; }

    void started(const ControlRequest &request) override
    {
        const ControlTarget where = target(request);
        m_target = where.cause == AddCause::None ? where.position : mms::Data();
        if (!m_position.isValid() || !reachesProcess())
            return;
        m_before = m_model.value(m_position.firstLeaf());
        if (m_isSwitch)
            move(request, toData(DoublePosition::Intermediate), true);
        else if (m_moving.isValid())
            move(request, m_before, true);
    }

    void finished(const ControlRequest &request) override
    {
        if (m_position.isValid() && reachesProcess())
            move(request, m_target, false);
        if (m_part.name() == "Mod")
            m_engine.updateBehaviour(m_domain);
    }

    void stopped(const ControlRequest &request, AddCause cause) override
    {
        if (!m_position.isValid() || !reachesProcess() || cause != AddCause::AbortionByCancel)
            return;
        move(request, m_before, false);
    }

    void move(const ControlRequest &request, const mms::Data &position, bool moving)
    {
        const Model::Batch batch(m_model);
        m_model.set(m_position.firstLeaf(), position);
        setIn(m_status, "valWTr$transInd", mms::Data::boolean(moving));
        setIn(m_status, "origin$orCat", mms::Data::integer(request.originator.category));
        setIn(m_status, "origin$orIdent",
              mms::Data::octetString(request.originator.identification));
        setIn(m_status, "ctlNum", mms::Data::unsignedInteger(request.ctlNum));
        stamp(m_status, request.test);
        if (!m_switch || !m_isSwitch)
            return;
        const Part driven = inNode(*m_switch, "ST$Pos");
        const Part drivenPosition = driven.isValid() ? driven.child("stVal") : Part();
        if (!drivenPosition.isValid() || drivenPosition.node().basicType != scl::BasicType::Dbpos)
            return;
        m_model.set(drivenPosition.firstLeaf(), position);
        stamp(driven, request.test);
    }

    void stamp(const Part &status, bool test)
    {
        mms::BitString quality(13);
        quality.set(testBit, test);
        setIn(status, "q", mms::Data::bitString(quality));
        setIn(status, "t", mms::Data::utcTime(m_engine.m_host.clock.utcTime()));
    }

    void setIn(const Part &parent, std::string_view path, mms::Data value)
    {
        const Part part = parent.descendant(path);
        if (part.isValid() && part.isLeaf() && !Model::check(part, value))
            m_model.set(part.firstLeaf(), std::move(value));
    }

    void send(Peer &client, mms::InformationReport report) override
    {
        client.report(std::move(report));
    }

    void sendLater(Peer &client, mms::InformationReport report) override
    {
        m_engine.sendLater(client, std::move(report));
    }

    ControlEngine &m_engine;
    Model &m_model;
    std::uint32_t m_domain;
    std::uint32_t m_node;
    Part m_part;
    ControlKind m_kind;
    ControlMachine m_machine;
    std::vector<std::pair<std::string_view, mms::TypeDescription>> m_types;
    Part m_status;
    Part m_configuration;
    Part m_position;
    Part m_moving;
    bool m_isSwitch = false;
    std::optional<std::uint32_t> m_rootNode;
    std::optional<std::uint32_t> m_interlock;
    std::optional<std::uint32_t> m_synchrocheck;
    std::optional<std::uint32_t> m_switch; ///< the switch itself, of a switch controller
    mms::Data m_before;
    mms::Data m_target;
};

ControlEngine::ControlEngine(const Host &host, const scl::Ied &ied)
    : m_host(host)
    , m_timer(host.clock.makeTimer())
    , m_laterTimer(host.clock.makeTimer())
{
    const auto domains = m_host.model.domains();
    for (std::uint32_t d = 0; d < domains.size(); ++d) {
        for (std::uint32_t n = domains[d].firstNode;
             n < domains[d].firstNode + domains[d].nodeCount; ++n) {
            const Part controls = m_host.model.logicalNode(n).child("CO");
            if (!controls.isValid())
                continue;
            for (std::uint32_t i = 0; i < controls.childCount(); ++i)
                add(d, n, controls.childAt(i));
        }
    }
    ied.forEachDevice([this](const scl::LogicalDevice &device) {
        for (const scl::LogicalNode &node : device.nodes) {
            if (node.lnClass == "CILO" || node.lnClass == "RSYN")
                releaseInterlocks(device, node);
        }
    });
}

ControlEngine::~ControlEngine() = default;

void ControlEngine::add(std::uint32_t domain, std::uint32_t node, const Part &part)
{
    const auto kind = controlKindOf(part.node().cdc);
    if (!kind || !part.child("Oper").isValid())
        return;
    auto point = std::make_shared<Point>(*this, domain, node, part, *kind);
    m_points.push_back(point);
    m_host.access.attach(part, std::move(point));
}

void ControlEngine::releaseInterlocks(const scl::LogicalDevice &device,
                                      const scl::LogicalNode &node)
{
    for (const std::string_view object : {"EnaOpn", "EnaCls", "Rel"}) {
        const scl::DataNode data = node.dataObject(object);
        const scl::DataNode state = data.isValid() ? data.child("stVal") : scl::DataNode();
        // What the file says stays.
        if (!state.isValid() || !state.isLeaf() || state.value())
            continue;
        const Part part = m_host.model.find(device.name, std::string(node.name) + "$ST$" +
                                                             std::string(object) + "$stVal");
        if (part.isValid() && part.isLeaf() &&
            m_host.model.value(part.firstLeaf()).kind() == mms::Data::Kind::Boolean)
            m_host.model.set(part.firstLeaf(), mms::Data::boolean(true));
    }
}

void ControlEngine::updateBehaviour(std::uint32_t domain)
{
    const Model::Domain &place = m_host.model.domains()[domain];
    const auto stateOf = [this](std::uint32_t node, std::string_view object) {
        const Part part = m_host.model.logicalNode(node).descendant("ST$" + std::string(object));
        const Part state = part.isValid() ? part.child("stVal") : Part();
        return state.isValid() && state.isLeaf() ? state : Part();
    };
    const auto modeOf = [&](std::uint32_t node) {
        const Part state = stateOf(node, "Mod");
        return state.isValid() ? m_host.model.value(state.firstLeaf()).toInteger().value_or(1) : 1;
    };
    const auto root = place.nodeOfName.find("LLN0");
    const std::int64_t device = root == place.nodeOfName.end() ? 1 : modeOf(root->second);
    const Model::Batch batch(m_host.model);
    for (std::uint32_t n = place.firstNode; n < place.firstNode + place.nodeCount; ++n) {
        const Part state = stateOf(n, "Beh");
        if (!state.isValid())
            continue;
        const mms::Data behaviour = mms::Data::integer(combined(device, modeOf(n)));
        if (Model::check(state, behaviour) || m_host.model.value(state.firstLeaf()) == behaviour)
            continue;
        m_host.model.set(state.firstLeaf(), behaviour);
        const Part time = m_host.model.logicalNode(n).descendant("ST$Beh$t");
        if (time.isValid() && time.isLeaf())
            m_host.model.set(time.firstLeaf(), mms::Data::utcTime(m_host.clock.utcTime()));
    }
}

void ControlEngine::closed(Peer &client)
{
    for (const auto &point : m_points)
        point->machine().closed(client);
    std::erase_if(m_later, [&](const auto &each) { return each.first == &client; });
}

void ControlEngine::sendLater(Peer &client, mms::InformationReport report)
{
    m_later.emplace_back(&client, std::move(report));
    m_laterTimer->start(laterTime, [this] {
        for (auto &[receiver, what] : std::exchange(m_later, {}))
            receiver->report(std::move(what));
    });
}

void ControlEngine::startTimer()
{
    std::optional<Clock::SteadyTime> earliest;
    for (const auto &point : m_points) {
        const auto time = point->machine().deadline();
        if (time && (!earliest || *time < *earliest))
            earliest = time;
    }
    if (earliest)
        m_timer->start(*earliest - m_host.clock.steadyNow(), [this] { wake(); });
    else
        m_timer->stop();
}

void ControlEngine::wake()
{
    for (const auto &point : m_points)
        point->machine().advance();
    startTimer();
}

} // namespace sim
