// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QString>

#include <string_view>

/// What the sources of a device's connection need to make sentences.
namespace ConnectionText {

inline QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
}

inline QString withoutPeriod(QString sentence)
{
    while (sentence.endsWith(QLatin1Char('.')) || sentence.endsWith(QChar(0x3002)))
        sentence.chop(1);
    return sentence;
}

} // namespace ConnectionText
