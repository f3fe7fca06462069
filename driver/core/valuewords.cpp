// SPDX-License-Identifier: Apache-2.0
#include "valuewords.h"

#include "driver/model/valueconversion.h"
#include "standard/standardtypes.h"

#include <devicemodel/physicaldevice.h>

#include <QtCore/QRegularExpression>
#include <QtCore/QStringList>

namespace {

bool isCoded(const QString &basicType)
{
    return basicType == QLatin1String("Enum") || basicType == QLatin1String("Dbpos") ||
           basicType == QLatin1String("Tcmd") || basicType == QLatin1String("Check");
}

QString withRaw(const QString &words, const QString &raw)
{
    return QStringLiteral("%1 (%2)").arg(words, raw);
}

/// The words for a raw text of a journal; empty where it says all itself.
QString wordsOf(const PhysicalDevice &device, const DataAttribute *attribute, const QString &raw)
{
    if (!attribute || raw.isEmpty())
        return {};
    if (attribute->basicType == QLatin1String("Quality"))
        return withRaw(ValueWords::quality(raw), raw);
    bool isNumber = false;
    const int ordinal = raw.toInt(&isNumber);
    const QString name =
        isNumber ? ValueWords::entries(device, *attribute).value(ordinal) : QString();
    return name.isEmpty() ? QString() : withRaw(name, raw);
}

/// What the bits of a report control block's attribute are called (IEC 61850-6), from the second
/// on; empty for other attributes.
QStringList bitNames(const QString &attribute)
{
    if (attribute == QLatin1String("TrgOps")) {
        return {QStringLiteral("dchg"), QStringLiteral("qchg"), QStringLiteral("dupd"),
                QStringLiteral("period"), QStringLiteral("gi")};
    }
    if (attribute == QLatin1String("OptFlds")) {
        return {QStringLiteral("seqNum"),     QStringLiteral("timeStamp"),
                QStringLiteral("reasonCode"), QStringLiteral("dataSet"),
                QStringLiteral("dataRef"),    QStringLiteral("bufOvfl"),
                QStringLiteral("entryID"),    QStringLiteral("configRef")};
    }
    return {};
}

QString bitWords(const QStringList &names, const QString &bits)
{
    QStringList set;
    for (int i = 0; i < names.size() && i + 1 < bits.size(); ++i) {
        if (bits.at(i + 1) == QLatin1Char('1'))
            set.append(names.at(i));
    }
    return set.isEmpty() ? QStringLiteral("none") : set.join(QLatin1Char(' '));
}

/// The words for what a report control block was set to: one attribute, or several as "name=value".
QString blockWords(const QString &reference, const QString &raw)
{
    static const QRegularExpression bits(QStringLiteral("^'?([01]+)(?:'B)?$"));
    const QStringList names = bitNames(reference.section(QLatin1Char('$'), -1));
    if (!names.isEmpty())
        return bits.match(raw).hasMatch()
                   ? withRaw(bitWords(names, bits.match(raw).captured(1)), raw)
                   : QString();
    static const QRegularExpression pairs(QStringLiteral("\\b(TrgOps|OptFlds)=([01]+)"));
    QString words = raw;
    auto found = pairs.globalMatch(raw);
    int moved = 0;
    while (found.hasNext()) {
        const QRegularExpressionMatch match = found.next();
        const QString said =
            withRaw(bitWords(bitNames(match.captured(1)), match.captured(2)), match.captured(2));
        words.replace(match.capturedStart(2) + moved, match.capturedLength(2), said);
        moved += said.size() - match.capturedLength(2);
    }
    return moved == 0 ? QString() : words;
}

/// What tells the state of the object that "LD/LN$CO$Pos" commands.
const DataAttribute *statusOf(const PhysicalDevice &device, const QString &object)
{
    const QString path = QString(object).replace(QLatin1String("$CO$"), QLatin1String("$ST$"));
    return device.findTag(path + QLatin1String("$stVal"));
}

/// The words for the value of a command; empty where it says all itself.
QString commandedWords(const PhysicalDevice &device, const DataAttribute *status,
                       const QString &value)
{
    if (!status)
        return {};
    const bool isSwitch = status->basicType == QLatin1String("Dbpos") ||
                          status->basicType == QLatin1String("BOOLEAN");
    if (!isSwitch)
        return wordsOf(device, status, value);
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    if (!isNumber)
        return {};
    return withRaw(number != 0 ? QStringLiteral("on") : QStringLiteral("off"), value);
}

/// What goes with the value of a command, with words for the originator category, which is the
/// first of it.
QString conditionWords(const QString &raw)
{
    static const QRegularExpression category(QStringLiteral("^,[^,\\d]*(\\d+)"));
    const QRegularExpressionMatch match = category.match(raw);
    const QString name = StandardTypes::enumeration(QStringLiteral("OriginatorCategoryKind"))
                             .value(match.captured(1).toInt());
    if (!match.hasMatch() || name.isEmpty())
        return raw;
    return QString(raw).replace(match.capturedStart(1), match.capturedLength(1),
                                withRaw(name, match.captured(1)));
}

/// The words for a command, whose value stands in front of everything else that goes with it.
QString commandWords(const PhysicalDevice &device, const DataAttribute *status, const QString &raw)
{
    const QString value = raw.section(QLatin1Char(','), 0, 0);
    const QString said = commandedWords(device, status, value);
    const QString words = (said.isEmpty() ? value : said) + conditionWords(raw.mid(value.size()));
    return words == raw ? QString() : words;
}

} // namespace

