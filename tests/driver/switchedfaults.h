// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "simulator/faults.h"

#include <QtCore/QtGlobal>

#include <atomic>
#include <functional>
#include <memory>
#include <string>

namespace drivertest {

/// The faults of a script, on all links of a device from the time at which they are switched on.
class SwitchedFaults
{
public:
    explicit SwitchedFaults(const std::string &script)
        : m_isOn(std::make_shared<std::atomic<bool>>(false))
    {
        const auto faults = sim::Faults::parse(script);
        if (!faults)
            qFatal("%s", faults.error().message.english().c_str());
        m_faults = *faults;
    }

    void set(bool on) { *m_isOn = on; }

    /// For LinkOptions::interference.
    std::function<std::unique_ptr<osi::Interference>()> interference() const
    {
        return [isOn = m_isOn, faults = m_faults]() -> std::unique_ptr<osi::Interference> {
            return std::make_unique<Switch>(isOn, faults->interference()());
        };
    }

private:
    using Flag = std::shared_ptr<std::atomic<bool>>;

    class Switch : public osi::Interference
    {
    public:
        Switch(Flag isOn, std::unique_ptr<osi::Interference> inner)
            : m_isOn(std::move(isOn))
            , m_inner(std::move(inner))
        {
        }

        Outgoing outgoing(mms::Bytes pdu) override
        {
            if (*m_isOn)
                return m_inner->outgoing(pdu);
            Outgoing unchanged;
            unchanged.pdus.emplace_back(pdu.begin(), pdu.end());
            return unchanged;
        }
        Incoming incoming(mms::Bytes pdu) override
        {
            return *m_isOn ? m_inner->incoming(pdu) : Incoming();
        }

    private:
        Flag m_isOn;
        std::unique_ptr<osi::Interference> m_inner;
    };

    Flag m_isOn;
    std::shared_ptr<sim::Faults> m_faults;
};

} // namespace drivertest
