// SPDX-License-Identifier: Apache-2.0
#include "programoptions.h"

#include "argumenttext.h"
#include "commandline.h"
#include "projectversion.h"

#include <QtCore/QFile>

#include <algorithm>
#include <chrono>

namespace {

/// What a device's configuration takes.
constexpr std::chrono::milliseconds longestOperation{600000};

/// The first line of what is open.
QString firstLine(QFile &file, const QString &name, QString &refusal)
{
    constexpr qint64 longest = 4096;
    QByteArray line = file.readLine(longest);
    while (line.endsWith('\n') || line.endsWith('\r'))
        line.chop(1);
    if (line.isEmpty())
        refusal = QStringLiteral("%1 holds no password.").arg(name);
    return QString::fromUtf8(line);
}

QString secretFrom(const QString &path, QString &refusal)
{
    QFile file(path);
    const QString name = QStringLiteral("The file \"%1\"").arg(path);
    if (file.open(QIODevice::ReadOnly))
        return firstLine(file, name, refusal);
    refusal = QStringLiteral("%1 cannot be read: %2.").arg(name, file.errorString());
    return {};
}

QString secretFrom(int descriptor, QString &refusal)
{
    QFile file;
    const QString name = QStringLiteral("The descriptor %1").arg(descriptor);
    // Not one octet more than the line: what is behind it may be the commands of a batch.
    if (file.open(descriptor, QIODevice::ReadOnly | QIODevice::Unbuffered))
        return firstLine(file, name, refusal);
    refusal = QStringLiteral("%1 cannot be read: %2.").arg(name, file.errorString());
    return {};
}

QString takeAddress(const QString &address, DeviceConfiguration &device)
{
    // The port is behind the last colon, unless that is one of an IPv6 address.
    int colon = address.lastIndexOf(QLatin1Char(':'));
    if (address.startsWith(QLatin1Char('['))) {
        const int bracket = address.indexOf(QLatin1Char(']'));
        device.host = address.mid(1, bracket - 1);
        colon = address.indexOf(QLatin1Char(':'), bracket);
    } else if (address.count(QLatin1Char(':')) > 1) {
        device.host = address;
        colon = -1;
    } else {
        device.host = colon < 0 ? address : address.left(colon);
    }
    if (colon >= 0) {
        bool isNumber = false;
        device.port = address.mid(colon + 1).toInt(&isNumber);
        if (!isNumber || device.port < 1 || device.port > 65535) {
            return QStringLiteral("\"%1\" is not a port (1 to 65535).").arg(address.mid(colon + 1));
        }
    }
    return device.host.isEmpty() ? QStringLiteral("\"%1\" does not name a host.").arg(address)
                                 : QString();
}

} // namespace

void ProgramOptions::addTo(CLI::App &app)
{
    addAssociationOptions(app);
    addTlsOptions(app);
    app.add_option("--timeout", m_timeout, "Limit of each request in seconds, from 0.1 to 600")
        ->type_name("SECONDS")
        ->capture_default_str()
        ->check(unnamed(CLI::Range(0.1, 600.0)));
    app.add_flag("--json", m_json, "Results as JSON, streams as one object a line");
    app.add_flag("--read-only", m_readOnly,
                 "Refuse everything that changes something on the device");
    app.set_version_flag("--version", std::string("iedctl ") + projectVersion);
    app.callback([this] { checkTogether(); });
}

void ProgramOptions::addAssociationOptions(CLI::App &app)
{
    CLI::Option *connect =
        app.add_option("-c,--connect", m_connect, "The server; the port is 102 unless given")
            ->type_name("HOST[:PORT]");
    CLI::Option *scl =
        app.add_option("-s,--scl", m_sclFile,
                       "SCL file that describes the device; alone, nothing is connected")
            ->type_name("FILE")
            ->check(unnamed(CLI::ExistingFile));
    app.add_option("--ied", m_ied, "IED of the SCL file, where it describes several")
        ->type_name("NAME")
        ->needs(scl);
    app.add_option("--access-point", m_accessPoint,
                   "Access point of the IED; found by the address unless given")
        ->type_name("NAME")
        ->needs(scl);
    CLI::Option *password =
        app.add_option("--password", m_password,
                       "Password for the association; other users of this computer may see it")
            ->type_name("TEXT")
            ->needs(connect);
    CLI::Option *passwordFile = app.add_option("--password-file", m_passwordFile,
                                               "The password is the first line of a file")
                                    ->type_name("FILE")
                                    ->needs(connect)
                                    ->excludes(password);
    app.add_option("--password-fd", m_passwordDescriptor,
                   "The password is the first line that can be read from an open descriptor")
        ->type_name("NUMBER")
        ->check(unnamed(CLI::NonNegativeNumber))
        ->needs(connect)
        ->excludes(password)
        ->excludes(passwordFile);
}

