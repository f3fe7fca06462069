// SPDX-License-Identifier: Apache-2.0
#include "plaintip.h"

#include <QtGui/QTextDocument>

QString plainTip(const QString &text)
{
    if (!Qt::mightBeRichText(text))
        return text;
    QString escaped = text.toHtmlEscaped();
    escaped.replace(QLatin1Char('\n'), QLatin1String("<br/>"));
    return QLatin1String("<qt>") + escaped + QLatin1String("</qt>");
}
