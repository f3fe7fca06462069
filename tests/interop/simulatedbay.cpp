// SPDX-License-Identifier: Apache-2.0
#include "driver/simulatedstation.h"
#include "simulator/directoryfiles.h"

#include "interop/baystation.h"

#include <QtCore/QTemporaryDir>

namespace {

const char *const domain = "BAY1CTRL";

/// "LN.data" under a constraint as on the wire.
std::string wireItem(const QString &item, const QString &constraint)
{
    QStringList parts = item.split(QLatin1Char('.'));
    parts.insert(1, constraint);
    return parts.join(QLatin1Char('$')).toStdString();
}

class SimulatedBay : public BayStation
{
public:
    SimulatedBay()
    {
        sim::FileOptions files;
        files.directory = m_folder.path().toStdString();
        auto service = sim::DirectoryFiles::create(files);
        if (!service)
            qFatal("%s", service.error().message.english().c_str());
        sim::DeviceOptions options;
        options.files = *service;
        m_ied = std::make_unique<drivertest::SimulatedIed>(QStringLiteral(BAY_FILE), QString(),
                                                           std::string(), options);
    }

    QString column() const override { return QStringLiteral("dialogs-simulator"); }
    std::uint16_t port() const override { return m_ied->port(); }
    QString filePath(const QString &name) const override { return m_folder.filePath(name); }

    void setFloat(const QString &item, const QString &constraint, double value) override
    {
        m_ied->set(domain, wireItem(item, constraint),
                   mms::Data::float32(static_cast<float>(value)));
    }
    void setBoolean(const QString &item, const QString &constraint, bool value) override
    {
        m_ied->set(domain, wireItem(item, constraint), mms::Data::boolean(value));
    }
    double number(const QString &item, const QString &constraint) override
    {
        const mms::Data value = m_ied->value(domain, wireItem(item, constraint));
        if (const auto integer = value.toInteger())
            return static_cast<double>(*integer);
        return value.toDouble().value_or(qQNaN());
    }
    bool boolean(const QString &item, const QString &constraint) override
    {
        return m_ied->value(domain, wireItem(item, constraint)) == mms::Data::boolean(true);
    }

private:
    QTemporaryDir m_folder;
    std::unique_ptr<drivertest::SimulatedIed> m_ied;
};

} // namespace

std::unique_ptr<BayStation> makeBayStation(QString &)
{
    return std::make_unique<SimulatedBay>();
}
