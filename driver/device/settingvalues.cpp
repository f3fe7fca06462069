// SPDX-License-Identifier: Apache-2.0
#include "settingvalues.h"

#include "driver/model/valueconversion.h"
#include "driver/text/connectiontext.h"
#include "driver/text/sentences.h"
#include "settinggroups.h"
#include "valuepublishing.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QHash>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <limits>

using acsi::FunctionalConstraint;
using ConnectionText::withoutPeriod;

namespace {

using ConnectionText::text;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(IedDriver)
};

/// Refused settings that a sentence names.
constexpr int namedRefusals = 5;

QString text(const acsi::Reference &reference)
{
    return text(acsi::toText(reference));
}

/// The value in a type that property editors know: wider integers as int where they fit, otherwise
/// as text. The editor would leave out the setting otherwise.
QVariant editable(const QVariant &value)
{
    const int type = value.userType();
    if (type != QMetaType::UInt && type != QMetaType::LongLong && type != QMetaType::ULongLong)
        return value;
    bool fits = false;
    const int number = value.toString().toInt(&fits);
    return fits ? QVariant(number) : QVariant(value.toString());
}

/// Whether the operator left the value as it was shown. What was not changed need not be anything
/// that can be written: settings that were never set are no numbers.
bool isUnchanged(const QVariant &shown, const QVariant &wanted)
{
    const int type = shown.userType();
    if (type == QMetaType::Float || type == QMetaType::Double) {
        bool isNumber = false;
        const double number = wanted.toDouble(&isNumber);
        const double before = shown.toDouble();
        if (!isNumber || std::isnan(before) || std::isnan(number))
            return isNumber && std::isnan(before) && std::isnan(number);
        const bool fits = std::abs(number) <= double(std::numeric_limits<float>::max());
        return before == number ||
               (type == QMetaType::Float && fits && static_cast<float>(number) == shown.toFloat());
    }
    if (type == QMetaType::Int)
        return wanted.userType() != QMetaType::Bool && wanted.toString() == shown.toString();
    return shown.isValid() && type == wanted.userType() && shown == wanted;
}

/// What became of writes without an answer, as far as the device tells when it is asked.
asio::awaitable<void> readBack(std::shared_ptr<DeviceConnection> device,
                               const std::vector<SettingValues::Value> &values,
                               std::vector<acsi::SettingWrite> &written)
{
    std::vector<std::size_t> places;
    std::vector<mms::VariableAccess> variables;
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (!written[i].isUnknown())
            continue;
        places.push_back(i);
        variables.push_back(acsi::accessOf(values[i].reference));
    }
    const std::shared_ptr<acsi::Client> client = device->client();
    if (places.empty() || !client || !client->isOpen())
        co_return;
    const auto results = co_await client->read(std::move(variables));
    if (!results)
        co_return;
    for (std::size_t i = 0; i < places.size() && i < results->size(); ++i) {
        const mms::AccessResult &result = (*results)[i];
        if (!result.ok())
            continue;
        acsi::SettingWrite &write = written[places[i]];
        const bool isDone = result.data() == values[places[i]].data;
        write.kind = isDone ? acsi::SettingWrite::Kind::Done : acsi::SettingWrite::Kind::Refused;
    }
}

} // namespace

asio::awaitable<mms::Result<std::vector<SettingValues::Setting>>>
SettingValues::read(std::shared_ptr<DeviceConnection> device, QString ldName,
                    FunctionalConstraint constraint)
{
    const std::shared_ptr<acsi::Client> client = device->client();
    if (!client)
        co_return mms::Error{mms::verbatim(device->notConnectedSentence().toStdString()), 0};
    const std::vector<acsi::Reference> nodes =
        SettingModel::nodes(*device->model(), ldName, constraint);
    std::vector<Setting> settings;
    if (nodes.empty())
        co_return settings;
    std::vector<mms::VariableAccess> variables;
    for (const acsi::Reference &node : nodes)
        variables.push_back(acsi::accessOf(node));
    ValuePublishing::Publication publication;
    publication.asOf = device->now();
    const mms::Result<std::vector<mms::AccessResult>> values =
        co_await client->read(std::move(variables));
    if (!values)
        co_return values.error();

    std::vector<acsi::Reference> alone;
    std::vector<std::size_t> places;
    for (std::size_t i = 0; i < nodes.size() && i < values->size(); ++i) {
        const std::size_t before = settings.size();
        const mms::AccessResult &value = (*values)[i];
        const auto take = [&settings](const OnlineModel::Leaf &leaf) {
            settings.push_back({leaf.reference, *leaf.data, QString()});
        };
        if (value.ok() && device->model()->forEachLeaf(nodes[i], value.data(), take)) {
            device->values().publish(nodes[i], value.data(), publication);
            continue;
        }
        // What is refused as a whole is asked for one by one.
        settings.resize(before);
        for (const OnlineModel::Leaf &leaf : device->model()->leavesOf(nodes[i])) {
            const auto reference = acsi::parseReference(leaf.reference.toStdString());
            if (!reference)
                continue;
            alone.push_back(*reference);
            places.push_back(settings.size());
            settings.push_back({leaf.reference, std::nullopt, QString()});
        }
    }
    if (!alone.empty()) {
        std::vector<mms::VariableAccess> single;
        for (const acsi::Reference &reference : alone)
            single.push_back(acsi::accessOf(reference));
        const mms::Result<std::vector<mms::AccessResult>> results =
            co_await client->read(std::move(single));
        if (!results)
            co_return results.error();
        for (std::size_t i = 0; i < places.size() && i < results->size(); ++i) {
            const mms::AccessResult &value = (*results)[i];
            Setting &setting = settings[places[i]];
            if (value.ok())
                setting.data = value.data();
            else
                setting.reason = text(mms::describe(value.error()));
        }
    }
    co_return settings;
}

