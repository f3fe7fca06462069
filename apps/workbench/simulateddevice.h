// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QString>

#include <memory>

namespace scl {
struct Ied;
}

/// A simulated IED of this process, reached over MMS on the loopback interface: a bay in service,
/// with a few files. It runs in a thread of its own from start() to its destruction, which ends all
/// its associations.
class SimulatedDevice
{
public:
    /// Nothing of @p ied is kept. Null, and one sentence in @p error, when no device can be made.
    /// Any thread.
    /// @param firstEdition whether the file is of the first edition of SCL
    /// @param port that is wanted; another one is taken when it is not free, or 0
    static std::unique_ptr<SimulatedDevice> start(const scl::Ied &ied, bool firstEdition, int port,
                                                  QString &error);
    ~SimulatedDevice();
    Q_DISABLE_COPY(SimulatedDevice)

    int port() const;

private:
    SimulatedDevice();

    class Runtime;
    const std::unique_ptr<Runtime> m_runtime;
};
