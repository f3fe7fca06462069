// SPDX-License-Identifier: Apache-2.0
// Our client and a client that others wrote, with the same server that others wrote, in one run.
// "faster" is their time over ours, medians of rounds in turn, and its limit is beside it;
// "quickest" is the same of the quickest rounds, for a machine that is busy otherwise. Installs the
// foreign stack into the build; without a package registry nothing is measured.
#include "clientloop.h"

#include "acsi/discovery.h"
#include "acsi/files.h"
#include "interop/foreignpeer.h"
#include "support/generatedscl.h"

#include <QFile>
#include <QJsonArray>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>
#include <iostream>

namespace {

using mms::ObjectName;

constexpr int rounds = 11;
constexpr int devices = 4;
constexpr int nodesPerDevice = 50;
constexpr int objectsPerNode = 8;
constexpr int fileSize = 50000000;

/// The foreign server with a device of 20,000 attributes, the foreign client and ours.
class Scene
{
public:
    Scene()
    {
        QFile scl(m_folder.filePath("device.icd"));
        scl.open(QIODevice::WriteOnly);
        scl.write(QByteArray::fromStdString(
            GeneratedScl{20000, false, nodesPerDevice, objectsPerNode}.text()));
        scl.close();
        m_server = std::make_unique<interop::ForeignServer>(scl.fileName());
        m_client = std::make_unique<interop::ForeignPeer>(interop::ForeignPeer::Role::Client);
        if (!m_server->peer().isReady() || !m_client->isReady())
            throw std::runtime_error("the foreign stack does not start");
    }

    /// What the foreign client answers; seconds in most cases.
    double theirs(const char *command, const QJsonObject &arguments)
    {
        const QJsonValue answer = m_client->ask(command, arguments);
        if (answer.isUndefined())
            throw std::runtime_error(m_client->failure().toStdString());
        return answer.toDouble();
    }

    /// Only one is connected at a time: the foreign server waits on connections in turn.
    template <typename Ours>
    double timeOurs(Ours ours)
    {
        awaitNoConnection();
        m_ours = m_loop.connect(m_server->port());
        const auto start = std::chrono::steady_clock::now();
        ours();
        const double seconds = secondsSince(start);
        m_loop.disconnect(m_ours);
        return seconds;
    }

    template <typename Theirs>
    double timeTheirs(Theirs theirSeconds)
    {
        awaitNoConnection();
        theirs("connect", {{"port", m_server->port()}, {"filestore", m_folder.path() + '/'}});
        const double seconds = theirSeconds();
        theirs("close", {});
        return seconds;
    }

    ClientLoop &loop() { return m_loop; }
    const std::shared_ptr<acsi::ChangingClient> &client() { return m_ours; }
    /// A file of the server, and one that the foreign client may send.
    QString served(const QString &name) const { return m_server->filePath(name); }
    QString own(const QString &name) const { return m_folder.filePath(name); }

private:
    void awaitNoConnection()
    {
        while (m_server->peer().ask("connections").toInt() != 0) {
        }
    }

