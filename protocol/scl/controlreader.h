// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "pathpart.h"
#include "typeresolver.h"

#include <unordered_map>

namespace scl {

/// Reads the data sets and control blocks of logical nodes.
class ControlReader : private ResolverPart
{
public:
    ControlReader(ResolverState &state, const TypeResolver &types)
        : ResolverPart(state)
        , m_types(types)
    {
    }

    /// Fills the data sets and control blocks of @p node. Members stay unresolved, since they can
    /// name nodes that come later in the file.
    /// @param deviceInst logical device of the node, for members that name none
    void readControls(std::uint32_t element, std::string_view deviceInst, LogicalNode &node);

    /// Resolves the FCDAs of all data sets read since the last call, when the IED is complete.
    void resolveFcdas(const Ied &ied);

private:
    static constexpr std::uint32_t maxReportInstances = 99;

    struct PendingSet
    {
        std::uint32_t element;
        Fcda *members;
        std::string_view deviceInst;
    };

    struct KnownDevice
    {
        const LogicalDevice *device = nullptr;
        std::unordered_map<std::string_view, const LogicalNode *> nodes;
    };
    using KnownDevices = std::unordered_map<std::string_view, KnownDevice>;

    const DataSet *dataSetOf(std::uint32_t element, const LogicalNode &node, std::string_view name);
    ConfiguredTriggers readTriggers(std::uint32_t element);
    ReportControlBlock readReport(std::uint32_t element, const LogicalNode &node);
    LogControlBlock readLogControl(std::uint32_t element, const LogicalNode &node);
    GooseControlBlock readGooseControl(std::uint32_t element, const LogicalNode &node);
    SampledValueControlBlock readSampledValueControl(std::uint32_t element,
                                                     const LogicalNode &node);
    void readSettingControl(std::uint32_t element, LogicalNode &node);
    void resolveFcda(std::uint32_t element, const Ied &ied, const KnownDevices &devices,
                     std::string_view homeDevice, Fcda &member);
    /// Empty when the member exists, else what is wrong, as the begin of a sentence.
    wording::Text walkFcda(const LogicalNode &node, std::size_t objectParts,
                           std::vector<PathPart> &parts, std::int32_t arrayIndex, Fcda &member);

    const TypeResolver &m_types;
    std::vector<PendingSet> m_pendingSets;
    std::unordered_map<std::string_view, std::size_t> m_dataSets; // of the node being read
};

} // namespace scl
