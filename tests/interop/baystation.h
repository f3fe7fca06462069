// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QString>

#include <cstdint>
#include <memory>

/// A server on loopback with the model of bay.icd and a folder of files, and the process behind it.
class BayStation
{
public:
    virtual ~BayStation() = default;

    /// "simulator", "foreign-server": which results of the tests these are.
    virtual QString column() const = 0;
    /// Why a job cannot be done on this server; empty when it can.
    virtual QString lacks(const QString &job) const
    {
        Q_UNUSED(job)
        return {};
    }
    virtual std::uint16_t port() const = 0;
    /// The path of a file that the server offers.
    virtual QString filePath(const QString &name) const = 0;

    /// Values of BAY1CTRL, "GGIO1.AnIn1.mag.f" under a functional constraint.
    virtual void setFloat(const QString &item, const QString &constraint, double value) = 0;
    virtual void setBoolean(const QString &item, const QString &constraint, bool value) = 0;
    virtual double number(const QString &item, const QString &constraint) = 0;
    virtual bool boolean(const QString &item, const QString &constraint) = 0;
};

/// Null where there can be no such server here, with the @p reason; to be skipped then.
std::unique_ptr<BayStation> makeBayStation(QString &reason);
