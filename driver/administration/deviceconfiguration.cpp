// SPDX-License-Identifier: Apache-2.0
#include "deviceconfiguration.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QJsonArray>
#include <QtCore/QRegularExpression>

#include <cmath>
#include <limits>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(DeviceConfiguration)
};

using std::chrono::milliseconds;

constexpr int highestNumber = std::numeric_limits<int>::max() / 2;
constexpr int longestTransportSelector = 32;
constexpr int longestSelector = 16;
constexpr milliseconds shortestTimeout{100};
constexpr milliseconds longestTimeout{600000};
constexpr milliseconds shortestPoll{100};
constexpr milliseconds longestPoll{86400000};
constexpr int mostCalls = 100;
constexpr int mostFileReads = 16;
constexpr int largestPduSize = 1 << 20;
constexpr int highestCategory = 8;

bool isObjectIdentifier(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("^[0-2](\\.(0|[1-9][0-9]{0,8})){1,30}$"));
    if (!form.match(text).hasMatch())
        return false;
    // Below the first two roots the second number ends at 39 (ITU-T X.660).
    return text.startsWith(QLatin1Char('2')) || text.section(QLatin1Char('.'), 1, 1).toInt() <= 39;
}

void checkSelector(QStringList &faults, const QString &name, const QByteArray &selector,
                   int longest)
{
    if (selector.size() > longest) {
        faults.append(Texts::tr("The %1 has %2 octets; at most %3 are possible.")
                          .arg(name)
                          .arg(selector.size())
                          .arg(longest));
    }
}

void checkAddress(QStringList &faults, const AssociationAddress &address, const QString &side)
{
    checkSelector(faults, Texts::tr("transport selector of the %1").arg(side),
                  address.transportSelector, longestTransportSelector);
    checkSelector(faults, Texts::tr("session selector of the %1").arg(side),
                  address.sessionSelector, longestSelector);
    checkSelector(faults, Texts::tr("presentation selector of the %1").arg(side),
                  address.presentationSelector, longestSelector);
    if (!address.apTitle.isEmpty() && !isObjectIdentifier(address.apTitle)) {
        faults.append(Texts::tr("The AP title \"%1\" of the %2 is no object identifier such as "
                                "1.1.1.999.1.")
                          .arg(address.apTitle, side));
    }
    if (address.aeQualifier && (*address.aeQualifier < std::numeric_limits<qint32>::min() ||
                                *address.aeQualifier > std::numeric_limits<qint32>::max())) {
        faults.append(Texts::tr("The AE qualifier of the %1 does not fit 32 bits.").arg(side));
    }
}

void checkTime(QStringList &faults, const QString &name, milliseconds time)
{
    if (time < shortestTimeout || time > longestTimeout) {
        faults.append(Texts::tr("The time-out for %1 must be from %2 to %3 milliseconds.")
                          .arg(name)
                          .arg(shortestTimeout.count())
                          .arg(longestTimeout.count()));
    }
}

QString hex(const QByteArray &octets)
{
    return QString::fromLatin1(octets.toHex());
}

QJsonObject toJson(const AssociationAddress &address)
{
    QJsonObject object{{QStringLiteral("transportSelector"), hex(address.transportSelector)},
                       {QStringLiteral("sessionSelector"), hex(address.sessionSelector)},
                       {QStringLiteral("presentationSelector"), hex(address.presentationSelector)}};
    if (!address.apTitle.isEmpty())
        object.insert(QStringLiteral("apTitle"), address.apTitle);
    if (address.aeQualifier)
        object.insert(QStringLiteral("aeQualifier"), *address.aeQualifier);
    return object;
}

QJsonObject toJson(const TlsConfiguration &tls)
{
    return {{QStringLiteral("enabled"), tls.enabled},
            {QStringLiteral("certificateFile"), tls.certificateFile},
            {QStringLiteral("keyFile"), tls.keyFile},
            {QStringLiteral("keyPassword"), tls.keyPassword},
            {QStringLiteral("authorityFiles"), QJsonArray::fromStringList(tls.authorityFiles)},
            {QStringLiteral("revocationFiles"), QJsonArray::fromStringList(tls.revocationFiles)},
            {QStringLiteral("pins"), QJsonArray::fromStringList(tls.pins)},
            {QStringLiteral("peerName"), tls.peerName},
            {QStringLiteral("acceptsOtherNames"), tls.acceptsOtherNames}};
}

/// Takes members out of an object and remembers the first that has the wrong form.
class JsonMembers
{
public:
    JsonMembers(const QJsonObject &object, QString &error)
        : m_object(object)
        , m_error(error)
    {
    }

