// SPDX-License-Identifier: Apache-2.0
#include "osi/testcertificates.h"

#include "osi/tlscontext.h"

#include <openssl/ec.h>
#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/x509v3.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <stdexcept>

namespace wiretest {

namespace {

using osi::OpenSslPointer;
using Key = OpenSslPointer<EVP_PKEY, EVP_PKEY_free>;
using Certificate = OpenSslPointer<X509, X509_free>;
using File = OpenSslPointer<BIO, BIO_free>;

void require(bool holds)
{
    if (!holds)
        throw std::runtime_error("OpenSSL cannot make a certificate for the tests");
}

void setTime(ASN1_TIME *time, std::chrono::hours fromNow)
{
    require(X509_gmtime_adj(time, std::chrono::seconds(fromNow).count()) != nullptr);
}

void addExtension(X509 *certificate, X509 *issuer, int id, const std::string &value)
{
    X509V3_CTX context{};
    X509V3_set_ctx(&context, issuer, certificate, nullptr, nullptr, 0);
    const OpenSslPointer<X509_EXTENSION, X509_EXTENSION_free> extension(
        X509V3_EXT_conf_nid(nullptr, &context, id, value.c_str()));
    require(extension && X509_add_ext(certificate, extension.get(), -1) == 1);
}

} // namespace

struct TestCertificates::Private
{
    std::filesystem::path folder;
    int lastSerial = 0;
    std::map<int, Key> keys;
    std::map<int, Certificate> certificates;

    std::string pathOf(const std::string &name) const { return (folder / name).string(); }

    Identity make(const Identity *issuer, const std::string &name, Validity validity,
                  bool isAuthority, const std::string &alternativeName)
    {
        const int serial = ++lastSerial;
        Key key(EVP_EC_gen("P-256"));
        Certificate certificate(X509_new());
        require(key && certificate);
        X509 *const c = certificate.get();
        X509_set_version(c, 2);
        ASN1_INTEGER_set(X509_get_serialNumber(c), serial);
        setTime(X509_getm_notBefore(c), validity.from);
        setTime(X509_getm_notAfter(c), validity.to);
        X509_NAME_add_entry_by_txt(X509_get_subject_name(c), "CN", MBSTRING_UTF8,
                                   reinterpret_cast<const unsigned char *>(name.c_str()), -1, -1,
                                   0);
        X509 *const issuing = issuer ? certificates.at(issuer->serial).get() : c;
        X509_set_issuer_name(c, X509_get_subject_name(issuing));
        X509_set_pubkey(c, key.get());
        addExtension(c, issuing, NID_subject_key_identifier, "hash");
        if (issuer)
            addExtension(c, issuing, NID_authority_key_identifier, "keyid:always");
        addExtension(c, issuing, NID_basic_constraints,
                     isAuthority ? "critical,CA:TRUE" : "critical,CA:FALSE");
        addExtension(c, issuing, NID_key_usage,
                     isAuthority ? "critical,keyCertSign,cRLSign" : "critical,digitalSignature");
        if (!alternativeName.empty())
            addExtension(c, issuing, NID_subject_alt_name, alternativeName);
        EVP_PKEY *const signing = issuer ? keys.at(issuer->serial).get() : key.get();
        require(X509_sign(c, signing, EVP_sha256()) > 0);

        const std::string base = name + std::to_string(serial);
        Identity identity{name, pathOf(base + ".pem"), pathOf(base + ".key"), serial};
        const File out(BIO_new_file(identity.certificateFile.c_str(), "w"));
        require(out && PEM_write_bio_X509(out.get(), c) == 1);
        const bool isIntermediate =
            issuer && !isAuthority &&
            X509_NAME_cmp(X509_get_subject_name(issuing), X509_get_issuer_name(issuing)) != 0;
        if (isIntermediate)
            require(PEM_write_bio_X509(out.get(), issuing) == 1);
        writeKey(identity.keyFile, key.get(), {});
        keys.emplace(serial, std::move(key));
        certificates.emplace(serial, std::move(certificate));
        return identity;
    }

