// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

/// What the workbench was asked for on its command line.
struct CommandLine
{
    QString check;        ///< file to check instead of opening a window
    QString ied;          ///< IED to take from the files named
    QString tour;         ///< folder for the pictures of a tour
    QString pluginFolder; ///< empty: the folder "plugins" beside the executable
    bool demonstration = false;
    QStringList files;
    QString answer;  ///< to be printed, and nothing else done: the help, or the version
    QString problem; ///< what is wrong with the command line, one sentence
};

/// True when the arguments ask for something that is done without a display; decided before there
/// is an application object.
bool runsWithoutDisplay(const QStringList &arguments);

/// @param arguments the program's name first
CommandLine parseCommandLine(const QStringList &arguments);
