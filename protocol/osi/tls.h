// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "osi/vocabulary.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace osi {

enum class TlsVersion : std::uint8_t { Tls12, Tls13 };
enum class TlsRole : std::uint8_t { Client, Server };

/// How an end of an association proves who it is and whom it trusts: the profile of TLS that
/// IEC 62351-3 makes for power systems. Both ends show a certificate, always. Files are in PEM.
///
/// Only suites with authenticated encryption and forward secrecy are offered, as the profile asks:
/// AES-GCM with 128 and 256 bits, in TLS 1.2 with an ephemeral key exchange (ECDHE with ECDSA or
/// RSA certificates, DHE with RSA). The CBC suites and RSA key transport that its older editions
/// allowed are left out because of their known weaknesses, ChaCha20 because the profile does not
/// name it. Keys give at least 112 bits of security (RSA from 2048 bits on); SHA-1 signatures are
/// refused. Sessions are not resumed and connections not renegotiated, so that every association
/// checks the certificates and revocation lists anew.
struct TlsOptions
{
    /// The own certificate, followed by those of its issuers up to, but not necessarily with, the
    /// one that peers trust.
    std::string certificateFile;
    std::string keyFile;
    /// Of an encrypted key; never logged.
    std::string keyPassword;
    /// Certificates of the authorities that may have issued a peer's certificate. Without any, only
    /// pinned certificates are trusted.
    std::vector<std::string> authorityFiles;
    /// Revocation lists. With any, every certificate of a peer's chain is looked up in the list of
    /// its issuer, which must be there and not out of date.
    std::vector<std::string> revocationFiles;
    /// SHA-256 fingerprints of peers' certificates, 64 hexadecimal digits with or without colons.
    /// With any, no other peer is accepted, whatever its issuer.
    std::vector<std::string> pins;
    /// Client: the host name or address that the server's certificate must be made out to. When it
    /// is empty, that is the host that was asked for, unless the certificate is pinned.
    std::string peerName;
    /// Client: without a peerName, take the certificate of another host as well, as long as a
    /// trusted authority issued it. Any device of the plant may then answer for any other.
    bool acceptsOtherNames = false;
    TlsVersion minimumVersion = TlsVersion::Tls12;
    TlsVersion maximumVersion = TlsVersion::Tls13;
};

/// What is known of the peer of a connection with TLS.
struct TlsPeer
{
    std::string subject;     ///< of its certificate, as in "CN=IED1,O=Utility"
    std::string fingerprint; ///< of its certificate, 64 lower-case hexadecimal digits
    std::string version;     ///< "TLSv1.3"
    std::string cipherSuite; ///< OpenSSL's name
};

/// Whether the files are there, can be read and fit each other, the own certificates are valid
/// today and the rest makes sense; the error names the file and what is wrong. Reads the files; any
/// thread.
Result<void> validate(const TlsOptions &options);

/// The fingerprint of the first certificate in a file, to be used as a pin.
Result<std::string> certificateFingerprint(const std::string &file);

/// What TlsOptions describe, loaded: shared by any number of connections, unchanging. Files that
/// change afterwards need a new context.
class TlsContext
{
    struct Private;
    struct Key
    {
    };

public:
    static Result<std::shared_ptr<const TlsContext>> load(const TlsOptions &options);
    TlsContext(Key, std::unique_ptr<Private> d);
    ~TlsContext();

private:
    friend class NetworkStream;

    std::unique_ptr<Private> d;
};

} // namespace osi
