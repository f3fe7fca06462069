// SPDX-License-Identifier: Apache-2.0
#include "findingspane.h"

#include "tableview.h"

#include <QtCore/QCoreApplication>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QStyledItemDelegate>

namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(MainWindow)
};

/// Leaves out the middle of a text that is too long: both ends of an element path say something.
class PathDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->textElideMode = Qt::ElideMiddle;
    }
};

} // namespace

FindingsPane::FindingsPane(QDockWidget &dock, TableView &view)
    : m_dock(dock)
    , m_view(view)
{
    m_sorted.setSourceModel(&m_findings);
    m_sorted.setSortRole(FindingsModel::SortRole);
    m_view.setModel(&m_sorted);
    m_view.setSortingEnabled(true);
    m_view.sortByColumn(FindingsModel::LineColumn, Qt::AscendingOrder);
    m_view.setUsualWidth(FindingsModel::SeverityColumn, 100);
    m_view.setUsualWidth(FindingsModel::LineColumn, 60);
    m_view.setUsualWidth(FindingsModel::ElementColumn, 320);
    m_view.setItemDelegateForColumn(FindingsModel::ElementColumn, new PathDelegate(&m_view));
}

void FindingsPane::show(const DeviceListModel::Device *device, const QString &readAgain)
{
    m_findings.setFindings(device ? device->findings : QVector<scl::Finding>());
    if (!device) {
        m_dock.setWindowTitle(Texts::tr("Findings"));
        m_view.setPlaceholder(
            Texts::tr("Select a device to see what was noticed while its file was read."));
        return;
    }
    const bool ready = device->state == DeviceListModel::Ready;
    const QString summary = m_findings.summary();
    m_dock.setWindowTitle(summary.isEmpty()
                              ? Texts::tr("Findings: %1").arg(device->record.name())
                              : Texts::tr("Findings: %1 (%2)").arg(device->record.name(), summary));
    if (ready && device->record.file().isEmpty()) {
        m_view.setPlaceholder(
            Texts::tr("This device has no SCL file; its model is read from the device itself."));
    } else if (ready && device->record.isReached() && !device->record.simulated) {
        m_view.setPlaceholder(Texts::tr(
            "The SCL file of this device was only compared with the device. Open it as an SCL "
            "file to see its findings."));
    } else if (ready) {
        m_view.setPlaceholder(
            Texts::tr("No findings: everything in the file of this device was understood."));
    } else if (device->state == DeviceListModel::Failed) {
        m_view.setPlaceholder(
            Texts::tr(
                "The model cannot be read. %1\nRead it again with %2, or remove the device from the "
                "list.")
                .arg(device->reason, readAgain));
    } else {
        m_view.setPlaceholder({});
    }
}