    void take(const char *name, QString &into) const
    {
        const QJsonValue value = valueOf(name);
        if (value.isString())
            into = value.toString();
        else
            complain(name, value);
    }

    void take(const char *name, bool &into) const
    {
        const QJsonValue value = valueOf(name);
        if (value.isBool())
            into = value.toBool();
        else
            complain(name, value);
    }

    void take(const char *name, int &into) const
    {
        const QJsonValue value = valueOf(name);
        const double number = value.toDouble(std::numeric_limits<double>::infinity());
        if (number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max())
            into = static_cast<int>(number);
        else
            complain(name, value);
    }

    void take(const char *name, std::optional<qint64> &into) const
    {
        // As far as a number of JSON is exact.
        constexpr double largest = 1LL << 53;
        const QJsonValue value = valueOf(name);
        const double number = value.toDouble(std::numeric_limits<double>::infinity());
        if (std::abs(number) <= largest)
            into = static_cast<qint64>(number);
        else
            complain(name, value);
    }

    void take(const char *name, milliseconds &into) const
    {
        int count = static_cast<int>(into.count());
        take(name, count);
        into = milliseconds(count);
    }

    void take(const char *name, QByteArray &into) const
    {
        const QJsonValue value = valueOf(name);
        const std::optional<QByteArray> octets = octetsFromHex(value.toString());
        if (value.isString() && octets)
            into = *octets;
        else
            complain(name, value);
    }

    void take(const char *name, QStringList &into) const
    {
        const QJsonValue value = valueOf(name);
        if (!value.isArray()) {
            complain(name, value);
            return;
        }
        into.clear();
        const QJsonArray array = value.toArray();
        for (const QJsonValue &each : array)
            into.append(each.toString());
    }

    QJsonObject object(const char *name) const
    {
        const QJsonValue value = valueOf(name);
        if (!value.isObject())
            complain(name, value);
        return value.toObject();
    }

private:
    QJsonValue valueOf(const char *name) const { return m_object.value(QLatin1String(name)); }

    void complain(const char *name, const QJsonValue &value) const
    {
        if (!value.isUndefined() && m_error.isEmpty())
            m_error = Texts::tr("\"%1\" has the wrong form.").arg(QLatin1String(name));
    }

    const QJsonObject &m_object;
    QString &m_error;
};

void fromJson(const QJsonObject &object, AssociationAddress &address, QString &error)
{
    const JsonMembers members(object, error);
    members.take("transportSelector", address.transportSelector);
    members.take("sessionSelector", address.sessionSelector);
    members.take("presentationSelector", address.presentationSelector);
    members.take("apTitle", address.apTitle);
    members.take("aeQualifier", address.aeQualifier);
}

void fromJson(const QJsonObject &object, TlsConfiguration &tls, QString &error)
{
    const JsonMembers members(object, error);
    members.take("enabled", tls.enabled);
    members.take("certificateFile", tls.certificateFile);
    members.take("keyFile", tls.keyFile);
    members.take("keyPassword", tls.keyPassword);
    members.take("authorityFiles", tls.authorityFiles);
    members.take("revocationFiles", tls.revocationFiles);
    members.take("pins", tls.pins);
    members.take("peerName", tls.peerName);
    members.take("acceptsOtherNames", tls.acceptsOtherNames);
}

} // namespace

std::optional<QByteArray> octetsFromHex(const QString &text)
{
    QByteArray digits;
    for (const QChar c : text) {
        if (c == QLatin1Char(' ') || c == QLatin1Char(':'))
            continue;
        const char digit = c.toLatin1();
        const bool isHex = (digit >= '0' && digit <= '9') || (digit >= 'a' && digit <= 'f') ||
                           (digit >= 'A' && digit <= 'F');
        if (!isHex)
            return std::nullopt;
        digits.append(digit);
    }
    if (digits.size() % 2 != 0)
        return std::nullopt;
    return QByteArray::fromHex(digits);
}

