// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonObject>
#include <QJsonValue>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <chrono>
#include <cstdint>
#include <map>
#include <memory>
#include <string>

namespace interop {

/// The foreign stack as it is installed in the build.
struct Installation
{
    QString python; ///< the interpreter that has it; empty when it is not there
    QString reason; ///< why not
    bool failed = false; ///< it could have been installed, but was not

    /// Installs at the first call.
    static const Installation &get();
};

/// A program of the foreign stack in a process of its own, which is ended with the object. One
/// thread.
class ForeignPeer
{
public:
    /// Starts @p script with @p arguments and waits until it is ready.
    ForeignPeer(const QString &script, const QStringList &arguments);
    ~ForeignPeer();
    ForeignPeer(const ForeignPeer &) = delete;
    ForeignPeer &operator=(const ForeignPeer &) = delete;

    bool isReady() const { return m_failure.isEmpty(); }
    /// Why it is not ready; what the last command was refused with.
    const QString &failure() const { return m_failure; }

    /// The answer to a command; an undefined value when the peer refused it, with the reason in
    /// failure().
    QJsonValue ask(const QString &command, QJsonObject arguments = {});
    void kill();

private:
    QJsonObject nextLine(std::chrono::milliseconds patience);

    QProcess m_process;
    QString m_failure;
};

/// A server of the foreign stack on loopback, with the model of an SCL file and files in a folder
/// of its own.
class ForeignServer
{
public:
    explicit ForeignServer(const QString &scl, QJsonObject options = {});

    ForeignPeer &peer() { return *m_peer; }
    std::uint16_t port() const { return m_port; }
    QString filePath(const QString &name) const { return m_files.filePath(name); }

private:
    QTemporaryDir m_files;
    std::uint16_t m_port = 0;
    std::unique_ptr<ForeignPeer> m_peer;
};

/// A file beside the sources of these tests.
QString sourceFile(const QString &name);

} // namespace interop
