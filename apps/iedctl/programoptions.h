// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "driver/administration/deviceconfiguration.h"

#include <QtCore/QString>

#include <string>
#include <vector>

namespace CLI {
class App;
}
struct Invocation;

/// The options that stand before or behind any command: which device, how it is reached and proved
/// to be the right one, how long it may take, and how results are shown.
class ProgramOptions
{
public:
    ProgramOptions() = default;
    ProgramOptions(const ProgramOptions &) = delete;
    ProgramOptions &operator=(const ProgramOptions &) = delete;

    /// Add the options to a parser, which then writes to this object: it must outlive the parsing.
    void addTo(CLI::App &app);

    /// Fill in what was given. Reads the first lines of password files and descriptors.
    /// @return why that is not possible, one sentence; otherwise empty
    QString take(Invocation &invocation) const;

private:
    QString takeDevice(DeviceConfiguration &device) const;
    QString takeSecrets(DeviceConfiguration &device) const;
    void addAssociationOptions(CLI::App &app);
    void addTlsOptions(CLI::App &app);
    void checkTogether() const;

    std::string m_connect;
    std::string m_sclFile;
    std::string m_ied;
    std::string m_accessPoint;
    std::string m_password;
    std::string m_passwordFile;
    int m_passwordDescriptor = -1;
    std::vector<std::string> m_authorities;
    std::vector<std::string> m_pins;
    std::vector<std::string> m_revocations;
    std::string m_peerName;
    bool m_acceptsOtherNames = false;
    std::string m_keyPasswordFile;
    std::string m_certificate;
    std::string m_key;
    double m_timeout = 5;
    bool m_json = false;
    bool m_readOnly = false;
};
