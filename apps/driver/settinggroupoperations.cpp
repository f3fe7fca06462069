// SPDX-License-Identifier: Apache-2.0
#include "driverruntime.h"
#include "journalentry.h"
#include "valueconversion.h"

#include "acsi/settinggroup.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDateTime>
#include <QtCore/QHash>

#include <algorithm>
#include <limits>

using acsi::FunctionalConstraint;

namespace {

using DevicePointer = std::shared_ptr<DeviceConnection>;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(IedDriver)
};

/// Refused settings that a sentence names.
constexpr int namedRefusals = 5;

QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
}

QString text(const acsi::Reference &reference)
{
    return text(acsi::toText(reference));
}

QString withoutPeriod(QString sentence)
{
    while (sentence.endsWith(QLatin1Char('.')))
        sentence.chop(1);
    return sentence;
}

/// A reference that tells the logical device alone names its only block.
QString logicalDeviceOf(const QString &sgcbReference)
{
    return sgcbReference.section(QLatin1Char('/'), 0, 0);
}

const acsi::DeviceDescription *deviceDescription(const OnlineModel &model, const QString &ldName)
{
    const std::string name = ldName.toStdString();
    for (const acsi::DeviceDescription &device : model.description().devices) {
        if (device.name == name)
            return &device;
    }
    return nullptr;
}

/// "LD/LLN0$SP$SGCB"; an error when the logical device has none.
mms::Result<acsi::Reference> blockOf(const OnlineModel &model, const QString &ldName)
{
    const auto error = [](const QString &sentence) {
        return mms::Error{sentence.toStdString(), 0};
    };
    const acsi::DeviceDescription *device = deviceDescription(model, ldName);
    if (!device)
        return error(Texts::tr("The device has no logical device \"%1\".").arg(ldName));
    for (const acsi::NodeDescription &node : device->nodes) {
        if (acsi::typeBelow(node.type, "SP", "SGCB"))
            return acsi::Reference{
                device->name, node.name, FunctionalConstraint::SP, {{"SGCB", std::nullopt}}};
    }
    return error(Texts::tr("%1 has no setting group control block.").arg(ldName));
}

acsi::Reference attributeOf(acsi::Reference block, const char *name)
{
    block.path.push_back({name, std::nullopt});
    return block;
}

/// The logical nodes that have settings under the constraint, in the order in which they are shown.
std::vector<acsi::Reference> nodesWith(const OnlineModel &model, const QString &ldName,
                                       FunctionalConstraint constraint)
{
    std::vector<acsi::Reference> result;
    const acsi::DeviceDescription *device = deviceDescription(model, ldName);
    if (!device)
        return result;
    for (const acsi::NodeDescription &node : device->nodes) {
        if (acsi::typeBelow(node.type, acsi::toText(constraint), {}))
            result.push_back({device->name, node.name, constraint, {}});
    }
    QHash<QString, int> places;
    for (const LogicalDevice *shown : qAsConst(model.device().logicalDevices)) {
        if (shown->name != ldName)
            continue;
        for (const LogicalNode *node : qAsConst(shown->logicalNodes))
            places.insert(node->name, places.size());
    }
    const auto placeOf = [&places](const acsi::Reference &node) {
        return places.value(text(node.node), std::numeric_limits<int>::max());
    };
    std::stable_sort(result.begin(), result.end(), [&](const auto &left, const auto &right) {
        return placeOf(left) < placeOf(right);
    });
    return result;
}

/// What the model shows of a setting: the edited values have the types of the active ones.
QString basicTypeOf(const OnlineModel &model, QString reference)
{
    const QString edited = QStringLiteral("$SE$");
    const int constraint = reference.indexOf(edited);
    if (constraint >= 0)
        reference.replace(constraint, edited.size(), QStringLiteral("$SG$"));
    const DataAttribute *attribute = model.device().findTag(reference);
    return attribute ? attribute->basicType : QString();
}

struct Setting
{
    QString reference;
    std::optional<mms::Data> data;
    QString reason; ///< why there is no data
};

