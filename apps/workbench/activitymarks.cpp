// SPDX-License-Identifier: Apache-2.0
#include "activitymarks.h"

#include "plaintip.h"
#include "workbench.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDateTime>
#include <QtCore/QFileInfo>
#include <QtCore/QLocale>
#include <QtWidgets/QLabel>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QToolButton>

namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(MainWindow)
};

constexpr int progressRange = 1000;

/// The first device whose model takes its time to be read; null when there is none.
const DeviceListModel::Device *readingDevice(const DeviceListModel &devices)
{
    for (int row = 0; row < devices.rowCount(); ++row) {
        const DeviceListModel::Device *device = devices.deviceAt(row);
        const DeviceStatus &status = device->status;
        if (device->isWanted() && status.state == DeviceState::ReadingModel &&
            status.since.msecsTo(QDateTime::currentDateTime()) >= DeviceLoader::slowAfter.count()) {
            return device;
        }
    }
    return nullptr;
}

} // namespace

ActivityMarks::ActivityMarks(Workbench &workbench, QStatusBar &bar)
    : m_workbench(workbench)
{
    setUpReadOnly(bar);
    setUpAway(bar);
    setUpProgress(bar);
}

void ActivityMarks::setUpReadOnly(QStatusBar &bar)
{
    auto *const mark = new QLabel(Texts::tr("Read-only: nothing is changed on devices"), &bar);
    mark->setObjectName(QStringLiteral("readOnlyMark"));
    mark->setStyleSheet(QStringLiteral("background: #f4c430; color: black; padding: 1px 8px"));
    bar.addPermanentWidget(mark);
    mark->setVisible(m_workbench.isReadOnly());
    connect(&m_workbench, &Workbench::readOnlyChanged, mark, &QWidget::setVisible);
}

void ActivityMarks::setUpAway(QStatusBar &bar)
{
    m_away = new QLabel(&bar);
    m_away->setObjectName(QStringLiteral("awayMark"));
    m_away->setTextFormat(Qt::PlainText);
    m_away->setStyleSheet(QStringLiteral("background: #b00020; color: white; padding: 1px 8px"));
    bar.addPermanentWidget(m_away);
    showAway();
    const DeviceListModel &devices = m_workbench.devices();
    for (const auto changed : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(&devices, changed, this, &ActivityMarks::showAway);
    connect(&devices, &QAbstractItemModel::dataChanged, this, &ActivityMarks::showAway);
}

void ActivityMarks::setUpProgress(QStatusBar &bar)
{
    m_progressText = new QLabel(&bar);
    m_progressText->setTextFormat(Qt::PlainText);
    m_progress = new QProgressBar(&bar);
    m_progress->setObjectName(QStringLiteral("loadingProgress"));
    m_progress->setRange(0, progressRange);
    m_progress->setMaximumWidth(240);
    m_cancel = new QToolButton(&bar);
    m_cancel->setText(Texts::tr("Cancel"));
    m_cancel->setObjectName(QStringLiteral("cancelLoading"));
    for (QWidget *widget : {static_cast<QWidget *>(m_progressText),
                            static_cast<QWidget *>(m_progress), static_cast<QWidget *>(m_cancel)}) {
        bar.addPermanentWidget(widget);
        widget->hide();
    }

    const DeviceLoader &loader = m_workbench.loader();
    connect(&loader, &DeviceLoader::slow, this, [this] {
        m_loadIsSlow = true;
        showProgress();
    });
    connect(&loader, &DeviceLoader::idle, this, [this] {
        m_loadIsSlow = false;
        showProgress();
    });
    connect(&loader, &DeviceLoader::progressed, this, &ActivityMarks::showFileProgress);
    const DeviceListModel &devices = m_workbench.devices();
    connect(&devices, &QAbstractItemModel::dataChanged, this, &ActivityMarks::showProgress);
    connect(&devices, &QAbstractItemModel::rowsRemoved, this, &ActivityMarks::showProgress);
    connect(m_cancel, &QToolButton::clicked, this, &ActivityMarks::cancel);
}

void ActivityMarks::showFileProgress(const QString &file, int permille)
{
    const QString name = QFileInfo(file).fileName();
    const int left = m_workbench.loader().remaining();
    m_progressText->setText(
        left > 1 ? Texts::tr("Reading %1 (%2 files left)").arg(name, QString::number(left))
                 : Texts::tr("Reading %1").arg(name));
    m_progress->setValue(permille);
}

/// A file that is read slowly, or else a device whose model is being read.
void ActivityMarks::showProgress()
{
    const DeviceListModel::Device *device =
        m_loadIsSlow ? nullptr : readingDevice(m_workbench.devices());
    if (device) {
        const DeviceStatus &status = device->status;
        m_progressText->setText(Texts::tr("Reading the model of %1").arg(device->record.name()));
        m_progress->setValue(
            status.modelSteps > 0 ? progressRange * status.modelStepsDone / status.modelSteps : 0);
    }
    for (QWidget *widget : {static_cast<QWidget *>(m_progressText),
                            static_cast<QWidget *>(m_progress), static_cast<QWidget *>(m_cancel)})
        widget->setVisible(m_loadIsSlow || device);
}

void ActivityMarks::cancel()
{
    if (m_loadIsSlow)
        m_workbench.loader().cancel();
    else if (const DeviceListModel::Device *device = readingDevice(m_workbench.devices()))
        m_workbench.administration().cancelReading(device->record.number());
}

void ActivityMarks::showAway()
{
    const DeviceListModel::Away away = m_workbench.devices().away();
    m_away->setVisible(!away.names.isEmpty());
    const QString since = QLocale().toString(away.since, QLocale::ShortFormat);
    m_away->setText(away.names.size() == 1
                        ? Texts::tr("%1 is away since %2").arg(away.names.first(), since)
                        : Texts::tr("Devices away: %1, the first since %2")
                              .arg(QString::number(away.names.size()), since));
    m_away->setToolTip(plainTip(away.names.join(QLatin1Char('\n'))));
}
