// SPDX-License-Identifier: Apache-2.0
#pragma once

/// Event middleware: drivers post events, listeners receive them from event boxes.
///
/// An event is a list of records under one key; a record is a block of 512 bytes. A box is a named
/// queue: each event in it goes to one receiver, so whoever wants every event creates a box of its
/// own. Boxes live in a middleware: in this process, unless the host chose another one
/// (middleware.h).
///
/// Limits of a box: the capacity in events and the time to live given to CreateEventBox(), and
/// `maxBoxBytes` of events in all. Past a limit the oldest events are dropped, silently. Boxes that
/// got the same event share its bytes.
///
/// Life of a box: a persistent box stays until it is made non-persistent. A box that is not
/// persistent dies with its last port, and its events with it; while it has had no port yet, it
/// lives as long as the thread that created it. A box is persistent until SetPersistent() says
/// otherwise.
///
/// Life of a port: until DisconnectPort(), or until the thread that opened it ends - before
/// QThread::wait() or a join returns; for the main thread with the application object. A listener
/// thread therefore leaves nothing behind, also when it never disconnects; a thread of a pool,
/// which does not end with its task, has to. Any number of ports may be open on a box, and any
/// number of threads may receive through one port while it is open.
///
/// Threads: every function may be called from any thread at any time. Only ReceiveEventN() blocks.
///
/// Errors: each function returns a Tavrix::Result, 0 for success, and does nothing at all when the
/// result is another. Texts are bytes that end with a zero; the middleware copies what it keeps.
///
/// The trailing `address` and `domain` name another middleware than the one that the host chose,
/// which null for both means; boxes of the same name in two middlewares have nothing to do with
/// each other. Where nothing is known or nothing answers, the result is
/// Tavrix::MiddlewareUnavailable.

#include "tavrixglobal.h"
#include "tavrixresult.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>

class TavrixDataList;

namespace Tavrix {

/// Get a middleware ready, as often as wanted; null is the one that the host chose. The boxes
/// inside this process are always ready.
/// @return Success, MiddlewareUnavailable.
TAVRIX_EXPORT int ConnectMid(const char *address);

/// Make an empty, persistent box.
/// @param boxName   1 to `maxNameLength` bytes
/// @param capacity  events that the box keeps, at least 1
/// @param timeToLiveMs  milliseconds after which an event that nobody received is dropped, at
///                  least 1
/// @return Success, EventBoxExists, InvalidArgument, MiddlewareUnavailable.
TAVRIX_EXPORT int CreateEventBox(const char *boxName, int capacity, int timeToLiveMs,
                                 const char *address = nullptr, const char *domain = nullptr);

/// Say whether a box outlives its last port. A box that nothing keeps any more dies at once.
/// @return Success, NoSuchEventBox, InvalidArgument, MiddlewareUnavailable.
TAVRIX_EXPORT int SetPersistent(const char *boxName, bool persistent, const char *address = nullptr,
                                const char *domain = nullptr);

/// Open a port on a box, a new one with each call. The calling thread keeps it open.
/// @param port  receives the port's number, never 0; unchanged unless the result is Success
/// @return Success, NoSuchEventBox, InvalidArgument, MiddlewareUnavailable.
TAVRIX_EXPORT int ConnectPortForRecv(const char *boxName, unsigned int &port,
                                     const char *address = nullptr, const char *domain = nullptr);

/// Close a port, whatever middleware it is open on. Whoever waits on it returns with
/// NoSuchEventBox.
/// @return Success; NoSuchEventBox when the port is not open.
TAVRIX_EXPORT int DisconnectPort(unsigned int port);

/// Take events out of the port's box, oldest first, waiting until there is one.
/// @param out  gets the records of the events taken, in order; the caller owns it. What it held
///             before is freed. Left empty unless the result is Success; a success with no record
///             is an event without records.
/// @param key  take only events of this key and leave the others; null or empty takes every event
/// @param waitMs  how long to wait when no such event is there, in milliseconds, 0 for not at all
/// @param address @param domain  null for both: where the port is open; else they have to name that
/// @param count  at most so many events, at least 1; returns as soon as there is one, and stops
///             before the list would exceed `maxRecordsPerEvent` records
/// @return Success, NothingReceived, NoSuchEventBox when the port is not open or is closed
///         meanwhile, InvalidArgument, MiddlewareUnavailable.
TAVRIX_EXPORT int ReceiveEventN(unsigned int port, TavrixDataList &out, const char *key, int waitMs,
                                int count, const char *address = nullptr,
                                const char *domain = nullptr);

/// Post one event to every box whose name starts with the prefix, in all of them or in none.
/// No such box is a success: nobody listens.
/// @param boxNamePrefix  up to `maxNameLength` bytes; the empty text means every box
/// @param key  1 to `maxNameLength` bytes
/// @param records  at most `maxRecordsPerEvent`; each at most `rawValueSize` bytes, filled up with
///                 zeros for the receiver
/// @return Success, InvalidArgument, RecordTooLong, MiddlewareUnavailable.
TAVRIX_EXPORT int PostEvent(const char *boxNamePrefix, const char *key,
                            const QList<QByteArray> &records, const char *address = nullptr,
                            const char *domain = nullptr);

/// Free what ReceiveEventN() put into a list and leave the list empty. Does nothing to an empty
/// list, so that it may be called again; null is allowed.
TAVRIX_EXPORT void DestoryTavrixDataList(TavrixDataList *list);

} // namespace Tavrix

/// One received record.
class TAVRIX_EXPORT TavrixData
{
public:
    /// A record of zeros.
    TavrixData();

    /// The record's block of `Tavrix::rawValueSize` bytes. It is the receiver's own copy, owned by
    /// the record and valid as long as it.
    char *GetRawValue();

private:
    char m_raw[Tavrix::rawValueSize];
};

/// Received records. The list owns the array and the records in it, all allocated with `new`.
/// Not for use by several threads at once.
class TAVRIX_EXPORT TavrixDataList
{
public:
    TavrixDataList();
    /// Calls Tavrix::DestoryTavrixDataList() on the list.
    virtual ~TavrixDataList();

    int count = 0;
    TavrixData **array = nullptr; ///< `count` records; null when there are none

private:
    Q_DISABLE_COPY(TavrixDataList)
};