/// Every setting under the constraint in the order of the model; an error when nothing came at all.
asio::awaitable<mms::Result<std::vector<Setting>>>
readSettings(DevicePointer device, QString ldName, FunctionalConstraint constraint)
{
    const std::shared_ptr<acsi::Client> client = device->client();
    if (!client)
        co_return mms::Error{device->notConnectedSentence().toStdString(), 0};
    const std::vector<acsi::Reference> nodes = nodesWith(*device->model(), ldName, constraint);
    std::vector<Setting> settings;
    if (nodes.empty())
        co_return settings;
    std::vector<mms::VariableAccess> variables;
    for (const acsi::Reference &node : nodes)
        variables.push_back(acsi::accessOf(node));
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
            const DeviceConnection::Publication publication;
            device->publish(nodes[i], value.data(), publication);
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
    const bool hasData = std::any_of(settings.begin(), settings.end(), [](const Setting &setting) {
        return setting.data.has_value();
    });
    if (!hasData && !settings.empty()) {
        const QString sentence =
            Texts::tr("%1: %2").arg(settings.front().reference, settings.front().reason);
        co_return mms::Error{sentence.toStdString(), 0};
    }
    co_return settings;
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

/// Shows in the model what was read.
void enter(const DevicePointer &device, const acsi::Reference &block,
           const acsi::SettingGroupBlock &read)
{
    const LogicalNode *node =
        device->model() ? device->model()->node(text(block.device), text(block.node)) : nullptr;
    if (!node || !node->settingGroup)
        return;
    node->settingGroup->numOfSG = static_cast<int>(read.numOfSG);
    node->settingGroup->activeGroup = static_cast<int>(read.actSG);
}

QDateTime dateTime(const mms::UtcTime &time)
{
    const auto milliseconds = static_cast<qint64>(std::uint64_t{time.fraction} * 1000U >> 24U);
    return QDateTime::fromMSecsSinceEpoch(qint64{time.seconds} * 1000 + milliseconds, Qt::UTC);
}

asio::awaitable<Outcome> readBlock(DevicePointer device, QString ldName,
                                   std::shared_ptr<SGCB> block)
{
    const mms::Result<acsi::Reference> reference = blockOf(*device->model(), ldName);
    if (!reference)
        co_return Outcome::failed(reference.error());
    const mms::Result<acsi::SettingGroupBlock> read =
        co_await acsi::readSettingGroupBlock(device->client(), *reference);
    if (!read)
        co_return Outcome::failed(read.error());
    constexpr auto mostGroups = std::numeric_limits<quint8>::max();
    if (std::max({read->numOfSG, read->actSG, read->editSG}) > mostGroups) {
        co_return Outcome::failed(Texts::tr("%1 has more setting groups than can be counted: %2.")
                                      .arg(text(*reference))
                                      .arg(read->numOfSG));
    }
    enter(device, *reference, *read);
    block->name = text(*reference);
    block->numOfSG = static_cast<quint8>(read->numOfSG);
    block->actSG = static_cast<quint8>(read->actSG);
    block->editSG = static_cast<quint8>(read->editSG);
    block->cnfEdit = read->cnfEdit ? 1 : 0;
    if (read->lActTm)
        block->lastActivation = dateTime(*read->lActTm);
    co_return Outcome();
}

QString noEditGroup(const QString &ldName)
{
    return Texts::tr("No setting group of %1 is being edited: select the group to edit first.")
        .arg(ldName);
}

asio::awaitable<Outcome> readValues(DevicePointer device, QString ldName, QString fc,
                                    std::shared_ptr<QList<SGCBValue>> values)
{
    const auto constraint = acsi::functionalConstraintFrom(fc.toStdString());
    if (constraint != FunctionalConstraint::SG && constraint != FunctionalConstraint::SE) {
        co_return Outcome::failed(
            Texts::tr("Settings are read under SG or SE, not under \"%1\".").arg(fc));
    }
    const mms::Result<acsi::Reference> block = blockOf(*device->model(), ldName);
    if (!block)
        co_return Outcome::failed(block.error());
    if (constraint == FunctionalConstraint::SE) {
        const mms::Result<acsi::SettingGroupBlock> read =
            co_await acsi::readSettingGroupBlock(device->client(), *block);
        if (!read)
            co_return Outcome::failed(read.error());
        if (read->editSG == 0)
            co_return Outcome::failed(noEditGroup(ldName));
    }
    const mms::Result<std::vector<Setting>> settings =
        co_await readSettings(device, ldName, *constraint);
    if (!settings)
        co_return Outcome::failed(settings.error());
    for (const Setting &setting : *settings) {
        SGCBValue value;
        value.name = setting.reference;
        if (setting.data)
            value.value = editable(ValueConversion::toVariant(
                basicTypeOf(*device->model(), setting.reference), *setting.data));
        values->append(value);
    }
    co_return Outcome();
}

/// A setting that is to be written.
struct NewValue
{
    acsi::Reference reference; ///< under SE
    mms::Data data;
    QString oldText;
    QString newText;
};

/// What the tool wants to have in the group; the error names a setting that cannot be that.
mms::Result<std::vector<NewValue>> newValuesOf(const OnlineModel &model, const QString &ldName,
                                               const QList<SGCBValue> &values)
{
    const auto error = [](const QString &sentence) {
        return mms::Error{sentence.toStdString(), 0};
    };
    std::vector<NewValue> result;
    for (const SGCBValue &value : values) {
        const std::string name = value.name.toStdString();
        mms::Result<acsi::Reference> reference =
            value.name.contains(QLatin1Char('/'))
                ? acsi::parseReference(name)
                : acsi::parseReference(ldName.toStdString(), name);
        if (!reference)
            return reference.error();
        const bool isSetting = reference->device == ldName.toStdString() &&
                               (reference->constraint == FunctionalConstraint::SG ||
                                reference->constraint == FunctionalConstraint::SE);
        reference->constraint = FunctionalConstraint::SE;
        const mms::TypeDescription *type = isSetting ? model.type(*reference) : nullptr;
        if (!type)
            return error(Texts::tr("%1 has no setting %2.").arg(ldName, value.name));
        mms::Result<mms::Data> data =
            ValueConversion::toData(basicTypeOf(model, text(*reference)), *type, value.value);
        if (!data)
            return error(Texts::tr("%1: %2").arg(value.name, text(data.error().message)));
        result.push_back(
            {*reference, *std::move(data), QString(), ValueConversion::text(value.value)});
    }
    return result;
}

/// Leaves those that the group does not have already.
void keepChanges(const OnlineModel &model, const std::vector<Setting> &known,
                 std::vector<NewValue> &values)
{
    QHash<QString, const Setting *> byReference;
    for (const Setting &setting : known)
        byReference.insert(setting.reference, &setting);
    std::erase_if(values, [&](NewValue &value) {
        const QString reference = text(value.reference);
        const Setting *setting = byReference.value(reference);
        if (!setting || !setting->data)
            return false;
        value.oldText = ValueConversion::text(
            ValueConversion::toVariant(basicTypeOf(model, reference), *setting->data));
        return *setting->data == value.data;
    });
}

/// Writes the values and journals each; one sentence names those that were refused.
asio::awaitable<Outcome> writeValues(DevicePointer device, const std::vector<NewValue> &values)
{
    std::vector<std::unique_ptr<JournalEntry>> entries;
    std::vector<mms::VariableAccess> variables;
    std::vector<mms::Data> data;
    for (const NewValue &value : values) {
        entries.push_back(std::make_unique<JournalEntry>(device, QStringLiteral("setSGCBValues"),
                                                         text(value.reference)));
        entries.back()->setValues(value.oldText, value.newText);
        variables.push_back(acsi::accessOf(value.reference));
        data.push_back(value.data);
    }
    const auto results = co_await device->client()->write(std::move(variables), std::move(data));
    QStringList refusals;
    int count = 0;
    for (std::size_t i = 0; i < values.size(); ++i) {
        Outcome outcome;
        if (!results)
            outcome = Outcome::failed(results.error());
        else if (i >= results->size())
            outcome = Outcome::failed(Texts::tr("The device has not answered."));
        else if (const auto &refusal = (*results)[i])
            outcome = Outcome::failed(text(mms::describe(*refusal)));
        entries[i]->setOutcome(outcome);
        if (outcome)
            continue;
        if (++count <= namedRefusals)
            refusals.append(
                Texts::tr("%1: %2").arg(text(values[i].reference), withoutPeriod(outcome.error)));
    }
    if (!results)
        co_return Outcome::failed(results.error());
    if (count == 0)
        co_return Outcome();
    QString sentence = refusals.join(QStringLiteral("; "));
    if (count > refusals.size())
        sentence = Texts::tr("%1; and %2 more").arg(sentence).arg(count - refusals.size());
    co_return Outcome::failed(Texts::tr("%1. The changes are not confirmed.").arg(sentence));
}

Outcome stillConnected(const DevicePointer &device)
{
    if (device->client() && device->model())
        return {};
    return {OperationNotConnected, device->notConnectedSentence()};
}

asio::awaitable<Outcome> setValues(DevicePointer device, QString ldName, acsi::Reference block,
                                   QList<SGCBValue> wanted)
{
    mms::Result<std::vector<NewValue>> values = newValuesOf(*device->model(), ldName, wanted);
    if (!values)
        co_return Outcome::failed(values.error());
    const mms::Result<acsi::SettingGroupBlock> read =
        co_await acsi::readSettingGroupBlock(device->client(), block);
    if (!read)
        co_return Outcome::failed(read.error());
    if (read->editSG == 0)
        co_return Outcome::failed(noEditGroup(ldName));
    Outcome outcome = stillConnected(device);
    if (!outcome)
        co_return outcome;
    const mms::Result<std::vector<Setting>> known =
        co_await readSettings(device, ldName, FunctionalConstraint::SE);
    if (!known)
        co_return Outcome::failed(known.error());
    outcome = stillConnected(device);
    if (!outcome)
        co_return outcome;
    keepChanges(*device->model(), *known, *values);
    if (!values->empty()) {
        outcome = co_await writeValues(device, *values);
        if (!outcome)
            co_return outcome;
    }
    outcome = stillConnected(device);
    if (!outcome)
        co_return outcome;
    const mms::Result<void> confirmed = co_await acsi::confirmEdit(device->client(), block);
    if (!confirmed)
        co_return Outcome::failed(confirmed.error());

    // Changes of the active group hold at once and are shown at once.
    if (read->editSG == read->actSG && !values->empty()) {
        std::vector<acsi::Reference> active;
        for (const NewValue &value : *values) {
            active.push_back(value.reference);
            active.back().constraint = FunctionalConstraint::SG;
        }
        const DeviceConnection::Publication publication;
        static_cast<void>(co_await device->readAndPublish(std::move(active), publication));
    }
    co_return Outcome();
}

asio::awaitable<Outcome> setAndConfirm(DevicePointer device, QString ldName,
                                       QList<SGCBValue> wanted)
{
    const mms::Result<acsi::Reference> block = blockOf(*device->model(), ldName);
    JournalEntry entry(device, QStringLiteral("setSGCBValues"),
                       block ? text(attributeOf(*block, "CnfEdit")) : ldName);
    entry.setValues(QString(), QStringLiteral("true"));
    Outcome outcome;
    if (block)
        outcome = co_await setValues(device, ldName, *block, std::move(wanted));
    else
        outcome = Outcome::failed(block.error());
    entry.setOutcome(outcome);
    co_return outcome;
}

enum class Selection { Active, Edited };

asio::awaitable<Outcome> writeGroup(DevicePointer device, acsi::Reference block, bool isActive,
                                    int group, JournalEntry *entry)
{
    const mms::Result<acsi::SettingGroupBlock> read =
        co_await acsi::readSettingGroupBlock(device->client(), block);
    if (!read)
        co_return Outcome::failed(read.error());
    entry->setValues(QString::number(isActive ? read->actSG : read->editSG),
                     QString::number(group));
    const auto number = static_cast<std::uint32_t>(group);
    if (group < (isActive ? 1 : 0) || number > read->numOfSG) {
        co_return Outcome::failed(
            Texts::tr("%1 has the setting groups 1 to %2; there is no group %3.")
                .arg(text(block.device))
                .arg(read->numOfSG)
                .arg(group));
    }
    const Outcome connected = stillConnected(device);
    if (!connected)
        co_return connected;
    mms::Result<void> written;
    if (isActive)
        written = co_await acsi::selectActiveGroup(device->client(), block, number);
    else
        written = co_await acsi::selectEditGroup(device->client(), block, number);
    if (!written)
        co_return Outcome::failed(written.error());
    if (isActive) {
        acsi::SettingGroupBlock now = *read;
        now.actSG = number;
        enter(device, block, now);
    }
    co_return Outcome();
}

asio::awaitable<Outcome> selectGroup(DevicePointer device, QString ldName, Selection selection,
                                     int group)
{
    const bool isActive = selection == Selection::Active;
    Outcome outcome;
    {
        const mms::Result<acsi::Reference> block = blockOf(*device->model(), ldName);
        JournalEntry entry(
            device, isActive ? QStringLiteral("selectActiveSG") : QStringLiteral("selectEditSG"),
            block ? text(attributeOf(*block, isActive ? "ActSG" : "EditSG")) : ldName);
        entry.setValues(QString(), QString::number(group));
        if (block)
            outcome = co_await writeGroup(device, *block, isActive, group, &entry);
        else
            outcome = Outcome::failed(block.error());
        entry.setOutcome(outcome);
    }
    // All settings are others now.
    if (outcome && isActive && stillConnected(device)) {
        const DeviceConnection::Publication publication;
        static_cast<void>(co_await device->readAndPublish(
            nodesWith(*device->model(), ldName, FunctionalConstraint::SG), publication));
    }
    co_return outcome;
}

} // namespace

