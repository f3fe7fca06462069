// SPDX-License-Identifier: Apache-2.0
#include "deviceoperations.h"

#include "driver/device/modelreading.h"
#include "driver/device/valuepublishing.h"
#include "driver/model/discoveredmodel.h"
#include "driver/text/sentences.h"

#include "acsi/dataset.h"
#include "acsi/functionalconstraint.h"
#include "acsi/settinggroup.h"

#include <QtCore/QCoreApplication>

using DeviceOperations::ChangeOrder;
using DeviceOperations::Result;
using DeviceOperations::Tool;

namespace {

using DevicePointer = std::shared_ptr<DeviceConnection>;
using Entries = QList<NameVaildValue> *; ///< lives as long as the operation

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(IedDriver)
};

QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
}

void append(QList<NameVaildValue> &list, const QString &name, const QVariant &value = {})
{
    NameVaildValue entry;
    entry.name = name;
    entry.valid = true;
    entry.value = value;
    list.append(entry);
}

asio::awaitable<Outcome> listNames(DevicePointer device, Entries entries,
                                   mms::ObjectClass objectClass, mms::Scope scope, QString domain)
{
    const mms::Result<std::vector<std::string>> names =
        co_await device->client()->nameList(objectClass, scope, domain.toStdString());
    if (!names)
        co_return Outcome::failed(names.error());
    for (const std::string &name : *names) {
        // Of variables only the logical nodes; what is in them has a separator.
        if (objectClass != mms::ObjectClass::NamedVariable || name.find('$') == std::string::npos)
            append(*entries, text(name));
    }
    co_return Outcome();
}

asio::awaitable<Outcome> listNode(DevicePointer device, Entries entries, QString ldName,
                                  QString lnName)
{
    const mms::Result<mms::TypeDescription> type = co_await device->client()->type(
        mms::ObjectName::inDomain(ldName.toStdString(), lnName.toStdString()));
    if (!type)
        co_return Outcome::failed(type.error());
    for (const mms::TypeDescription::Component &constraint : type->components) {
        for (const mms::TypeDescription::Component &object : constraint.type.components) {
            const QString name = text(object.name);
            const auto known =
                std::find_if(entries->begin(), entries->end(),
                             [&name](const NameVaildValue &entry) { return entry.name == name; });
            if (known == entries->end())
                append(*entries, name, QStringList(text(constraint.name)));
            else
                known->value = known->value.toStringList() << text(constraint.name);
        }
    }
    co_return Outcome();
}

/// What is below one reference. The error is one sentence.
asio::awaitable<mms::Result<void>> listBelow(std::shared_ptr<acsi::Client> client, Entries entries,
                                             QString ldName, QString each)
{
    const mms::Result<acsi::Reference> reference =
        acsi::parseReference(ldName.toStdString(), each.toStdString());
    if (!reference)
        co_return reference.error();
    // The type of an element is the one in its array's.
    acsi::Reference whole = *reference;
    std::string below;
    for (std::size_t i = 0; i < whole.path.size(); ++i) {
        if (!whole.path[i].element)
            continue;
        below = '(' + std::to_string(*whole.path[i].element) + ')';
        for (std::size_t j = i + 1; j < reference->path.size(); ++j)
            below += '$' + reference->path[j].name;
        whole.path[i].element.reset();
        whole.path.resize(i + 1);
        break;
    }
    const mms::Result<mms::TypeDescription> type =
        co_await client->type(mms::ObjectName::inDomain(whole.device, acsi::itemText(whole)));
    if (!type)
        co_return type.error();
    if (!below.empty()) {
        append(*entries, each, text(below));
        co_return mms::Result<void>();
    }
    if (type->components.empty())
        append(*entries, each, text(mms::toText(*type)));
    for (const mms::TypeDescription::Component &component : type->components) {
        const QString name =
            component.name.empty() ? each : each + QLatin1Char('$') + text(component.name);
        append(*entries, name, text(mms::toText(component.type)));
    }
    co_return mms::Result<void>();
}

