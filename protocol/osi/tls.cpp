// SPDX-License-Identifier: Apache-2.0
#include "osi/tls.h"

#include "osi/tlscontext.h"

#include <openssl/bio.h>
#include <openssl/err.h>
#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/x509_vfy.h>

#include <array>
#include <cctype>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <optional>
#include <utility>

namespace osi {

namespace {

using Bio = OpenSslPointer<BIO, BIO_free>;
using Certificate = OpenSslPointer<X509, X509_free>;
using PrivateKey = OpenSslPointer<EVP_PKEY, EVP_PKEY_free>;
using RevocationList = OpenSslPointer<X509_CRL, X509_CRL_free>;

constexpr std::size_t fingerprintDigits = 64;
constexpr int securityLevel = 2;
constexpr const char *suites12 = "ECDHE-ECDSA-AES256-GCM-SHA384:ECDHE-ECDSA-AES128-GCM-SHA256:"
                                 "ECDHE-RSA-AES256-GCM-SHA384:ECDHE-RSA-AES128-GCM-SHA256:"
                                 "DHE-RSA-AES256-GCM-SHA384:DHE-RSA-AES128-GCM-SHA256";
constexpr const char *suites13 = "TLS_AES_256_GCM_SHA384:TLS_AES_128_GCM_SHA256";

Error failure(Text message)
{
    ERR_clear_error();
    return {std::move(message), 0};
}

/// What OpenSSL says of its last error.
std::string detail()
{
    const char *reason = ERR_reason_error_string(ERR_peek_last_error());
    return reason ? reason : std::to_string(ERR_peek_last_error());
}

std::string nameText(const X509_NAME *name)
{
    const Bio memory(BIO_new(BIO_s_mem()));
    X509_NAME_print_ex(memory.get(), name, 0,
                       XN_FLAG_RFC2253 & ~static_cast<unsigned long>(ASN1_STRFLGS_ESC_MSB));
    char *text = nullptr;
    const long size = BIO_get_mem_data(memory.get(), &text);
    return size > 0 ? std::string(text, static_cast<std::size_t>(size)) : std::string();
}

Text dateText(const ASN1_TIME *time)
{
    std::tm parts{};
    if (!time || ASN1_TIME_to_tm(time, &parts) != 1)
        return say("an unknown date");
    char buffer[32];
    std::strftime(buffer, sizeof buffer, "%Y-%m-%d %H:%M:%S UTC", &parts);
    return verbatim(buffer);
}

Result<Bio> openFile(const std::string &file, const Text &what)
{
    if (file.empty())
        return failure(say("No file is given for %1.", what));
    errno = 0;
    Bio bio(BIO_new_file(file.c_str(), "r"));
    if (!bio)
        return failure(say("The file \"%1\" with %2 cannot be opened: %3.", file, what,
                           wording::ofSystem({errno, std::generic_category()})));
    return bio;
}

/// Every certificate in a file, at least one.
Result<std::vector<Certificate>> readCertificates(const std::string &file, const Text &what)
{
    const auto bio = openFile(file, what);
    if (!bio)
        return bio.error();
    std::vector<Certificate> certificates;
    while (Certificate certificate{PEM_read_bio_X509(bio->get(), nullptr, nullptr, nullptr)})
        certificates.push_back(std::move(certificate));
    if (certificates.empty())
        return failure(say("The file \"%1\" holds no certificate in PEM.", file));
    if (ERR_GET_REASON(ERR_peek_last_error()) != PEM_R_NO_START_LINE)
        return failure(say("A certificate in the file \"%1\" cannot be read.", file));
    ERR_clear_error();
    return certificates;
}

Result<std::vector<RevocationList>> readRevocationLists(const std::string &file)
{
    const auto bio = openFile(file, say("a revocation list"));
    if (!bio)
        return bio.error();
    std::vector<RevocationList> lists;
    while (RevocationList list{PEM_read_bio_X509_CRL(bio->get(), nullptr, nullptr, nullptr)})
        lists.push_back(std::move(list));
    if (lists.empty() || ERR_GET_REASON(ERR_peek_last_error()) != PEM_R_NO_START_LINE)
        return failure(say("The file \"%1\" holds no revocation list in PEM.", file));
    ERR_clear_error();
    return lists;
}

struct PasswordQuestion
{
    const std::string &password;
    bool asked = false;
};

int givePassword(char *buffer, int size, int, void *data)
{
    auto &question = *static_cast<PasswordQuestion *>(data);
    question.asked = true;
    const std::string &password = question.password;
    if (password.empty() || password.size() > static_cast<std::size_t>(size))
        return -1;
    std::memcpy(buffer, password.data(), password.size());
    return static_cast<int>(password.size());
}

Result<PrivateKey> readKey(const TlsOptions &options)
{
    const auto bio = openFile(options.keyFile, say("the private key"));
    if (!bio)
        return bio.error();
    PasswordQuestion question{options.keyPassword};
    PrivateKey key(PEM_read_bio_PrivateKey(bio->get(), nullptr, givePassword, &question));
    if (key)
        return key;
    if (!question.asked)
        return failure(say("The file \"%1\" holds no private key in PEM.", options.keyFile));
    return failure(question.password.empty()
                       ? say("The private key in the file \"%1\" is encrypted, and no password is "
                             "given.",
                             options.keyFile)
                       : say("The private key in the file \"%1\" does not open with the password "
                             "that is given.",
                             options.keyFile));
}

Result<void> checkValidity(const X509 *certificate, const std::string &file)
{
    const Text begin =
        say("The certificate \"%1\" in the file \"%2\"", subjectOf(certificate), file);
    if (X509_cmp_current_time(X509_get0_notBefore(certificate)) > 0)
        return failure(
            say("%1 is valid only from %2 on.", begin, dateText(X509_get0_notBefore(certificate))));
    if (X509_cmp_current_time(X509_get0_notAfter(certificate)) < 0)
        return failure(say("%1 expired on %2.", begin, dateText(X509_get0_notAfter(certificate))));
    return {};
}

std::optional<std::string> normalizedPin(const std::string &pin)
{
    std::string digits;
    for (const char c : pin) {
        if (c == ':' || c == ' ')
            continue;
        if (std::isxdigit(static_cast<unsigned char>(c)) == 0)
            return std::nullopt;
        digits += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    }
    if (digits.size() != fingerprintDigits)
        return std::nullopt;
    return digits;
}

Result<void> useIdentity(SSL_CTX *context, const TlsOptions &options)
{
    const auto chain = readCertificates(options.certificateFile, say("the own certificate"));
    if (!chain)
        return chain.error();
    const auto key = readKey(options);
    if (!key)
        return key.error();
    const std::string &file = options.certificateFile;
    X509 *const own = chain->front().get();
    if (X509_check_private_key(own, key->get()) != 1)
        return failure(say(
            "The private key in the file \"%1\" does not fit the certificate in the file \"%2\".",
            options.keyFile, file));
    for (const Certificate &certificate : *chain) {
        if (auto valid = checkValidity(certificate.get(), options.certificateFile); !valid)
            return valid;
    }
    if (SSL_CTX_use_certificate(context, own) != 1)
        return failure(
            say("The certificate in the file \"%1\" cannot be used (%2).", file, detail()));
    for (std::size_t i = 1; i < chain->size(); ++i) {
        if (SSL_CTX_add1_chain_cert(context, (*chain)[i].get()) != 1)
            return failure(say("An issuer's certificate in the file \"%1\" cannot be used (%2).",
                               file, detail()));
    }
    if (SSL_CTX_use_PrivateKey(context, key->get()) != 1)
        return failure(say("The private key in the file \"%1\" cannot be used (%2).",
                           options.keyFile, detail()));
    return {};
}

Result<void> useTrust(SSL_CTX *context, const TlsOptions &options)
{
    X509_STORE *const store = SSL_CTX_get_cert_store(context);
    for (const std::string &file : options.authorityFiles) {
        const auto authorities = readCertificates(file, say("an authority"));
        if (!authorities)
            return authorities.error();
        for (const Certificate &authority : *authorities) {
            if (X509_STORE_add_cert(store, authority.get()) != 1 ||
                SSL_CTX_add_client_CA(context, authority.get()) != 1)
                return failure(
                    say("The authority in the file \"%1\" cannot be used (%2).", file, detail()));
        }
    }
    for (const std::string &file : options.revocationFiles) {
        const auto lists = readRevocationLists(file);
        if (!lists)
            return lists.error();
        for (const RevocationList &list : *lists) {
            if (X509_STORE_add_crl(store, list.get()) != 1)
                return failure(say("The revocation list in the file \"%1\" cannot be used (%2).",
                                   file, detail()));
        }
    }
    unsigned long flags = X509_V_FLAG_X509_STRICT;
    if (!options.revocationFiles.empty())
        flags |= X509_V_FLAG_CRL_CHECK | X509_V_FLAG_CRL_CHECK_ALL;
    X509_STORE_set_flags(store, flags);
    return {};
}

int numberOf(TlsVersion version)
{
    return version == TlsVersion::Tls13 ? TLS1_3_VERSION : TLS1_2_VERSION;
}

OpenSslPointer<SSL_CTX, SSL_CTX_free> makeContext(const TlsOptions &options)
{
    OpenSslPointer<SSL_CTX, SSL_CTX_free> context(SSL_CTX_new(TLS_method()));
    if (!context)
        return nullptr;
    SSL_CTX *const c = context.get();
    SSL_CTX_set_security_level(c, securityLevel);
    SSL_CTX_set_options(c, SSL_OP_NO_COMPRESSION | SSL_OP_NO_RENEGOTIATION | SSL_OP_NO_TICKET |
                               SSL_OP_CIPHER_SERVER_PREFERENCE);
    SSL_CTX_set_session_cache_mode(c, SSL_SESS_CACHE_OFF);
    SSL_CTX_set_mode(c, SSL_MODE_RELEASE_BUFFERS);
    SSL_CTX_set_verify(c, SSL_VERIFY_PEER | SSL_VERIFY_FAIL_IF_NO_PEER_CERT, nullptr);
    const bool isSet = SSL_CTX_set_min_proto_version(c, numberOf(options.minimumVersion)) == 1 &&
                       SSL_CTX_set_max_proto_version(c, numberOf(options.maximumVersion)) == 1 &&
                       SSL_CTX_set_cipher_list(c, suites12) == 1 &&
                       SSL_CTX_set_ciphersuites(c, suites13) == 1 &&
                       SSL_CTX_set_num_tickets(c, 0) == 1 && SSL_CTX_set_dh_auto(c, 1) == 1;
    return isSet ? std::move(context) : nullptr;
}

struct AlertText
{
    int reason;
    wording::Pattern<0> text;
};

constexpr auto noCommonVersion =
    wording::pattern("The peer and this side have no version of TLS in common.");
constexpr auto noCommonSuite = wording::pattern(
    "The peer and this side have no cipher suite in common, or no certificate fits it.");
constexpr auto noTls = wording::pattern("The peer does not speak TLS.");

constexpr AlertText errorTexts[] = {
    {SSL_R_UNSUPPORTED_PROTOCOL, noCommonVersion},
    {SSL_R_NO_PROTOCOLS_AVAILABLE, noCommonVersion},
    {SSL_R_UNKNOWN_PROTOCOL, noCommonVersion},
    {SSL_R_WRONG_SSL_VERSION, noCommonVersion},
    {SSL_R_TLSV1_ALERT_PROTOCOL_VERSION, noCommonVersion},
    {SSL_R_INAPPROPRIATE_FALLBACK, noCommonVersion},
    {SSL_R_NO_SHARED_CIPHER, noCommonSuite},
    {SSL_R_SSLV3_ALERT_HANDSHAKE_FAILURE, noCommonSuite},
    {SSL_R_TLSV1_ALERT_INSUFFICIENT_SECURITY, noCommonSuite},
    {SSL_R_WRONG_VERSION_NUMBER, noTls},
    {SSL_R_HTTP_REQUEST, noTls},
    {SSL_R_HTTPS_PROXY_REQUEST, noTls},
    {SSL_R_PACKET_LENGTH_TOO_LONG, noTls},
    {SSL_R_RECORD_LENGTH_MISMATCH, noTls},
    {SSL_R_PEER_DID_NOT_RETURN_A_CERTIFICATE,
     wording::pattern("The peer has shown no certificate.")},
    {SSL_R_TLSV13_ALERT_CERTIFICATE_REQUIRED,
     wording::pattern("The peer asks for a certificate, and this side has none that it trusts.")},
    {SSL_R_SSLV3_ALERT_CERTIFICATE_EXPIRED,
     wording::pattern(
         "The peer refuses the certificate of this side because it has expired or is not valid yet.")},
    {SSL_R_SSLV3_ALERT_CERTIFICATE_REVOKED,
     wording::pattern(
         "The peer refuses the certificate of this side because it has been revoked.")},
    {SSL_R_TLSV1_ALERT_UNKNOWN_CA,
     wording::pattern(
         "The peer refuses the certificate of this side because it does not trust its issuer.")},
    {SSL_R_SSLV3_ALERT_BAD_CERTIFICATE,
     wording::pattern("The peer refuses the certificate of this side.")},
    {SSL_R_SSLV3_ALERT_CERTIFICATE_UNKNOWN,
     wording::pattern("The peer refuses the certificate of this side.")},
    {SSL_R_SSLV3_ALERT_UNSUPPORTED_CERTIFICATE,
     wording::pattern(
         "The peer refuses the certificate of this side because it is not of a kind that it takes.")},
    {SSL_R_TLSV1_ALERT_ACCESS_DENIED,
     wording::pattern("The peer knows the certificate of this side and denies it access.")},
    {SSL_R_TLSV1_ALERT_DECRYPT_ERROR,
     wording::pattern(
         "The peer refuses the handshake because a signature of this side does not fit.")},
};

} // namespace

std::string fingerprintOf(X509 *certificate)
{
    static constexpr char digits[] = "0123456789abcdef";
    std::array<unsigned char, EVP_MAX_MD_SIZE> hash{};
    unsigned int size = 0;
    std::string text;
    if (X509_digest(certificate, EVP_sha256(), hash.data(), &size) != 1)
        return text;
    for (unsigned int i = 0; i < size; ++i) {
        text += digits[hash[i] >> 4];
        text += digits[hash[i] & 15U];
    }
    return text;
}

std::string subjectOf(const X509 *certificate)
{
    return nameText(X509_get_subject_name(certificate));
}

Text refusalText(X509_STORE_CTX *store)
{
    const int code = X509_STORE_CTX_get_error(store);
    const X509 *const certificate = X509_STORE_CTX_get_current_cert(store);
    const std::string issuer =
        certificate ? nameText(X509_get_issuer_name(certificate)) : std::string();
    const bool isPeers = X509_STORE_CTX_get_error_depth(store) == 0;
    const std::string subject = certificate ? subjectOf(certificate) : std::string();
    const Text begin = isPeers ? say("The peer's certificate \"%1\"", subject)
                               : say("The issuer's certificate \"%1\"", subject);
    switch (code) {
    case X509_V_ERR_CERT_HAS_EXPIRED:
        return say("%1 expired on %2.", begin,
                   dateText(certificate ? X509_get0_notAfter(certificate) : nullptr));
    case X509_V_ERR_CERT_NOT_YET_VALID:
        return say("%1 is valid only from %2 on.", begin,
                   dateText(certificate ? X509_get0_notBefore(certificate) : nullptr));
    case X509_V_ERR_UNABLE_TO_GET_ISSUER_CERT:
    case X509_V_ERR_UNABLE_TO_GET_ISSUER_CERT_LOCALLY:
    case X509_V_ERR_UNABLE_TO_VERIFY_LEAF_SIGNATURE:
        return say("%1 was issued by \"%2\", which is not trusted here.", begin, issuer);
    case X509_V_ERR_DEPTH_ZERO_SELF_SIGNED_CERT:
    case X509_V_ERR_SELF_SIGNED_CERT_IN_CHAIN:
        return say("%1 was issued by itself and is not trusted here.", begin);
    case X509_V_ERR_CERT_SIGNATURE_FAILURE:
        return say("%1 bears the name of the issuer \"%2\", but not its signature.", begin, issuer);
    case X509_V_ERR_CERT_REVOKED:
        return say("%1 has been revoked.", begin);
    case X509_V_ERR_UNABLE_TO_GET_CRL:
        return say("%1 cannot be checked: there is no revocation list of its issuer \"%2\".", begin,
                   issuer);
    case X509_V_ERR_CRL_HAS_EXPIRED:
        return say("%1 cannot be checked: the revocation list of its issuer \"%2\" is out of date.",
                   begin, issuer);
    case X509_V_ERR_CRL_NOT_YET_VALID:
        return say(
            "%1 cannot be checked: the revocation list of its issuer \"%2\" is not valid yet.",
            begin, issuer);
    case X509_V_ERR_CRL_SIGNATURE_FAILURE:
        return say(
            "%1 cannot be checked: the revocation list of its issuer \"%2\" does not bear its signature.",
            begin, issuer);
    case X509_V_ERR_INVALID_PURPOSE:
        return say("%1 is not meant for this side of a TLS connection.", begin);
    case X509_V_ERR_HOSTNAME_MISMATCH:
    case X509_V_ERR_IP_ADDRESS_MISMATCH:
        return say("%1 is not made out to the host that was asked for.", begin);
    case X509_V_ERR_EE_KEY_TOO_SMALL:
    case X509_V_ERR_CA_KEY_TOO_SMALL:
        return say("%1 has a key that is too short to be safe.", begin);
    default:
        return say("%1 is not accepted: %2.", begin, X509_verify_cert_error_string(code));
    }
}

Text tlsErrorText(unsigned long code)
{
    for (const AlertText &entry : errorTexts) {
        if (entry.reason == ERR_GET_REASON(code))
            return say(entry.text);
    }
    const char *reason = ERR_reason_error_string(code);
    return reason ? say("TLS failed: %1.", reason) : say("TLS failed for an unknown reason.");
}

TlsContext::TlsContext(Key, std::unique_ptr<Private> content)
    : d(std::move(content))
{
}

TlsContext::~TlsContext() = default;

Result<std::shared_ptr<const TlsContext>> TlsContext::load(const TlsOptions &options)
{
    if (options.minimumVersion > options.maximumVersion)
        return failure(say("The lowest version of TLS that is allowed is above the highest one."));
    if (options.authorityFiles.empty() && options.pins.empty())
        return failure(say("Neither an authority nor a fingerprint says which peers are trusted."));
    if (options.authorityFiles.empty() && !options.revocationFiles.empty())
        return failure(
            say("Revocation lists are of no use without the authorities that issued them."));
    auto content = std::make_unique<Private>();
    for (const std::string &pin : options.pins) {
        auto digits = normalizedPin(pin);
        if (!digits)
            return failure(
                say("\"%1\" is not a SHA-256 fingerprint of 64 hexadecimal digits.", pin));
        content->pins.insert(std::move(*digits));
    }
    content->peerName = options.peerName;
    content->onlyPinned = options.authorityFiles.empty();
    content->context = makeContext(options);
    if (!content->context)
        return failure(say("TLS cannot be set up (%1).", detail()));
    if (auto used = useIdentity(content->context.get(), options); !used)
        return used.error();
    if (auto used = useTrust(content->context.get(), options); !used)
        return used.error();
    return std::shared_ptr<const TlsContext>(
        std::make_shared<TlsContext>(Key(), std::move(content)));
}

Result<void> validate(const TlsOptions &options)
{
    const auto context = TlsContext::load(options);
    if (!context)
        return context.error();
    return {};
}

Result<std::string> certificateFingerprint(const std::string &file)
{
    const auto certificates = readCertificates(file, say("a certificate"));
    if (!certificates)
        return certificates.error();
    return fingerprintOf(certificates->front().get());
}

} // namespace osi
