// SPDX-License-Identifier: Apache-2.0
#include "simulator/faults.h"

#include "mms/pdu.h"

#include <algorithm>
#include <array>
#include <bitset>
#include <charconv>
#include <filesystem>
#include <fstream>
#include <map>
#include <mutex>
#include <optional>
#include <random>
#include <sstream>
#include <utility>

namespace sim {

namespace {

using Milliseconds = std::chrono::milliseconds;

enum class Kind : std::uint8_t {
    Delay,
    Drop,
    Ignore,
    Duplicate,
    WrongInvokeId,
    Truncate,
    Garbage,
    Noise,
    Oversize,
    Refuse,
    Reject,
    Reset,
    Clock,
};

constexpr std::array<FaultCase, 13> cases{{
    {"delay", "TIME", "The answer comes later by a time such as 250ms, 1.5s or 2min.",
     "delay 300ms on read,write"},
    {"drop", "", "The service is carried out, but its answer is never sent.",
     "drop on getNameList nth 2"},
    {"ignore", "", "The request is lost: it is neither carried out nor answered.",
     "ignore on write every 3"},
    {"duplicate", "", "The answer is sent twice.", "duplicate on read"},
    {"wrong-invoke-id", "", "The answer bears the invoke id of another call.",
     "wrong-invoke-id on read nth 1"},
    {"truncate", "[OCTETS]", "Only the first octets of the answer are sent, by default half of it.",
     "truncate 12 on read"},
    {"garbage", "[OCTETS]",
     "So many octets of the answer, by default all of them, are replaced by random ones.",
     "garbage 4 on read probability 0.1"},
    {"noise", "[OCTETS]",
     "Random octets, by default 64, follow the answer on the network without any layer around them.",
     "noise 200 on read times 1"},
    {"oversize", "", "The answer is an error longer than the negotiated PDU size.",
     "oversize on getVariableAccessAttributes"},
    {"refuse", "[REASON]",
     "The service is refused: access-denied (by default), non-existent, unsupported, state-conflict, "
     "no-resource, no-capability, file-busy, file-access-denied, file-non-existent or other.",
     "refuse file-busy on fileOpen times 2"},
    {"reject", "", "The request is rejected as if the device did not know the service.",
     "reject on fileRename"},
    {"reset", "[OCTETS]",
     "The network connection is reset after so many octets of the answer, by default half of it.",
     "reset on fileRead from 3 times 1"},
    {"clock", "STEP", "The clock of the device jumps by a time such as +1h or -30s.",
     "clock +1h on read nth 10"},
}};

constexpr std::size_t reportIndex = static_cast<std::size_t>(mms::Service::InformationReport);
constexpr std::size_t initiateIndex = mms::serviceBits;
constexpr std::size_t serviceCount = initiateIndex + 1;
using Services = std::bitset<serviceCount>;

constexpr std::array confirmedServices{
    mms::Service::Status,
    mms::Service::GetNameList,
    mms::Service::Identify,
    mms::Service::Read,
    mms::Service::Write,
    mms::Service::GetVariableAccessAttributes,
    mms::Service::DefineNamedVariableList,
    mms::Service::GetNamedVariableListAttributes,
    mms::Service::DeleteNamedVariableList,
    mms::Service::ObtainFile,
    mms::Service::ReadJournal,
    mms::Service::FileOpen,
    mms::Service::FileRead,
    mms::Service::FileClose,
    mms::Service::FileRename,
    mms::Service::FileDelete,
    mms::Service::FileDirectory,
};

struct Refusal
{
    std::string_view name;
    mms::ErrorClass errorClass;
    std::int32_t code;
};

constexpr std::array<Refusal, 10> refusals{{
    {"access-denied", mms::ErrorClass::Access, mms::serviceerrors::accessDenied},
    {"non-existent", mms::ErrorClass::Access, mms::serviceerrors::accessNonExistent},
    {"unsupported", mms::ErrorClass::Access, mms::serviceerrors::accessUnsupported},
    {"state-conflict", mms::ErrorClass::Service, mms::serviceerrors::serviceObjectStateConflict},
    {"no-resource", mms::ErrorClass::Resource, mms::serviceerrors::resourceMemoryUnavailable},
    {"no-capability", mms::ErrorClass::Resource, mms::serviceerrors::resourceCapabilityUnavailable},
    {"file-busy", mms::ErrorClass::File, mms::serviceerrors::fileBusy},
    {"file-access-denied", mms::ErrorClass::File, mms::serviceerrors::fileAccessDenied},
    {"file-non-existent", mms::ErrorClass::File, mms::serviceerrors::fileNonExistent},
    {"other", mms::ErrorClass::Others, 0},
}};

std::string inQuotes(std::string_view text)
{
    std::string quoted = "\"";
    quoted += text;
    quoted += '"';
    return quoted;
}

mms::Error wrong(std::string_view message)
{
    return {mms::verbatim(message), 0};
}

template <typename Number>
std::optional<Number> toNumber(std::string_view text)
{
    Number number{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return number;
}

/// "250ms", "1.5s", "2min", "1h"; a sign only where @p withSign.
std::optional<Milliseconds> toDuration(std::string_view text, bool withSign)
{
    double sign = 1;
    if (withSign && !text.empty() && (text.front() == '+' || text.front() == '-')) {
        sign = text.front() == '-' ? -1 : 1;
        text.remove_prefix(1);
    }
    const std::size_t unitAt = std::min(text.find_first_not_of("0123456789."), text.size());
    const auto amount = toNumber<double>(text.substr(0, unitAt));
    const std::string_view unit = text.substr(unitAt);
    double factor = 0;
    if (unit == "ms")
        factor = 1;
    else if (unit == "s")
        factor = 1000;
    else if (unit == "min")
        factor = 60 * 1000;
    else if (unit == "h")
        factor = 3600 * 1000;
    constexpr double longest = 100.0 * 365 * 24 * 3600 * 1000;
    if (!amount || factor == 0 || *amount * factor > longest)
        return std::nullopt;
    return Milliseconds(static_cast<std::int64_t>(sign * *amount * factor));
}

std::vector<std::string_view> wordsOf(std::string_view line)
{
    constexpr std::string_view blanks = " \t\r\v\f";
    line = line.substr(0, line.find('#'));
    std::vector<std::string_view> words;
    while (true) {
        const std::size_t begin = line.find_first_not_of(blanks);
        if (begin == std::string_view::npos)
            return words;
        line.remove_prefix(begin);
        const std::size_t size = std::min(line.find_first_of(blanks), line.size());
        words.push_back(line.substr(0, size));
        line.remove_prefix(size);
    }
}

/// Whether a fault makes sense for what is no answer to a confirmed request.
bool fitsReports(Kind kind)
{
    switch (kind) {
    case Kind::Delay:
    case Kind::Drop:
    case Kind::Duplicate:
    case Kind::Truncate:
    case Kind::Garbage:
    case Kind::Noise:
    case Kind::Reset:
        return true;
    default:
        return false;
    }
}

void setInvokeId(mms::Pdu &pdu, std::uint32_t invokeId)
{
    if (auto *response = std::get_if<mms::ConfirmedResponsePdu>(&pdu))
        response->invokeId = invokeId;
    else if (auto *error = std::get_if<mms::ConfirmedErrorPdu>(&pdu))
        error->invokeId = invokeId;
    else if (auto *reject = std::get_if<mms::RejectPdu>(&pdu))
        reject->invokeId = invokeId;
}

} // namespace

struct Faults::Rule
{
    std::size_t line = 0;
    std::string text;
    Kind kind = Kind::Delay;
    Milliseconds time{0};
    std::optional<std::size_t> octets;
    Refusal refusal = refusals.front();
    Services services;
    std::uint64_t first = 1;
    std::uint64_t every = 1;
    std::uint64_t times = UINT64_MAX;
    double probability = 1;
    std::uint64_t fitted = 0;
    std::uint64_t done = 0;
};

struct Faults::Decision
{
    Milliseconds delay{0};
    std::optional<Kind> kind;
    std::optional<std::size_t> octets;
    Refusal refusal = refusals.front();

