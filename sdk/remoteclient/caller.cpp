// SPDX-License-Identifier: Apache-2.0
#include "caller.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>
#include <QtCore/QSysInfo>

#ifdef Q_OS_UNIX
#include <pwd.h>
#include <unistd.h>

#include <array>
#endif

namespace {

QString userName()
{
#ifdef Q_OS_UNIX
    std::array<char, 4096> space{};
    passwd entry{};
    passwd *found = nullptr;
    if (getpwuid_r(geteuid(), &entry, space.data(), space.size(), &found) == 0 && found)
        return QString::fromLocal8Bit(found->pw_name);
    return QString::number(geteuid());
#else
    return qEnvironmentVariable("USERNAME");
#endif
}

} // namespace

Caller Caller::ofThisProcess()
{
    const QString program = QFileInfo(QCoreApplication::applicationFilePath()).fileName();
    const QString number = QString::number(QCoreApplication::applicationPid());
    return {userName(), QSysInfo::machineHostName(),
            program.isEmpty() ? number : program + QLatin1Char(' ') + number};
}

QString Caller::text() const
{
    QString text = name;
    if (!station.isEmpty())
        text += QLatin1Char('@') + station;
    if (!process.isEmpty())
        text += QLatin1String(text.isEmpty() ? "(" : " (") + process + QLatin1Char(')');
    return text.simplified();
}