    QTemporaryDir m_folder;
    std::unique_ptr<interop::ForeignServer> m_server;
    std::unique_ptr<interop::ForeignPeer> m_client;
    ClientLoop m_loop;
    std::shared_ptr<acsi::ChangingClient> m_ours;
};

double median(std::vector<double> values)
{
    std::ranges::sort(values);
    return values[values.size() / 2];
}

/// @p prepare is called before each and takes no part of the time.
template <typename Ours, typename Theirs>
void compare(
    benchmark::State &state, Scene &scene, double limit, Ours ours, Theirs theirs,
    const std::function<void()> &prepare = [] {})
{
    for (auto _ : state) {
        std::vector<double> ourTimes;
        std::vector<double> theirTimes;
        std::vector<double> work;
        for (int i = 0; i < rounds; ++i) {
            prepare();
            theirTimes.push_back(scene.timeTheirs(theirs));
            prepare();
            const std::clock_t start = std::clock();
            ourTimes.push_back(scene.timeOurs(ours));
            work.push_back(static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
        }
        state.counters["faster"] = median(theirTimes) / median(ourTimes);
        state.counters["limit"] = limit;
        state.counters["quickest"] =
            *std::ranges::min_element(theirTimes) / *std::ranges::min_element(ourTimes);
        state.counters["ours_ms"] = median(ourTimes) * 1e3;
        state.counters["theirs_ms"] = median(theirTimes) * 1e3;
        state.counters["our_cpu_ms"] = median(work) * 1e3;
    }
}

/// The status value of the n-th object of the device's first nodes.
std::string item(int number)
{
    return "IOGGIO" + std::to_string(number / objectsPerNode + 1) + "$ST$DPCSO" +
           std::to_string(number % objectsPerNode + 1) + "$stVal";
}

asio::awaitable<mms::Result<void>> readOften(std::shared_ptr<acsi::Client> client, int count)
{
    const mms::VariableAccess variable{ObjectName::inDomain("GENLD1", item(0)), {}};
    for (int i = 0; i < count; ++i) {
        const auto value = co_await client->readOne(variable);
        if (!value)
            co_return value.error();
    }
    co_return mms::Result<void>();
}

asio::awaitable<mms::Result<void>> readMany(std::shared_ptr<acsi::Client> client, int count)
{
    std::vector<mms::VariableAccess> variables;
    for (int i = 0; i < 100; ++i)
        variables.push_back({ObjectName::inDomain("GENLD1", item(i)), {}});
    for (int i = 0; i < count; ++i) {
        const auto values = co_await client->read(variables);
        if (!values)
            co_return values.error();
        if (!std::ranges::all_of(*values, &mms::AccessResult::ok))
            co_return mms::Error{mms::verbatim("a value is missing"), 0};
    }
    co_return mms::Result<void>();
}

asio::awaitable<mms::Result<void>> readDataSet(std::shared_ptr<acsi::Client> client, int count)
{
    for (int i = 0; i < count; ++i) {
        const auto values = co_await client->readList(ObjectName::inDomain("GENLD1", "LLN0$ds1"));
        if (!values)
            co_return values.error();
        if (values->size() != 10 || !std::ranges::all_of(*values, &mms::AccessResult::ok))
            co_return mms::Error{mms::verbatim("a value is missing"), 0};
    }
    co_return mms::Result<void>();
}

constexpr int readCount = 1000;

double theirSingleReads(Scene &scene)
{
    return scene.theirs(
        "timeread",
        {{"domain", "GENLD1"}, {"item", QString::fromStdString(item(0))}, {"count", readCount}});
}

void singleReads(benchmark::State &state)
{
    Scene scene;
    compare(
        state, scene, 1,
        [&] { scene.loop().run(scene.client(), readOften(scene.client(), readCount)); },
        [&] { return theirSingleReads(scene); });
}
BENCHMARK(singleReads)->Iterations(1)->Unit(benchmark::kMillisecond);

void singleReadsFiveOutstanding(benchmark::State &state)
{
    constexpr int streams = 5;
    Scene scene;
    compare(
        state, scene, 2,
        [&] {
            std::vector<wiretest::Awaited<mms::Result<void>>> running;
            for (int i = 0; i < streams; ++i)
                running.push_back(scene.loop().start(
                    scene.client()->strand(), readOften(scene.client(), readCount / streams)));
            for (auto &stream : running) {
                if (const auto done = stream.get(); !done)
                    throw std::runtime_error(done.error().message.english());
            }
        },
        [&] { return theirSingleReads(scene); });
}
BENCHMARK(singleReadsFiveOutstanding)->Iterations(1)->Unit(benchmark::kMillisecond);

void hundredReferences(benchmark::State &state)
{
    constexpr int count = 100;
    QJsonArray items;
    for (int i = 0; i < 100; ++i)
        items.append(QString::fromStdString(item(i)));
    Scene scene;
    compare(
        state, scene, 1, [&] { scene.loop().run(scene.client(), readMany(scene.client(), count)); },
        [&] {
            return scene.theirs("timereadmany",
                                {{"domain", "GENLD1"}, {"items", items}, {"count", count}});
        });
}
BENCHMARK(hundredReferences)->Iterations(1)->Unit(benchmark::kMillisecond);

void dataSets(benchmark::State &state)
{
    constexpr int count = 500;
    Scene scene;
    compare(
        state, scene, 1,
        [&] { scene.loop().run(scene.client(), readDataSet(scene.client(), count)); },
        [&] {
            return scene.theirs("timereadlist",
                                {{"domain", "GENLD1"}, {"name", "LLN0$ds1"}, {"count", count}});
        });
}
BENCHMARK(dataSets)->Iterations(1)->Unit(benchmark::kMillisecond);

/// Ours asks for names, types, data sets and journals; theirs for types of nodes it knows.
/// The same names and types: theirs keeps nothing of them.
void discovery(benchmark::State &state)
{
    QJsonArray nodes;
    for (int device = 1; device <= devices; ++device) {
        const QString domain = QStringLiteral("GENLD%1").arg(device);
        nodes.append(QJsonArray{domain, "LLN0"});
        for (int node = 1; node <= nodesPerDevice; ++node)
            nodes.append(QJsonArray{domain, QStringLiteral("IOGGIO%1").arg(node)});
    }
    Scene scene;
    compare(
        state, scene, 1,
        [&] {
            const auto found = scene.loop().run(scene.client(), acsi::discover(scene.client()));
            if (found.devices.size() != devices || !found.refused.empty())
                throw std::runtime_error("not everything was discovered");
        },
        [&] {
            return scene.theirs("timediscovery", {{"items", nodes}, {"count", 1}});
        });
}
BENCHMARK(discovery)->Iterations(1)->Unit(benchmark::kMillisecond);

void writeFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) ||
        file.write(QByteArray(fileSize, 'f')) != qint64(fileSize))
        throw std::runtime_error("the file cannot be written");
}

