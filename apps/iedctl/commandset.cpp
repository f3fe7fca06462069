// SPDX-License-Identifier: Apache-2.0
#include "commandset.h"

#include "argumenttext.h"

#include <utility>

namespace {

// Data that no report brings is looked at this often.
constexpr int watchIntervalMs = 1000;

constexpr const char *referenceHelp =
    "Data as \"LD/LN.Data.attribute\", with \"[FC]\" behind it for one functional constraint, or as "
    "\"LD/LN$FC$Data$attribute\" (in quotes, since a shell takes $ for itself); less than that "
    "means all below";
constexpr const char *dataSetHelp =
    "Data set, \"LD/LN$name\", or \"@name\" for one of the association";
constexpr const char *blockHelp = "Report control block, \"LD/LN$BR$name\" or \"LD/LN$RP$name\"";
constexpr const char *objectHelp = "Controllable data object, \"LD/LN.Data\"";
constexpr const char *logicalDeviceHelp = "Logical device, whose control block is meant";
constexpr const char *valueHelp =
    "Number (also 0x1F), true or false, entry of an enumeration by name or number, text; a quality "
    "as 13 characters 0 and 1, a time as in 2026-03-04T05:06:07.890Z";
constexpr const char *settingsHelp =
    "NAME=VALUE; names as \"group read\" shows them, or as LN.Data.attribute";
/// A command that only has commands.
CLI::App *family(CLI::App &app, const char *name, const char *help)
{
    CLI::App *added = app.add_subcommand(name, help);
    added->require_subcommand(1);
    return added;
}

} // namespace

void CommandSet::addTo(CLI::App &app, bool inBatch)
{
    addModelCommands(app);
    addValueCommands(app);
    addDataSetCommands(app);
    addReportCommands(app);
    addControlCommands(app);
    addGroupCommands(app);
    addFileCommands(app);
    if (!inBatch)
        addBatch(app);
}

void CommandSet::take(Invocation &invocation) const
{
    invocation.batch = text(m_values.batch);
    invocation.command = m_values.command;
    invocation.device.pollInterval =
        std::chrono::milliseconds(m_values.polls ? watchIntervalMs : 0);
}

CLI::App *CommandSet::command(CLI::App &parent, const char *name, const char *help, Command action)
{
    CLI::App *added = parent.add_subcommand(name, help);
    added->callback([this, action = std::move(action)] { m_values.command = action; });
    return added;
}

void CommandSet::addModelCommands(CLI::App &app)
{
    Values &v = m_values;
    CLI::App *model = command(app, "model", "What the device has", [&v](Session &session) {
        return Commands::model(session, v.attributes);
    });
    model->add_flag("-a,--attributes", v.attributes, "With every data attribute and its type");

    CLI::App *directory =
        command(app, "directory", "Ask the device for names", [&v](Session &session) {
            v.directory.reference = text(v.reference);
            return Commands::directory(session, v.directory);
        });
    directory
        ->add_option("reference", v.reference,
                     "Nothing for the logical devices, \"LD\" for its logical nodes, \"LD/LN\" for "
                     "its data, \"LD/LN.Data\" for what is in it")
        ->type_name("");
    CLI::Option *sets = directory->add_flag("--datasets", v.directory.dataSets,
                                            "The data sets of a logical device");
    CLI::Option *reports = directory->add_flag("--reports", v.directory.reports,
                                               "The report control blocks of a logical node");
    CLI::Option *groups =
        directory->add_flag("--settings", v.directory.settingGroups,
                            "The setting group control blocks of a logical device");
    sets->excludes(reports)->excludes(groups);
    reports->excludes(groups);
    command(app, "abort", "Abort the association", &Commands::abort);
}

void CommandSet::addLimits(CLI::App &app, const char *what)
{
    app.add_option("--count", m_values.limit.count, what)
        ->type_name("N")
        ->check(unnamed(CLI::PositiveNumber));
    app.add_option("--seconds", m_values.limit.seconds, "End after so many seconds")
        ->type_name("N")
        ->check(unnamed(CLI::PositiveNumber));
}

void CommandSet::addValueCommands(CLI::App &app)
{
    Values &v = m_values;
    CLI::App *read = command(app, "read", "Read values", [&v](Session &session) {
        return Commands::read(session, texts(v.list));
    });
    read->add_option("references", v.list, referenceHelp)->type_name("")->required();

    CLI::App *write =
        command(app, "write", "Write one value and read it back", [&v](Session &session) {
            return Commands::write(session, text(v.reference), text(v.value));
        });
    write
        ->add_option("reference", v.reference,
                     "One data attribute, \"LD/LN.Data.attribute\" or "
                     "\"LD/LN$FC$Data$attribute\"")
        ->type_name("")
        ->required();
    write->add_option("value", v.value, valueHelp)->type_name("")->required();

    CLI::App *watch =
        command(app, "watch", "Show values as they come, until stopped", [&v](Session &session) {
            return Commands::watch(session, texts(v.list), v.limit);
        });
    watch->preparse_callback([&v](std::size_t) { v.polls = true; });
    watch->add_option("references", v.list, "Data as in \"read\"; all unless given")->type_name("");
    addLimits(*watch, "End after so many values");
}