    bool isNothing() const { return delay.count() <= 0 && !kind; }
};

struct Faults::State
{
    std::mutex mutex;
    std::mt19937_64 random;
    std::vector<Rule> rules;
    Handlers handlers;
};

/// The reader of scripts.
class Faults::Script
{
public:
    explicit Script(State &state)
        : m_state(state)
    {
    }

    mms::Result<void> readLine(std::string_view line, std::size_t number);

private:
    mms::Result<void> readRule(Rule &rule);
    mms::Result<void> readArgument(Rule &rule);
    mms::Result<void> readCondition(Rule &rule);
    mms::Result<void> readServices(Rule &rule, std::string_view names);
    std::optional<std::string_view> next();

    State &m_state;
    std::vector<std::string_view> m_words;
    std::size_t m_position = 0;
};

std::optional<std::string_view> Faults::Script::next()
{
    if (m_position >= m_words.size())
        return std::nullopt;
    return m_words[m_position++];
}

mms::Result<void> Faults::Script::readLine(std::string_view line, std::size_t number)
{
    m_words = wordsOf(line);
    m_position = 0;
    if (m_words.empty())
        return {};
    if (m_words.front() == "seed") {
        const auto seed = m_words.size() == 2 ? toNumber<std::uint64_t>(m_words[1])
                                              : std::optional<std::uint64_t>();
        if (!seed)
            return wrong("\"seed\" needs one whole number.");
        m_state.random.seed(*seed);
        return {};
    }
    Rule rule;
    rule.line = number;
    for (const std::string_view word : m_words)
        rule.text += (rule.text.empty() ? "" : " ") + std::string(word);
    auto result = readRule(rule);
    if (result)
        m_state.rules.push_back(std::move(rule));
    return result;
}

mms::Result<void> Faults::Script::readRule(Rule &rule)
{
    const std::string_view name = *next();
    const auto found = std::ranges::find(cases, name, &FaultCase::name);
    if (found == cases.end())
        return wrong(inQuotes(name) + " is not a fault.");
    rule.kind = static_cast<Kind>(found - cases.begin());
    if (auto result = readArgument(rule); !result)
        return result;
    while (m_position < m_words.size()) {
        if (auto result = readCondition(rule); !result)
            return result;
    }
    if (rule.services.none()) {
        for (const mms::Service service : confirmedServices)
            rule.services.set(static_cast<std::size_t>(service));
    }
    const bool unasked = rule.services.test(reportIndex) || rule.services.test(initiateIndex);
    if (unasked && !fitsReports(rule.kind))
        return wrong(inQuotes(name) + " is possible only for confirmed services.");
    return {};
}

mms::Result<void> Faults::Script::readArgument(Rule &rule)
{
    const auto word =
        m_position < m_words.size() ? std::optional(m_words[m_position]) : std::nullopt;
    const auto used = [this] {
        ++m_position;
        return mms::Result<void>();
    };
    switch (rule.kind) {
    case Kind::Delay:
    case Kind::Clock: {
        const bool isClock = rule.kind == Kind::Clock;
        const auto time = word ? toDuration(*word, isClock) : std::nullopt;
        if (!time) {
            return wrong(isClock ? "\"clock\" needs a step such as +1h or -30s."
                                 : "\"delay\" needs a time such as 250ms, 1.5s or 2min.");
        }
        rule.time = *time;
        return used();
    }
    case Kind::Truncate:
    case Kind::Garbage:
    case Kind::Noise:
    case Kind::Reset: {
        if (!word || word->find_first_not_of("0123456789") != std::string_view::npos)
            return {};
        constexpr std::size_t most = 1000000;
        rule.octets = toNumber<std::size_t>(*word);
        if (!rule.octets || *rule.octets > most)
            return wrong(inQuotes(*word) + " octets are too many.");
        return used();
    }
    case Kind::Refuse: {
        const auto found =
            word ? std::ranges::find(refusals, *word, &Refusal::name) : refusals.end();
        if (found == refusals.end())
            return {};
        rule.refusal = *found;
        return used();
    }
    default:
        return {};
    }
}

mms::Result<void> Faults::Script::readCondition(Rule &rule)
{
    const std::string_view name = *next();
    if (name == "on") {
        const auto names = next();
        if (!names)
            return wrong("\"on\" needs the names of services.");
        return readServices(rule, *names);
    }
    if (name == "probability") {
        const auto word = next();
        const auto number = word ? toNumber<double>(*word) : std::nullopt;
        if (!number || !(*number >= 0 && *number <= 1))
            return wrong("\"probability\" needs a number from 0 to 1.");
        rule.probability = *number;
        return {};
    }
    if (name != "nth" && name != "from" && name != "every" && name != "times")
        return wrong(inQuotes(name) + " is not understood here.");
    const auto word = next();
    const auto number = word ? toNumber<std::uint64_t>(*word) : std::nullopt;
    if (!number || *number == 0)
        return wrong(inQuotes(name) + " needs a whole number from 1.");
    if (name == "every") {
        rule.every = *number;
    } else if (name == "times") {
        rule.times = *number;
    } else {
        rule.first = *number;
        if (name == "nth")
            rule.times = 1;
    }
    return {};
}

mms::Result<void> Faults::Script::readServices(Rule &rule, std::string_view names)
{
    while (true) {
        const std::size_t size = std::min(names.find(','), names.size());
        const std::string_view name = names.substr(0, size);
        const auto found = std::ranges::find_if(confirmedServices, [name](mms::Service service) {
            return mms::serviceName(static_cast<std::uint32_t>(service)) == name;
        });
        if (found != confirmedServices.end())
            rule.services.set(static_cast<std::size_t>(*found));
        else if (name == "informationReport")
            rule.services.set(reportIndex);
        else if (name == "initiate")
            rule.services.set(initiateIndex);
        else
            return wrong(inQuotes(name) + " is not a service.");
        if (size == names.size())
            return {};
        names.remove_prefix(size + 1);
    }
}

/// What happens on one link.
class Faults::Disturbance : public osi::Interference
{
public:
    explicit Disturbance(std::shared_ptr<Faults> faults)
        : m_faults(std::move(faults))
    {
    }

