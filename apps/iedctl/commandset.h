// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "commandline.h"
#include "commands.h"

#include <functional>
#include <string>
#include <vector>

namespace CLI {
class App;
}

/// The commands of the program with their arguments: which there are, what their help says, and
/// which function each runs.
class CommandSet
{
public:
    CommandSet() = default;
    CommandSet(const CommandSet &) = delete;
    CommandSet &operator=(const CommandSet &) = delete;

    /// Add the commands to a parser, which then writes to this object: it must outlive the parsing
    /// and the command that was found.
    /// @param inBatch for one line of a batch, which has no "batch"
    void addTo(CLI::App &app, bool inBatch);

    /// Fill in the command that was found.
    void take(Invocation &invocation) const;

private:
    using Command = std::function<ExitStatus(Session &)>;

    void addModelCommands(CLI::App &app);
    void addValueCommands(CLI::App &app);
    void addDataSetCommands(CLI::App &app);
    void addReportCommands(CLI::App &app);
    void addControlCommands(CLI::App &app);
    void addGroupCommands(CLI::App &app);
    void addFileCommands(CLI::App &app);
    void addBatch(CLI::App &app);
    void addLimits(CLI::App &app, const char *what);
    CLI::App *command(CLI::App &parent, const char *name, const char *help, Command action);

    /// Where the parser puts the arguments of the command that it finds.
    struct Values
    {
        std::string reference;
        std::string value;
        std::string second;
        std::vector<std::string> list;
        Commands::DirectoryRequest directory;
        Commands::StreamLimit limit;
        Commands::ReportRequest report;
        Commands::ControlRequest control;
        std::string rptId;
        std::string dataSet;
        std::string triggers;
        std::string optionalFields;
        int integrityPeriod = 0;
        int bufferTime = 0;
        bool polls = false;
        bool attributes = false;
        bool edited = false;
        bool overwrites = false;
        int group = 0;

        Command command;
        std::string batch;
    };
    Values m_values;
};
