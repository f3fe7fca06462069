// SPDX-License-Identifier: Apache-2.0
#include "driverserviceregistry.h"

#include <QtCore/QHash>

#include <mutex>
#include <utility>

namespace {

struct Registry
{
    std::mutex mutex;
    QHash<QString, std::shared_ptr<DriverService>> services;
};

Registry &registry()
{
    static Registry instance;
    return instance;
}

} // namespace

void DriverServiceRegistry::add(const QString &address, std::shared_ptr<DriverService> service)
{
    Registry &r = registry();
    std::unique_lock<std::mutex> lock(r.mutex);
    // The service that is replaced dies outside the lock: its destructor may take its time.
    std::swap(r.services[address], service);
    lock.unlock();
}

void DriverServiceRegistry::remove(const QString &address)
{
    Registry &r = registry();
    std::unique_lock<std::mutex> lock(r.mutex);
    const std::shared_ptr<DriverService> removed = r.services.take(address);
    lock.unlock();
}

std::shared_ptr<DriverService> DriverServiceRegistry::find(const QString &address)
{
    Registry &r = registry();
    const std::lock_guard<std::mutex> lock(r.mutex);
    return r.services.value(address);
}
