// SPDX-License-Identifier: Apache-2.0
#include "tavrix.h"

#include "inprocesseventboxes.h"

#include <QtCore/QThreadStorage>

#include <algorithm>
#include <atomic>
#include <cstring>
#include <string_view>

namespace Tavrix {

namespace {

/// Never destroyed: threads may end after the statics of this library are gone.
EventBackend &localBackend()
{
    static EventBackend *const backend = new InProcessEventBoxes;
    return *backend;
}

EventBackend *backendAt(const char *address, const char *domain)
{
    return address == nullptr && domain == nullptr ? &localBackend() : nullptr;
}

class OwnerGuard
{
public:
    OwnerGuard()
        : m_owner(++s_lastOwner)
    {
    }
    ~OwnerGuard() { localBackend().ownerGone(m_owner); }
    OwnerGuard(const OwnerGuard &) = delete;
    OwnerGuard &operator=(const OwnerGuard &) = delete;

    Owner owner() const { return m_owner; }

private:
    static inline std::atomic<Owner> s_lastOwner{0};
    const Owner m_owner;
};

/// In Qt's thread storage, because QThread::wait() does not wait for the end of thread_local
/// objects.
Owner currentOwner()
{
    static auto *const guards = new QThreadStorage<OwnerGuard>;
    return guards->localData().owner();
}

bool isText(const char *text, int maxLength)
{
    return text != nullptr &&
           std::memchr(text, '\0', static_cast<std::size_t>(maxLength) + 1) != nullptr;
}

bool isName(const char *text)
{
    return isText(text, maxNameLength) && *text != '\0';
}

} // namespace

int ConnectMid(const char *address)
{
    return backendAt(address, nullptr) != nullptr ? Success : MiddlewareUnavailable;
}

int CreateEventBox(const char *boxName, int capacity, int timeToLiveMs, const char *address,
                   const char *domain)
{
    EventBackend *const backend = backendAt(address, domain);
    if (backend == nullptr) {
        return MiddlewareUnavailable;
    }
    if (!isName(boxName) || capacity < 1 || timeToLiveMs < 1) {
        return InvalidArgument;
    }
    return backend->createBox(currentOwner(), boxName, static_cast<std::size_t>(capacity),
                              std::chrono::milliseconds(timeToLiveMs));
}

int SetPersistent(const char *boxName, bool persistent, const char *address, const char *domain)
{
    EventBackend *const backend = backendAt(address, domain);
    if (backend == nullptr) {
        return MiddlewareUnavailable;
    }
    return isName(boxName) ? backend->setPersistent(boxName, persistent) : InvalidArgument;
}

int ConnectPortForRecv(const char *boxName, unsigned int &port, const char *address,
                       const char *domain)
{
    EventBackend *const backend = backendAt(address, domain);
    if (backend == nullptr) {
        return MiddlewareUnavailable;
    }
    return isName(boxName) ? backend->connectPort(currentOwner(), boxName, port) : InvalidArgument;
}

int DisconnectPort(unsigned int port)
{
    return localBackend().disconnectPort(port);
}

int ReceiveEventN(unsigned int port, TavrixDataList &out, const char *key, int waitMs, int count,
                  const char *address, const char *domain)
{
    DestoryTavrixDataList(&out);
    EventBackend *const backend = backendAt(address, domain);
    if (backend == nullptr) {
        return MiddlewareUnavailable;
    }
    const char *const wanted = key == nullptr ? "" : key;
    if (!isText(wanted, maxNameLength) || waitMs < 0 || count < 1) {
        return InvalidArgument;
    }
    std::vector<std::shared_ptr<const Event>> events;
    const Result result = backend->receive(port, wanted, std::chrono::milliseconds(waitMs),
                                           static_cast<std::size_t>(count), events);
    std::size_t records = 0;
    for (const auto &event : events) {
        records += event->recordCount();
    }
    if (records > 0) {
        out.array = new TavrixData *[records];
    }
    for (const auto &event : events) {
        for (std::size_t i = 0; i < event->recordCount(); ++i) {
            auto *const data = new TavrixData;
            const std::string_view record = event->record(i);
            std::copy(record.begin(), record.end(), data->GetRawValue());
            out.array[out.count++] = data;
        }
    }
    return result;
}

int PostEvent(const char *boxNamePrefix, const char *key, const QList<QByteArray> &records,
              const char *address, const char *domain)
{
    EventBackend *const backend = backendAt(address, domain);
    if (backend == nullptr) {
        return MiddlewareUnavailable;
    }
    if (!isText(boxNamePrefix, maxNameLength) || !isName(key) ||
        records.size() > maxRecordsPerEvent) {
        return InvalidArgument;
    }
    std::size_t bytes = 0;
    for (const QByteArray &record : records) {
        if (record.size() > rawValueSize) {
            return RecordTooLong;
        }
        bytes += static_cast<std::size_t>(record.size());
    }
    const auto event =
        std::make_shared<Event>(key, static_cast<std::size_t>(records.size()), bytes);
    for (const QByteArray &record : records) {
        event->append({record.constData(), static_cast<std::size_t>(record.size())});
    }
    return backend->post(boxNamePrefix, event);
}

void DestoryTavrixDataList(TavrixDataList *list)
{
    if (list == nullptr) {
        return;
    }
    for (int i = 0; i < list->count; ++i) {
        delete list->array[i];
    }
    delete[] list->array;
    list->array = nullptr;
    list->count = 0;
}

} // namespace Tavrix

TavrixData::TavrixData()
    : m_raw{}
{
}

char *TavrixData::GetRawValue()
{
    return m_raw;
}

TavrixDataList::TavrixDataList() = default;

TavrixDataList::~TavrixDataList()
{
    Tavrix::DestoryTavrixDataList(this);
}
