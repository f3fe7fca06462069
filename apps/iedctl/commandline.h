// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "exitstatus.h"

#include "driver/administration/deviceconfiguration.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <functional>
#include <variant>

class Session;

/// A command that was understood.
struct Invocation
{
    DeviceConfiguration device;
    bool json = false;
    bool readOnly = false;
    /// Where commands come from when the command is "batch": a file, or "-" for standard input.
    QString batch;
    /// Empty for "batch".
    std::function<ExitStatus(Session &)> command;
};

/// What to print instead of running a command, and how to end.
struct Answer
{
    QString text;
    bool isError = false;
    ExitStatus status = ExitStatus::Done;
};

/// @param arguments without the program's name
std::variant<Invocation, Answer> parseCommandLine(const QStringList &arguments);

/// One line of a batch: a command without options of the program.
std::variant<Invocation, Answer> parseBatchLine(const QString &line);

/// The manual page in roff, from the same description as the parser.
QString manualPage();
