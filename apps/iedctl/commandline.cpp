// SPDX-License-Identifier: Apache-2.0
#include "commandline.h"

#include "commands.h"
#include "projectversion.h"

#include <CLI/CLI.hpp>

#include <QtCore/QFile>

#include <algorithm>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace {

using Command = std::function<ExitStatus(Session &)>;

QString text(const std::string &bytes)
{
    return QString::fromStdString(bytes);
}

QStringList texts(const std::vector<std::string> &list)
{
    QStringList result;
    for (const std::string &each : list)
        result.append(text(each));
    return result;
}

std::optional<QString> optionalText(const CLI::Option *option, const std::string &value)
{
    return option->count() > 0 ? std::optional(text(value)) : std::nullopt;
}

/// Where the parser puts the values of the command that it found.
struct Values
{
    std::string connect;
    std::string sclFile;
    std::string ied;
    std::string accessPoint;
    std::string password;
    std::string passwordFile;
    int passwordDescriptor = -1;
    std::vector<std::string> authorities;
    std::vector<std::string> pins;
    std::vector<std::string> revocations;
    std::string peerName;
    bool acceptsOtherNames = false;
    std::string keyPasswordFile;
    std::string certificate;
    std::string key;
    double timeout = 5;
    bool json = false;
    bool readOnly = false;

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

// Data that no report brings is looked at this often.
constexpr int watchIntervalMs = 1000;
/// What a device's configuration takes.
constexpr std::chrono::milliseconds longestOperation{600000};

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

/// A check that does not show in the help: the option's text says the range.
CLI::Validator unnamed(CLI::Validator check)
{
    return check.description({});
}

/// The first line of what is open.
QString firstLine(QFile &file, const QString &name, QString &refusal)
{
    constexpr qint64 longest = 4096;
    QByteArray line = file.readLine(longest);
    while (line.endsWith('\n') || line.endsWith('\r'))
        line.chop(1);
    if (line.isEmpty())
        refusal = QStringLiteral("%1 holds no password.").arg(name);
    return QString::fromUtf8(line);
}

QString secretFrom(const QString &path, QString &refusal)
{
    QFile file(path);
    const QString name = QStringLiteral("The file \"%1\"").arg(path);
    if (file.open(QIODevice::ReadOnly))
        return firstLine(file, name, refusal);
    refusal = QStringLiteral("%1 cannot be read: %2.").arg(name, file.errorString());
    return {};
}

QString secretFrom(int descriptor, QString &refusal)
{
    QFile file;
    const QString name = QStringLiteral("The descriptor %1").arg(descriptor);
    // Not one octet more than the line: what is behind it may be the commands of a batch.
    if (file.open(descriptor, QIODevice::ReadOnly | QIODevice::Unbuffered))
        return firstLine(file, name, refusal);
    refusal = QStringLiteral("%1 cannot be read: %2.").arg(name, file.errorString());
    return {};
}

class Parser
{
public:
    explicit Parser(bool inBatch)
        : m_app("Talks to an IEC 61850 server, or shows what an SCL file says of one.", "iedctl")
    {
        m_app.require_subcommand(1);
        m_app.fallthrough();
        m_app.formatter(std::make_shared<HelpFormatter>());
        if (!inBatch)
            addProgramOptions();
        addModelCommands();
        addValueCommands();
        addDataSetCommands();
        addReportCommands();
        addControlCommands();
        addGroupCommands();
        addFileCommands();
        if (!inBatch) {
            CLI::App *batch =
                m_app.add_subcommand("batch", "Run commands within one association, one a line");
            batch
                ->add_option("file", m_values.batch,
                             "File with commands, # begins a comment; standard input unless given, "
                             "or with -")
                ->type_name("");
            batch->callback([this] {
                if (m_values.batch.empty())
                    m_values.batch = "-";
            });
            // Commands would inherit what is there before them.
            m_app.set_help_all_flag("--help-all", "Help of all commands");
            addFooters(m_app);
            m_app.footer(programFooter);
        }
    }

