// SPDX-License-Identifier: Apache-2.0
#include "manualpage.h"

#include "argumenttext.h"
#include "projectversion.h"

namespace {

QString roff(const std::string &source)
{
    QString result = text(source);
    result.replace(QLatin1Char('\\'), QLatin1String("\\e"));
    result.replace(QLatin1Char('-'), QLatin1String("\\-"));
    if (result.startsWith(QLatin1Char('.')) || result.startsWith(QLatin1Char('\'')))
        result.prepend(QLatin1String("\\&"));
    return result;
}

QString manualOptions(const CLI::App &app)
{
    QString page;
    for (const CLI::Option *option : app.get_options()) {
        if (option == app.get_help_ptr() && app.get_parent())
            continue;
        const bool takesValue = option->get_items_expected_max() > 0 && !option->get_positional();
        page += QStringLiteral(".TP\n.B %1")
                    .arg(roff(option->get_name(option->get_positional(), true)));
        if (takesValue)
            page += QStringLiteral(" \\fI%1\\fR").arg(roff(option->get_type_name()));
        page += QStringLiteral("\n%1\n").arg(roff(option->get_description()));
    }
    return page;
}

QString manualCommands(const CLI::App &app, const QString &prefix)
{
    QString page;
    for (const CLI::App *command : app.get_subcommands([](const CLI::App *) { return true; })) {
        const QString name = prefix + text(command->get_name());
        if (!command->get_subcommands([](const CLI::App *) { return true; }).empty()) {
            page += manualCommands(*command, name + QLatin1Char(' '));
            continue;
        }
        page += QStringLiteral(".SS \"%1\"\n%2.\n").arg(name, roff(command->get_description()));
        page += manualOptions(*command);
    }
    return page;
}

} // namespace

QString manualPageOf(const CLI::App &program)
{
    QString page =
        QStringLiteral(".TH IEDCTL 1 \"\" \"iedctl %1\"\n").arg(QLatin1String(projectVersion));
    page += QStringLiteral(".SH NAME\niedctl \\- IEC 61850 client for scripts and terminals\n");
    page += QStringLiteral(".SH SYNOPSIS\n.B iedctl\n[\\-\\-connect \\fIHOST\\fR[:\\fIPORT\\fR]] "
                           "[\\-\\-scl \\fIFILE\\fR] [\\fIoptions\\fR] \\fIcommand\\fR ...\n");
    page += QStringLiteral(".SH DESCRIPTION\n%1\n").arg(roff(program.get_description()));
    page += QStringLiteral(".SH OPTIONS\n") + manualOptions(program);
    page += QStringLiteral(".SH COMMANDS\n") + manualCommands(program, {});
    page += QStringLiteral(
        ".SH EXIT STATUS\n.TP\n.B 0\nDone.\n.TP\n.B 1\nThe device or the driver refused, or a value "
        "did not come.\n.TP\n.B 2\nThe command line cannot be understood.\n.TP\n.B 3\nThere is no "
        "association with the device.\n");
    page += QStringLiteral(
        ".SH EXAMPLES\n.nf\niedctl \\-\\-connect 192.0.2.7 read LD0/MMXU1.PhV\n"
        "iedctl \\-\\-connect 192.0.2.7 operate LD0/CSWI1.Pos \\-\\-value on \\-\\-interlock\n"
        "iedctl \\-\\-scl bay.scd \\-\\-ied Q01 model\n.fi\n");
    return page;
}