/// A reference that names nothing is listed as not valid; only when all of them do, it is an error.
asio::awaitable<Outcome> listData(DevicePointer device, Entries entries, QString ldName,
                                  QStringList references)
{
    QStringList failures;
    for (const QString &each : qAsConst(references)) {
        // The association may have ended while the reference before was asked for.
        const std::shared_ptr<acsi::Client> client = device->client();
        if (!client) {
            const QString sentence = device->notConnectedSentence();
            co_return Outcome{OperationNotConnected, sentence};
        }
        const mms::Result<void> listed = co_await listBelow(client, entries, ldName, each);
        if (listed)
            continue;
        const QString reason = text(listed.error().message);
        failures.append(reason.contains(each) ? reason : Texts::tr("%1: %2").arg(each, reason));
        NameVaildValue entry;
        entry.name = each;
        entry.valid = false;
        entry.value = reason;
        entries->append(entry);
    }
    if (failures.size() == references.size())
        co_return Outcome::failed(failures.join(QLatin1Char(' ')));
    co_return Outcome();
}

QString wireName(const QString &reference, bool isOfAssociation)
{
    return isOfAssociation && !reference.startsWith(QLatin1Char('@')) ? QLatin1Char('@') + reference
                                                                      : reference;
}

asio::awaitable<Outcome> listDataSet(DevicePointer device, Entries entries, QString ldName,
                                     QString reference)
{
    // The browser does not name the data sets of the association: all of them are listed.
    if (reference.isEmpty())
        co_return co_await listNames(device, entries, mms::ObjectClass::NamedVariableList,
                                     mms::Scope::Association, QString());
    const mms::Result<mms::ObjectName> name = acsi::dataSetName(
        ldName.toStdString(), wireName(reference, ldName.isEmpty()).toStdString());
    if (!name)
        co_return Outcome::failed(name.error());
    const mms::Result<acsi::DataSetDescription> directory =
        co_await acsi::dataSetDirectory(device->client(), *name);
    if (!directory)
        co_return Outcome::failed(directory.error());
    for (const mms::VariableAccess &member : directory->members) {
        const mms::Result<acsi::Reference> known = acsi::referenceOf(member);
        append(*entries, text(known ? acsi::toText(*known) : mms::toText(member)));
    }
    co_return Outcome();
}

asio::awaitable<Outcome> listBlocks(DevicePointer device, Entries entries, QString ldName,
                                    QString lnName, QString kind)
{
    const auto constraint = acsi::functionalConstraintFrom(kind.toStdString());
    if (constraint != acsi::FunctionalConstraint::BR &&
        constraint != acsi::FunctionalConstraint::RP)
        co_return Outcome::failed(
            Texts::tr("\"%1\" is no kind of report control block.").arg(kind));
    const mms::Result<mms::TypeDescription> type = co_await device->client()->type(
        mms::ObjectName::inDomain(ldName.toStdString(), lnName.toStdString()));
    if (!type)
        co_return Outcome::failed(type.error());
    const mms::TypeDescription *blocks =
        acsi::typeBelow(*type, acsi::toText(*constraint), std::string_view());
    if (!blocks)
        co_return Outcome();
    for (const mms::TypeDescription::Component &block : blocks->components)
        append(*entries, lnName + QLatin1Char('$') + kind + QLatin1Char('$') + text(block.name));
    co_return Outcome();
}

asio::awaitable<Outcome> listSettingGroups(DevicePointer device, Entries entries, QString ldName)
{
    const std::shared_ptr<acsi::Client> client = device->client();
    mms::Result<acsi::Reference> reference =
        acsi::parseReference(ldName.toStdString(), "LLN0$SP$SGCB");
    if (!reference)
        co_return Outcome::failed(reference.error());
    // A logical device without setting groups has none to list.
    if (const OnlineModel *model = device->model()) {
        acsi::Reference node = *reference;
        node.constraint.reset();
        node.path.clear();
        if (model->type(node) && !model->type(*reference))
            co_return Outcome();
    }
    const mms::Result<acsi::SettingGroupBlock> block =
        co_await acsi::readSettingGroupBlock(client, *reference);
    if (!block)
        co_return Outcome::failed(block.error());
    append(*entries, QStringLiteral("NumOfSG"), block->numOfSG);
    append(*entries, QStringLiteral("ActSG"), block->actSG);
    append(*entries, QStringLiteral("EditSG"), block->editSG);
    append(*entries, QStringLiteral("CnfEdit"), block->cnfEdit);
    co_return Outcome();
}