    Outgoing outgoing(mms::Bytes pdu) override;
    Incoming incoming(mms::Bytes pdu) override;

private:
    static constexpr std::uint32_t requestType = 0;
    static constexpr std::uint32_t unconfirmedType = 3;
    static constexpr std::uint32_t rejectType = 4;
    static constexpr std::uint32_t initiateResponseType = 9;

    Decision decisionFor(const std::optional<mms::PduHead> &head, mms::Bytes pdu);
    void apply(const Decision &decision, mms::Bytes pdu, Outgoing &outgoing);

    std::shared_ptr<Faults> m_faults;
    std::map<std::uint32_t, Decision> m_decisions;
    std::size_t m_pduSize = 65536;
};

osi::Interference::Incoming Faults::Disturbance::incoming(mms::Bytes pdu)
{
    const auto head = mms::peekPdu(pdu);
    if (!head || head->type != requestType || !head->invokeId || !head->service)
        return {};
    const Decision decision = m_faults->decide(*head->service);
    m_decisions.erase(*head->invokeId);
    if (decision.kind == Kind::Ignore)
        return {false, {}};
    if (decision.kind == Kind::Refuse) {
        const Refusal &refusal = decision.refusal;
        return {false,
                mms::encode(mms::ConfirmedErrorPdu{
                    *head->invokeId,
                    std::nullopt,
                    {refusal.errorClass, refusal.code, std::nullopt, std::nullopt, std::nullopt}})};
    }
    if (decision.kind == Kind::Reject) {
        return {false,
                mms::encode(mms::RejectPdu{head->invokeId, mms::RejectedPdu::ConfirmedRequest,
                                           mms::rejectcodes::requestUnrecognizedService})};
    }
    if (!decision.isNothing())
        m_decisions.insert_or_assign(*head->invokeId, decision);
    return {};
}

Faults::Decision Faults::Disturbance::decisionFor(const std::optional<mms::PduHead> &head,
                                                  mms::Bytes pdu)
{
    if (!head || head->type == requestType)
        return {};
    if (head->type == initiateResponseType) {
        const auto answer = mms::decodePdu(pdu);
        const auto *response = answer ? std::get_if<mms::InitiateResponsePdu>(&*answer) : nullptr;
        if (response && response->parameters.maxPduSize)
            m_pduSize = static_cast<std::size_t>(std::max(*response->parameters.maxPduSize, 0));
        return m_faults->decide(initiateIndex);
    }
    if (head->type == unconfirmedType)
        return m_faults->decide(reportIndex);
    const auto found = head->invokeId && head->type <= rejectType
                           ? m_decisions.find(*head->invokeId)
                           : m_decisions.end();
    if (found == m_decisions.end())
        return {};
    const Decision decision = found->second;
    m_decisions.erase(found);
    return decision;
}

osi::Interference::Outgoing Faults::Disturbance::outgoing(mms::Bytes pdu)
{
    const Decision decision = decisionFor(mms::peekPdu(pdu), pdu);
    Outgoing outgoing;
    outgoing.delay = decision.delay;
    outgoing.pdus.emplace_back(pdu.begin(), pdu.end());
    if (decision.kind)
        apply(decision, pdu, outgoing);
    return outgoing;
}

void Faults::Disturbance::apply(const Decision &decision, mms::Bytes pdu, Outgoing &outgoing)
{
    constexpr std::size_t defaultNoise = 64;
    constexpr std::uint32_t idStep = 1000;
    mms::Octets &octets = outgoing.pdus.front();
    switch (*decision.kind) {
    case Kind::Drop:
        outgoing.pdus.clear();
        break;
    case Kind::Duplicate:
        outgoing.pdus.emplace_back(pdu.begin(), pdu.end());
        break;
    case Kind::WrongInvokeId:
        if (auto decoded = mms::decodePdu(pdu)) {
            setInvokeId(*decoded, mms::peekPdu(pdu)->invokeId.value_or(0) + idStep);
            octets = mms::encode(*decoded);
        }
        break;
    case Kind::Truncate:
        octets.resize(std::min(decision.octets.value_or(octets.size() / 2), octets.size() - 1));
        break;
    case Kind::Garbage:
        if (!decision.octets) {
            octets = m_faults->randomOctets(octets.size());
            break;
        }
        for (std::size_t i = 0; i < *decision.octets; ++i)
            octets[m_faults->randomBelow(octets.size())] = m_faults->randomOctets(1).front();
        break;
    case Kind::Noise:
        outgoing.noise = m_faults->randomOctets(decision.octets.value_or(defaultNoise));
        break;
    case Kind::Oversize: {
        mms::ConfirmedErrorPdu error;
        error.invokeId = mms::peekPdu(pdu)->invokeId.value_or(0);
        error.error.additionalDescription = std::string(m_pduSize, '?');
        octets = mms::encode(error);
        break;
    }
    case Kind::Reset:
        outgoing.resetAfter = decision.octets.value_or(octets.size() / 2);
        break;
    case Kind::Delay:
    case Kind::Ignore:
    case Kind::Refuse:
    case Kind::Reject:
    case Kind::Clock:
        break;
    }
}

Faults::Faults(Private)
    : m_state(std::make_unique<State>())
{
}

Faults::~Faults() = default;

mms::Result<std::shared_ptr<Faults>> Faults::parse(std::string_view script, Handlers handlers)
{
    auto faults = std::make_shared<Faults>(Private());
    faults->m_state->handlers = std::move(handlers);
    Script reader(*faults->m_state);
    for (std::size_t number = 1; !script.empty(); ++number) {
        const std::size_t size = std::min(script.find('\n'), script.size());
        if (const auto result = reader.readLine(script.substr(0, size), number); !result)
            return wrong("Line " + std::to_string(number) + ": " +
                         result.error().message.english());
        script.remove_prefix(std::min(size + 1, script.size()));
    }
    return faults;
}

mms::Result<std::shared_ptr<Faults>> Faults::load(const std::string &path, Handlers handlers)
{
    std::error_code ignored;
    std::ifstream file(path, std::ios::binary);
    if (!file.is_open() || std::filesystem::is_directory(path, ignored))
        return wrong("The script of faults " + inQuotes(path) + " cannot be read.");
    std::ostringstream script;
    script << file.rdbuf();
    auto result = parse(script.str(), std::move(handlers));
    if (!result)
        return wrong(path + ": " + result.error().message.english());
    return result;
}

std::function<std::unique_ptr<osi::Interference>()> Faults::interference()
{
    return [self = shared_from_this()] { return std::make_unique<Disturbance>(self); };
}

Faults::Decision Faults::decide(std::size_t service)
{
    Decision decision;
    Milliseconds step{0};
    std::vector<std::pair<std::size_t, std::string>> applied;
    {
        const std::lock_guard lock(m_state->mutex);
        for (Rule &rule : m_state->rules) {
            if (service >= serviceCount || !rule.services.test(service))
                continue;
            ++rule.fitted;
            if (rule.fitted < rule.first || (rule.fitted - rule.first) % rule.every != 0 ||
                rule.done >= rule.times) {
                continue;
            }
            // The 53 bits that a double can hold.
            const double drawn = static_cast<double>(m_state->random() >> 11) * 0x1p-53;
            if (drawn >= rule.probability)
                continue;
            if (rule.kind == Kind::Delay) {
                decision.delay += rule.time;
            } else if (rule.kind == Kind::Clock) {
                step += rule.time;
            } else if (!decision.kind) {
                decision.kind = rule.kind;
                decision.octets = rule.octets;
                decision.refusal = rule.refusal;
            } else {
                continue;
            }
            ++rule.done;
            applied.emplace_back(rule.line, rule.text);
        }
    }
    if (step.count() != 0 && m_state->handlers.clockJumps)
        m_state->handlers.clockJumps(step);
    if (m_state->handlers.applied) {
        for (const auto &[line, text] : applied)
            m_state->handlers.applied(line, text);
    }
    return decision;
}

mms::Octets Faults::randomOctets(std::size_t count)
{
    const std::lock_guard lock(m_state->mutex);
    mms::Octets octets(count);
    for (std::uint8_t &octet : octets)
        octet = static_cast<std::uint8_t>(m_state->random());
    return octets;
}

std::size_t Faults::randomBelow(std::size_t limit)
{
    const std::lock_guard lock(m_state->mutex);
    return static_cast<std::size_t>(m_state->random() % limit);
}

std::span<const FaultCase> faultCases()
{
    return cases;
}

std::string faultsHelp()
{
    std::string text =
        "A script of faults has one rule a line; \"#\" begins a comment:\n"
        "  FAULT [ARGUMENT] [on SERVICE[,SERVICE...]] [from N | nth N] [every N] [times N]\n"
        "        [probability P]\n"
        "  seed N\n"
        "Services bear their names of ISO 9506 (read, getNameList, fileOpen, ...), and there are\n"
        "initiate and informationReport; without \"on\" a rule is for every confirmed service.\n"
        "Of the requests that fit a rule, \"from\" names the first that goes wrong, \"nth\" the only\n"
        "one, \"every\" the step from one to the next, \"times\" the greatest number of them, and\n"
        "\"probability\" the chance of each. \"seed\" starts the random numbers.\n"
        "Faults:\n";
    for (const FaultCase &each : cases) {
        text += "  " + std::string(each.name);
        if (!each.argument.empty())
            text += " " + std::string(each.argument);
        text += "\n      " + std::string(each.purpose) +
                "\n      Example: " + std::string(each.example) + "\n";
    }
    return text;
}

} // namespace sim