void fileDownload(benchmark::State &state)
{
    Scene scene;
    writeFile(scene.served("record.dat"));
    compare(
        state, scene, 1,
        [&] {
            std::uint64_t received = 0;
            scene.loop().run(scene.client(),
                             acsi::download(scene.client(), "record.dat",
                                            [&](std::span<const std::uint8_t> block) {
                                                received += block.size();
                                                return true;
                                            }));
            if (received != fileSize)
                throw std::runtime_error("the file is not whole");
        },
        [&] {
            return scene.theirs("timegetfile", {{"file", "record.dat"}, {"size", fileSize}});
        });
}
BENCHMARK(fileDownload)->Iterations(1)->Unit(benchmark::kMillisecond);

/// Both send a file of theirs from the disk under a name that the server does not have.
void fileUpload(benchmark::State &state)
{
    Scene scene;
    writeFile(scene.own("upload.dat"));
    const QString name = "uploaded.dat";
    const auto check = [&] {
        if (QFile(scene.served(name)).size() != fileSize)
            throw std::runtime_error("the file is not whole");
    };
    compare(
        state, scene, 1,
        [&] {
            QFile file(scene.own("upload.dat"));
            file.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
            acsi::FileSource source;
            source.size = fileSize;
            source.read = [&file](std::uint64_t position,
                                  std::span<std::uint8_t> block) -> mms::Result<std::size_t> {
                file.seek(static_cast<qint64>(position));
                return static_cast<std::size_t>(file.read(reinterpret_cast<char *>(block.data()),
                                                          static_cast<qint64>(block.size())));
            };
            scene.loop().run(scene.client(),
                             acsi::upload(scene.client(), name.toStdString(), std::move(source)));
            check();
        },
        [&] {
            const double seconds =
                scene.theirs("timesetfile", {{"source", "upload.dat"}, {"destination", name}});
            check();
            return seconds;
        },
        [&] { QFile::remove(scene.served(name)); });
}
BENCHMARK(fileUpload)->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    const interop::Installation &installation = interop::Installation::get();
    if (installation.python.isEmpty()) {
        std::cout << "The foreign peer is not there: " << installation.reason.toStdString() << '\n';
        return installation.failed ? 1 : 0;
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