    CLI::App &app() { return m_app; }

    std::variant<Invocation, Answer> result() const
    {
        Invocation invocation;
        invocation.json = m_values.json;
        invocation.readOnly = m_values.readOnly;
        invocation.batch = text(m_values.batch);
        invocation.command = m_values.command;
        DeviceConfiguration &device = invocation.device;
        device.number = 1;
        device.sclFile = text(m_values.sclFile);
        device.ied = text(m_values.ied);
        device.accessPoint = text(m_values.accessPoint);
        device.password = text(m_values.password);
        const auto timeout =
            std::chrono::milliseconds(static_cast<std::int64_t>(m_values.timeout * 1000));
        device.name = text(!m_values.connect.empty() ? m_values.connect
                           : !m_values.ied.empty()   ? m_values.ied
                                                     : m_values.sclFile);
        device.connectTimeout = timeout;
        device.callTimeout = timeout;
        device.operationTimeout = std::min(3 * timeout, longestOperation);
        device.tls.enabled = !m_values.authorities.empty() || !m_values.pins.empty();
        device.tls.authorityFiles = texts(m_values.authorities);
        device.tls.pins = texts(m_values.pins);
        device.tls.revocationFiles = texts(m_values.revocations);
        device.tls.peerName = text(m_values.peerName);
        device.tls.acceptsOtherNames = m_values.acceptsOtherNames;
        device.tls.certificateFile = text(m_values.certificate);
        device.tls.keyFile = text(m_values.key);
        device.pollInterval = std::chrono::milliseconds(m_values.polls ? watchIntervalMs : 0);
        QString secretRefusal;
        if (!m_values.passwordFile.empty())
            device.password = secretFrom(text(m_values.passwordFile), secretRefusal);
        else if (m_values.passwordDescriptor >= 0)
            device.password = secretFrom(m_values.passwordDescriptor, secretRefusal);
        if (!m_values.keyPasswordFile.empty())
            device.tls.keyPassword = secretFrom(text(m_values.keyPasswordFile), secretRefusal);
        if (!secretRefusal.isEmpty())
            return Answer{secretRefusal, true, ExitStatus::Usage};
        if (!m_values.connect.empty()) {
            const QString refusal = takeAddress(text(m_values.connect), device);
            if (!refusal.isEmpty())
                return Answer{refusal, true, ExitStatus::Usage};
        }
        return invocation;
    }

private:
    static QString takeAddress(const QString &address, DeviceConfiguration &device)
    {
        // The port is behind the last colon, unless that is one of an IPv6 address.
        int colon = address.lastIndexOf(QLatin1Char(':'));
        if (address.startsWith(QLatin1Char('['))) {
            const int bracket = address.indexOf(QLatin1Char(']'));
            device.host = address.mid(1, bracket - 1);
            colon = address.indexOf(QLatin1Char(':'), bracket);
        } else if (address.count(QLatin1Char(':')) > 1) {
            device.host = address;
            colon = -1;
        } else {
            device.host = colon < 0 ? address : address.left(colon);
        }
        if (colon >= 0) {
            bool isNumber = false;
            device.port = address.mid(colon + 1).toInt(&isNumber);
            if (!isNumber || device.port < 1 || device.port > 65535) {
                return QStringLiteral("\"%1\" is not a port (1 to 65535).")
                    .arg(address.mid(colon + 1));
            }
        }
        return device.host.isEmpty() ? QStringLiteral("\"%1\" does not name a host.").arg(address)
                                     : QString();
    }

