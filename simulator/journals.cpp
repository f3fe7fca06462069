// SPDX-License-Identifier: Apache-2.0
#include "simulator/journals.h"

namespace sim {

namespace {

constexpr std::string_view unnamedLog = "GeneralLog";

} // namespace

Journals::Journals(const scl::Ied &ied)
{
    ied.forEachDevice([this](const scl::LogicalDevice &device) {
        Names &names = m_domains[std::string(device.name)];
        const auto add = [&names](const scl::LogicalNode &node, std::string_view log) {
            names.insert(std::string(node.name) + "$" + std::string(log));
        };
        for (const scl::LogicalNode &node : device.nodes) {
            for (const std::string_view log : node.logs)
                add(node, log.empty() ? unnamedLog : log);
            for (const scl::LogControlBlock &control : node.logControls) {
                if (!control.logName.empty())
                    add(node, control.logName);
            }
        }
    });
}

const Journals::Names *Journals::names(std::string_view domain) const
{
    const auto found = m_domains.find(domain);
    return found == m_domains.end() ? nullptr : &found->second;
}

bool Journals::contains(std::string_view domain, std::string_view name) const
{
    const Names *const known = names(domain);
    return known && known->contains(name);
}

} // namespace sim
