// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "fcdaresolver.h"

#include <unordered_map>

namespace scl {

/// Reads the data sets and control blocks of logical nodes.
class ControlReader : private ResolverPart
{
public:
    /// @param fcdas is given the members of data sets, and outlives the reader
    ControlReader(ResolverState &state, FcdaResolver &fcdas)
        : ResolverPart(state)
        , m_fcdas(fcdas)
    {
    }

    /// Fills the data sets and control blocks of @p node. Members stay unresolved.
    /// @param deviceInst logical device of the node
    void readControls(std::uint32_t element, std::string_view deviceInst, LogicalNode &node);

private:
    static constexpr std::uint32_t maxReportInstances = 99;

    const DataSet *dataSetOf(std::uint32_t element, const LogicalNode &node, std::string_view name);
    ConfiguredTriggers readTriggers(std::uint32_t element);
    ReportControlBlock readReport(std::uint32_t element, const LogicalNode &node);
    LogControlBlock readLogControl(std::uint32_t element, const LogicalNode &node);
    GooseControlBlock readGooseControl(std::uint32_t element, const LogicalNode &node);
    SampledValueControlBlock readSampledValueControl(std::uint32_t element,
                                                     const LogicalNode &node);
    void readSettingControl(std::uint32_t element, LogicalNode &node);

    FcdaResolver &m_fcdas;
    std::unordered_map<std::string_view, std::size_t> m_dataSets; // of the node being read
};

} // namespace scl