/// Enters a data set that the device has taken, so that a browser opened later shows it.
void enterDataSet(OnlineModel &model, const QString &ldName, const mms::ObjectName &name,
                  const QStringList &members)
{
    const QString item = text(name.item);
    QList<DataSet *> *sets = &model.device().dataSets;
    if (name.scope == mms::Scope::Domain) {
        LogicalNode *node = model.node(ldName, item.section(QLatin1Char('$'), 0, 0));
        if (!node)
            return;
        sets = &node->dataSetGroup->dataSets;
    }
    auto *added = new DataSet;
    added->state = name.scope == mms::Scope::Domain ? 0 : 1;
    added->name = DiscoveredModel::dataSetName(item);
    added->deletable = true;
    added->addElement(members);
    sets->append(added);
}

void removeDataSet(OnlineModel &model, const QString &ldName, const mms::ObjectName &name)
{
    const QString item = text(name.item);
    const QString bare = DiscoveredModel::dataSetName(item);
    if (name.scope == mms::Scope::Domain) {
        if (LogicalNode *node = model.node(ldName, item.section(QLatin1Char('$'), 0, 0)))
            node->dataSetGroup->removeDS(node->dataSet(bare));
        return;
    }
    const QList<DataSet *> sets = model.device().dataSets;
    for (DataSet *set : sets) {
        if (set->name == bare)
            model.device().removeDS(set);
    }
}

ChangeIntent intentOf(const char *operation, const QString &ldName, const QString &reference)
{
    ChangeIntent intent;
    intent.operation = QString::fromLatin1(operation);
    intent.reference = ldName.isEmpty() ? reference : ldName + QLatin1Char('/') + reference;
    return intent;
}

/// Why a data set cannot be made under that name; empty when it can.
QString faultOfName(const mms::ObjectName &name)
{
    constexpr std::size_t longestName = 32; // IEC 61850-7-2, DSName
    const std::string bare = name.item.substr(name.item.find('$') + 1);
    if (bare.size() <= longestName)
        return {};
    return Texts::tr("\"%1\" has %2 characters; the name of a data set has at most %3.")
        .arg(text(bare))
        .arg(bare.size())
        .arg(longestName);
}

asio::awaitable<Outcome> makeDataSet(ChangePointer change, QString ldName, QString reference,
                                     QString members, bool isOfAssociation)
{
    const mms::Result<mms::ObjectName> name =
        acsi::dataSetName(ldName.toStdString(), wireName(reference, isOfAssociation).toStdString());
    if (!name)
        co_return Outcome::failed(name.error());
    const QString fault = faultOfName(*name);
    if (!fault.isEmpty())
        co_return Outcome::failed(fault);
    std::vector<mms::VariableAccess> variables;
    QStringList full;
    const QStringList parts = members.split(QLatin1Char(';'), Qt::SkipEmptyParts);
    for (const QString &part : parts) {
        const std::string member = part.trimmed().toStdString();
        const mms::Result<acsi::Reference> known =
            part.contains(QLatin1Char('/')) ? acsi::parseReference(member)
                                            : acsi::parseReference(ldName.toStdString(), member);
        if (!known)
            co_return Outcome::failed(known.error());
        if (!known->constraint)
            co_return Outcome::failed(
                Texts::tr("\"%1\" names no functional constraint, which each member of a data set "
                          "needs.")
                    .arg(part.trimmed()));
        variables.push_back(acsi::accessOf(*known));
        full.append(text(acsi::toText(*known)));
    }
    if (variables.empty())
        co_return Outcome::failed(Texts::tr("A data set needs at least one member."));
    change->setReference(text(mms::toText(*name)));
    change->setValues(QString(), full.join(QLatin1Char(';')));
    const auto client = change->client();
    if (!client)
        co_return change->refusal();
    const mms::Result<void> made =
        co_await acsi::createDataSet(client, *name, std::move(variables));
    if (!made)
        co_return Outcome::failed(made.error());
    if (OnlineModel *const model = change->device()->model())
        enterDataSet(*model, ldName, *name, full);
    co_return Outcome();
}

