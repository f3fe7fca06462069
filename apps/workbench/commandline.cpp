// SPDX-License-Identifier: Apache-2.0
#include "commandline.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>

#include <algorithm>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)
};

} // namespace

bool runsWithoutDisplay(const QStringList &arguments)
{
    return std::any_of(arguments.cbegin(), arguments.cend(), [](const QString &argument) {
        static const QStringList options{QStringLiteral("--check"),    QStringLiteral("-check"),
                                         QStringLiteral("--help"),     QStringLiteral("-h"),
                                         QStringLiteral("--help-all"), QStringLiteral("--version"),
                                         QStringLiteral("-v")};
        return options.contains(argument) || argument.startsWith(QLatin1String("--check="));
    });
}

CommandLine parseCommandLine(QCommandLineParser &parser, const QStringList &arguments)
{
    const QCommandLineOption check(
        QStringLiteral("check"),
        Texts::tr(
            "Say what is in an SCL file, as JSON, and exit: with 0 when it is without errors, "
            "1 with errors, 2 when it cannot be used. Needs no display."),
        Texts::tr("FILE"));
    const QCommandLineOption ied(QStringLiteral("ied"),
                                 Texts::tr("Take this IED of the file. The default asks when there "
                                           "are several; --check takes all."),
                                 Texts::tr("NAME"));
    const QCommandLineOption tour(
        QStringLiteral("tour"),
        Texts::tr("Open each tool on the demonstration device, save a picture of it in DIR, exit."),
        Texts::tr("DIR"));
    const QCommandLineOption pluginFolder(
        QStringLiteral("plugin-dir"),
        Texts::tr(
            "Load the plug-in from DIR instead of the folder \"plugins\" beside the program."),
        Texts::tr("DIR"));
    const QCommandLineOption demonstration(QStringLiteral("demo"),
                                           Texts::tr("Open the demonstration device."));
    parser.setApplicationDescription(
        Texts::tr("A small host for the IEC 61850 tools: opens devices from SCL files."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions({check, ied, tour, pluginFolder, demonstration});
    parser.addPositionalArgument(QStringLiteral("FILE"), Texts::tr("SCL files to open."),
                                 QStringLiteral("[FILE...]"));

    CommandLine line;
    if (!parser.parse(arguments)) {
        line.problem = parser.errorText();
        return line;
    }
    line.check = parser.value(check);
    line.ied = parser.value(ied);
    line.tour = parser.value(tour);
    line.pluginFolder = parser.value(pluginFolder);
    line.demonstration = parser.isSet(demonstration);
    line.files = parser.positionalArguments();

    if (parser.isSet(check) && line.check.isEmpty()) {
        line.problem = Texts::tr("--check needs the name of a file.");
    } else if (parser.isSet(tour) && line.tour.isEmpty()) {
        line.problem = Texts::tr("--tour needs the name of a folder.");
    } else if (parser.isSet(check) &&
               (parser.isSet(tour) || line.demonstration || !line.files.isEmpty())) {
        line.problem =
            Texts::tr("--check takes one file, and nothing else can be done at the same time.");
    } else if (parser.isSet(tour) && (line.demonstration || !line.files.isEmpty())) {
        line.problem = Texts::tr("--tour shows the demonstration device and opens no other file.");
    }
    return line;
}
