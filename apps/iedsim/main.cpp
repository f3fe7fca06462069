// SPDX-License-Identifier: Apache-2.0
#include "commandline.h"

#include "scl/reader.h"

#include <asio/io_context.hpp>
#include <asio/signal_set.hpp>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdio>
#include <exception>
#include <mutex>
#include <thread>
#include <utility>

namespace {

using iedsim::CommandLine;
using iedsim::Ending;

/// An IED that shall be simulated, in the document that has it.
struct Chosen
{
    const scl::Ied *ied = nullptr;
    bool firstEdition = false;
};

struct Described
{
    std::string file;
    std::unique_ptr<scl::Document> document;
};

void say(std::FILE *stream, const std::string &line)
{
    static std::mutex mutex;
    const std::lock_guard lock(mutex);
    std::fprintf(stream, "%s\n", line.c_str());
    std::fflush(stream);
}

void complain(const std::string &message)
{
    say(stderr, "iedsim: " + message);
}

std::string timeOfDay()
{
    using namespace std::chrono;
    const auto now = floor<milliseconds>(system_clock::now());
    const hh_mm_ss time(now - floor<days>(now));
    std::array<char, 32> text{};
    const int size = std::snprintf(
        text.data(), text.size(), "%02ld:%02ld:%02ld.%03ld",
        static_cast<long>(time.hours().count()), static_cast<long>(time.minutes().count()),
        static_cast<long>(time.seconds().count()), static_cast<long>(time.subseconds().count()));
    return {text.data(), static_cast<std::size_t>(std::max(size, 0))};
}

bool hasServer(const scl::Ied &ied)
{
    bool found = false;
    ied.forEachDevice([&found](const scl::LogicalDevice &) { found = true; });
    return found;
}

std::string nameOf(const scl::Ied &ied)
{
    return ied.name.empty() ? std::string("(without a name)") : std::string(ied.name);
}

bool read(const CommandLine &commandLine, std::vector<Described> &described)
{
    for (const std::string &file : commandLine.files) {
        scl::ReadResult result = scl::readFile(file);
        if (!result.document) {
            complain(result.errorLine > 0 ? file + ":" + std::to_string(result.errorLine) + ": " +
                                                result.errorText.english()
                                          : result.errorText.english());
            return false;
        }
        const auto error = std::ranges::find(result.document->findings, scl::Severity::Error,
                                             &scl::Finding::severity);
        if (error != result.document->findings.end()) {
            complain(file + ":" + std::to_string(error->line) + ": " + error->text.english() +
                     " The file is used all the same.");
        }
        described.push_back({file, std::move(result.document)});
    }
    return true;
}

void list(const std::vector<Described> &described)
{
    for (const auto &[file, document] : described) {
        for (const scl::Ied &ied : document->ieds) {
            const scl::IedCounts counts = scl::countsOf(ied);
            say(stdout,
                nameOf(ied) +
                    (hasServer(ied)
                         ? ": " + std::to_string(counts.logicalDevices) + " logical devices, " +
                               std::to_string(counts.logicalNodes) + " logical nodes, " +
                               std::to_string(counts.attributes) + " attributes"
                         : std::string(": no server")));
        }
    }
}

/// The IEDs that the command line names; nothing after a complaint.
std::vector<Chosen> choose(const CommandLine &commandLine, const std::vector<Described> &described)
{
    std::vector<Chosen> chosen;
    for (const auto &[file, document] : described) {
        std::vector<const scl::Ied *> servers;
        for (const scl::Ied &ied : document->ieds) {
            if (hasServer(ied))
                servers.push_back(&ied);
        }
        if (!commandLine.ieds.empty())
            continue;
        if (servers.empty()) {
            complain(file + ": no IED of this file has a server.");
            return {};
        }
        if (servers.size() > 1 && !commandLine.allIeds) {
            complain(file + ": the file describes " + std::to_string(servers.size()) +
                     " IEDs with a server; choose with --ied or --all.");
            return {};
        }
        for (const scl::Ied *ied : servers)
            chosen.push_back({ied, document->edition() == "1"});
    }
    for (const std::string &name : commandLine.ieds) {
        const auto found = std::ranges::find_if(described, [&name](const Described &each) {
            return each.document->findIed(name) != nullptr;
        });
        if (found == described.end()) {
            complain("no file describes an IED \"" + name + "\"; --list tells which there are.");
            return {};
        }
        const scl::Ied *ied = found->document->findIed(name);
        if (!hasServer(*ied)) {
            complain("the IED \"" + name + "\" has no server.");
            return {};
        }
        chosen.push_back({ied, found->document->edition() == "1"});
    }
    return chosen;
}

int run(const CommandLine &commandLine)
{
    std::vector<Described> described;
    if (!read(commandLine, described))
        return iedsim::failureStatus;
    if (commandLine.list) {
        list(described);
        return 0;
    }
    const std::vector<Chosen> chosen = choose(commandLine, described);
    if (chosen.empty())
        return iedsim::failureStatus;
    if (std::size_t{commandLine.simulation.port} + chosen.size() > 65536 &&
        commandLine.simulation.port != 0) {
        complain("there are not enough ports behind " +
                 std::to_string(commandLine.simulation.port) + ".");
        return iedsim::failureStatus;
    }

    asio::io_context context;
    asio::signal_set signals(context, SIGINT, SIGTERM);
    std::vector<std::shared_ptr<sim::Device>> devices;
    const auto stop = [&devices] {
        for (const auto &device : std::exchange(devices, {}))
            device->stop();
    };
    for (std::size_t i = 0; i < chosen.size(); ++i) {
        const scl::Ied &ied = *chosen[i].ied;
        sim::SimulationOptions options = commandLine.simulation;
        options.firstEdition = chosen[i].firstEdition;
        if (options.port != 0)
            options.port = static_cast<std::uint16_t>(options.port + i);
        if (!commandLine.quiet) {
            options.log = [name = nameOf(ied)](const std::string &line) {
                say(stdout, timeOfDay() + " " + name + ": " + line);
            };
        }
        const auto simulated = sim::simulate(context.get_executor(), ied, options);
        if (!simulated) {
            complain(nameOf(ied) + ": " + simulated.error().message.english());
            stop();
            signals.cancel();
            context.run();
            return iedsim::failureStatus;
        }
        devices.push_back(simulated->device);
        say(stdout, nameOf(ied) + " listens on " + options.address + " port " +
                        std::to_string(simulated->port) + ".");
    }
    described.clear();
    // A second signal ends the program the hard way, since nobody waits for it any more.
    signals.async_wait([&stop, &signals](const asio::error_code &error, int) {
        if (error)
            return;
        stop();
        asio::error_code ignored;
        signals.clear(ignored);
    });
    const std::size_t threads =
        std::clamp<std::size_t>(std::thread::hardware_concurrency(), 1, chosen.size());
    std::vector<std::thread> pool;
    for (std::size_t i = 1; i < threads; ++i)
        pool.emplace_back([&context] { context.run(); });
    context.run();
    for (std::thread &thread : pool)
        thread.join();
    say(stdout, "Ended.");
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    try {
        const auto parsed = iedsim::parseCommandLine(argc, argv);
        if (const auto *ending = std::get_if<Ending>(&parsed)) {
            std::FILE *const stream = ending->status == 0 ? stdout : stderr;
            std::fputs(ending->text.c_str(), stream);
            if (!ending->text.ends_with('\n'))
                std::fputs("\n", stream);
            return ending->status;
        }
        return run(std::get<CommandLine>(parsed));
    } catch (const std::exception &error) {
        std::fprintf(stderr, "iedsim: %s\n", error.what());
        return iedsim::failureStatus;
    }
}
