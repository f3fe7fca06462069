// SPDX-License-Identifier: Apache-2.0
#include "deviceoperations.h"
#include "driver/device/valuepublishing.h"
#include "driver/model/valueconversion.h"
#include "driver/text/sentences.h"

#include "acsi/dataset.h"

#include <QtCore/QCoreApplication>

#include <chrono>

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

asio::awaitable<Outcome> readVariables(DevicePointer device, QString ldName, QStringList names)
{
    std::vector<acsi::Reference> references;
    QStringList errors;
    for (const QString &name : qAsConst(names)) {
        mms::Result<acsi::Reference> reference =
            acsi::parseReference(ldName.toStdString(), name.toStdString());
        if (reference)
            references.push_back(std::move(*reference));
        else
            errors.append(text(reference.error().message));
    }
    if (references.empty() && errors.isEmpty())
        errors.append(Texts::tr("There is nothing to read."));
    Outcome outcome;
    if (!references.empty()) {
        const ValuePublishing::Publication publication;
        outcome = co_await device->values().readAndPublish(std::move(references), publication);
        if (outcome.result != OperationSucceeded && outcome.result != OperationFailed)
            co_return outcome;
    }
    if (!outcome.error.isEmpty())
        errors.append(outcome.error);
    if (!errors.isEmpty())
        outcome = Outcome::failed(errors.join(QLatin1Char(' ')));
    co_return outcome;
}

asio::awaitable<Outcome> readDataSet(DevicePointer device, QString ldName, QString name)
{
    const std::string wanted = (ldName.isEmpty() ? QStringLiteral("@") + name : name).toStdString();
    const mms::Result<mms::ObjectName> set = acsi::dataSetName(ldName.toStdString(), wanted);
    if (!set)
        co_return Outcome::failed(set.error());
    const std::shared_ptr<acsi::Client> client = device->client();
    // Asked for each time: a data set may have been made anew under its name.
    const mms::Result<acsi::DataSetDescription> directory =
        co_await acsi::dataSetDirectory(client, *set);
    if (!directory)
        co_return Outcome::failed(directory.error());
    ValuePublishing::Publication publication;
    publication.asOf = device->now();
    const mms::Result<std::vector<mms::AccessResult>> values = co_await client->readList(*set);
    if (!values)
        co_return Outcome::failed(values.error());
    if (values->size() != directory->members.size())
        co_return Outcome::failed(Texts::tr("The data set has %1 members, but %2 values came.")
                                      .arg(directory->members.size())
                                      .arg(values->size()));
    QStringList failures;
    // What the device gives in parts only, or refuses as a member.
    std::vector<acsi::Reference> inParts;
    for (std::size_t i = 0; i < values->size(); ++i) {
        const mms::AccessResult &value = (*values)[i];
        const mms::Result<acsi::Reference> member = acsi::referenceOf(directory->members[i]);
        if (member && device->model() && device->model()->isInParts(*member)) {
            inParts.push_back(*member);
            continue;
        }
        const QString reference =
            text(member ? acsi::toText(*member) : mms::toText(directory->members[i]));
        if (!value.ok() && member)
            inParts.push_back(*member);
        else if (!value.ok())
            failures.append(Texts::tr("%1: %2").arg(reference, text(mms::describe(value.error()))));
        else if (!member || !device->values().publish(*member, value.data(), publication))
            failures.append(
                Texts::tr("%1: the value does not have the form of its type.").arg(reference));
    }
    Outcome outcome;
    if (!inParts.empty())
        outcome = co_await device->values().readAndPublish(std::move(inParts), publication);
    if (!outcome)
        failures.append(outcome.error);
    if (!failures.isEmpty())
        outcome = Outcome::failed(failures.join(QStringLiteral("; ")));
    co_return outcome;
}

asio::awaitable<Outcome> write(ChangePointer change, QString ldName, QString name, QVariant value)
{
    const DevicePointer device = change->device();
    const mms::Result<acsi::Reference> reference =
        acsi::parseReference(ldName.toStdString(), name.toStdString());
    if (!reference)
        co_return Outcome::failed(reference.error());
    const mms::TypeDescription *type = device->model()->type(*reference);
    const QString full = text(acsi::toText(*reference));
    if (!type)
        co_return Outcome::failed(Texts::tr("The device has no %1.").arg(full));
    const DataAttribute *attribute = device->model()->device().findTag(full);
    const QString basicType = attribute ? attribute->basicType : QString();
    change->setReference(full);
    change->setValues(attribute ? ValueConversion::text(attribute->value) : QString(),
                      ValueConversion::text(value));
    change->intend();

    Outcome outcome;
    const QString readOnly =
        attribute ? ValueConversion::whyReadOnly(full, attribute->value) : QString();
    const mms::Result<mms::Data> data = ValueConversion::toData(basicType, *type, value);
    if (!readOnly.isEmpty()) {
        outcome = Outcome::failed(readOnly);
    } else if (!data) {
        outcome = Outcome::failed(data.error());
    } else if (const auto client = change->client()) {
        const mms::Result<void> written =
            co_await client->writeOne(acsi::accessOf(*reference), *data);
        if (!written)
            outcome = Outcome::failed(written.error());
    } else {
        outcome = change->refusal();
    }
    if (outcome)
        device->values().haveWritten(*reference);
    else
        device->values().showUnwritten(*reference);
    co_return outcome;
}

} // namespace

Result DeviceOperations::readVariable(CalledDevice device, const QString &ldName,
                                      const QStringList &references)
{
    return readVariables(device, ldName, references);
}

Result DeviceOperations::readDataSetValue(CalledDevice device, const QString &ldName,
                                          const QString &dataSetReference)
{
    return readDataSet(device, ldName, dataSetReference);
}

ChangeOrder DeviceOperations::writeVariable(Tool, const QString &ldName, const QString &reference,
                                            const QByteArray &value)
{
    QVariant decoded;
    if (!ValueConversion::readVariant(value, decoded))
        return ChangeOrder::refused(Texts::tr("The value to be written cannot be read."));
    ChangeIntent intent;
    intent.operation = QStringLiteral("writeVariable");
    intent.reference = ldName + QLatin1Char('/') + reference;
    intent.newValue = ValueConversion::text(decoded);
    return {std::move(intent), [ldName, reference, decoded](ChangePointer change) {
                return write(std::move(change), ldName, reference, decoded);
            }};
}