QVariant SettingValues::shown(const OnlineModel &model, const Setting &setting)
{
    if (!setting.data)
        return {};
    return editable(ValueConversion::toVariant(SettingModel::basicType(model, setting.reference),
                                               *setting.data));
}

mms::Result<acsi::Reference> SettingValues::reference(const QString &ldName, const QString &name)
{
    if (name.contains(QLatin1Char('/')))
        return acsi::parseReference(name.toStdString());
    return acsi::parseReference(ldName.toStdString(), name.toStdString());
}

mms::Result<std::vector<SettingValues::Value>>
SettingValues::changes(const OnlineModel &model, const QString &ldName,
                       const QList<SGCBValue> &values, const std::vector<Setting> &known)
{
    const auto error = [](const QString &sentence) {
        return mms::Error{mms::verbatim(sentence.toStdString()), 0};
    };
    QHash<QString, const Setting *> byReference;
    for (const Setting &setting : known)
        byReference.insert(setting.reference, &setting);
    std::vector<Value> result;
    for (const SGCBValue &value : values) {
        mms::Result<acsi::Reference> found = SettingValues::reference(ldName, value.name);
        if (!found)
            return found.error();
        const bool isSetting =
            found->device == ldName.toStdString() && found->constraint == FunctionalConstraint::SE;
        const mms::TypeDescription *type = isSetting ? model.type(*found) : nullptr;
        if (!type)
            return error(Texts::tr("%1 has no setting %2.").arg(ldName, value.name));
        // A setting that could not be read was listed without a value.
        if (!value.value.isValid())
            continue;
        const QString basicType = SettingModel::basicType(model, text(*found));
        const Setting *setting = byReference.value(text(*found));
        const QVariant before = setting ? shown(model, *setting) : QVariant();
        if (isUnchanged(before, value.value))
            continue;
        mms::Result<mms::Data> data = ValueConversion::toData(basicType, *type, value.value);
        if (!data)
            return error(Texts::tr("%1: %2").arg(value.name, text(data.error().message)));
        if (setting && setting->data == *data)
            continue;
        result.push_back({*found, *std::move(data),
                          before.isValid() ? ValueConversion::text(before) : QString(),
                          ValueConversion::text(value.value)});
    }
    return result;
}

asio::awaitable<Outcome> SettingValues::write(ChangePointer change,
                                              const std::vector<Value> &values)
{
    const auto client = change->client();
    if (!client)
        co_return change->refusal();
    std::vector<std::unique_ptr<ChangeRecord>> records;
    std::vector<mms::VariableAccess> variables;
    std::vector<mms::Data> data;
    for (const Value &value : values) {
        records.push_back(change->part(text(value.reference), value.oldText, value.newText));
        variables.push_back(acsi::accessOf(value.reference));
        data.push_back(value.data);
    }
    std::vector<acsi::SettingWrite> written =
        co_await acsi::writeSettings(client, std::move(variables), std::move(data));
    co_await readBack(change->device(), values, written);
    QStringList refusals;
    int count = 0;
    for (std::size_t i = 0; i < values.size(); ++i) {
        const acsi::SettingWrite &write = written[i];
        Outcome outcome;
        if (write.isUnknown()) {
            outcome = Outcome::failed(Texts::tr("%1; it is not known whether the setting was "
                                                "written.")
                                          .arg(withoutPeriod(text(write.message))));
        } else if (!write) {
            outcome = Outcome::failed(text(write.message));
        }
        if (write.isUnknown())
            records[i]->giveUp(outcome.error);
        else
            records[i]->end(outcome);
        if (outcome)
            continue;
        if (++count <= namedRefusals)
            refusals.append(
                Texts::tr("%1: %2").arg(text(values[i].reference), withoutPeriod(outcome.error)));
    }
    if (count == 0)
        co_return Outcome();
    QString sentence = refusals.join(QStringLiteral("; "));
    if (count > refusals.size())
        sentence = Texts::tr("%1; and %2 more").arg(sentence).arg(count - refusals.size());
    co_return Outcome::failed(Texts::tr("%1. The changes are not confirmed.").arg(sentence));
}
