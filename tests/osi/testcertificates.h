// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "osi/tls.h"

#include <chrono>
#include <memory>
#include <string>
#include <vector>

namespace wiretest {

/// From now; hours before now are negative.
struct Validity
{
    std::chrono::hours from{-1};
    std::chrono::hours to{24};
};

/// Certificates, keys and revocation lists in PEM files that live as long as this. They are made
/// when they are asked for, with keys of their own.
class TestCertificates
{
    struct Private;

public:
    /// A certificate with its key.
    struct Identity
    {
        std::string name;
        std::string certificateFile;
        std::string keyFile;
        int serial = 0;
    };

    TestCertificates();
    ~TestCertificates();

    /// An authority; its certificate is signed by @p issuer, or by itself.
    Identity authority(const std::string &name, const Identity *issuer = nullptr);
    /// Made out to this computer unless told otherwise.
    Identity issue(const Identity &issuer, const std::string &name, Validity validity = {},
                   const std::string &alternativeName = "DNS:localhost,IP:127.0.0.1");
    /// The file with the authority's list of what it has revoked.
    std::string revocationList(const Identity &authority, const std::vector<Identity> &revoked,
                               Validity validity = {});
    /// The key again, encrypted.
    std::string encryptedKey(const Identity &identity, const std::string &password);
    /// A file with this content.
    std::string file(const std::string &name, const std::string &content);

    static osi::TlsOptions options(const Identity &own, const Identity &authority);

private:
    std::unique_ptr<Private> d;
};

} // namespace wiretest