QMap<int, QString> ValueWords::entries(const PhysicalDevice &device, const DataAttribute &attribute)
{
    if (!isCoded(attribute.basicType))
        return {};
    if (!attribute.enumTypeId.isEmpty()) {
        const EnumType own = device.getEnumType(attribute.enumTypeId);
        if (!own.values.isEmpty())
            return own.values;
    }
    if (attribute.basicType != QLatin1String("Enum"))
        return StandardTypes::enumeration(attribute.basicType);
    const bool isMode = attribute.enumTypeId == QLatin1String("Mod") ||
                        attribute.enumTypeId == QLatin1String("Beh");
    return StandardTypes::enumeration(isMode ? QStringLiteral("BehaviourModeKind")
                                             : attribute.enumTypeId);
}

QString ValueWords::quality(const QString &bits)
{
    if (bits.isEmpty())
        return {};
    const auto isSet = [&bits](int position) {
        return position < bits.size() && bits.at(position) == QLatin1Char('1');
    };
    static const QStringList validities{QStringLiteral("good"), QStringLiteral("invalid"),
                                        QStringLiteral("reserved"), QStringLiteral("questionable")};
    // Behind the two bits of the validity, in the order of the bits.
    static const QStringList names{
        QStringLiteral("overflow"),        QStringLiteral("out of range"),
        QStringLiteral("bad reference"),   QStringLiteral("oscillatory"),
        QStringLiteral("failure"),         QStringLiteral("old data"),
        QStringLiteral("inconsistent"),    QStringLiteral("inaccurate"),
        QStringLiteral("substituted"),     QStringLiteral("test"),
        QStringLiteral("operator blocked")};
    constexpr int validityBits = 2;
    QStringList parts{validities.at((isSet(0) ? 2 : 0) + (isSet(1) ? 1 : 0))};
    for (int i = 0; i < names.size(); ++i) {
        if (isSet(validityBits + i))
            parts.append(names.at(i));
    }
    if (bits.contains(QLatin1Char('?')))
        parts.append(QStringLiteral("partly unknown"));
    return parts.join(QLatin1String(", "));
}

QString ValueWords::text(const PhysicalDevice &device, const DataAttribute *attribute,
                         const QVariant &value)
{
    if (!value.isValid())
        return {};
    const QString words = wordsOf(device, attribute, value.toString());
    return words.isEmpty() ? ValueConversion::text(value) : words;
}

void ValueWords::addWords(DeviceChange &change, const PhysicalDevice &device)
{
    const bool isCommand = change.operation == QLatin1String("selectObject") ||
                           change.operation == QLatin1String("controlObject") ||
                           change.operation == QLatin1String("cancelObject");
    if (isCommand) {
        const DataAttribute *const status = statusOf(device, change.reference);
        change.oldWords = wordsOf(device, status, change.oldValue);
        change.newWords = commandWords(device, status, change.newValue);
        return;
    }
    if (change.operation == QLatin1String("writeValue") ||
        change.operation == QLatin1String("enableReportBlock")) {
        change.oldWords = blockWords(change.reference, change.oldValue);
        change.newWords = blockWords(change.reference, change.newValue);
        return;
    }
    const DataAttribute *attribute = device.findTag(change.reference);
    if (!attribute) {
        attribute = device.findTag(
            QString(change.reference).replace(QLatin1String("$SE$"), QLatin1String("$SG$")));
    }
    change.oldWords = wordsOf(device, attribute, change.oldValue);
    change.newWords = wordsOf(device, attribute, change.newValue);
}
