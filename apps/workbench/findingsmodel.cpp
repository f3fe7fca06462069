// SPDX-License-Identifier: Apache-2.0
#include "findingsmodel.h"

#include "plaintip.h"

#include "driver/text/sentences.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QStyle>

#include <algorithm>

namespace {

QIcon severityIcon(scl::Severity severity)
{
    switch (severity) {
    case scl::Severity::Error:
        return QApplication::style()->standardIcon(QStyle::SP_MessageBoxCritical);
    case scl::Severity::Warning:
        return QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning);
    case scl::Severity::Info:
        break;
    }
    return QApplication::style()->standardIcon(QStyle::SP_MessageBoxInformation);
}

} // namespace

FindingsModel::FindingsModel(QObject *parent)
    : QAbstractTableModel(parent)
{
}

void FindingsModel::setFindings(const QVector<scl::Finding> &findings)
{
    beginResetModel();
    m_findings = findings;
    endResetModel();
}

QString FindingsModel::summary() const
{
    const auto count = [this](scl::Severity severity) {
        return static_cast<int>(
            std::count_if(m_findings.cbegin(), m_findings.cend(),
                          [=](const scl::Finding &f) { return f.severity == severity; }));
    };
    QStringList parts;
    if (const int errors = count(scl::Severity::Error))
        parts << (errors == 1 ? tr("1 error") : tr("%1 errors").arg(errors));
    if (const int warnings = count(scl::Severity::Warning))
        parts << (warnings == 1 ? tr("1 warning") : tr("%1 warnings").arg(warnings));
    if (const int notes = count(scl::Severity::Info))
        parts << (notes == 1 ? tr("1 note") : tr("%1 notes").arg(notes));
    return parts.join(QStringLiteral(", "));
}

int FindingsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_findings.size();
}

int FindingsModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant FindingsModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const scl::Finding &finding = m_findings[index.row()];

    if (role == Qt::DecorationRole && index.column() == SeverityColumn)
        return severityIcon(finding.severity);
    if (role == Qt::TextAlignmentRole && index.column() == LineColumn)
        return int(Qt::AlignRight | Qt::AlignVCenter);
    if (role == Qt::ToolTipRole &&
        (index.column() == ElementColumn || index.column() == TextColumn)) {
        return plainTip(data(index, Qt::DisplayRole).toString());
    }
    if (role == SortRole && index.column() == SeverityColumn)
        return -int(finding.severity);
    if (role == SortRole && index.column() == LineColumn)
        return finding.line;
    if (role != Qt::DisplayRole && role != SortRole)
        return {};

    switch (index.column()) {
    case SeverityColumn:
        switch (finding.severity) {
        case scl::Severity::Error:
            return tr("Error");
        case scl::Severity::Warning:
            return tr("Warning");
        case scl::Severity::Info:
            return tr("Note");
        }
        break;
    case LineColumn:
        return finding.line > 0 ? QVariant(finding.line) : QVariant();
    case ElementColumn:
        return QString::fromStdString(finding.path);
    case TextColumn:
        return text(finding.text);
    default:
        break;
    }
    return {};
}

QVariant FindingsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case SeverityColumn:
        return tr("Severity");
    case LineColumn:
        return tr("Line");
    case ElementColumn:
        return tr("Element");
    case TextColumn:
        return tr("Finding");
    default:
        return {};
    }
}
