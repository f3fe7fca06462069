// SPDX-License-Identifier: Apache-2.0
#include "interop/foreignpeer.h"

#include <asio/io_context.hpp>
#include <asio/ip/tcp.hpp>

#include <QDeadlineTimer>
#include <QFile>
#include <QJsonDocument>

namespace interop {

namespace {

constexpr int notThere = 77;
constexpr std::chrono::milliseconds patience{30000};

std::uint16_t freePort()
{
    asio::io_context context;
    asio::ip::tcp::acceptor acceptor(context, {asio::ip::address_v4::loopback(), 0});
    return acceptor.local_endpoint().port();
}

QString peerFile(const char *name)
{
    return sourceFile("peers/" + peerName() + '/' + name);
}

Installation install()
{
    QProcess process;
    process.start(QStringLiteral(INTEROP_PYTHON),
                  {sourceFile("install_peers.py"), peerFile("requirements.txt"),
                   QStringLiteral(INTEROP_FOLDER "/python-") + peerName()});
    if (!process.waitForFinished(300000))
        return {{}, QStringLiteral("the installation does not end"), true};
    const QString said = QString::fromUtf8(process.readAllStandardError()).trimmed();
    if (process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0)
        return {QString::fromUtf8(process.readAllStandardOutput()).trimmed(), {}, false};
    return {{}, said, process.exitCode() != notThere};
}

} // namespace

QString peerName()
{
    return qEnvironmentVariable("INTEROP_PEER", "pyiec61850");
}

QString knownDifference(const QString &kind, const QString &row)
{
    QFile file(peerFile("differences.txt"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QStringList lines = QString::fromUtf8(file.readAll()).split('\n');
    for (const QString &line : lines) {
        const QStringList parts = line.split(QStringLiteral(" | "));
        if (parts.size() == 3 && parts[0] == kind && parts[1] == row)
            return parts[2];
    }
    return {};
}

QString sourceFile(const QString &name)
{
    return QStringLiteral(INTEROP_SOURCES "/") + name;
}

const Installation &Installation::get()
{
    static const Installation installation = install();
    return installation;
}

ForeignPeer::ForeignPeer(Role role, const QStringList &arguments)
{
    const QString script = peerFile(role == Role::Client ? "client.py" : "server.py");
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(Installation::get().python, QStringList{script} + arguments);
    const QJsonObject line = nextLine(patience);
    if (line.value("event") != QLatin1String("ready"))
        m_failure = line.value("reason").toString("the peer does not start");
}

ForeignPeer::~ForeignPeer()
{
    m_process.closeWriteChannel();
    if (m_process.state() != QProcess::NotRunning && !m_process.waitForFinished(5000))
        kill();
}

void ForeignPeer::kill()
{
    m_process.kill();
    m_process.waitForFinished(5000);
}

QJsonObject ForeignPeer::nextLine(std::chrono::milliseconds wait)
{
    const QDeadlineTimer deadline(wait);
    while (!m_process.canReadLine()) {
        if (deadline.hasExpired() || m_process.state() == QProcess::NotRunning)
            return {};
        m_process.waitForReadyRead(static_cast<int>(deadline.remainingTime()));
    }
    return QJsonDocument::fromJson(m_process.readLine()).object();
}

QJsonValue ForeignPeer::ask(const QString &command, QJsonObject arguments)
{
    arguments.insert("do", command);
    m_process.write(QJsonDocument(arguments).toJson(QJsonDocument::Compact) + '\n');
    const QJsonObject line = nextLine(patience);
    m_failure = line.value("failure").toString();
    if (m_failure.isEmpty() && !line.contains("result"))
        m_failure = QStringLiteral("the peer does not answer");
    return m_failure.isEmpty() ? line.value("result") : QJsonValue(QJsonValue::Undefined);
}

ForeignServer::ForeignServer(const QString &scl, QJsonObject options)
{
    options.insert("scl", scl);
    options.insert("files", m_files.path());
    // Another program may take the port before the peer does.
    for (int attempt = 0; attempt < 3 && !(m_peer && m_peer->isReady()); ++attempt) {
        m_port = freePort();
        options.insert("port", m_port);
        m_peer = std::make_unique<ForeignPeer>(
            ForeignPeer::Role::Server,
            QStringList{QString::fromUtf8(QJsonDocument(options).toJson(QJsonDocument::Compact))});
    }
}

} // namespace interop
