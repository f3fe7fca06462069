// SPDX-License-Identifier: Apache-2.0
#include "reportbits.h"

namespace {

const QStringList &triggerBits()
{
    static const QStringList names{QString(),
                                   QStringLiteral("dchg"),
                                   QStringLiteral("qchg"),
                                   QStringLiteral("dupd"),
                                   QStringLiteral("period"),
                                   QStringLiteral("gi")};
    return names;
}

const QStringList &optionalFieldBits()
{
    static const QStringList names{QString(),
                                   QStringLiteral("seqNum"),
                                   QStringLiteral("timeStamp"),
                                   QStringLiteral("reasonCode"),
                                   QStringLiteral("dataSet"),
                                   QStringLiteral("dataRef"),
                                   QStringLiteral("bufOvfl"),
                                   QStringLiteral("entryID"),
                                   QStringLiteral("configRef")};
    return names;
}

std::optional<quint16> bitsOf(const QString &text, const QStringList &names, QString &error)
{
    quint16 bits = 0;
    for (const QString &part : text.split(QLatin1Char(','))) {
        const QString name = part.trimmed();
        if (name.isEmpty())
            continue;
        int bit = 0;
        for (int i = 1; i < names.size(); ++i) {
            if (names.at(i).compare(name, Qt::CaseInsensitive) == 0)
                bit = i;
        }
        if (bit == 0) {
            error = QStringLiteral("\"%1\" is none of %2.")
                        .arg(name, names.mid(1).join(QLatin1String(", ")));
            return {};
        }
        bits = static_cast<quint16>(bits | (0x8000 >> bit));
    }
    return bits;
}

} // namespace

namespace ReportBits {

std::optional<quint8> triggers(const QString &names, QString &error)
{
    const std::optional<quint16> bits = bitsOf(names, triggerBits(), error);
    return bits ? std::optional(static_cast<quint8>(*bits >> 8)) : std::nullopt;
}

QStringList triggerNames(quint8 bits)
{
    QStringList names;
    for (int i = 1; i < triggerBits().size(); ++i) {
        if ((bits & (0x80 >> i)) != 0)
            names.append(triggerBits().at(i));
    }
    return names;
}

std::optional<std::array<quint8, 2>> optionalFields(const QString &names, QString &error)
{
    const std::optional<quint16> bits = bitsOf(names, optionalFieldBits(), error);
    if (!bits)
        return {};
    return std::array<quint8, 2>{static_cast<quint8>(*bits >> 8),
                                 static_cast<quint8>(*bits & 0xFF)};
}

QStringList optionalFieldNames(const QString &text)
{
    QStringList names;
    for (int i = 1; i < optionalFieldBits().size() && i < text.size(); ++i) {
        if (text.at(i) == QLatin1Char('1'))
            names.append(optionalFieldBits().at(i));
    }
    return names;
}

} // namespace ReportBits
