// SPDX-License-Identifier: Apache-2.0
#include "filechoice.h"

#include <QtCore/QCoreApplication>

#include <algorithm>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(IedDriver)
};

QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
}

bool hasAnyOf(const scl::AccessPoint &point, const QStringList &logicalDevices)
{
    return point.server && std::ranges::any_of(point.server->devices, [&](const auto &device) {
               return logicalDevices.contains(text(device.name));
           });
}

/// The names that the device gives the logical devices of the file when all begin with the name of
/// another IED; empty when that cannot be, or not in one way only.
QHash<QString, QString> namesByInstance(const scl::Ied &ied, const FileChoice &choice,
                                        const QStringList &logicalDevices)
{
    QHash<QString, QString> best;
    int mostMatches = 0;
    bool isOnlyOne = true;
    QStringList tried;
    for (const QString &candidate : logicalDevices) {
        choice.forEachDevice(ied, [&](const scl::LogicalDevice &device) {
            const QString instance = text(device.inst);
            if (!device.ldName.empty() || instance.isEmpty() || !candidate.endsWith(instance))
                return;
            const QString iedName = candidate.left(candidate.size() - instance.size());
            if (iedName.isEmpty() || tried.contains(iedName))
                return;
            tried.append(iedName);
            // What is missing on the device is missed under its name.
            QHash<QString, QString> names;
            int matches = 0;
            choice.forEachDevice(ied, [&](const scl::LogicalDevice &each) {
                if (!each.ldName.empty())
                    return;
                const QString name = iedName + text(each.inst);
                matches += logicalDevices.contains(name);
                names.insert(text(each.name), name);
            });
            if (matches > mostMatches) {
                best = names;
                mostMatches = matches;
                isOnlyOne = true;
            } else if (matches == mostMatches) {
                isOnlyOne = false;
            }
        });
    }
    return isOnlyOne ? best : QHash<QString, QString>();
}

} // namespace

FileChoice chooseServer(const scl::Document &document, const scl::Ied &ied,
                        const KnownDevice &device, QString &error)
{
    error.clear();
    FileChoice choice;
    if (!device.accessPoint.isEmpty()) {
        const bool isThere = std::ranges::any_of(ied.accessPoints, [&](const auto &point) {
            return point.server && text(point.name) == device.accessPoint;
        });
        if (!isThere) {
            error = Texts::tr("The IED %1 of the file has no access point \"%2\" with a server.")
                        .arg(text(ied.name), device.accessPoint);
            return choice;
        }
        choice.accessPoints.append(device.accessPoint);
    } else {
        for (const scl::AccessPoint &point : ied.accessPoints) {
            const scl::ConnectedAccessPoint *const connection =
                document.findConnection(ied.name, point.name);
            if (point.server && connection && !device.host.isEmpty() &&
                text(connection->part("IP")).trimmed() == device.host)
                choice.accessPoints.append(text(point.name));
        }
        // Only the device's own words decide where the address is none of the file's.
        if (choice.accessPoints.isEmpty()) {
            for (const scl::AccessPoint &point : ied.accessPoints) {
                if (hasAnyOf(point, device.logicalDevices))
                    choice.accessPoints.append(text(point.name));
            }
        }
    }
    bool isAnyThere = false;
    QStringList names;
    choice.forEachDevice(ied, [&](const scl::LogicalDevice &each) {
        names.append(text(each.name));
        isAnyThere = isAnyThere || device.logicalDevices.contains(names.last());
    });
    if (isAnyThere || names.isEmpty())
        return choice;
    choice.names = namesByInstance(ied, choice, device.logicalDevices);
    if (choice.names.isEmpty()) {
        error = Texts::tr("The device has none of the logical devices that the file describes for "
                          "%1, such as %2.")
                    .arg(text(ied.name), names.first());
    }
    return choice;
}