void CommandSet::addDataSetCommands(CLI::App &app)
{
    Values &v = m_values;
    CLI::App *parent = family(app, "dataset", "Data sets");
    CLI::App *list = command(*parent, "list", "Names", [&v](Session &session) {
        return Commands::listDataSets(session, text(v.reference));
    });
    list->add_option("logical-device", v.reference, "Of this logical device only")->type_name("");
    const auto add = [&](const char *name, const char *help, Command action) {
        CLI::App *added = command(*parent, name, help, std::move(action));
        added->add_option("dataset", v.dataSet, dataSetHelp)->type_name("")->required();
        return added;
    };
    add("show", "Members",
        [&v](Session &session) { return Commands::showDataSet(session, text(v.dataSet)); });
    add("read", "Values of the members",
        [&v](Session &session) { return Commands::readDataSet(session, text(v.dataSet)); });
    add("create", "Make a data set",
        [&v](Session &session) {
            return Commands::createDataSet(session, text(v.dataSet), texts(v.list));
        })
        ->add_option("members", v.list, referenceHelp)
        ->type_name("")
        ->required();
    add("delete", "Delete a data set",
        [&v](Session &session) { return Commands::deleteDataSet(session, text(v.dataSet)); });
}

void CommandSet::addReportCommands(CLI::App &app)
{
    Values &v = m_values;
    CLI::App *parent = family(app, "report", "Report control blocks");
    command(*parent, "list", "Names", &Commands::listReports);
    const auto add = [&](const char *name, const char *help, Command action) {
        CLI::App *added = command(*parent, name, help, std::move(action));
        added->add_option("block", v.reference, blockHelp)->type_name("")->required();
        return added;
    };
    add("show", "Settings and state",
        [&v](Session &session) { return Commands::showReport(session, text(v.reference)); });
    add("set", "Change settings of a block that is not enabled",
        [&v](Session &session) {
            return Commands::setReport(session, text(v.reference), texts(v.list));
        })
        ->add_option("settings", v.list,
                     "NAME=VALUE with the names RptID and DatSet (texts), TrgOps and OptFlds "
                     "(lists as of \"report enable\"), IntgPd and BufTm (milliseconds), Resv "
                     "(true or false)")
        ->type_name("")
        ->required();
    CLI::App *enable =
        add("enable",
            "Enable a block, show each report with its arrival, number, values and their "
            "reasons until stopped, and disable it; what is not given stays as it is",
            {});
    CLI::Option *rptId =
        enable->add_option("--rptid", v.rptId, "Report identifier")->type_name("TEXT");
    CLI::Option *dataSet =
        enable->add_option("--dataset", v.dataSet, dataSetHelp)->type_name("NAME");
    CLI::Option *triggers =
        enable
            ->add_option("--trgops", v.triggers,
                         "Some of these, with commas between: dchg qchg dupd period gi")
            ->type_name("LIST");
    CLI::Option *fields =
        enable
            ->add_option("--optflds", v.optionalFields,
                         "Some of these, with commas between: seqNum timeStamp reasonCode dataSet "
                         "dataRef bufOvfl entryID configRef")
            ->type_name("LIST");
    CLI::Option *period =
        enable->add_option("--intgpd", v.integrityPeriod, "Integrity period in milliseconds")
            ->type_name("MS")
            ->check(unnamed(CLI::NonNegativeNumber));
    CLI::Option *bufferTime =
        enable->add_option("--buftm", v.bufferTime, "Buffer time in milliseconds")
            ->type_name("MS")
            ->check(unnamed(CLI::NonNegativeNumber));
    enable->add_flag("--gi", v.report.generalInterrogation, "Ask for all values at first");
    addLimits(*enable, "End after so many reports");
    enable->callback([=, this] {
        Values &values = m_values;
        values.report.block = text(values.reference);
        values.report.rptId = optionalText(rptId, values.rptId);
        values.report.dataSet = optionalText(dataSet, values.dataSet);
        values.report.triggers = optionalText(triggers, values.triggers);
        values.report.optionalFields = optionalText(fields, values.optionalFields);
        if (period->count() > 0)
            values.report.integrityPeriod = values.integrityPeriod;
        if (bufferTime->count() > 0)
            values.report.bufferTime = values.bufferTime;
        values.report.limit = values.limit;
        values.command = [&values](Session &session) {
            return Commands::enableReport(session, values.report);
        };
    });
    add("disable", "Disable a block",
        [&v](Session &session) { return Commands::disableReport(session, text(v.reference)); });
    add("gi", "General interrogation",
        [&v](Session &session) { return Commands::interrogate(session, text(v.reference)); });
    add("purge", "Empty the buffer of a buffered block",
        [&v](Session &session) { return Commands::purge(session, text(v.reference)); });
}

