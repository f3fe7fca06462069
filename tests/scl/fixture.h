// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "scl/reader.h"

#include <algorithm>
#include <string>

inline std::string fixturePath(const std::string &name)
{
    return std::string(SCL_FIXTURES) + "/" + name;
}

inline scl::ReadResult readFixture(const std::string &name, const scl::ReadOptions &options = {})
{
    return scl::readFile(fixturePath(name), options);
}

/// The first finding whose text holds @p part; null when there is none.
inline const scl::Finding *findingWith(const scl::Document &document, const std::string &part)
{
    const auto found = std::find_if(document.findings.begin(), document.findings.end(),
                                    [&part](const scl::Finding &f) {
                                        return f.text.english().find(part) != std::string::npos;
                                    });
    return found == document.findings.end() ? nullptr : &*found;
}

/// The node named @p nodeName in the first logical device of the first IED.
inline const scl::LogicalNode *nodeNamed(const scl::Document &document, std::string_view nodeName)
{
    const scl::LogicalNode *found = nullptr;
    document.ieds.front().forEachDevice([&](const scl::LogicalDevice &device) {
        for (const scl::LogicalNode &node : device.nodes) {
            if (!found && node.name == nodeName)
                found = &node;
        }
    });
    return found;
}

/// Null when the node has none of this name; and so for the two below.
inline const scl::DataSet *dataSetNamed(const scl::LogicalNode &node, std::string_view name)
{
    const auto found = std::ranges::find(node.dataSets, name, &scl::DataSet::name);
    return found == node.dataSets.end() ? nullptr : &*found;
}

inline const scl::LogicalDevice *deviceNamed(const scl::Ied &ied, std::string_view inst)
{
    const scl::LogicalDevice *found = nullptr;
    ied.forEachDevice([&found, inst](const scl::LogicalDevice &device) {
        if (!found && device.inst == inst)
            found = &device;
    });
    return found;
}

inline const scl::Enumeration *enumerationNamed(const scl::Document &document, std::string_view id)
{
    const auto found = std::ranges::find(document.enumerations, id, &scl::Enumeration::id);
    return found == document.enumerations.end() ? nullptr : &*found;
}
