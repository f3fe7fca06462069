// SPDX-License-Identifier: Apache-2.0
#include "devicecommands.h"

#include "devicedialog.h"
#include "tracedialog.h"
#include "workbench.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

#include <memory>

namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(MainWindow)
};

} // namespace

DeviceCommands::DeviceCommands(Workbench &workbench, QWidget &window)
    : m_workbench(workbench)
    , m_window(window)
{
}

void DeviceCommands::add()
{
    showDialog({});
}

void DeviceCommands::edit(int number)
{
    if (const DeviceListModel::Device *device = m_workbench.devices().device(number))
        showDialog(device->record);
}

void DeviceCommands::remove(int number)
{
    const DeviceListModel::Device *device = m_workbench.devices().device(number);
    if (!device)
        return;
    auto *box = new QMessageBox(QMessageBox::Question, Texts::tr("Remove Device"),
                                Texts::tr("Take %1 off the list?").arg(device->record.name()),
                                QMessageBox::Cancel, &m_window);
    box->setObjectName(QStringLiteral("removeQuestion"));
    box->setTextFormat(Qt::PlainText);
    box->setInformativeText(
        device->isWanted()
            ? Texts::tr("Its connection ends, and windows that are open for it are no "
                        "longer served.")
            : Texts::tr("Windows that are open for it are no longer served."));
    QPushButton *const remove = box->addButton(Texts::tr("&Remove"), QMessageBox::AcceptRole);
    box->setDefaultButton(QMessageBox::Cancel);
    box->setAttribute(Qt::WA_DeleteOnClose);
    connect(box, &QMessageBox::buttonClicked, this,
            [this, remove, number](const QAbstractButton *pressed) {
                if (pressed == remove)
                    removeNow(number);
            });
    box->open();
}

void DeviceCommands::removeNow(int number)
{
    const DeviceListModel::Device *device = m_workbench.devices().device(number);
    if (!device)
        return;
    const QString name = device->record.name();
    const bool hasFile = !device->record.file().isEmpty();
    m_workbench.remove(number);
    emit removed(name, hasFile);
}

void DeviceCommands::showDialog(const DeviceRecord &record)
{
    auto *dialog = new DeviceDialog(
        record, [this](const DeviceRecord &wanted) { return m_workbench.put(wanted); },
        [&driver = m_workbench.administration()](const DeviceConfiguration &configuration) {
            return driver.faults(configuration);
        },
        [&driver = m_workbench.administration()](const DeviceConfiguration &configuration) {
            return driver.test(configuration);
        },
        m_jobs, &m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void DeviceCommands::showTrace(int number)
{
    const DeviceListModel::Device *device = m_workbench.devices().device(number);
    if (!device)
        return;
    auto *trace =
        new TraceDialog(m_workbench.administration(), number, device->record.name(), &m_window);
    trace->setAttribute(Qt::WA_DeleteOnClose);
    connect(trace, &TraceDialog::captureWanted, this, &DeviceCommands::saveCapture);
    trace->show();
}

void DeviceCommands::saveCapture(int number)
{
    const DeviceListModel::Device *device = m_workbench.devices().device(number);
    if (!device)
        return;
    writeFile(Texts::tr("Save Capture"), device->record.name() + QStringLiteral(".pcapng"),
              Texts::tr("Captures (*.pcapng)"),
              [&driver = m_workbench.administration(), number](QIODevice &out) {
                  return driver.saveCapture(number, out);
              });
}

void DeviceCommands::exportValues(int number)
{
    const DeviceListModel::Device *device = m_workbench.devices().device(number);
    if (!device)
        return;
    writeFile(Texts::tr("Export Values"), device->record.name() + QStringLiteral(".csv"),
              Texts::tr("Tables (*.csv)"),
              [&driver = m_workbench.administration(), number](QIODevice &out) {
                  return driver.exportValues(number, out);
              });
}

void DeviceCommands::writeFile(const QString &title, const QString &name, const QString &filter,
                               const std::function<QString(QIODevice &)> &write)
{
    auto *dialog = new QFileDialog(&m_window, title);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setNameFilters({filter, Texts::tr("All files (*)")});
    dialog->setDefaultSuffix(QFileInfo(name).suffix());
    dialog->selectFile(name);
    connect(dialog, &QFileDialog::fileSelected, this, [this, title, write](const QString &path) {
        const auto problem = std::make_shared<QString>();
        const auto work = [problem, path, write] {
            QSaveFile file(path);
            const bool isOpen = file.open(QIODevice::WriteOnly);
            if (isOpen)
                *problem = write(file);
            if (problem->isEmpty() && (!isOpen || !file.flush() || !file.commit())) {
                *problem = Texts::tr("\"%1\" cannot be written: %2")
                               .arg(QDir::toNativeSeparators(path), file.errorString());
            }
        };
        m_jobs.run(work, this, [this, title, problem, path] {
            if (problem->isEmpty()) {
                emit written(Texts::tr("\"%1\" was written.").arg(QDir::toNativeSeparators(path)));
                return;
            }
            auto *box =
                new QMessageBox(QMessageBox::Warning, title, *problem, QMessageBox::Ok, &m_window);
            box->setTextFormat(Qt::PlainText);
            box->setAttribute(Qt::WA_DeleteOnClose);
            box->open();
        });
    });
    dialog->open();
}