void CommandSet::addControlCommands(CLI::App &app)
{
    const auto add = [this,
                      &app](const char *name, const char *help,
                            ExitStatus (*action)(Session &, const Commands::ControlRequest &)) {
        Values &v = m_values;
        CLI::App *added = app.add_subcommand(name, help);
        added->add_option("object", v.reference, objectHelp)->type_name("")->required();
        CLI::Option *value = added
                                 ->add_option("--value", v.value,
                                              "Control value: on, off, a number, or an entry "
                                              "of the enumeration")
                                 ->type_name("VALUE");
        added
            ->add_option("--orcat", v.control.originatorCategory,
                         "Originator category: 1 bay, 2 station, 3 remote control (unless "
                         "given), 4 to 6 the same automatic, 7 maintenance, 8 process")
            ->type_name("N")
            ->check(unnamed(CLI::Range(0, 8)));
        added->add_flag("--test", v.control.test, "With the test flag");
        added->add_flag("--interlock", v.control.interlock, "With interlock check");
        added->add_flag("--synchro", v.control.synchro, "With synchrocheck");
        added->callback([=, this] {
            Values &values = m_values;
            values.control.object = text(values.reference);
            values.control.value = optionalText(value, values.value);
            values.command = [&values, action](Session &session) {
                return action(session, values.control);
            };
        });
        return added;
    };
    add("select", "Select an object; within a batch, for the commands behind it",
        &Commands::selectObject);
    add("operate", "Operate an object, selecting it first where its control model wants that",
        &Commands::operate)
        ->add_flag("--selected", m_values.control.selected,
                   "The object was selected before in this batch");
    add("cancel", "Cancel a selection or a command", &Commands::cancel);
}

void CommandSet::addGroupCommands(CLI::App &app)
{
    Values &v = m_values;
    CLI::App *parent = family(app, "group", "Setting groups");
    const auto add = [&](const char *name, const char *help, Command action) {
        CLI::App *added = command(*parent, name, help, std::move(action));
        added->add_option("logical-device", v.reference, logicalDeviceHelp)
            ->type_name("")
            ->required();
        return added;
    };
    add("show", "Number of groups, the active one, the one being edited",
        [&v](Session &session) { return Commands::showGroups(session, text(v.reference)); });
    add("read", "Settings of the active group", [&v](Session &session) {
        return Commands::readGroup(session, text(v.reference), v.edited);
    })->add_flag("--edited", v.edited, "Of the group being edited");
    add("activate", "Make a group the active one",
        [&v](Session &session) {
            return Commands::activateGroup(session, text(v.reference), v.group);
        })
        ->add_option("group", v.group, "Number of the group")
        ->type_name("")
        ->required();
    add("edit", "Select a group for editing; within a batch, for the commands behind it",
        [&v](Session &session) { return Commands::editGroup(session, text(v.reference), v.group); })
        ->add_option("group", v.group, "Number of the group; 0 gives up editing")
        ->type_name("")
        ->required();
    CLI::App *write =
        add("write", "Write settings of a group and confirm them; the others stay as they are",
            [&v](Session &session) {
                return Commands::writeGroup(session, text(v.reference), v.group, texts(v.list));
            });
    write->add_option("--group", v.group, "Number of the group; the one being edited unless given")
        ->type_name("N");
    write->add_option("settings", v.list, settingsHelp)->type_name("")->required();
}

void CommandSet::addFileCommands(CLI::App &app)
{
    Values &v = m_values;
    CLI::App *parent = family(app, "file", "Files of the device");
    command(*parent, "ls", "List a directory",
            [&v](Session &session) { return Commands::listFiles(session, text(v.reference)); })
        ->add_option("directory", v.reference, "The root unless given; with either slash")
        ->type_name("");
    CLI::App *get = command(
        *parent, "get",
        "Fetch a file; before it replaces one it asks, and refuses where nobody can answer",
        [&v](Session &session) {
            return Commands::getFile(session, text(v.reference), text(v.second), v.overwrites);
        });
    get->add_option("remote", v.reference, "File on the device")->type_name("")->required();
    get->add_option("local", v.second, "File or folder here; of the same name unless given")
        ->type_name("");
    get->add_flag("-f,--overwrite,--force", v.overwrites,
                  "Replace a file that is there, without a question");
    CLI::App *put = command(*parent, "put", "Send a file", [&v](Session &session) {
        return Commands::putFile(session, text(v.reference), text(v.second));
    });
    put->add_option("local", v.reference, "File here")->type_name("")->required();
    put->add_option("remote", v.second, "File on the device; of the same name unless given")
        ->type_name("");
    command(*parent, "rm", "Delete a file on the device",
            [&v](Session &session) { return Commands::removeFile(session, text(v.reference)); })
        ->add_option("remote", v.reference, "File on the device")
        ->type_name("")
        ->required();
}

void CommandSet::addBatch(CLI::App &app)
{
    CLI::App *batch =
        app.add_subcommand("batch", "Run commands within one association, one a line");
    batch
        ->add_option("file", m_values.batch,
                     "File with commands, # begins a comment; standard input unless given, "
                     "or with -")
        ->type_name("");
    batch->callback([this] {
        if (m_values.batch.empty())
            m_values.batch = "-";
    });
}