    void addProgramOptions()
    {
        CLI::Option *connect = m_app
                                   .add_option("-c,--connect", m_values.connect,
                                               "The server; the port is 102 unless given")
                                   ->type_name("HOST[:PORT]");
        CLI::Option *scl =
            m_app
                .add_option("-s,--scl", m_values.sclFile,
                            "SCL file that describes the device; alone, nothing is connected")
                ->type_name("FILE")
                ->check(unnamed(CLI::ExistingFile));
        m_app.add_option("--ied", m_values.ied, "IED of the SCL file, where it describes several")
            ->type_name("NAME")
            ->needs(scl);
        m_app
            .add_option("--access-point", m_values.accessPoint,
                        "Access point of the IED; found by the address unless given")
            ->type_name("NAME")
            ->needs(scl);
        CLI::Option *password =
            m_app
                .add_option("--password", m_values.password,
                            "Password for the association; other users of this computer may see it")
                ->type_name("TEXT")
                ->needs(connect);
        CLI::Option *passwordFile = m_app
                                        .add_option("--password-file", m_values.passwordFile,
                                                    "The password is the first line of a file")
                                        ->type_name("FILE")
                                        ->needs(connect)
                                        ->excludes(password);
        m_app
            .add_option("--password-fd", m_values.passwordDescriptor,
                        "The password is the first line that can be read from an open descriptor")
            ->type_name("NUMBER")
            ->check(unnamed(CLI::NonNegativeNumber))
            ->needs(connect)
            ->excludes(password)
            ->excludes(passwordFile);
        m_app
            .add_option("--tls-ca", m_values.authorities,
                        "Connect over TLS; who may have issued the server's certificate (PEM); may "
                        "be given several times")
            ->type_name("FILE")
            ->expected(1)
            ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
            ->needs(connect);
        m_app
            .add_option("--tls-pin", m_values.pins,
                        "Connect over TLS to the server with this certificate only: its SHA-256 "
                        "fingerprint; may be given several times")
            ->type_name("HEX")
            ->expected(1)
            ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
            ->needs(connect);
        m_app
            .add_option("--tls-crl", m_values.revocations,
                        "Revocation list (PEM) of the issuers; may be given several times")
            ->type_name("FILE")
            ->expected(1)
            ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
            ->needs(connect);
        CLI::Option *peerName =
            m_app
                .add_option(
                    "--tls-name", m_values.peerName,
                    "Host name or address that the server's certificate is made out to; the "
                    "host of --connect unless given")
                ->type_name("NAME")
                ->needs(connect);
        m_app
            .add_flag(
                "--tls-accept-other-names", m_values.acceptsOtherNames,
                "Accept a server's certificate that is made out to another name or address. "
                "Unsafe: whoever holds the key of any certificate of these issuers can pose as "
                "the server")
            ->needs(connect)
            ->excludes(peerName);
        CLI::Option *certificate =
            m_app.add_option("--tls-cert", m_values.certificate, "Own certificate (PEM)")
                ->type_name("FILE")
                ->needs(connect);
        CLI::Option *key =
            m_app.add_option("--tls-key", m_values.key, "Key of the certificate (PEM)")
                ->type_name("FILE")
                ->needs(certificate);
        certificate->needs(key);
        m_app
            .add_option("--tls-key-password-file", m_values.keyPasswordFile,
                        "The password of the key is the first line of a file")
            ->type_name("FILE")
            ->needs(key);
        m_app
            .add_option("--timeout", m_values.timeout,
                        "Limit of each request in seconds, from 0.1 to 600")
            ->type_name("SECONDS")
            ->capture_default_str()
            ->check(unnamed(CLI::Range(0.1, 600.0)));
        m_app.add_flag("--json", m_values.json, "Results as JSON, streams as one object a line");
        m_app.add_flag("--read-only", m_values.readOnly,
                       "Refuse everything that changes something on the device");
        m_app.set_version_flag("--version", std::string("iedctl ") + projectVersion);
        m_app.callback([this] {
            if (m_values.connect.empty() && m_values.sclFile.empty())
                throw CLI::RequiredError("--connect HOST:PORT or --scl FILE");
            const bool trusts = !m_values.authorities.empty() || !m_values.pins.empty();
            const bool needsTrust = !m_values.certificate.empty() || !m_values.peerName.empty() ||
                                    !m_values.revocations.empty() || m_values.acceptsOtherNames;
            if (needsTrust && !trusts)
                throw CLI::RequiredError("With TLS, --tls-ca FILE or --tls-pin HEX");
        });
    }

