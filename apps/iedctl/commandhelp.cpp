// SPDX-License-Identifier: Apache-2.0
#include "commandhelp.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <sstream>
#include <vector>

namespace {

constexpr std::size_t helpColumn = 34;
constexpr std::size_t helpWidth = 100;

/// The text with its lines broken between words.
std::string wrapped(const std::string &source, std::size_t width)
{
    std::string result;
    std::size_t column = 0;
    std::size_t position = 0;
    while (position < source.size()) {
        const std::size_t end = std::min(source.find_first_of(" \n", position + 1), source.size());
        const std::string word = source.substr(position, end - position);
        if (word.front() == '\n') {
            column = word.size() - 1;
        } else if (column > 0 && column + word.size() > width) {
            result += '\n' + word.substr(word.front() == ' ' ? 1 : 0);
            column = word.size();
            position = end;
            continue;
        } else {
            column += word.size();
        }
        result += word;
        position = end;
    }
    return result;
}

/// Help that fits a terminal.
class HelpFormatter : public CLI::Formatter
{
public:
    HelpFormatter()
    {
        column_width(helpColumn);
        label("REQUIRED", "(required)");
        label("Needs", "with");
        label("Excludes", "without");
    }
    std::string make_option_desc(const CLI::Option *option) const override
    {
        return wrapped(option->get_description(), helpWidth - helpColumn);
    }
    std::string make_subcommand(const CLI::App *command) const override
    {
        std::ostringstream out;
        CLI::detail::format_help(out, command->get_name(),
                                 wrapped(command->get_description(), helpWidth - helpColumn),
                                 helpColumn);
        return out.str();
    }
    std::string make_description(const CLI::App *app) const override
    {
        return wrapped(CLI::Formatter::make_description(app), helpWidth);
    }
    std::string make_footer(const CLI::App *app) const override
    {
        return wrapped(CLI::Formatter::make_footer(app), helpWidth);
    }
};

constexpr const char *commandFooter =
    "Options of the program, such as --connect and --json, may stand before or behind the command; "
    "\"iedctl --help\" shows them.";
constexpr const char *programFooter =
    "Each command has its own help: iedctl report enable --help\n"
    "\n"
    "Tables show \"-\" where there is no value, enumerations by name with their number behind it, and "
    "qualities in words; --json has the raw values, too. Ctrl+C ends a stream in an orderly way and "
    "cancels anything else that waits for the device; pressed again it ends the program.\n"
    "\n"
    "Exit status: 0 done; 1 refused, or a value did not come; 2 the command line cannot be "
    "understood; 3 no association with the device.\n"
    "\n"
    "Examples:\n"
    "  iedctl --connect 192.0.2.7 read LD0/MMXU1.PhV\n"
    "  iedctl --connect 192.0.2.7 operate LD0/CSWI1.Pos --value on --interlock\n"
    "  iedctl --connect 192.0.2.7 report enable 'LD0/LLN0$BR$brcb01' --gi\n"
    "  iedctl --scl bay.scd --ied Q01 model";

void addCommandFooters(const CLI::App &app)
{
    const auto any = [](const CLI::App *) { return true; };
    // What is not const is given out by name only.
    for (const CLI::App *command : app.get_subcommands(any)) {
        CLI::App *each = app.get_subcommand(command->get_name());
        each->footer(each->get_subcommands(any).empty()
                         ? commandFooter
                         : "Each has its own help: iedctl " + each->get_name() + " COMMAND --help");
        addCommandFooters(*each);
    }
}

std::string helpOf(const CLI::App &app, const std::string &before)
{
    const auto any = [](const CLI::App *) { return true; };
    std::string page;
    const std::vector<const CLI::App *> commands = app.get_subcommands(any);
    if (commands.empty() || !app.get_parent())
        page = app.help(before);
    const std::string name = before.empty() ? app.get_name() : before + ' ' + app.get_name();
    for (const CLI::App *command : commands)
        page += '\n' + helpOf(*command, name);
    return page;
}

} // namespace

std::shared_ptr<CLI::FormatterBase> helpFormatter()
{
    return std::make_shared<HelpFormatter>();
}

void addFooters(CLI::App &program)
{
    addCommandFooters(program);
    program.footer(programFooter);
}

std::string helpOfAll(const CLI::App &program)
{
    return helpOf(program, {});
}
