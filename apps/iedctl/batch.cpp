// SPDX-License-Identifier: Apache-2.0
#include "batch.h"

#include "commandline.h"
#include "session.h"

#include <QtCore/QIODevice>

ExitStatus runBatch(Session &session, QIODevice &lines)
{
    int number = 0;
    while (!Session::interrupted()) {
        const QByteArray bytes = lines.readLine();
        if (bytes.isEmpty())
            return ExitStatus::Done;
        ++number;
        const QString line = QString::fromUtf8(bytes).trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char('#')))
            continue;
        const auto parsed = parseBatchLine(line);
        if (const auto *answer = std::get_if<Answer>(&parsed)) {
            if (!answer->isError) {
                session.output().note(answer->text);
                continue;
            }
            session.output().complain(QStringLiteral("Line %1: %2").arg(number).arg(answer->text));
            return answer->status;
        }
        const ExitStatus status = std::get<Invocation>(parsed).command(session);
        if (status != ExitStatus::Done) {
            session.output().complain(
                QStringLiteral("Line %1 failed; the rest was not run.").arg(number));
            return status;
        }
    }
    return ExitStatus::Done;
}