    static void writeKey(const std::string &file, EVP_PKEY *key, const std::string &password)
    {
        const File out(BIO_new_file(file.c_str(), "w"));
        require(out && PEM_write_bio_PrivateKey(
                           out.get(), key, password.empty() ? nullptr : EVP_aes_128_cbc(),
                           reinterpret_cast<const unsigned char *>(password.data()),
                           static_cast<int>(password.size()), nullptr, nullptr) == 1);
    }
};

TestCertificates::TestCertificates()
    : d(std::make_unique<Private>())
{
    std::string name = (std::filesystem::temp_directory_path() / "certificates-XXXXXX").string();
    require(mkdtemp(name.data()) != nullptr);
    d->folder = name;
}

TestCertificates::~TestCertificates()
{
    std::error_code ignored;
    std::filesystem::remove_all(d->folder, ignored);
}

TestCertificates::Identity TestCertificates::authority(const std::string &name,
                                                       const Identity *issuer)
{
    return d->make(issuer, name, {std::chrono::hours(-48), std::chrono::hours(48)}, true, {});
}

TestCertificates::Identity TestCertificates::issue(const Identity &issuer, const std::string &name,
                                                   Validity validity,
                                                   const std::string &alternativeName)
{
    return d->make(&issuer, name, validity, false, alternativeName);
}

std::string TestCertificates::revocationList(const Identity &authority,
                                             const std::vector<Identity> &revoked,
                                             Validity validity)
{
    const OpenSslPointer<X509_CRL, X509_CRL_free> list(X509_CRL_new());
    const OpenSslPointer<ASN1_TIME, ASN1_TIME_free> time(ASN1_TIME_new());
    require(list && time);
    X509 *const issuer = d->certificates.at(authority.serial).get();
    X509_CRL_set_version(list.get(), 1);
    X509_CRL_set_issuer_name(list.get(), X509_get_subject_name(issuer));
    setTime(time.get(), validity.from);
    X509_CRL_set1_lastUpdate(list.get(), time.get());
    for (const Identity &identity : revoked) {
        OpenSslPointer<X509_REVOKED, X509_REVOKED_free> entry(X509_REVOKED_new());
        X509_REVOKED_set_serialNumber(
            entry.get(), X509_get_serialNumber(d->certificates.at(identity.serial).get()));
        X509_REVOKED_set_revocationDate(entry.get(), time.get());
        require(X509_CRL_add0_revoked(list.get(), entry.release()) == 1);
    }
    setTime(time.get(), validity.to);
    X509_CRL_set1_nextUpdate(list.get(), time.get());
    X509V3_CTX context{};
    X509V3_set_ctx(&context, issuer, nullptr, nullptr, list.get(), 0);
    const OpenSslPointer<X509_EXTENSION, X509_EXTENSION_free> authorityKey(
        X509V3_EXT_conf_nid(nullptr, &context, NID_authority_key_identifier, "keyid:always"));
    const OpenSslPointer<ASN1_INTEGER, ASN1_INTEGER_free> number(ASN1_INTEGER_new());
    require(authorityKey && number && ASN1_INTEGER_set(number.get(), ++d->lastSerial) == 1 &&
            X509_CRL_add_ext(list.get(), authorityKey.get(), -1) == 1 &&
            X509_CRL_add1_ext_i2d(list.get(), NID_crl_number, number.get(), 0, 0) == 1);
    require(X509_CRL_sign(list.get(), d->keys.at(authority.serial).get(), EVP_sha256()) > 0);
    const std::string name = d->pathOf("list" + std::to_string(++d->lastSerial) + ".pem");
    const File out(BIO_new_file(name.c_str(), "w"));
    require(out && PEM_write_bio_X509_CRL(out.get(), list.get()) == 1);
    return name;
}

std::string TestCertificates::encryptedKey(const Identity &identity, const std::string &password)
{
    const std::string name = identity.keyFile + ".encrypted";
    d->writeKey(name, d->keys.at(identity.serial).get(), password);
    return name;
}

std::string TestCertificates::file(const std::string &name, const std::string &content)
{
    const std::string path = d->pathOf(name);
    std::ofstream(path) << content;
    return path;
}

osi::TlsOptions TestCertificates::options(const Identity &own, const Identity &authority)
{
    osi::TlsOptions options;
    options.certificateFile = own.certificateFile;
    options.keyFile = own.keyFile;
    options.authorityFiles = {authority.certificateFile};
    return options;
}

} // namespace wiretest
