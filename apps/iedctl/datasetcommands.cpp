// SPDX-License-Identifier: Apache-2.0
#include "commands.h"
#include "directorylist.h"
#include "references.h"
#include "session.h"
#include "valuelines.h"

namespace {

/// Where a data set is, as the controller wants it: for one of the association no logical device.
struct Place
{
    QString device;
    QString name;
    bool ofAssociation = false;
};

std::optional<Place> placeOf(const QString &text, QString &error)
{
    Place place;
    if (text.startsWith(QLatin1Char('@'))) {
        place.name = text.mid(1);
        place.ofAssociation = true;
    } else {
        splitReference(text, place.device, place.name);
        const int dot = place.name.indexOf(QLatin1Char('.'));
        if (dot > 0 && !place.name.contains(QLatin1Char('$')))
            place.name[dot] = QLatin1Char('$');
    }
    const int separator = place.name.indexOf(QLatin1Char('$'));
    const bool complete = place.ofAssociation ? !place.name.isEmpty()
                                              : separator > 0 && separator + 1 < place.name.size();
    if (complete)
        return place;
    error = QStringLiteral("\"%1\" does not name a data set; write \"LD/LN$name\" or \"@name\".")
                .arg(text);
    return {};
}

} // namespace

namespace Commands {

ExitStatus listDataSets(Session &session, const QString &logicalDevice)
{
    QStringList devices{logicalDevice};
    QString error;
    if (logicalDevice.isEmpty()) {
        QList<NameVaildValue> list;
        const OperationResult result =
            session.controller().getServerDirectory(session.deviceNo(), list, error);
        if (result != OperationSucceeded)
            return session.failed(result, error);
        devices.clear();
        for (const NameVaildValue &entry : list)
            devices.append(entry.name);
    }
    QJsonArray rows;
    for (const QString &device : devices) {
        QList<NameVaildValue> list;
        const OperationResult result =
            session.controller().getDataSetList(session.deviceNo(), device, list, error);
        if (result != OperationSucceeded)
            return session.failed(result, error);
        for (const NameVaildValue &entry : list) {
            const QString name = entry.name.contains(QLatin1Char('/'))
                                     ? entry.name
                                     : device + QLatin1Char('/') + entry.name;
            rows.append(QJsonObject{{QStringLiteral("name"), name}});
        }
    }
    session.output().rows({QStringLiteral("name")}, rows);
    return ExitStatus::Done;
}

ExitStatus showDataSet(Session &session, const QString &dataSet)
{
    QString error;
    const std::optional<Place> place = placeOf(dataSet, error);
    if (!place)
        return session.failed(error);
    QList<NameVaildValue> list;
    const OperationResult result = session.controller().getDataSetDirectory(
        session.deviceNo(), place->device, place->name, list, error);
    if (result != OperationSucceeded)
        return session.failed(result, error);
    showDirectory(session.output(), list);
    return ExitStatus::Done;
}

ExitStatus readDataSet(Session &session, const QString &dataSet)
{
    const PhysicalDevice *device = session.model();
    if (!device)
        return session.lastFailure();
    QString error;
    const std::optional<Place> place = placeOf(dataSet, error);
    if (!place)
        return session.failed(error);
    QList<NameVaildValue> members;
    const OperationResult result = session.controller().getDataSetDirectory(
        session.deviceNo(), place->device, place->name, members, error);
    if (result != OperationSucceeded)
        return session.failed(result, error);
    QStringList wanted;
    for (const NameVaildValue &member : members) {
        const QString reference = member.name.contains(QLatin1Char('/'))
                                      ? member.name
                                      : place->device + QLatin1Char('/') + member.name;
        for (const DataAttribute *attribute : selectData(*device, reference, error).attributes)
            wanted.append(attribute->reference);
    }
    const auto values = session.gather(wanted, [&](QString &refusal) {
        return session.controller().readDataSetValue(session.deviceNo(), place->device, place->name,
                                                     refusal);
    });
    if (!values)
        return session.lastFailure();
    QJsonArray rows;
    for (const QString &reference : wanted) {
        const auto found = values->constFind(reference);
        if (found != values->constEnd())
            rows.append(valueRow(*device, found.value()));
    }
    showValues(session.output(), rows);
    if (rows.size() < wanted.size()) {
        return session.failed(QStringLiteral("%1 of the %2 values of \"%3\" did not come.")
                                  .arg(wanted.size() - rows.size())
                                  .arg(wanted.size())
                                  .arg(dataSet));
    }
    return ExitStatus::Done;
}

ExitStatus createDataSet(Session &session, const QString &dataSet, const QStringList &members)
{
    const PhysicalDevice *device = session.model();
    if (!device)
        return session.lastFailure();
    QString error;
    const std::optional<Place> place = placeOf(dataSet, error);
    if (!place)
        return session.failed(error);
    QStringList references;
    for (const QString &member : members) {
        const Selection selection = selectData(*device, member, error);
        if (selection.attributes.isEmpty())
            return session.failed(error);
        for (const QString &reference : selection.references)
            references.append(selection.device + QLatin1Char('/') + reference);
    }
    return session.ended(session.controller().createDataSet(session.deviceNo(), place->device,
                                                            place->name,
                                                            references.join(QLatin1Char(';')),
                                                            place->ofAssociation ? 1 : 0, error),
                         error);
}

ExitStatus deleteDataSet(Session &session, const QString &dataSet)
{
    QString error;
    const std::optional<Place> place = placeOf(dataSet, error);
    if (!place)
        return session.failed(error);
    return session.ended(
        session.controller().deleteDataSet(session.deviceNo(), place->device, place->name, error),
        error);
}

} // namespace Commands
