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

/// The foreign stack of this run, a folder below peers/: what the environment variable INTEROP_PEER
/// names, otherwise the first one.
QString peerName();

/// What the peer is known to lack or to do otherwise: the third part of the line of
/// peers/NAME/differences.txt that begins with @p kind ("server", "client" or "operator") and @p
/// row; empty when there is none.
QString knownDifference(const QString &kind, const QString &row);

/// The foreign stack as it is installed in the build.
struct Installation
{
    QString python;      ///< the interpreter that has it; empty when it is not there
    QString reason;      ///< why not
    bool failed = false; ///< it could have been installed, but was not

    /// Installs at the first call.
    static const Installation &get();
};

/// A program of the foreign stack in a process of its own, which is ended with the object. One
/// thread.
class ForeignPeer
{
public:
    enum class Role { Client, Server };

    /// Starts the program with @p arguments and waits until it is ready.
    explicit ForeignPeer(Role role, const QStringList &arguments = {});
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
