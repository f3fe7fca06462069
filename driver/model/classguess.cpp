// SPDX-License-Identifier: Apache-2.0
#include "classguess.h"

#include "acsi/typedvalue.h"

#include <QtCore/QHash>

#include <algorithm>
#include <string_view>
#include <utility>

using mms::TypeDescription;

namespace {

QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
}

} // namespace

QString ClassGuess::logicalNodeClass(const QString &name)
{
    constexpr int classLength = 4;
    if (name == QLatin1String("LLN0"))
        return name;
    int end = name.size();
    while (end > 0 && name.at(end - 1).isDigit())
        --end;
    const QString candidate = name.left(end).right(classLength);
    const bool isClass =
        candidate.size() == classLength &&
        std::all_of(candidate.begin(), candidate.end(), [](QChar c) { return c.isUpper(); });
    return isClass ? candidate : name;
}

QString ClassGuess::commonDataClass(const QVector<const TypeDescription *> &parts)
{
    using Kind = TypeDescription::Kind;
    QHash<QString, const TypeDescription *> all;
    for (const TypeDescription *part : parts) {
        for (const TypeDescription::Component &component : part->components)
            all.insert(text(component.name), &component.type);
    }
    const auto kindOf = [&all](const char *name) {
        const TypeDescription *type = all.value(QLatin1String(name));
        return type ? type->kind : Kind::TypeName;
    };
    const auto has = [&all](const char *name) { return all.contains(QLatin1String(name)); };

    if (const TypeDescription *oper = all.value(QStringLiteral("Oper"))) {
        const TypeDescription *value = acsi::componentOf(*oper, "ctlVal");
        const Kind kind = value ? value->kind : Kind::TypeName;
        if (has("valWTr"))
            return kind == Kind::BitString ? QStringLiteral("BSC") : QStringLiteral("ISC");
        if (kind == Kind::Boolean)
            return kindOf("stVal") == Kind::BitString ? QStringLiteral("DPC")
                                                      : QStringLiteral("SPC");
        if (kind == Kind::Integer)
            return QStringLiteral("INC");
        if (kind == Kind::Structure || kind == Kind::FloatingPoint)
            return QStringLiteral("APC");
    }
    switch (kindOf("stVal")) {
    case Kind::Boolean:
        return QStringLiteral("SPS");
    case Kind::BitString:
        return QStringLiteral("DPS");
    case Kind::Integer:
        return QStringLiteral("INS");
    default:
        break;
    }
    if (has("general"))
        return has("dirGeneral") ? QStringLiteral("ACD") : QStringLiteral("ACT");
    static const std::pair<const char *, const char *> marks[] = {
        {"actVal", "BCR"}, {"cVal", "CMV"},  {"mag", "MV"},     {"phsAB", "DEL"}, {"phsA", "WYE"},
        {"c1", "SEQ"},     {"swRev", "LPL"}, {"setMag", "ASG"}, {"vendor", "DPL"}};
    for (const auto &mark : marks) {
        if (has(mark.first))
            return QLatin1String(mark.second);
    }
    switch (kindOf("setVal")) {
    case Kind::Boolean:
        return QStringLiteral("SPG");
    case Kind::Integer:
        return QStringLiteral("ING");
    default:
        return {};
    }
}