OperationResult IedDriver::getSGCB(long deviceNo, const QString &sgcbReference, SGCB &block,
                                   QString &error)
{
    const auto read = std::make_shared<SGCB>();
    const QString ldName = logicalDeviceOf(sgcbReference);
    const OperationResult result = m_runtime->run(
        deviceNo, Runtime::Effect::Reads, error, [ldName, read](DevicePointer device) {
            return readBlock(std::move(device), ldName, read);
        });
    if (result == OperationSucceeded)
        block = *read;
    return result;
}

OperationResult IedDriver::getSGCBValue(long deviceNo, const QString &sgcbReference,
                                        const QString &fc, QList<SGCBValue> &values, QString &error)
{
    const auto read = std::make_shared<QList<SGCBValue>>();
    const QString ldName = logicalDeviceOf(sgcbReference);
    const OperationResult result = m_runtime->run(
        deviceNo, Runtime::Effect::Reads, error, [ldName, fc, read](DevicePointer device) {
            return readValues(std::move(device), ldName, fc, read);
        });
    if (result == OperationSucceeded)
        values = *read;
    return result;
}

OperationResult IedDriver::setSGCBValues(long deviceNo, const QString &sgcbReference,
                                         const QList<SGCBValue> &values, QString &error)
{
    const QString ldName = logicalDeviceOf(sgcbReference);
    return m_runtime->run(deviceNo, Runtime::Effect::Changes, error,
                          [ldName, values](DevicePointer device) {
                              return setAndConfirm(std::move(device), ldName, values);
                          });
}

OperationResult IedDriver::selectEditSG(long deviceNo, const QString &sgcbReference, int group,
                                        QString &error)
{
    const QString ldName = logicalDeviceOf(sgcbReference);
    return m_runtime->run(
        deviceNo, Runtime::Effect::Changes, error, [ldName, group](DevicePointer device) {
            return selectGroup(std::move(device), ldName, Selection::Edited, group);
        });
}

OperationResult IedDriver::selectActiveSG(long deviceNo, const QString &sgcbReference, int group,
                                          QString &error)
{
    const QString ldName = logicalDeviceOf(sgcbReference);
    return m_runtime->run(
        deviceNo, Runtime::Effect::Changes, error, [ldName, group](DevicePointer device) {
            return selectGroup(std::move(device), ldName, Selection::Active, group);
        });
}