void ProgramOptions::addTlsOptions(CLI::App &app)
{
    CLI::Option *connect = app.get_option("--connect");
    app.add_option("--tls-ca", m_authorities,
                   "Connect over TLS; who may have issued the server's certificate (PEM); may "
                   "be given several times")
        ->type_name("FILE")
        ->expected(1)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
        ->needs(connect);
    app.add_option("--tls-pin", m_pins,
                   "Connect over TLS to the server with this certificate only: its SHA-256 "
                   "fingerprint; may be given several times")
        ->type_name("HEX")
        ->expected(1)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
        ->needs(connect);
    app.add_option("--tls-crl", m_revocations,
                   "Revocation list (PEM) of the issuers; may be given several times")
        ->type_name("FILE")
        ->expected(1)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
        ->needs(connect);
    CLI::Option *peerName =
        app.add_option("--tls-name", m_peerName,
                       "Host name or address that the server's certificate is made out to; the "
                       "host of --connect unless given")
            ->type_name("NAME")
            ->needs(connect);
    app.add_flag("--tls-accept-other-names", m_acceptsOtherNames,
                 "Accept a server's certificate that is made out to another name or address. "
                 "Unsafe: whoever holds the key of any certificate of these issuers can pose as "
                 "the server")
        ->needs(connect)
        ->excludes(peerName);
    CLI::Option *certificate = app.add_option("--tls-cert", m_certificate, "Own certificate (PEM)")
                                   ->type_name("FILE")
                                   ->needs(connect);
    CLI::Option *key = app.add_option("--tls-key", m_key, "Key of the certificate (PEM)")
                           ->type_name("FILE")
                           ->needs(certificate);
    certificate->needs(key);
    app.add_option("--tls-key-password-file", m_keyPasswordFile,
                   "The password of the key is the first line of a file")
        ->type_name("FILE")
        ->needs(key);
}

void ProgramOptions::checkTogether() const
{
    if (m_connect.empty() && m_sclFile.empty())
        throw CLI::RequiredError("--connect HOST:PORT or --scl FILE");
    const bool trusts = !m_authorities.empty() || !m_pins.empty();
    const bool needsTrust = !m_certificate.empty() || !m_peerName.empty() ||
                            !m_revocations.empty() || m_acceptsOtherNames;
    if (needsTrust && !trusts)
        throw CLI::RequiredError("With TLS, --tls-ca FILE or --tls-pin HEX");
}

QString ProgramOptions::take(Invocation &invocation) const
{
    invocation.json = m_json;
    invocation.readOnly = m_readOnly;
    const QString refusal = takeSecrets(invocation.device);
    return refusal.isEmpty() ? takeDevice(invocation.device) : refusal;
}

QString ProgramOptions::takeDevice(DeviceConfiguration &device) const
{
    device.number = 1;
    device.sclFile = text(m_sclFile);
    device.ied = text(m_ied);
    device.accessPoint = text(m_accessPoint);
    const auto timeout = std::chrono::milliseconds(static_cast<std::int64_t>(m_timeout * 1000));
    device.name = text(!m_connect.empty() ? m_connect : !m_ied.empty() ? m_ied : m_sclFile);
    device.connectTimeout = timeout;
    device.callTimeout = timeout;
    device.operationTimeout = std::min(3 * timeout, longestOperation);
    device.tls.enabled = !m_authorities.empty() || !m_pins.empty();
    device.tls.authorityFiles = texts(m_authorities);
    device.tls.pins = texts(m_pins);
    device.tls.revocationFiles = texts(m_revocations);
    device.tls.peerName = text(m_peerName);
    device.tls.acceptsOtherNames = m_acceptsOtherNames;
    device.tls.certificateFile = text(m_certificate);
    device.tls.keyFile = text(m_key);
    return m_connect.empty() ? QString() : takeAddress(text(m_connect), device);
}

QString ProgramOptions::takeSecrets(DeviceConfiguration &device) const
{
    device.password = text(m_password);
    QString refusal;
    if (!m_passwordFile.empty())
        device.password = secretFrom(text(m_passwordFile), refusal);
    else if (m_passwordDescriptor >= 0)
        device.password = secretFrom(m_passwordDescriptor, refusal);
    if (!m_keyPasswordFile.empty())
        device.tls.keyPassword = secretFrom(text(m_keyPasswordFile), refusal);
    return refusal;
}