    CLI::App *command(CLI::App *parent, const char *name, const char *help, Command action)
    {
        CLI::App *added = parent->add_subcommand(name, help);
        added->callback([this, action = std::move(action)] { m_values.command = action; });
        return added;
    }

    CLI::App *family(const char *name, const char *help)
    {
        CLI::App *added = m_app.add_subcommand(name, help);
        added->require_subcommand(1);
        return added;
    }

    static void addFooters(const CLI::App &app)
    {
        const auto any = [](const CLI::App *) { return true; };
        // What is not const is given out by name only.
        for (const CLI::App *command : app.get_subcommands(any)) {
            CLI::App *each = app.get_subcommand(command->get_name());
            each->footer(each->get_subcommands(any).empty()
                             ? commandFooter
                             : "Each has its own help: iedctl " + each->get_name() +
                                   " COMMAND --help");
            addFooters(*each);
        }
    }

    void addModelCommands()
    {
        Values &v = m_values;
        CLI::App *model = command(&m_app, "model", "What the device has", [&v](Session &session) {
            return Commands::model(session, v.attributes);
        });
        model->add_flag("-a,--attributes", v.attributes, "With every data attribute and its type");

        CLI::App *directory =
            command(&m_app, "directory", "Ask the device for names", [&v](Session &session) {
                v.directory.reference = text(v.reference);
                return Commands::directory(session, v.directory);
            });
        directory
            ->add_option(
                "reference", v.reference,
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
        command(&m_app, "abort", "Abort the association", &Commands::abort);
    }

    void addLimits(CLI::App *app, const char *what)
    {
        app->add_option("--count", m_values.limit.count, what)
            ->type_name("N")
            ->check(unnamed(CLI::PositiveNumber));
        app->add_option("--seconds", m_values.limit.seconds, "End after so many seconds")
            ->type_name("N")
            ->check(unnamed(CLI::PositiveNumber));
    }

    void addValueCommands()
    {
        Values &v = m_values;
        CLI::App *read = command(&m_app, "read", "Read values", [&v](Session &session) {
            return Commands::read(session, texts(v.list));
        });
        read->add_option("references", v.list, referenceHelp)->type_name("")->required();

        CLI::App *write =
            command(&m_app, "write", "Write one value and read it back", [&v](Session &session) {
                return Commands::write(session, text(v.reference), text(v.value));
            });
        write
            ->add_option("reference", v.reference,
                         "One data attribute, \"LD/LN.Data.attribute\" or "
                         "\"LD/LN$FC$Data$attribute\"")
            ->type_name("")
            ->required();
        write->add_option("value", v.value, valueHelp)->type_name("")->required();

        CLI::App *watch = command(
            &m_app, "watch", "Show values as they come, until stopped",
            [&v](Session &session) { return Commands::watch(session, texts(v.list), v.limit); });
        watch->preparse_callback([&v](std::size_t) { v.polls = true; });
        watch->add_option("references", v.list, "Data as in \"read\"; all unless given")
            ->type_name("");
        addLimits(watch, "End after so many values");
    }

    void addDataSetCommands()
    {
        Values &v = m_values;
        CLI::App *parent = family("dataset", "Data sets");
        CLI::App *list = command(parent, "list", "Names", [&v](Session &session) {
            return Commands::listDataSets(session, text(v.reference));
        });
        list->add_option("logical-device", v.reference, "Of this logical device only")
            ->type_name("");
        const auto add = [&](const char *name, const char *help, Command action) {
            CLI::App *added = command(parent, name, help, std::move(action));
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

    void addReportCommands()
    {
        Values &v = m_values;
        CLI::App *parent = family("report", "Report control blocks");
        command(parent, "list", "Names", &Commands::listReports);
        const auto add = [&](const char *name, const char *help, Command action) {
            CLI::App *added = command(parent, name, help, std::move(action));
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
                ->add_option(
                    "--optflds", v.optionalFields,
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
        addLimits(enable, "End after so many reports");
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

    void addControlCommands()
    {
        const auto add = [this](const char *name, const char *help,
                                ExitStatus (*action)(Session &, const Commands::ControlRequest &)) {
            Values &v = m_values;
            CLI::App *added = m_app.add_subcommand(name, help);
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

    void addGroupCommands()
    {
        Values &v = m_values;
        CLI::App *parent = family("group", "Setting groups");
        const auto add = [&](const char *name, const char *help, Command action) {
            CLI::App *added = command(parent, name, help, std::move(action));
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
            [&v](Session &session) {
                return Commands::editGroup(session, text(v.reference), v.group);
            })
            ->add_option("group", v.group, "Number of the group; 0 gives up editing")
            ->type_name("")
            ->required();
        CLI::App *write =
            add("write", "Write settings of a group and confirm them; the others stay as they are",
                [&v](Session &session) {
                    return Commands::writeGroup(session, text(v.reference), v.group, texts(v.list));
                });
        write
            ->add_option("--group", v.group,
                         "Number of the group; the one being edited unless given")
            ->type_name("N");
        write->add_option("settings", v.list, settingsHelp)->type_name("")->required();
    }

    void addFileCommands()
    {
        Values &v = m_values;
        CLI::App *parent = family("file", "Files of the device");
        command(parent, "ls", "List a directory",
                [&v](Session &session) { return Commands::listFiles(session, text(v.reference)); })
            ->add_option("directory", v.reference, "The root unless given; with either slash")
            ->type_name("");
        CLI::App *get = command(
            parent, "get",
            "Fetch a file; before it replaces one it asks, and refuses where nobody can answer",
            [&v](Session &session) {
                return Commands::getFile(session, text(v.reference), text(v.second), v.overwrites);
            });
        get->add_option("remote", v.reference, "File on the device")->type_name("")->required();
        get->add_option("local", v.second, "File or folder here; of the same name unless given")
            ->type_name("");
        get->add_flag("-f,--overwrite,--force", v.overwrites,
                      "Replace a file that is there, without a question");
        CLI::App *put = command(parent, "put", "Send a file", [&v](Session &session) {
            return Commands::putFile(session, text(v.reference), text(v.second));
        });
        put->add_option("local", v.reference, "File here")->type_name("")->required();
        put->add_option("remote", v.second, "File on the device; of the same name unless given")
            ->type_name("");
        command(parent, "rm", "Delete a file on the device",
                [&v](Session &session) { return Commands::removeFile(session, text(v.reference)); })
            ->add_option("remote", v.reference, "File on the device")
            ->type_name("")
            ->required();
    }

    Values m_values;
    CLI::App m_app;
};

/// The help of the program and of every command, those of families included.
std::string helpOfAll(const CLI::App &app, const std::string &before = {})
{
    const auto any = [](const CLI::App *) { return true; };
    std::string page;
    const std::vector<const CLI::App *> commands = app.get_subcommands(any);
    if (commands.empty() || !app.get_parent())
        page = app.help(before);
    const std::string name = before.empty() ? app.get_name() : before + ' ' + app.get_name();
    for (const CLI::App *command : commands)
        page += '\n' + helpOfAll(*command, name);
    return page;
}

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
    Parser parser(false);
    const CLI::App &app = parser.app();
    QString page =
        QStringLiteral(".TH IEDCTL 1 \"\" \"iedctl %1\"\n").arg(QLatin1String(projectVersion));
    page += QStringLiteral(".SH NAME\niedctl \\- IEC 61850 client for scripts and terminals\n");
    page += QStringLiteral(".SH SYNOPSIS\n.B iedctl\n[\\-\\-connect \\fIHOST\\fR[:\\fIPORT\\fR]] "
                           "[\\-\\-scl \\fIFILE\\fR] [\\fIoptions\\fR] \\fIcommand\\fR ...\n");
    page += QStringLiteral(".SH DESCRIPTION\n%1\n").arg(roff(app.get_description()));
    page += QStringLiteral(".SH OPTIONS\n") + manualOptions(app);
    page += QStringLiteral(".SH COMMANDS\n") + manualCommands(app, {});
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
