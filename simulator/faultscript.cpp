// SPDX-License-Identifier: Apache-2.0
#include "simulator/faultscript.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

namespace sim {

namespace {

using Milliseconds = std::chrono::milliseconds;

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

constexpr std::array<FaultRefusal, 10> refusals{{
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
bool fitsReports(FaultKind kind)
{
    switch (kind) {
    case FaultKind::Delay:
    case FaultKind::Drop:
    case FaultKind::Duplicate:
    case FaultKind::Truncate:
    case FaultKind::Garbage:
    case FaultKind::Noise:
    case FaultKind::Reset:
        return true;
    default:
        return false;
    }
}

/// The reader of scripts.
class ScriptReader
{
public:
    explicit ScriptReader(FaultScript &script)
        : m_script(script)
    {
    }

    mms::Result<void> readLine(std::string_view line, std::size_t number);

private:
    mms::Result<void> readRule(FaultRule &rule);
    mms::Result<void> readArgument(FaultRule &rule);
    mms::Result<void> readCondition(FaultRule &rule);
    mms::Result<void> readServices(FaultRule &rule, std::string_view names);
    std::optional<std::string_view> next();

    FaultScript &m_script;
    std::vector<std::string_view> m_words;
    std::size_t m_position = 0;
};

std::optional<std::string_view> ScriptReader::next()
{
    if (m_position >= m_words.size())
        return std::nullopt;
    return m_words[m_position++];
}

mms::Result<void> ScriptReader::readLine(std::string_view line, std::size_t number)
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
        m_script.seed = seed;
        return {};
    }
    FaultRule rule;
    rule.refusal = refusals.front();
    rule.line = number;
    for (const std::string_view word : m_words)
        rule.text += (rule.text.empty() ? "" : " ") + std::string(word);
    auto result = readRule(rule);
    if (result)
        m_script.rules.push_back(std::move(rule));
    return result;
}

mms::Result<void> ScriptReader::readRule(FaultRule &rule)
{
    const std::string_view name = *next();
    const auto found = std::ranges::find(cases, name, &FaultCase::name);
    if (found == cases.end())
        return wrong(inQuotes(name) + " is not a fault.");
    rule.kind = static_cast<FaultKind>(found - cases.begin());
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
    const bool unasked =
        rule.services.test(faultReportIndex) || rule.services.test(faultInitiateIndex);
    if (unasked && !fitsReports(rule.kind))
        return wrong(inQuotes(name) + " is possible only for confirmed services.");
    return {};
}

mms::Result<void> ScriptReader::readArgument(FaultRule &rule)
{
    const auto word =
        m_position < m_words.size() ? std::optional(m_words[m_position]) : std::nullopt;
    const auto used = [this] {
        ++m_position;
        return mms::Result<void>();
    };
    switch (rule.kind) {
    case FaultKind::Delay:
    case FaultKind::Clock: {
        const bool isClock = rule.kind == FaultKind::Clock;
        const auto time = word ? toDuration(*word, isClock) : std::nullopt;
        if (!time) {
            return wrong(isClock ? "\"clock\" needs a step such as +1h or -30s."
                                 : "\"delay\" needs a time such as 250ms, 1.5s or 2min.");
        }
        rule.time = *time;
        return used();
    }
    case FaultKind::Truncate:
    case FaultKind::Garbage:
    case FaultKind::Noise:
    case FaultKind::Reset: {
        if (!word || word->find_first_not_of("0123456789") != std::string_view::npos)
            return {};
        constexpr std::size_t most = 1000000;
        rule.octets = toNumber<std::size_t>(*word);
        if (!rule.octets || *rule.octets > most)
            return wrong(inQuotes(*word) + " octets are too many.");
        return used();
    }
    case FaultKind::Refuse: {
        const auto found =
            word ? std::ranges::find(refusals, *word, &FaultRefusal::name) : refusals.end();
        if (found == refusals.end())
            return {};
        rule.refusal = *found;
        return used();
    }
    default:
        return {};
    }
}

mms::Result<void> ScriptReader::readCondition(FaultRule &rule)
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

mms::Result<void> ScriptReader::readServices(FaultRule &rule, std::string_view names)
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
            rule.services.set(faultReportIndex);
        else if (name == "initiate")
            rule.services.set(faultInitiateIndex);
        else
            return wrong(inQuotes(name) + " is not a service.");
        if (size == names.size())
            return {};
        names.remove_prefix(size + 1);
    }
}

} // namespace

mms::Result<FaultScript> readFaultScript(std::string_view text)
{
    FaultScript script;
    ScriptReader reader(script);
    for (std::size_t number = 1; !text.empty(); ++number) {
        const std::size_t size = std::min(text.find('\n'), text.size());
        if (const auto result = reader.readLine(text.substr(0, size), number); !result)
            return wrong("Line " + std::to_string(number) + ": " +
                         result.error().message.english());
        text.remove_prefix(std::min(size + 1, text.size()));
    }
    return script;
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
