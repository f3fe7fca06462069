// SPDX-License-Identifier: Apache-2.0
#include "standardtypes.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace {

struct Row
{
    std::string_view key;
    std::string_view type;
    std::string_view name;
};

#include "standardtypes.inc"

template <std::size_t size>
const Row *find(const std::array<Row, size> &rows, const QString &owner, const QString &name)
{
    const std::string key = (owner + QLatin1Char('/') + name).toStdString();
    const auto row = std::lower_bound(
        rows.begin(), rows.end(), key,
        [](const Row &left, const std::string &right) { return left.key < right; });
    return row != rows.end() && row->key == key ? &*row : nullptr;
}

/// The row of a data object; "Ind3" is an instance of "Ind".
const Row *dataObjectRow(const QString &lnClass, const QString &dataObject)
{
    if (const Row *exact = find(dataObjects, lnClass, dataObject))
        return exact;
    int end = dataObject.size();
    while (end > 0 && dataObject.at(end - 1).isDigit())
        --end;
    return end == dataObject.size() ? nullptr : find(dataObjects, lnClass, dataObject.left(end));
}

QString text(std::string_view latin)
{
    return QString::fromLatin1(latin.data(), static_cast<int>(latin.size()));
}

QString withoutElement(const QString &step)
{
    return step.section(QLatin1Char('('), 0, 0);
}

} // namespace

QString StandardTypes::commonDataClass(const QString &lnClass, const QString &dataObject)
{
    const Row *row = dataObjectRow(lnClass, dataObject);
    return row ? text(row->type) : QString();
}

QString StandardTypes::innerClass(const QString &commonDataClass, const QString &name)
{
    const Row *row = find(attributes, commonDataClass, withoutElement(name));
    return row && row->type.empty() ? text(row->name) : QString();
}

QMap<int, QString> StandardTypes::enumeration(const QString &enumTypeId)
{
    const std::string prefix = (enumTypeId + QLatin1Char('/')).toStdString();
    auto row = std::lower_bound(
        enumerations.begin(), enumerations.end(), prefix,
        [](const Row &left, const std::string &right) { return left.key < right; });
    QMap<int, QString> entries;
    for (; row != enumerations.end() && row->key.substr(0, prefix.size()) == prefix; ++row) {
        const QString ordinal = text(row->key.substr(prefix.size()));
        entries.insert(ordinal.toInt(),
                       QString::fromUtf8(row->type.data(), static_cast<int>(row->type.size())));
    }
    return entries;
}

StandardTypes::AttributeType StandardTypes::attribute(const QString &lnClass,
                                                      const QString &dataObject,
                                                      const QString &commonDataClass,
                                                      const QStringList &path)
{
    QString owner = commonDataClass;
    for (int i = 0; i < path.size(); ++i) {
        const Row *row = find(attributes, owner, withoutElement(path.at(i)));
        if (!row)
            return {};
        if (i + 1 < path.size()) {
            owner = text(row->name);
            continue;
        }
        AttributeType type{text(row->type), QString()};
        if (row->type != "Enum")
            return type;
        type.enumTypeId = text(row->name);
        if (row->name.empty()) {
            if (const Row *object = dataObjectRow(lnClass, dataObject))
                type.enumTypeId = text(object->name);
        }
        return type;
    }
    return {};
}
