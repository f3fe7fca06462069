// SPDX-License-Identifier: Apache-2.0
// Asio has a function of the name of one of Qt's keywords, so it goes before Qt.
#include "simulator/simulation.h"

#include "simulateddevice.h"

#include "demonstrationfiles.h"

#include "driver/text/sentences.h"

#include <asio/executor_work_guard.hpp>
#include <asio/io_context.hpp>

#include <QtCore/QCoreApplication>
#include <QtCore/QTemporaryDir>

#include <thread>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(SimulatedDevice)
};

} // namespace

class SimulatedDevice::Runtime
{
public:
    ~Runtime()
    {
        if (simulated.device)
            simulated.device->stop();
        simulated.device.reset();
        work.reset();
        if (thread.joinable())
            thread.join();
    }

    QTemporaryDir files; ///< outlives the device, which serves it
    asio::io_context context;
    asio::executor_work_guard<asio::io_context::executor_type> work{context.get_executor()};
    sim::ListeningDevice simulated;
    std::thread thread;
};

SimulatedDevice::SimulatedDevice()
    : m_runtime(std::make_unique<Runtime>())
{
}

SimulatedDevice::~SimulatedDevice() = default;

std::unique_ptr<SimulatedDevice> SimulatedDevice::start(const scl::Ied &ied, bool firstEdition,
                                                        int port, QString &error)
{
    std::unique_ptr<SimulatedDevice> device(new SimulatedDevice);
    Runtime &runtime = *device->m_runtime;
    const QString name = QString::fromUtf8(ied.name.data(), static_cast<int>(ied.name.size()));
    if (!runtime.files.isValid() || !writeDemonstrationFiles(runtime.files.path(), name)) {
        error = Texts::tr("The files of the simulated device cannot be written to \"%1\".")
                    .arg(runtime.files.path());
        return nullptr;
    }
    sim::SimulationOptions options;
    options.port = static_cast<std::uint16_t>(port);
    options.firstEdition = firstEdition;
    options.animation.emplace();
    options.files.emplace();
    options.files->directory = runtime.files.path().toStdString();
    auto simulated = sim::simulate(runtime.context.get_executor(), ied, options);
    if (!simulated && port != 0) {
        options.port = 0;
        simulated = sim::simulate(runtime.context.get_executor(), ied, options);
    }
    if (!simulated) {
        error =
            Texts::tr("The device cannot be simulated: %1").arg(text(simulated.error().message));
        return nullptr;
    }
    runtime.simulated = *simulated;
    runtime.thread = std::thread([&runtime] { runtime.context.run(); });
    return device;
}

int SimulatedDevice::port() const
{
    return m_runtime->simulated.port;
}
