// SPDX-License-Identifier: Apache-2.0
#include "reporttexts.h"

#include "acsi/dataset.h"

#include <QtCore/QCoreApplication>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(IedDriver)
};

QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
}

} // namespace

QString ReportDataSet::shown(const acsi::Reference &block, const std::string &device)
{
    const mms::Result<mms::ObjectName> name = acsi::dataSetName(block.device, device);
    if (!name)
        return text(device);
    const std::string ownNode = block.node + '$';
    if (name->scope == mms::Scope::Domain && name->domain == block.device &&
        name->item.compare(0, ownNode.size(), ownNode) == 0)
        return text(name->item).mid(static_cast<int>(ownNode.size()));
    return text(acsi::dataSetText(*name));
}

std::string ReportDataSet::wire(const acsi::Reference &block, const QString &shown)
{
    std::string name = shown.trimmed().toStdString();
    if (name.empty())
        return name;
    if (name.find_first_of("@/$.") == std::string::npos)
        name = block.node + '$' + name;
    const mms::Result<mms::ObjectName> parsed = acsi::dataSetName(block.device, name);
    return parsed ? acsi::dataSetText(*parsed) : name;
}

QString settingsText(const acsi::ReportBlock &block)
{
    const QString state = block.rptEna ? Texts::tr("enabled") : Texts::tr("disabled");
    return QStringLiteral("%1, RptID=%2, DatSet=%3, TrgOps=%4, OptFlds=%5, BufTm=%6, IntgPd=%7")
        .arg(state, text(block.rptId), text(block.datSet), text(block.trgOps.toBits().toText()),
             text(block.optFlds.toBits().toText()))
        .arg(block.bufTm)
        .arg(block.intgPd);
}

QString holderText(const acsi::Reference &block, const acsi::ReportHolder &holder)
{
    const QString name = text(acsi::toText(block));
    const QString address = text(holder.address);
    switch (holder.who) {
    case acsi::ReportHolder::Who::Nobody:
        break;
    case acsi::ReportHolder::Who::Somebody:
        return holder.isEnabled
                   ? Texts::tr("%1 is enabled by another client, which the device does not name.")
                         .arg(name)
                   : Texts::tr("%1 is reserved by another client, which the device does not name.")
                         .arg(name);
    case acsi::ReportHolder::Who::OtherAddress:
        return holder.isEnabled ? Texts::tr("%1 is enabled by the client %2.").arg(name, address)
                                : Texts::tr("%1 is reserved by the client %2.").arg(name, address);
    case acsi::ReportHolder::Who::SameAddress:
        return holder.isEnabled
                   ? Texts::tr("%1 is enabled by another association of this computer (%2).")
                         .arg(name, address)
                   : Texts::tr("%1 is reserved by another association of this computer (%2).")
                         .arg(name, address);
    }
    return {};
}
