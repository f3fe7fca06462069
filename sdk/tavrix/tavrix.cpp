// SPDX-License-Identifier: Apache-2.0
#include "tavrix.h"

#include "eventbackends.h"
#include "openports.h"

#include <QtCore/QThreadStorage>

#include <algorithm>
#include <atomic>
#include <cstring>
#include <string_view>
#include <utility>

namespace Tavrix {

namespace {

/// What the process has of the middleware. Never destroyed: threads may end after the statics of
/// this library are gone.
struct State
{
    EventBackends backends;
    OpenPorts ports;
    std::atomic<Owner> lastOwner{0};
};

State &state()
{
    static State *const state = new State;
    return *state;
}

/// A thread that creates boxes and opens ports.
class OwningThread
{
public:
    OwningThread() = default;
    ~OwningThread()
    {
        for (const auto &backend : m_backends) {
            backend->ownerGone(m_owner);
        }
        state().ports.ownerGone(m_owner);
    }
    OwningThread(const OwningThread &) = delete;
    OwningThread &operator=(const OwningThread &) = delete;

    /// The thread's number, for something of its own at the backend.
    Owner ownerAt(const std::shared_ptr<EventBackend> &backend)
    {
        if (std::find(m_backends.begin(), m_backends.end(), backend) == m_backends.end()) {
            m_backends.push_back(backend);
        }
        return m_owner;
    }

private:
    const Owner m_owner = ++state().lastOwner;
    std::vector<std::shared_ptr<EventBackend>> m_backends;
};

/// In Qt's thread storage, because QThread::wait() does not wait for the end of thread_local
/// objects.
OwningThread &currentThread()
{
    static auto *const threads = new QThreadStorage<OwningThread>;
    return threads->localData();
}

bool isText(const char *text, int maxLength)
{
    return text != nullptr &&
           std::memchr(text, '\0', static_cast<std::size_t>(maxLength) + 1) != nullptr;
}

bool isGiven(const char *text)
{
    return text != nullptr && *text != '\0';
}

bool isName(const char *text)
{
    return isText(text, maxNameLength) && *text != '\0';
}

} // namespace

int RegisterMiddleware(const char *scheme, BackendFactory factory)
{
    return state().backends.add(scheme, std::move(factory));
}

int ChooseMiddleware(const char *address, const char *domain)
{
    return state().backends.choose(address, domain);
}

int ConnectMid(const char *address)
{
    const auto backend = state().backends.find(address, nullptr);
    return backend ? backend->connect() : MiddlewareUnavailable;
}

int CreateEventBox(const char *boxName, int capacity, int timeToLiveMs, const char *address,
                   const char *domain)
{
    const auto backend = state().backends.find(address, domain);
    if (!backend) {
        return MiddlewareUnavailable;
    }
    if (!isName(boxName) || capacity < 1 || timeToLiveMs < 1) {
        return InvalidArgument;
    }
    return backend->createBox(currentThread().ownerAt(backend), boxName,
                              static_cast<std::size_t>(capacity),
                              std::chrono::milliseconds(timeToLiveMs));
}

int SetPersistent(const char *boxName, bool persistent, const char *address, const char *domain)
{
    const auto backend = state().backends.find(address, domain);
    if (!backend) {
        return MiddlewareUnavailable;
    }
    return isName(boxName) ? backend->setPersistent(boxName, persistent) : InvalidArgument;
}

int ConnectPortForRecv(const char *boxName, unsigned int &port, const char *address,
                       const char *domain)
{
    const auto backend = state().backends.find(address, domain);
    if (!backend) {
        return MiddlewareUnavailable;
    }
    if (!isName(boxName)) {
        return InvalidArgument;
    }
    const Owner owner = currentThread().ownerAt(backend);
    OpenPorts::Place place{backend, 0};
    const Result result = backend->connectPort(owner, boxName, place.port);
    if (result == Success) {
        port = state().ports.add(owner, std::move(place));
    }
    return result;
}

int DisconnectPort(unsigned int port)
{
    const auto place = state().ports.take(port);
    return place ? place->backend->disconnectPort(place->port) : NoSuchEventBox;
}

int ReceiveEventN(unsigned int port, TavrixDataList &out, const char *key, int waitMs, int count,
                  const char *address, const char *domain)
{
    DestoryTavrixDataList(&out);
    std::shared_ptr<EventBackend> addressed;
    if (isGiven(address) || isGiven(domain)) {
        addressed = state().backends.find(address, domain);
        if (!addressed) {
            return MiddlewareUnavailable;
        }
    }
    const char *const wanted = key == nullptr ? "" : key;
    if (!isText(wanted, maxNameLength) || waitMs < 0 || count < 1) {
        return InvalidArgument;
    }
    const auto place = state().ports.find(port);
    if (!place || (addressed && place->backend != addressed)) {
        return NoSuchEventBox;
    }
    std::vector<std::shared_ptr<const Event>> events;
    const Result result =
        place->backend->receive(place->port, wanted, std::chrono::milliseconds(waitMs),
                                static_cast<std::size_t>(count), events);
    if (result == NoSuchEventBox) {
        state().ports.closed(port, *place);
    }
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
    const auto backend = state().backends.find(address, domain);
    if (!backend) {
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
