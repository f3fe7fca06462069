// SPDX-License-Identifier: Apache-2.0
#include "simulator/faults.h"

#include "simulator/faultylink.h"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <utility>

namespace sim {

namespace {

mms::Error wrong(const std::string &message)
{
    return {mms::verbatim(message), 0};
}

} // namespace

Faults::Faults(Private, std::shared_ptr<FaultRules> rules)
    : m_rules(std::move(rules))
{
}

mms::Result<std::shared_ptr<Faults>> Faults::parse(std::string_view script, Handlers handlers)
{
    auto read = readFaultScript(script);
    if (!read)
        return read.error();
    return std::make_shared<Faults>(
        Private(), std::make_shared<FaultRules>(*std::move(read), std::move(handlers)));
}

mms::Result<std::shared_ptr<Faults>> Faults::load(const std::string &path, Handlers handlers)
{
    std::error_code ignored;
    std::ifstream file(path, std::ios::binary);
    if (!file.is_open() || std::filesystem::is_directory(path, ignored))
        return wrong("The script of faults \"" + path + "\" cannot be read.");
    std::ostringstream script;
    script << file.rdbuf();
    auto result = parse(script.str(), std::move(handlers));
    if (!result)
        return wrong(path + ": " + result.error().message.english());
    return result;
}

std::function<std::unique_ptr<osi::Interference>()> Faults::interference()
{
    return [rules = m_rules] { return std::make_unique<FaultyLink>(rules); };
}

} // namespace sim
