// SPDX-License-Identifier: Apache-2.0
#include "commandline.h"

#include "argumenttext.h"
#include "commandhelp.h"
#include "commandset.h"
#include "manualpage.h"
#include "programoptions.h"

#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace {

/// The description of the program from which it is parsed, helped with and written up.
class Parser
{
public:
    explicit Parser(bool inBatch)
        : m_app("Talks to an IEC 61850 server, or shows what an SCL file says of one.", "iedctl")
    {
        m_app.require_subcommand(1);
        m_app.fallthrough();
        m_app.formatter(helpFormatter());
        if (!inBatch)
            m_options.addTo(m_app);
        m_commands.addTo(m_app, inBatch);
        if (!inBatch) {
            // Commands would inherit what is there before them.
            m_app.set_help_all_flag("--help-all", "Help of all commands");
            addFooters(m_app);
        }
    }

    CLI::App &app() { return m_app; }

    std::variant<Invocation, Answer> result() const
    {
        Invocation invocation;
        m_commands.take(invocation);
        if (const QString refusal = m_options.take(invocation); !refusal.isEmpty())
            return Answer{refusal, true, ExitStatus::Usage};
        return invocation;
    }

private:
    ProgramOptions m_options;
    CommandSet m_commands;
    CLI::App m_app;
};

std::variant<Invocation, Answer> parse(const std::shared_ptr<Parser> &parser,
                                       const std::function<void(CLI::App &)> &take)
{
    try {
        take(parser->app());
    } catch (const CLI::CallForAllHelp &) {
        return Answer{text(helpOfAll(parser->app())), false, ExitStatus::Done};
    } catch (const CLI::Success &wanted) {
        // Help and version.
        std::ostringstream out;
        std::ostringstream err;
        parser->app().exit(wanted, out, err);
        return Answer{text(out.str()), false, ExitStatus::Done};
    } catch (const CLI::ParseError &error) {
        QString sentence = text(error.what());
        // What is no command is left over, and said to be missing.
        const std::vector<std::string> rest = parser->app().remaining(true);
        if (dynamic_cast<const CLI::RequiredError *>(&error) && !rest.empty() &&
            !rest.front().starts_with('-'))
            sentence = QStringLiteral("There is no command \"%1\".").arg(text(rest.front()));
        if (!sentence.endsWith(QLatin1Char('.')))
            sentence += QLatin1Char('.');
        return Answer{sentence, true, ExitStatus::Usage};
    }
    std::variant<Invocation, Answer> result = parser->result();
    if (auto *invocation = std::get_if<Invocation>(&result); invocation && invocation->command) {
        // The commands read the values that the parser holds.
        invocation->command = [parser, command = invocation->command](Session &session) {
            return command(session);
        };
    }
    return result;
}

} // namespace

std::variant<Invocation, Answer> parseCommandLine(const QStringList &arguments)
{
    const auto parser = std::make_shared<Parser>(false);
    return parse(parser, [&](CLI::App &app) {
        std::vector<std::string> reversed;
        for (auto it = arguments.crbegin(); it != arguments.crend(); ++it)
            reversed.push_back(it->toStdString());
        app.parse(reversed);
    });
}

std::variant<Invocation, Answer> parseBatchLine(const QString &line)
{
    const auto parser = std::make_shared<Parser>(true);
    return parse(parser, [&](CLI::App &app) { app.parse(line.toStdString()); });
}

QString manualPage()
{
    return manualPageOf(Parser(false).app());
}