QStringList DeviceConfiguration::faults() const
{
    QStringList faults;
    if (number < 1 || number > highestNumber)
        faults.append(Texts::tr("The device's number must be from 1 to %1.").arg(highestNumber));
    if (name.trimmed().isEmpty())
        faults.append(Texts::tr("The device needs a name."));
    if (host.isEmpty() && sclFile.isEmpty())
        faults.append(Texts::tr("The device needs an address or an SCL file."));
    if (host.contains(QRegularExpression(QStringLiteral("\\s|/"))))
        faults.append(Texts::tr("\"%1\" is no address or host name.").arg(host));
    if (port < 1 || port > 65535)
        faults.append(Texts::tr("The port must be from 1 to 65535."));
    checkAddress(faults, local, Texts::tr("client"));
    checkAddress(faults, remote, Texts::tr("device"));
    checkTime(faults, Texts::tr("connecting"), connectTimeout);
    checkTime(faults, Texts::tr("requests"), callTimeout);
    checkTime(faults, Texts::tr("operations"), operationTimeout);
    if (operationTimeout < callTimeout) {
        faults.append(Texts::tr("The time-out for operations must not be shorter than the one for "
                                "requests."));
    }
    if (outstandingCalls < 1 || outstandingCalls > mostCalls) {
        faults.append(Texts::tr("From 1 to %1 outstanding calls are possible.").arg(mostCalls));
    }
    if (maxPduSize < smallestPduSize || maxPduSize > largestPduSize) {
        faults.append(Texts::tr("The PDU size must be from %1 to %2 octets.")
                          .arg(smallestPduSize)
                          .arg(largestPduSize));
    }
    if (pollInterval != milliseconds::zero() &&
        (pollInterval < shortestPoll || pollInterval > longestPoll)) {
        faults.append(Texts::tr("The polling interval must be 0 for none, or from %1 to %2 "
                                "milliseconds.")
                          .arg(shortestPoll.count())
                          .arg(longestPoll.count()));
    }
    if (outstandingFileReads < 1 || outstandingFileReads > mostFileReads) {
        faults.append(
            Texts::tr("From 1 to %1 outstanding file reads are possible.").arg(mostFileReads));
    }
    if (originatorCategory < 0 || originatorCategory > highestCategory) {
        faults.append(
            Texts::tr("The originator category must be from 0 to %1.").arg(highestCategory));
    }
    if (originatorIdentification.size() > longestOriginator) {
        faults.append(Texts::tr("The originator identification has %1 octets; at most %2 are "
                                "possible.")
                          .arg(originatorIdentification.size())
                          .arg(longestOriginator));
    }
    return faults;
}

QString DeviceConfiguration::title() const
{
    return Texts::tr("Device %1 (%2)").arg(number).arg(name);
}

QJsonObject DeviceConfiguration::toJson() const
{
    const auto count = [](milliseconds time) { return static_cast<qint64>(time.count()); };
    return {
        {QStringLiteral("number"), number},
        {QStringLiteral("name"), name},
        {QStringLiteral("host"), host},
        {QStringLiteral("port"), port},
        {QStringLiteral("sclFile"), sclFile},
        {QStringLiteral("ied"), ied},
        {QStringLiteral("accessPoint"), accessPoint},
        {QStringLiteral("local"), ::toJson(local)},
        {QStringLiteral("remote"), ::toJson(remote)},
        {QStringLiteral("password"), password},
        {QStringLiteral("tls"), ::toJson(tls)},
        {QStringLiteral("connectTimeoutMs"), count(connectTimeout)},
        {QStringLiteral("callTimeoutMs"), count(callTimeout)},
        {QStringLiteral("operationTimeoutMs"), count(operationTimeout)},
        {QStringLiteral("outstandingCalls"), outstandingCalls},
        {QStringLiteral("maxPduSize"), maxPduSize},
        {QStringLiteral("pollIntervalMs"), count(pollInterval)},
        {QStringLiteral("outstandingFileReads"), outstandingFileReads},
        {QStringLiteral("originatorCategory"), originatorCategory},
        {QStringLiteral("originatorIdentification"), hex(originatorIdentification)},
    };
}

DeviceConfiguration DeviceConfiguration::fromJson(const QJsonObject &object, QString &error)
{
    error.clear();
    DeviceConfiguration result;
    const JsonMembers members(object, error);
    members.take("number", result.number);
    members.take("name", result.name);
    members.take("host", result.host);
    members.take("port", result.port);
    members.take("sclFile", result.sclFile);
    members.take("ied", result.ied);
    members.take("accessPoint", result.accessPoint);
    ::fromJson(members.object("local"), result.local, error);
    ::fromJson(members.object("remote"), result.remote, error);
    members.take("password", result.password);
    ::fromJson(members.object("tls"), result.tls, error);
    members.take("connectTimeoutMs", result.connectTimeout);
    members.take("callTimeoutMs", result.callTimeout);
    members.take("operationTimeoutMs", result.operationTimeout);
    members.take("outstandingCalls", result.outstandingCalls);
    members.take("maxPduSize", result.maxPduSize);
    members.take("pollIntervalMs", result.pollInterval);
    members.take("outstandingFileReads", result.outstandingFileReads);
    members.take("originatorCategory", result.originatorCategory);
    members.take("originatorIdentification", result.originatorIdentification);
    return result;
}
