// SPDX-License-Identifier: Apache-2.0
#include "simulator/commandline.h"

#include "simulator/faults.h"

#include <CLI/CLI.hpp>

#include <fstream>
#include <limits>

namespace iedsim {

namespace {

constexpr const char *description =
    "Simulates IEDs on the network, made from SCL files (IEC 61850).\n"
    "Several IEDs listen on consecutive ports. SIGINT and SIGTERM end the program.";

constexpr const char *examples =
    "Examples:\n"
    "  iedsim bay.icd --animate\n"
    "  iedsim station.scd --ied AA1E1Q01 --ied AA1E1Q02 --port 10200\n"
    "  iedsim bay.cid --files records --faults slow.txt --tls own.pem,own.key,ca.pem\n"
    "Exit status: 0 after an orderly end, 1 when a device cannot be simulated, 2 for a mistake on the "
    "command line.";

Ending mistake(const std::string &message)
{
    return {"iedsim: " + message, usageStatus};
}

} // namespace

std::variant<CommandLine, Ending> parseCommandLine(int argc, const char *const *argv)
{
    CommandLine result;
    sim::SimulationOptions &simulation = result.simulation;
    simulation.port = 10102;
    sim::AnimationOptions animation;
    sim::FileOptions files;
    std::string password;
    std::string passwordFile;
    std::string directory;
    std::int64_t interval = animation.step.count();
    std::vector<std::string> tls;
    std::vector<std::string> revocationLists;
    std::vector<std::string> pins;
    bool animate = false;
    bool calm = false;
    bool helpFaults = false;

    CLI::App app(description, "iedsim");
    app.footer(examples);
    app.set_version_flag("--version", "iedsim " IEDSIM_VERSION);
    app.add_option("FILE", result.files, "SCL files (ICD, CID, IID, SCD, SSD)");
    app.add_option("--ied", result.ieds, "Name of an IED to simulate; may be repeated")
        ->take_all()
        ->expected(1);
    app.add_flag("--all", result.allIeds, "Simulate every IED of the files that has a server");
    app.add_flag("--list", result.list, "Tell which IEDs the files describe, and end");
    app.add_option("--address", simulation.address,
                   "Address to listen on, 0.0.0.0 for all interfaces")
        ->capture_default_str();
    app.add_option("--port", simulation.port,
                   "Port of the first IED; 0 takes free ones, which are told")
        ->capture_default_str();
    app.add_option("--max-associations", simulation.maxAssociations, "Associations of each IED")
        ->capture_default_str()
        ->check(CLI::Range(1, 10000));
    app.add_option("--max-pdu", simulation.maxPduSize, "Longest PDU in octets")
        ->capture_default_str()
        ->check(CLI::Range(mms::smallestPduSize, 1000000));
    app.add_option("--password", password, "Password that clients must give");
    app.add_option("--password-file", passwordFile, "File whose first line is that password");
    app.add_option("--tls", tls,
                   "Certificate, key and trusted authorities (PEM files), with commas between them")
        ->delimiter(',')
        ->expected(1);
    app.add_option("--tls-crl", revocationLists, "Revocation list; may be repeated")->expected(1);
    app.add_option("--tls-pin", pins,
                   "SHA-256 fingerprint of a client's certificate; may be repeated")
        ->expected(1);
    app.add_flag("--animate", animate,
                 "Let measurements move, switches operate and protection pick up");
    app.add_option("--seed", animation.seed, "Which course the animation takes")
        ->capture_default_str();
    app.add_option("--interval", interval, "Milliseconds between measurements")
        ->capture_default_str()
        ->check(CLI::Range(10, 3600000));
    app.add_flag("--no-events", calm, "With --animate: measurements only");
    app.add_option("--files", directory, "Directory whose files are served");
    app.add_flag("--files-read-only", files.readOnly, "Clients cannot change files");
    app.add_flag("--files-flat", files.flatListing,
                 "Listings have all files below, and no directories");
    app.add_flag("--files-one-part", files.onePartNames, "Names of several parts are refused");
    app.add_flag("--files-keep", files.keepExisting, "An upload does not replace a file");
    app.add_option("--faults", simulation.faults, "Script of what goes wrong");
    app.add_flag("--help-faults", helpFaults, "Tell how such a script is written, and end");
    app.add_flag("--quiet", result.quiet, "Tell only where the IEDs listen");

    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp &) {
        return Ending{app.help(), 0};
    } catch (const CLI::CallForVersion &version) {
        return Ending{std::string(version.what()) + "\n", 0};
    } catch (const CLI::ParseError &error) {
        return mistake(error.what());
    }
    if (helpFaults)
        return Ending{sim::faultsHelp(), 0};
    if (result.files.empty())
        return mistake("an SCL file is needed; --help tells more.");
    if (result.allIeds && !result.ieds.empty())
        return mistake("--all and --ied exclude each other.");
    if (!passwordFile.empty()) {
        std::ifstream file(passwordFile);
        if (!std::getline(file, password))
            return mistake("the password file \"" + passwordFile + "\" cannot be read.");
        if (password.ends_with('\r'))
            password.pop_back();
    }
    if (app.count("--password") > 0 || !passwordFile.empty())
        simulation.password = password;
    if (!tls.empty()) {
        if (tls.size() < 2)
            return mistake("--tls needs a certificate, a key and trusted authorities.");
        simulation.tls = mms::TlsOptions();
        simulation.tls->certificateFile = tls[0];
        simulation.tls->keyFile = tls[1];
        simulation.tls->authorityFiles.assign(tls.begin() + 2, tls.end());
        simulation.tls->revocationFiles = revocationLists;
        simulation.tls->pins = pins;
    } else if (!revocationLists.empty() || !pins.empty()) {
        return mistake("--tls-crl and --tls-pin need --tls.");
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
