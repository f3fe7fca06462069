// SPDX-License-Identifier: Apache-2.0
#include "commandline.h"

#include "simulator/faults.h"
#include "simulator/oddities.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <array>
#include <fstream>
#include <optional>
#include <sstream>
#include <string_view>

namespace iedsim {

namespace {

constexpr const char *description =
    "Simulates IEDs on the network, made from SCL files (IEC 61850). "
    "Several IEDs listen on consecutive ports. SIGINT and SIGTERM end the program.";

constexpr std::array examples = {
    "iedsim bay.icd --animate",
    "iedsim station.scd --ied AA1E1Q01 --ied AA1E1Q02 --port 10200",
    "iedsim bay.cid --files records --faults slow.txt --tls own.pem,own.key,ca.pem",
};

constexpr std::array<std::array<const char *, 2>, 3> statuses = {{
    {"0", "An orderly end, by a signal or after what was only to be told."},
    {"1", "A device cannot be simulated."},
    {"2", "The command line cannot be understood."},
}};

Ending mistake(std::string message)
{
    if (!message.ends_with('.'))
        message += '.';
    return {"iedsim: " + message + " Try \"iedsim --help\".", usageStatus};
}

std::string footer()
{
    std::string text = "Examples:\n";
    for (const char *example : examples)
        text += "  " + std::string(example) + "\n";
    text += "Exit status:\n";
    for (const auto &[status, meaning] : statuses)
        text += "  " + std::string(status) + "  " + meaning + "\n";
    return text;
}

/// Limits that the option's description tells.
CLI::Range within(int low, int high)
{
    CLI::Range range(low, high);
    range.description("");
    return range;
}

std::string roff(const std::string &text)
{
    std::string result;
    for (const char each : text) {
        if (each == '\\')
            result += "\\e";
        else if (each == '-')
            result += "\\-";
        else
            result += each;
    }
    return result.starts_with('.') || result.starts_with('\'') ? "\\&" + result : result;
}

std::string manualPage(const CLI::App &app)
{
    std::string page = ".TH IEDSIM 1 \"\" \"iedsim " IEDSIM_VERSION "\"\n"
                       ".SH NAME\niedsim \\- simulated IEC 61850 devices made from SCL files\n"
                       ".SH SYNOPSIS\n.B iedsim\n\\fIFILE\\fR... [\\fIoptions\\fR]\n"
                       ".SH DESCRIPTION\n" +
                       roff(description) + "\n.SH OPTIONS\n";
    for (const CLI::Option *option : app.get_options()) {
        page += ".TP\n.B " + roff(option->get_name(option->get_positional(), true));
        if (option->get_items_expected_max() > 0 && !option->get_positional())
            page += " \\fI" + roff(option->get_type_name()) + "\\fR";
        page += "\n" + roff(option->get_description());
        if (!option->get_default_str().empty())
            page += "; " + roff(option->get_default_str()) + " unless told otherwise";
        page += "\n";
    }
    page += ".SH FAULTS\n.nf\n";
    std::istringstream help(sim::faultsHelp());
    for (std::string line; std::getline(help, line);)
        page += roff(line) + "\n";
    page += ".fi\n.SH ODDITIES\n.nf\n";
    std::istringstream odd(sim::odditiesHelp());
    for (std::string line; std::getline(odd, line);)
        page += roff(line) + "\n";
    page += ".fi\n.SH EXIT STATUS\n";
    for (const auto &[status, meaning] : statuses)
        page += ".TP\n.B " + std::string(status) + "\n" + roff(meaning) + "\n";
    page += ".SH EXAMPLES\n.nf\n";
    for (const char *example : examples)
        page += roff(example) + "\n";
    return page + ".fi\n";
}

/// The first line of a file; none when it cannot be read.
std::optional<std::string> firstLine(const std::string &path)
{
    std::ifstream file(path);
    std::string line;
    if (!std::getline(file, line))
        return {};
    if (line.ends_with('\r'))
        line.pop_back();
    return line;
}

std::vector<std::string> partsOf(std::string_view text)
{
    std::vector<std::string> parts;
    while (true) {
        const std::size_t size = std::min(text.find(','), text.size());
        parts.emplace_back(text.substr(0, size));
        if (size == text.size())
            return parts;
        text.remove_prefix(size + 1);
    }
}

} // namespace

std::variant<CommandLine, Ending> parseCommandLine(int argc, const char *const *argv)
{
    CommandLine result;
    sim::SimulationOptions &simulation = result.simulation;
    sim::AnimationOptions animation;
    sim::FileOptions files;
    int port = 10102;
    int idleLimit = 900;
    std::string password;
    std::string passwordFile;
    std::string directory;
    std::int64_t interval = animation.step.count();
    std::string tls;
    std::string keyPasswordFile;
    std::vector<std::string> revocationLists;
    std::vector<std::string> pins;
    bool animate = false;
    bool calm = false;
    std::vector<std::string> oddities;
    bool helpFaults = false;
    bool helpOddities = false;
    bool manual = false;

    CLI::App app(description, "iedsim");
    app.footer(footer());
    app.set_version_flag("--version", "iedsim " IEDSIM_VERSION, "Tell the version, and end");
    app.add_option("FILE", result.files, "SCL files (ICD, CID, IID, SCD, SED, SSD)")->type_name("");
    app.add_option("--ied", result.ieds, "An IED to simulate, by name; may be repeated")
        ->type_name("NAME")
        ->expected(1)
        ->take_all();
    app.add_flag("--all", result.allIeds, "Simulate every IED of the files that has a server");
    app.add_flag("--list", result.list, "Tell which IEDs the files describe, and end");
    app.add_option("--address", simulation.address,
                   "Address to listen on; 0.0.0.0 for all interfaces")
        ->type_name("ADDRESS")
        ->capture_default_str();
    app.add_option("--port", port, "Port of the first IED; 0 takes free ones, which are told")
        ->type_name("PORT")
        ->capture_default_str()
        ->check(within(0, 65535));
    app.add_option("--max-associations", simulation.maxAssociations,
                   "Associations of each IED, 1 to 10000")
        ->type_name("N")
        ->capture_default_str()
        ->check(within(1, 10000));
    app.add_option("--max-half-open", simulation.maxHalfOpenOfPeer,
                   "Connections of one client that are no associations yet, 1 to 10000")
        ->type_name("N")
        ->capture_default_str()
        ->check(within(1, 10000));
    app.add_option("--idle-limit", idleLimit,
                   "Seconds after which a silent client is cut off, up to 86400; 0 for never")
        ->type_name("SECONDS")
        ->capture_default_str()
        ->check(within(0, 86400));
    app.add_option("--max-pdu", simulation.maxPduSize, "Longest PDU in octets, 1000 to 1000000")
        ->type_name("OCTETS")
        ->capture_default_str()
        ->check(within(mms::smallestPduSize, 1000000));
    CLI::Option *const passwordOption =
        app.add_option("--password", password, "Password that clients must give")
            ->type_name("TEXT");
    app.add_option("--password-file", passwordFile, "File whose first line is that password")
        ->type_name("FILE")
        ->excludes(passwordOption);
    CLI::Option *const tlsOption =
        app.add_option("--tls", tls,
                       "Certificate, key and trusted authorities: PEM files, with commas between")
            ->type_name("CERT,KEY,CA...");
    app.add_option("--tls-key-password-file", keyPasswordFile,
                   "File whose first line is the password of the key")
        ->type_name("FILE")
        ->needs(tlsOption);
    app.add_option("--tls-crl", revocationLists, "Revocation list; may be repeated")
        ->type_name("FILE")
        ->expected(1)
        ->take_all()
        ->needs(tlsOption);
    app.add_option("--tls-pin", pins,
                   "SHA-256 fingerprint of a client's certificate; may be repeated")
        ->type_name("DIGITS")
        ->expected(1)
        ->take_all()
        ->needs(tlsOption);
    CLI::Option *const animateOption = app.add_flag(
        "--animate", animate, "Let measurements move, switches operate and protection pick up");
    app.add_option("--seed", animation.seed, "Which course the animation takes")
        ->type_name("N")
        ->capture_default_str()
        ->needs(animateOption);
    app.add_option("--interval", interval, "Milliseconds between measurements, 10 to 3600000")
        ->type_name("MS")
        ->capture_default_str()
        ->check(within(10, 3600000))
        ->needs(animateOption);
    app.add_flag("--no-events", calm, "Animate measurements only")->needs(animateOption);
    CLI::Option *const filesOption =
        app.add_option("--files", directory, "Directory whose files are served")
            ->type_name("DIRECTORY");
    app.add_flag("--files-read-only", files.readOnly, "Clients cannot change files")
        ->needs(filesOption);
    app.add_flag("--files-flat", files.flatListing,
                 "Listings have all files below, and no directories")
        ->needs(filesOption);
    app.add_flag("--files-one-part", files.onePartNames, "Names of several parts are refused")
        ->needs(filesOption);
    app.add_flag("--files-keep", files.keepExisting, "An upload does not replace a file")
        ->needs(filesOption);
    app.add_option("--faults", simulation.faults, "Script of what goes wrong")->type_name("SCRIPT");
    app.add_flag("--help-faults", helpFaults, "Tell how such a script is written, and end");
    app.add_option("--odd", oddities, "Something that the device does otherwise; may be repeated")
        ->type_name("NAME")
        ->expected(1)
        ->take_all();
    app.add_flag("--help-odd", helpOddities, "Tell what there is for --odd, and end");
    app.add_flag("--quiet", result.quiet, "Tell only where the IEDs listen");
    app.add_flag("--manual-page", manual, "Write the manual page, and end");

    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp &) {
        return Ending{app.help(), 0};
    } catch (const CLI::CallForVersion &version) {
        return Ending{std::string(version.what()) + "\n", 0};
    } catch (const CLI::ParseError &error) {
        return mistake(error.what());
    }
    if (manual)
        return Ending{manualPage(app), 0};
    if (helpFaults)
        return Ending{sim::faultsHelp(), 0};
    if (helpOddities)
        return Ending{sim::odditiesHelp(), 0};
    if (result.files.empty())
        return mistake("An SCL file is needed.");
    if (result.allIeds && !result.ieds.empty())
        return mistake("--all and --ied exclude each other.");
    for (const std::string &name : oddities) {
        if (const auto added = sim::addOddity(simulation.oddities, name); !added)
            return mistake(added.error().message.english());
    }
    simulation.port = static_cast<std::uint16_t>(port);
    simulation.idleLimit = std::chrono::seconds(idleLimit);
    if (!passwordFile.empty()) {
        const auto line = firstLine(passwordFile);
        if (!line)
            return mistake("The password file \"" + passwordFile + "\" cannot be read.");
        simulation.password = *line;
    } else if (passwordOption->count() > 0) {
        simulation.password = password;
    }
    if (tlsOption->count() > 0) {
        const std::vector<std::string> parts = partsOf(tls);
        if (parts.size() < 2 || (parts.size() < 3 && pins.empty()) ||
            std::ranges::find(parts, std::string()) != parts.end()) {
            return mistake("--tls needs a certificate, a key and trusted authorities or --tls-pin, "
                           "as in \"--tls own.pem,own.key,ca.pem\".");
        }
        simulation.tls = osi::TlsOptions();
        simulation.tls->certificateFile = parts[0];
        simulation.tls->keyFile = parts[1];
        simulation.tls->authorityFiles.assign(parts.begin() + 2, parts.end());
        simulation.tls->revocationFiles = revocationLists;
        simulation.tls->pins = pins;
        if (!keyPasswordFile.empty()) {
            const auto line = firstLine(keyPasswordFile);
            if (!line)
                return mistake("The password file \"" + keyPasswordFile + "\" cannot be read.");
            simulation.tls->keyPassword = *line;
        }
    }
    if (animate) {
        animation.step = std::chrono::milliseconds(interval);
        animation.events = !calm;
        simulation.animation = animation;
    }
    if (!directory.empty()) {
        files.directory = directory;
        simulation.files = files;
    }
    return result;
}

} // namespace iedsim
