// SPDX-License-Identifier: Apache-2.0
#include "deviceoperations.h"
#include "driver/core/filenames.h"
#include "driver/core/transferpace.h"
#include "driver/text/sentences.h"

#include "acsi/files.h"

#include <asio/experimental/as_tuple.hpp>
#include <asio/use_awaitable.hpp>

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <limits>

using std::chrono::milliseconds;
using std::chrono::steady_clock;

using DeviceOperations::ChangeOrder;
using DeviceOperations::Result;
using DeviceOperations::Tool;

namespace {

using DevicePointer = std::shared_ptr<DeviceConnection>;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(IedDriver)
};

QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
}

Outcome outcomeOf(const mms::Result<void> &result)
{
    return result ? Outcome() : Outcome::failed(result.error());
}

/// The queue of the file operations of a device: many devices confuse them with each other.
class FilePart : public AssociationPart
{
public:
    struct Queue
    {
        QString current; ///< empty: nothing is under way
        std::set<asio::steady_timer *> waiting;
    };

    explicit FilePart(DeviceConnection &connection)
        : m_connection(connection)
    {
    }

    const std::shared_ptr<Queue> &queue() const { return m_queue; }

    /// Files are open for an association.
    void closed(const QString &) override { m_connection.setProblem(QStringLiteral("files"), {}); }

private:
    DeviceConnection &m_connection;
    std::shared_ptr<Queue> m_queue = std::make_shared<Queue>();
};

/// The turn of one file operation; it ends when it is destroyed. In the connection's strand.
class Turn
{
public:
    Turn(DevicePointer device, QString what)
        : m_device(std::move(device))
        , m_queue(m_device->part<FilePart>().queue())
        , m_what(std::move(what))
    {
    }
    ~Turn()
    {
        if (!m_isMine)
            return;
        m_queue->current.clear();
        for (asio::steady_timer *timer : m_queue->waiting)
            timer->cancel();
    }
    Q_DISABLE_COPY(Turn)

    /// Waits for the operation before, but not for long.
    asio::awaitable<Outcome> begin()
    {
        const auto end = steady_clock::now() + m_device->configuration().callTimeout;
        Waiting waiting(*m_queue, m_device->strand());
        while (!m_queue->current.isEmpty()) {
            if (steady_clock::now() >= end)
                co_return Outcome::failed(
                    Texts::tr("%1 is busy with another file: %2.")
                        .arg(m_device->configuration().title(), m_queue->current));
            waiting.timer.expires_at(end);
            co_await waiting.timer.async_wait(asio::experimental::as_tuple(asio::use_awaitable));
        }
        m_queue->current = m_what;
        m_isMine = true;
        co_return Outcome();
    }

private:
    struct Waiting
    {
        FilePart::Queue &queue;
        asio::steady_timer timer;

        Waiting(FilePart::Queue &all, const DeviceConnection::Strand &strand)
            : queue(all)
            , timer(strand)
        {
            queue.waiting.insert(&timer);
        }
        ~Waiting() { queue.waiting.erase(&timer); }
        Q_DISABLE_COPY(Waiting)
    };

    DevicePointer m_device;
    std::shared_ptr<FilePart::Queue> m_queue;
    QString m_what;
    bool m_isMine = false;
};

ChangeIntent intentOf(const char *operation, const std::string &name)
{
    ChangeIntent intent;
    intent.operation = QString::fromLatin1(operation);
    intent.reference = text(name);
    return intent;
}

/// The association may have ended while the operation waited for its turn.
Outcome connectedOutcome(const DevicePointer &device)
{
    if (device->client())
        return {};
    return {OperationNotConnected, device->notConnectedSentence()};
}

asio::awaitable<Outcome> list(DevicePointer device, QString pattern, QString directory,
                              QList<MMSFileEntry> *entries)
{
    Turn turn(device, Texts::tr("listing \"%1\"").arg(directory));
    Outcome outcome = co_await turn.begin();
    if (outcome)
        outcome = connectedOutcome(device);
    if (!outcome)
        co_return outcome;
    const auto listed =
        co_await acsi::listDirectory(device->client(), FileNames::onDevice(directory));
    if (!listed)
        co_return Outcome::failed(listed.error());
    *entries = FileNames::entries(pattern, directory, *listed);
    co_return Outcome();
}

