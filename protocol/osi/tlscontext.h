// SPDX-License-Identifier: Apache-2.0
// What the sources that use OpenSSL share; not for the folder's users.
#pragma once

#include "osi/tls.h"

#include <openssl/ssl.h>
#include <openssl/x509.h>

#include <set>
#include <string>

namespace osi {

template <auto Free>
struct OpenSslDeleter
{
    template <typename T>
    void operator()(T *object) const
    {
        Free(object);
    }
};

template <typename T, auto Free>
using OpenSslPointer = std::unique_ptr<T, OpenSslDeleter<Free>>;

struct TlsContext::Private
{
    OpenSslPointer<SSL_CTX, SSL_CTX_free> context;
    std::set<std::string> pins;
    std::string peerName;
    /// No authority is known: what is pinned is trusted, nothing else.
    bool onlyPinned = false;
};

/// 64 lower-case hexadecimal digits.
std::string fingerprintOf(X509 *certificate);
/// As in "CN=IED1,O=Utility".
std::string subjectOf(const X509 *certificate);
/// Why OpenSSL does not accept the certificate that it looks at.
Text refusalText(X509_STORE_CTX *store);
/// Why a handshake failed or a secured connection broke; @p code is OpenSSL's packed error.
Text tlsErrorText(unsigned long code);

} // namespace osi
