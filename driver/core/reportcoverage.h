// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "driver/model/leafrange.h"

#include "acsi/reference.h"

#include <QtCore/QHash>
#include <QtCore/QString>

#include <chrono>
#include <cstdint>
#include <functional>
#include <vector>

/// The kinds of change that the reports of a source (a report control block) tell: what its enabled
/// trigger options say.
struct ReportCoverage
{
    bool dataChange = false;
    bool qualityChange = false;
    bool dataUpdate = false;
    /// Every member is told so often, whether it has changed or not; 0: never.
    std::chrono::milliseconds integrityPeriod{0};

    friend bool operator==(const ReportCoverage &, const ReportCoverage &) = default;
};

/// The triggers by which a change of a leaf is told (IEC 61850-7-3: dchg, qchg, dupd). A leaf
/// without any changes untold.
struct LeafTriggers
{
    bool dataChange = false;
    bool qualityChange = false;
    bool dataUpdate = false;

    friend bool operator==(const LeafTriggers &, const LeafTriggers &) = default;
};

/// Whether no change by the triggers that a leaf has (@p needed) is untold. A leaf without any
/// changes untold.
bool areTold(const LeafTriggers &needed, const LeafTriggers &on);

/// What the common data classes of the standard give a leaf, by its name and functional constraint:
/// for a device of which no file tells. A time goes with its value and quality, and is told when
/// either changes.
LeafTriggers standardTriggers(const acsi::Reference &leaf);

/// The data that comes by itself, by source, and what that is worth for each leaf. Plain: no clock,
/// no sockets.
///
/// The rule: a leaf leaves the fast polling only when every trigger that can change it is on in the
/// sources that report it, or when one of them tells it at least as often as polling would. It
/// always stays in the slow polling: reports are believed, and looked after all the same.
class ReportedData
{
public:
    /// An empty list takes the source away. References that name no data are left out.
    void set(const QString &source, const std::vector<acsi::Reference> &references,
             const ReportCoverage &coverage);
    void clear() { m_sources.clear(); }
    bool isEmpty() const { return m_sources.isEmpty(); }

    /// The leaves that may leave the fast polling, in their order.
    /// @param leavesOf the leaves of a member
    /// @param triggersOf what may change a leaf
    /// @param pollInterval of the fast polling
    std::vector<LeafRange>
    coveredLeaves(const std::function<LeafRange(const acsi::Reference &)> &leavesOf,
                  const std::function<LeafTriggers(std::uint32_t leaf)> &triggersOf,
                  std::chrono::milliseconds pollInterval) const;

private:
    struct Source
    {
        std::vector<acsi::Reference> members;
        ReportCoverage coverage;
    };

    QHash<QString, Source> m_sources;
};
