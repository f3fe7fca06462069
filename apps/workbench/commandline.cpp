// SPDX-License-Identifier: Apache-2.0
#include "commandline.h"

#include <QtCore/QCoreApplication>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <string>
#include <vector>

namespace {

constexpr int helpWidth = 79;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)
};

/// What Qt says of every program, in the languages of its own catalogues.
QString ofQt(const char *text)
{
    return QCoreApplication::translate("QCommandLineParser", text);
}

QString namesOf(const CLI::Option &option)
{
    QString names = QString::fromStdString(option.get_name(option.get_positional(), true));
    names.replace(QLatin1Char(','), QLatin1String(", "));
    if (option.get_items_expected_max() > 0 && !option.get_positional())
        names +=
            QLatin1String(" <") + QString::fromStdString(option.get_type_name()) + QLatin1Char('>');
    return names;
}

/// Parts a text between words; its lines but the first begin in @p column.
QString wrapped(const QString &text, int column)
{
    QString result;
    int used = column;
    for (const QString &word : text.split(QLatin1Char(' '))) {
        if (used > column && used + 1 + word.size() > helpWidth) {
            result += QLatin1Char('\n') + QString(column, QLatin1Char(' '));
            used = column;
        } else if (used > column) {
            result += QLatin1Char(' ');
            ++used;
        }
        result += word;
        used += word.size();
    }
    return result;
}

QString helpOf(const CLI::App &app)
{
    const std::vector<const CLI::Option *> options = app.get_options();
    int column = 0;
    for (const CLI::Option *option : options)
        column = qMax(column, namesOf(*option).size() + 4);
    QString page = ofQt("Usage: %1")
                       .arg(QString::fromStdString(app.get_name()) + QLatin1Char(' ') +
                            ofQt("[options]") + QLatin1String(" [FILE...]\n")) +
                   wrapped(QString::fromStdString(app.get_description()), 0) + QLatin1Char('\n');
    for (const bool positional : {false, true}) {
        page +=
            QLatin1Char('\n') + ofQt(positional ? "Arguments:" : "Options:") + QLatin1Char('\n');
        for (const CLI::Option *option : options) {
            if (option->get_positional() == positional)
                page += (QLatin1String("  ") + namesOf(*option)).leftJustified(column) +
                        wrapped(QString::fromStdString(option->get_description()), column) +
                        QLatin1Char('\n');
        }
    }
    return page;
}

QString sentenceOf(const CLI::App &app, const CLI::ParseError &error)
{
    const QString said = QString::fromLocal8Bit(error.what());
    if (dynamic_cast<const CLI::ExtrasError *>(&error)) {
        QStringList unknown;
        for (const std::string &each : app.remaining())
            unknown << QString::fromStdString(each);
        return ofQt("Unknown options: %1.").arg(unknown.join(QLatin1String(", ")));
    }
    for (const CLI::Option *option : app.get_options()) {
        const QString name = QString::fromStdString(option->get_name());
        if (said.startsWith(name + QLatin1Char(':')))
            return ofQt("Missing value after '%1'.").arg(name);
    }
    return said + QLatin1Char('.');
}

} // namespace

bool runsWithoutDisplay(const QStringList &arguments)
{
    return std::any_of(arguments.cbegin(), arguments.cend(), [](const QString &argument) {
        static const QStringList options{QStringLiteral("--check"),   QStringLiteral("-check"),
                                         QStringLiteral("--help"),    QStringLiteral("-h"),
                                         QStringLiteral("--version"), QStringLiteral("-v")};
        return options.contains(argument) || argument.startsWith(QLatin1String("--check="));
    });
}

CommandLine parseCommandLine(const QStringList &arguments)
{
    std::string check;
    std::string ied;
    std::string tour;
    std::string pluginFolder;
    std::vector<std::string> files;
    CommandLine line;
    CLI::App app(Texts::tr("A small host for the IEC 61850 tools: opens devices from SCL files.")
                     .toStdString(),
                 QCoreApplication::applicationName().toStdString());
    const auto addOption = [&app](const char *name, std::string &value, const QString &description,
                                  const QString &what) {
        return app.add_option(name, value, description.toStdString())
            ->type_name(what.toStdString())
            ->take_last();
    };
    app.set_help_flag("-h,--help", ofQt("Displays help on commandline options.").toStdString());
    app.set_version_flag("-v,--version", QCoreApplication::applicationVersion().toStdString(),
                         ofQt("Displays version information.").toStdString());
    const CLI::Option *const checkOption = addOption(
        "--check", check,
        Texts::tr(
            "Say what is in an SCL file, as JSON, and exit: with 0 when it is without errors, "
            "1 with errors, 2 when it cannot be used. Needs no display."),
        Texts::tr("FILE"));
    addOption("--ied", ied,
              Texts::tr("Take this IED of the file. The default asks when there "
                        "are several; --check takes all."),
              Texts::tr("NAME"));
    const CLI::Option *const tourOption = addOption(
        "--tour", tour,
        Texts::tr("Open each tool on the demonstration device, save a picture of it in DIR, exit."),
        Texts::tr("DIR"));
    addOption(
        "--plugin-dir", pluginFolder,
        Texts::tr(
            "Load the plug-in from DIR instead of the folder \"plugins\" beside the program."),
        Texts::tr("DIR"));
    app.add_flag("--demo", line.demonstration,
                 Texts::tr("Open the demonstration device.").toStdString());
    app.add_option("FILE", files, Texts::tr("SCL files to open.").toStdString());

    try {
        std::vector<std::string> reversed;
        for (int i = arguments.size() - 1; i > 0; --i)
            reversed.push_back(arguments[i].toStdString());
        app.parse(reversed);
    } catch (const CLI::CallForHelp &) {
        line.answer = helpOf(app);
        return line;
    } catch (const CLI::CallForVersion &version) {
        line.answer = QStringLiteral("%1 %2\n").arg(QCoreApplication::applicationName(),
                                                    QString::fromLatin1(version.what()));
        return line;
    } catch (const CLI::ParseError &error) {
        line.problem = sentenceOf(app, error);
        return line;
    }
    line.check = QString::fromStdString(check);
    line.ied = QString::fromStdString(ied);
    line.tour = QString::fromStdString(tour);
    line.pluginFolder = QString::fromStdString(pluginFolder);
    for (const std::string &file : files)
        line.files << QString::fromStdString(file);

    const bool checks = checkOption->count() > 0;
    const bool tours = tourOption->count() > 0;
    if (checks && line.check.isEmpty()) {
        line.problem = Texts::tr("--check needs the name of a file.");
    } else if (tours && line.tour.isEmpty()) {
        line.problem = Texts::tr("--tour needs the name of a folder.");
    } else if (checks && (tours || line.demonstration || !line.files.isEmpty())) {
        line.problem =
            Texts::tr("--check takes one file, and nothing else can be done at the same time.");
    } else if (tours && (line.demonstration || !line.files.isEmpty())) {
        line.problem = Texts::tr("--tour shows the demonstration device and opens no other file.");
    }
    return line;
}