asio::awaitable<Outcome> fetch(DevicePointer device, QString name, FileSink *sink)
{
    Turn turn(device, Texts::tr("fetching \"%1\"").arg(name));
    Outcome outcome = co_await turn.begin();
    if (outcome)
        outcome = connectedOutcome(device);
    if (!outcome)
        co_return outcome;
    QString refusal; // of the sink
    quint64 octets = 0;
    bool isTooSlow = false;
    const TransferPace pace(device->now());
    const auto announced = [&](std::uint32_t size) { refusal = sink->begin(size); };
    const auto take = [&](std::span<const std::uint8_t> block) {
        if (refusal.isEmpty()) {
            refusal = sink->take(reinterpret_cast<const char *>(block.data()),
                                 static_cast<int>(block.size()));
        }
        octets += block.size();
        isTooSlow = pace.isTooSlow(device->now(), octets);
        return refusal.isEmpty() && !isTooSlow;
    };
    QString notClosed;
    const auto keep = [&notClosed](const mms::Text &reason) { notClosed = text(reason); };
    const auto fetched =
        co_await acsi::download(device->client(), FileNames::onDevice(name), take, announced, keep);
    device->setProblem(QStringLiteral("files"),
                       notClosed.isEmpty()
                           ? QString()
                           : Texts::tr("%1 stays open on the device, which has few open files: %2")
                                 .arg(name, notClosed));
    if (!refusal.isEmpty())
        co_return Outcome::failed(refusal);
    if (isTooSlow && !fetched) {
        co_return Outcome::failed(Texts::tr("%1 comes too slowly: %2 octets so far, less than %3 "
                                            "in a second.")
                                      .arg(name)
                                      .arg(octets)
                                      .arg(TransferPace::leastOctetsPerSecond));
    }
    co_return fetched ? Outcome() : Outcome::failed(fetched.error());
}

asio::awaitable<Outcome> remove(ChangePointer change, QString name)
{
    const std::string plain = FileNames::onDevice(name);
    change->intend();
    Turn turn(change->device(), Texts::tr("deleting \"%1\"").arg(name));
    Outcome outcome;
    if (plain.empty())
        outcome = Outcome::failed(Texts::tr("There is no name of a file."));
    else
        outcome = co_await turn.begin();
    if (!outcome)
        co_return outcome;
    const auto client = change->client();
    if (!client)
        co_return change->refusal();
    const auto removed = co_await acsi::deleteFile(client, plain);
    co_return outcomeOf(removed);
}

/// What a device is given of the source; an error says why it cannot be sent.
mms::Result<acsi::FileSource> opened(FileSource &source)
{
    const auto error = [](const QString &sentence) {
        return mms::Error{mms::verbatim(sentence.toStdString()), 0};
    };
    quint64 size = 0;
    const QString refusal = source.open(size);
    if (!refusal.isEmpty())
        return error(refusal);
    if (size > std::numeric_limits<quint32>::max())
        return error(Texts::tr("\"%1\" is too large for a file of a device.").arg(source.name()));
    acsi::FileSource given;
    given.size = static_cast<std::uint32_t>(size);
    given.read = [&source, error](std::uint64_t position,
                                  std::span<std::uint8_t> block) -> mms::Result<std::size_t> {
        QString sentence;
        const qint64 count = source.read(position, reinterpret_cast<char *>(block.data()),
                                         static_cast<qint64>(block.size()), sentence);
        if (count < 0)
            return error(sentence);
        return static_cast<std::size_t>(count);
    };
    return given;
}

asio::awaitable<Outcome> send(ChangePointer change, FileSource *file, std::string plain)
{
    mms::Result<acsi::FileSource> source = opened(*file);
    if (source)
        change->setValues(QString(),
                          Texts::tr("%1 (%2 octets)").arg(file->name()).arg(source->size));
    change->intend();
    Turn turn(change->device(), Texts::tr("sending \"%1\"").arg(text(plain)));
    Outcome outcome;
    if (source)
        outcome = co_await turn.begin();
    else
        outcome = Outcome::failed(source.error());
    if (!outcome)
        co_return outcome;
    const auto client = change->client();
    if (!client)
        co_return change->refusal();
    const auto sent = co_await acsi::upload(client, plain, *source);
    co_return outcomeOf(sent);
}

} // namespace

Result DeviceOperations::getFileDirectory(CalledDevice device, const QString &pattern,
                                          const QString &directory, QList<MMSFileEntry> &entries)
{
    return list(device, pattern, directory, &entries);
}

Result DeviceOperations::getFile(CalledDevice device, const QString &fileName, FileSink &sink)
{
    return fetch(device, fileName, &sink);
}

ChangeOrder DeviceOperations::deleteFile(Tool, const QString &fileName)
{
    return {intentOf("deleteFile", FileNames::onDevice(fileName)),
            [fileName](ChangePointer change) { return remove(std::move(change), fileName); }};
}

ChangeOrder DeviceOperations::writeFile(Tool, FileSource &source, const QString &fileName)
{
    const std::string plain = FileNames::onDevice(FileNames::target(fileName, source.name()));
    ChangeIntent intent = intentOf("writeFile", plain);
    intent.newValue = source.name();
    return {std::move(intent), [file = &source, plain](ChangePointer change) {
                return send(std::move(change), file, plain);
            }};
}
