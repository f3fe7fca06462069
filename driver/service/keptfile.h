// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <remoteclient/filetransfer.h>

#include <QtCore/QCoreApplication>

#include <mutex>

/// A sink that is nobody's any more once its owner has left: then it takes nothing. Any thread.
class KeptSink : public FileSink
{
    Q_DECLARE_TR_FUNCTIONS(IedDriver)

public:
    explicit KeptSink(FileSink &sink)
        : m_sink(&sink)
    {
    }

    QString begin(quint64 size) override
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_sink ? m_sink->begin(size) : tr("The operation was cancelled.");
    }
    QString take(const char *octets, int count) override
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_sink ? m_sink->take(octets, count) : tr("The operation was cancelled.");
    }
    /// Returns when the owner's sink is not in use; it will not be used again.
    void leave()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_sink = nullptr;
    }

private:
    std::mutex m_mutex;
    FileSink *m_sink;
};

/// The same for a source.
class KeptSource : public FileSource
{
    Q_DECLARE_TR_FUNCTIONS(IedDriver)

public:
    explicit KeptSource(FileSource &source)
        : m_name(source.name())
        , m_source(&source)
    {
    }

    QString name() const override { return m_name; }
    QString open(quint64 &size) override
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_source ? m_source->open(size) : tr("The operation was cancelled.");
    }
    qint64 read(quint64 position, char *octets, qint64 count, QString &error) override
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (m_source)
            return m_source->read(position, octets, count, error);
        error = tr("The operation was cancelled.");
        return -1;
    }
    void leave()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_source = nullptr;
    }

private:
    const QString m_name;
    std::mutex m_mutex;
    FileSource *m_source;
};
