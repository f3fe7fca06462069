// SPDX-License-Identifier: Apache-2.0
#include "interop/baystation.h"
#include "interop/foreignpeer.h"

namespace {

class ForeignBay : public BayStation
{
public:
    ForeignBay()
        : m_server(interop::sourceFile(QStringLiteral("bay.icd")))
    {
    }

    interop::ForeignPeer &peer() { return m_server.peer(); }
    QString column() const override
    {
        return QStringLiteral("dialogs-foreign-server-") + interop::peerName();
    }
    QString lacks(const QString &job) const override
    {
        return interop::knownDifference(QStringLiteral("operator"), job);
    }
    std::uint16_t port() const override { return m_server.port(); }
    QString filePath(const QString &name) const override { return m_server.filePath(name); }

    void setFloat(const QString &item, const QString &constraint, double value) override
    {
        set(item, constraint, QJsonObject{{QStringLiteral("float"), value}});
    }
    void setBoolean(const QString &item, const QString &constraint, bool value) override
    {
        set(item, constraint, value);
    }
    double number(const QString &item, const QString &constraint) override
    {
        const QJsonValue value = get(item, constraint);
        // {"float": 1.5}, {"integer": "-3"}
        if (value.toObject().size() != 1)
            return qQNaN();
        return value.toObject().constBegin()->toVariant().toDouble();
    }
    bool boolean(const QString &item, const QString &constraint) override
    {
        return get(item, constraint).toBool();
    }

private:
    static QString full(const QString &item) { return QStringLiteral("BAY1CTRL/") + item; }

    void set(const QString &item, const QString &constraint, const QJsonValue &value)
    {
        const QJsonValue done =
            peer().ask(QStringLiteral("set"), {{QStringLiteral("reference"), full(item)},
                                               {QStringLiteral("fc"), constraint},
                                               {QStringLiteral("value"), value}});
        if (!done.toBool())
            qFatal("%s", qPrintable(peer().failure()));
    }
    QJsonValue get(const QString &item, const QString &constraint)
    {
        return peer().ask(QStringLiteral("get"), {{QStringLiteral("reference"), full(item)},
                                                  {QStringLiteral("fc"), constraint}});
    }

    interop::ForeignServer m_server;
};

} // namespace

std::unique_ptr<BayStation> makeBayStation(QString &reason)
{
    const interop::Installation &installation = interop::Installation::get();
    if (installation.failed)
        qFatal("%s", qPrintable(installation.reason));
    if (installation.python.isEmpty()) {
        reason = QStringLiteral("The foreign peer is not there: no package registry answers (%1).")
                     .arg(installation.reason);
        return nullptr;
    }
    auto bay = std::make_unique<ForeignBay>();
    if (!bay->peer().isReady())
        qFatal("%s", qPrintable(bay->peer().failure()));
    return bay;
}