asio::awaitable<Outcome> dropDataSet(ChangePointer change, QString ldName, QString reference)
{
    // A name with a part for a logical node, whatever stands between the two, is not one of the
    // association.
    const bool isBare =
        !reference.contains(QLatin1Char('$')) && !reference.contains(QLatin1Char('.'));
    const mms::Result<mms::ObjectName> name =
        acsi::dataSetName(ldName.toStdString(), wireName(reference, isBare).toStdString());
    if (!name)
        co_return Outcome::failed(name.error());
    change->setReference(text(mms::toText(*name)));
    const auto client = change->client();
    if (!client)
        co_return change->refusal();
    const mms::Result<void> deleted = co_await acsi::deleteDataSet(client, *name);
    if (!deleted)
        co_return Outcome::failed(deleted.error());
    if (OnlineModel *const model = change->device()->model())
        removeDataSet(*model, ldName, *name);
    co_return Outcome();
}

} // namespace

Result DeviceOperations::getIEDModel(CalledDevice device, QByteArray &model)
{
    co_await device->modelReading().refreshDataSets();
    co_await device->modelReading().refreshReportBlocks();
    model = device->values().modelBytes();
    co_return Outcome();
}

Result DeviceOperations::getServerDirectory(CalledDevice device, Entries &list)
{
    return listNames(device, &list, mms::ObjectClass::Domain, mms::Scope::Vmd, QString());
}

Result DeviceOperations::getLogicalDeviceDirectory(CalledDevice device, const QString &ldName,
                                                   Entries &list)
{
    return listNames(device, &list, mms::ObjectClass::NamedVariable, mms::Scope::Domain, ldName);
}

Result DeviceOperations::getLogicalNodeDirectory(CalledDevice device, const QString &ldName,
                                                 const QString &lnName, Entries &list)
{
    return listNode(device, &list, ldName, lnName);
}

Result DeviceOperations::getDataDirectory(CalledDevice device, const QString &ldName,
                                          const QString &dataReference, Entries &list)
{
    const QStringList references = dataReference.split(QLatin1Char(';'), Qt::SkipEmptyParts);
    if (references.isEmpty())
        co_return Outcome::failed(Texts::tr("There is no reference to be listed."));
    co_return co_await listData(device, &list, ldName, references);
}

Result DeviceOperations::getDataSetList(CalledDevice device, const QString &ldName, Entries &list)
{
    return listNames(device, &list, mms::ObjectClass::NamedVariableList, mms::Scope::Domain,
                     ldName);
}

Result DeviceOperations::getDataSetDirectory(CalledDevice device, const QString &ldName,
                                             const QString &dataSetReference, Entries &list)
{
    return listDataSet(device, &list, ldName, dataSetReference);
}

Result DeviceOperations::getXRCB(CalledDevice device, const QString &ldName, const QString &lnName,
                                 const QString &kind, Entries &list)
{
    return listBlocks(device, &list, ldName, lnName, kind);
}

Result DeviceOperations::getSGCBBlock(CalledDevice device, const QString &ldName, Entries &list)
{
    return listSettingGroups(device, &list, ldName);
}

ChangeOrder DeviceOperations::createDataSet(Tool, const QString &ldName,
                                            const QString &dataSetReference, const QString &members,
                                            int nonPersistent)
{
    return {intentOf("createDataSet", ldName, dataSetReference),
            [ldName, dataSetReference, members, nonPersistent](ChangePointer change) {
                return makeDataSet(std::move(change), ldName, dataSetReference, members,
                                   nonPersistent != 0);
            }};
}

ChangeOrder DeviceOperations::deleteDataSet(Tool, const QString &ldName,
                                            const QString &dataSetReference)
{
    return {intentOf("deleteDataSet", ldName, dataSetReference),
            [ldName, dataSetReference](ChangePointer change) {
                return dropDataSet(std::move(change), ldName, dataSetReference);
            }};
}
