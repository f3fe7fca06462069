// SPDX-License-Identifier: Apache-2.0
#include "csvfield.h"

#include <algorithm>

QString csvField(QString text)
{
    static const QString formulaStarts = QStringLiteral("=+-@\t\r");
    bool isNumber = false;
    text.toDouble(&isNumber);
    if (!isNumber && !text.isEmpty() && formulaStarts.contains(text.at(0)))
        text.prepend(QLatin1Char('\''));
    const bool needsQuotes = std::any_of(text.cbegin(), text.cend(), [](QChar c) {
        return c == QLatin1Char(',') || c == QLatin1Char('"') || c == QLatin1Char('\n') ||
               c == QLatin1Char('\r');
    });
    if (!needsQuotes)
        return text;
    text.replace(QLatin1Char('"'), QStringLiteral("\"\""));
    return QLatin1Char('"') + text + QLatin1Char('"');
}
