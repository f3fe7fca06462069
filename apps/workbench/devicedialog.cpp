// SPDX-License-Identifier: Apache-2.0
#include "devicedialog.h"

#include "backgroundjobs.h"
#include "ui_devicedialog.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QLocale>
#include <QtCore/QTimer>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QStyle>

namespace {

const QChar separator = QLatin1Char(';');
const QString localSide = QStringLiteral("local");
const QString remoteSide = QStringLiteral("remote");

QString hexText(const QByteArray &octets)
{
    return QString::fromLatin1(octets.toHex(' ').toUpper());
}

QStringList listOf(const QString &text)
{
    QStringList list;
    const QStringList parts = text.split(separator);
    for (const QString &part : parts) {
        if (!part.trimmed().isEmpty())
            list << part.trimmed();
    }
    return list;
}

void setTime(QSpinBox *box, std::chrono::milliseconds time)
{
    box->setValue(static_cast<int>(time.count()));
}

std::chrono::milliseconds timeOf(const QSpinBox *box)
{
    return std::chrono::milliseconds(box->value());
}

/// Names of IEC 61850-7-3, OriginatorCategoryKind.
QStringList originatorCategories()
{
    return {QStringLiteral("0: not-supported"),    QStringLiteral("1: bay-control"),
            QStringLiteral("2: station-control"),  QStringLiteral("3: remote-control"),
            QStringLiteral("4: automatic-bay"),    QStringLiteral("5: automatic-station"),
            QStringLiteral("6: automatic-remote"), QStringLiteral("7: maintenance"),
            QStringLiteral("8: process")};
}

} // namespace

DeviceDialog::DeviceDialog(const DeviceRecord &record, Save save, Check check, Test test,
                           BackgroundJobs &jobs, QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::DeviceDialog>())
    , m_original(record)
    , m_save(std::move(save))
    , m_check(std::move(check))
    , m_test(std::move(test))
    , m_jobs(jobs)
{
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_ui->setupUi(this);
    setWindowTitle(record.number() == 0 ? tr("Add Device")
                                        : tr("Edit Device %1").arg(record.name()));
    m_ui->faultsFrame->hide();
    m_ui->faultsIcon->setPixmap(style()
                                    ->standardIcon(QStyle::SP_MessageBoxWarning)
                                    .pixmap(style()->pixelMetric(QStyle::PM_SmallIconSize)));
    m_ui->originatorCategory->addItems(originatorCategories());
    fill();
    if (record.simulated) {
        // The simulation has them from its file.
        for (QWidget *fixed :
             {static_cast<QWidget *>(m_ui->host), static_cast<QWidget *>(m_ui->port),
              static_cast<QWidget *>(m_ui->sclFile), static_cast<QWidget *>(m_ui->sclFileBrowse),
              static_cast<QWidget *>(m_ui->ied), static_cast<QWidget *>(m_ui->accessPoint)})
            fixed->setEnabled(false);
    }
    setUpBrowse(m_ui->sclFile, tr("SCL File"), false);
    setUpBrowse(m_ui->certificateFile, tr("Certificate"), false);
    setUpBrowse(m_ui->keyFile, tr("Private Key"), false);
    setUpBrowse(m_ui->authorityFiles, tr("Authorities"), true);
    setUpBrowse(m_ui->revocationFiles, tr("Revocation Lists"), true);
    m_ui->ied->setPlaceholderText(tr("the only one"));
    m_ui->accessPoint->setPlaceholderText(tr("the one with the device's address"));
    // What was learnt of the device at one place says nothing of another.
    const auto place = [this] {
        m_iedName.clear();
        suggestName();
    };
    connect(m_ui->host, &QLineEdit::textChanged, this, place);
    connect(m_ui->port, qOverload<int>(&QSpinBox::valueChanged), this, place);
    connect(m_ui->ied, &QLineEdit::textChanged, this, &DeviceDialog::suggestName);
    suggestName();
    const auto showWarning = [this](bool accepts) {
        // No layout above asks a tab how high it is at its width.
        QLabel *const warning = m_ui->otherNamesWarning;
        warning->setMinimumHeight(warning->heightForWidth(m_ui->tlsForm->minimumSize().width()));
        warning->setVisible(accepts);
        m_ui->peerName->setDisabled(accepts);
        QTimer::singleShot(0, this, &DeviceDialog::makeRoom);
    };
    connect(m_ui->acceptsOtherNames, &QCheckBox::toggled, this, showWarning);
    showWarning(m_ui->acceptsOtherNames->isChecked());

    const auto follow = [this] {
        if (m_faultsFollow)
            showFaults(currentFaults());
    };
    for (QLineEdit *edit : findChildren<QLineEdit *>())
        connect(edit, &QLineEdit::textChanged, this, follow);
    for (QSpinBox *box : findChildren<QSpinBox *>())
        connect(box, qOverload<int>(&QSpinBox::valueChanged), this, follow);
    connect(m_ui->tls, &QGroupBox::toggled, this, follow);
    connect(m_ui->test, &QPushButton::clicked, this, &DeviceDialog::testConnection);
    QLineEdit *first = record.number() == 0 ? m_ui->host : m_ui->name;
    first->setFocus();
}

DeviceDialog::~DeviceDialog() = default;

void DeviceDialog::setUpBrowse(QLineEdit *edit, const QString &title, bool several)
{
    auto *button = findChild<QToolButton *>(edit->objectName() + QStringLiteral("Browse"));
    button->setAccessibleName(title);
    connect(button, &QToolButton::clicked, this, [this, edit, title, several] {
        auto *dialog = new QFileDialog(this, title);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->setFileMode(several ? QFileDialog::ExistingFiles : QFileDialog::ExistingFile);
        const QStringList present = listOf(edit->text());
        if (!present.isEmpty() && QFileInfo(present.first()).dir().exists())
            dialog->setDirectory(QFileInfo(present.first()).dir());
        connect(dialog, &QFileDialog::filesSelected, edit, [edit](const QStringList &files) {
            QStringList native;
            for (const QString &file : files)
                native << QDir::toNativeSeparators(file);
            edit->setText(native.join(separator));
        });
        dialog->open();
    });
}

void DeviceDialog::suggestName()
{
    m_ui->name->setPlaceholderText(!m_ui->ied->text().isEmpty() ? m_ui->ied->text()
                                   : !m_iedName.isEmpty()       ? m_iedName
                                                                : placeText());
}

/// Where the device is, with the port where it is not the usual one.
QString DeviceDialog::placeText() const
{
    const QString host = m_ui->host->text().trimmed();
    const int port = m_ui->port->value();
    if (host.isEmpty() || port == DeviceConfiguration().port)
        return host;
    return (host.contains(QLatin1Char(':')) ? QStringLiteral("[%1]:%2") : QStringLiteral("%1:%2"))
        .arg(host)
        .arg(port);
}

QLineEdit *DeviceDialog::field(const QString &name) const
{
    return findChild<QLineEdit *>(name);
}

void DeviceDialog::fill()
{
    const DeviceConfiguration &device = m_original.configuration;
    m_ui->name->setText(device.name);
    m_ui->host->setText(device.host);
    m_ui->port->setValue(device.port);
    m_ui->sclFile->setText(QDir::toNativeSeparators(device.sclFile));
    m_ui->ied->setText(device.ied);
    m_ui->accessPoint->setText(device.accessPoint);
    m_ui->connects->setChecked(m_original.connects);

    setTime(m_ui->connectTimeout, device.connectTimeout);
    setTime(m_ui->callTimeout, device.callTimeout);
    setTime(m_ui->operationTimeout, device.operationTimeout);
    setTime(m_ui->pollInterval, device.pollInterval);
    m_ui->outstandingCalls->setValue(device.outstandingCalls);
    m_ui->maxPduSize->setValue(device.maxPduSize);
    m_ui->outstandingFileReads->setValue(device.outstandingFileReads);

    fillAddress(device.local, localSide);
    fillAddress(device.remote, remoteSide);

    m_ui->password->setText(device.password);
    m_ui->tls->setChecked(device.tls.enabled);
    m_ui->certificateFile->setText(device.tls.certificateFile);
    m_ui->keyFile->setText(device.tls.keyFile);
    m_ui->keyPassword->setText(device.tls.keyPassword);
    m_ui->authorityFiles->setText(device.tls.authorityFiles.join(separator));
    m_ui->revocationFiles->setText(device.tls.revocationFiles.join(separator));
    m_ui->pins->setText(device.tls.pins.join(separator));
    m_ui->peerName->setText(device.tls.peerName);
    m_ui->acceptsOtherNames->setChecked(device.tls.acceptsOtherNames);

    m_ui->originatorCategory->setCurrentIndex(device.originatorCategory);
    m_ui->originatorIdentification->setText(QString::fromUtf8(device.originatorIdentification));
}

void DeviceDialog::fillAddress(const AssociationAddress &address, const QString &side)
{
    field(side + QStringLiteral("TransportSelector"))->setText(hexText(address.transportSelector));
    field(side + QStringLiteral("SessionSelector"))->setText(hexText(address.sessionSelector));
    field(side + QStringLiteral("PresentationSelector"))
        ->setText(hexText(address.presentationSelector));
    field(side + QStringLiteral("ApTitle"))->setText(address.apTitle);
    if (address.aeQualifier) {
        field(side + QStringLiteral("AeQualifier"))->setText(QString::number(*address.aeQualifier));
    }
}

AssociationAddress DeviceDialog::addressOf(const QString &side, const QString &who,
                                           QStringList &faults) const
{
    AssociationAddress address;
    const auto take = [&](const QString &name, const QString &what, QByteArray &into) {
        if (const auto octets = octetsFromHex(field(side + name)->text()))
            into = *octets;
        else
            faults << tr("The %1 of the %2 is not hexadecimal.").arg(what, who);
    };
    take(QStringLiteral("TransportSelector"), tr("transport selector"), address.transportSelector);
    take(QStringLiteral("SessionSelector"), tr("session selector"), address.sessionSelector);
    take(QStringLiteral("PresentationSelector"), tr("presentation selector"),
         address.presentationSelector);
    address.apTitle = field(side + QStringLiteral("ApTitle"))->text().trimmed();
    const QString qualifier = field(side + QStringLiteral("AeQualifier"))->text().trimmed();
    if (!qualifier.isEmpty()) {
        bool isNumber = false;
        address.aeQualifier = qualifier.toLongLong(&isNumber);
        if (!isNumber)
            faults << tr("The AE qualifier of the %1 is not a number.").arg(who);
    }
    return address;
}

DeviceRecord DeviceDialog::record(QStringList &faults) const
{
    DeviceRecord record = m_original;
    record.connects = m_ui->connects->isChecked();
    DeviceConfiguration &device = record.configuration;
    device.host = m_ui->host->text().trimmed();
    device.port = m_ui->port->value();
    device.sclFile = QDir::fromNativeSeparators(m_ui->sclFile->text().trimmed());
    device.ied = m_ui->ied->text().trimmed();
    device.accessPoint = m_ui->accessPoint->text().trimmed();
    device.name = m_ui->name->text().trimmed();
    if (device.name.isEmpty())
        device.name = m_ui->name->placeholderText().trimmed();

    device.connectTimeout = timeOf(m_ui->connectTimeout);
    device.callTimeout = timeOf(m_ui->callTimeout);
    device.operationTimeout = timeOf(m_ui->operationTimeout);
    device.pollInterval = timeOf(m_ui->pollInterval);
    device.outstandingCalls = m_ui->outstandingCalls->value();
    device.maxPduSize = m_ui->maxPduSize->value();
    device.outstandingFileReads = m_ui->outstandingFileReads->value();

    device.local = addressOf(localSide, tr("client"), faults);
    device.remote = addressOf(remoteSide, tr("device"), faults);

    device.password = m_ui->password->text();
    device.tls.enabled = m_ui->tls->isChecked();
    device.tls.certificateFile = m_ui->certificateFile->text().trimmed();
    device.tls.keyFile = m_ui->keyFile->text().trimmed();
    device.tls.keyPassword = m_ui->keyPassword->text();
    device.tls.authorityFiles = listOf(m_ui->authorityFiles->text());
    device.tls.revocationFiles = listOf(m_ui->revocationFiles->text());
    device.tls.pins = listOf(m_ui->pins->text());
    device.tls.peerName = m_ui->peerName->text().trimmed();
    device.tls.acceptsOtherNames = m_ui->acceptsOtherNames->isChecked();

    device.originatorCategory = m_ui->originatorCategory->currentIndex();
    device.originatorIdentification = m_ui->originatorIdentification->text().toUtf8();
    return record;
}

QStringList DeviceDialog::currentFaults() const
{
    QStringList faults;
    DeviceConfiguration configuration = record(faults).configuration;
    configuration.number = qMax(configuration.number, 1);
    return faults + m_check(configuration);
}

void DeviceDialog::showFaults(const QStringList &faults)
{
    m_ui->faults->setText(faults.join(QLatin1Char('\n')));
    m_ui->faultsFrame->setVisible(!faults.isEmpty());
    makeRoom();
}

/// Sentences that were not there before must not squeeze the fields.
void DeviceDialog::makeRoom()
{
    m_ui->faultsLayout->activate();
    m_ui->faultsFrame->updateGeometry();
    layout()->activate();
    const int needed =
        qMax(layout()->totalHeightForWidth(width()), layout()->totalMinimumSize().height());
    if (needed > height())
        resize(width(), needed);
}

void DeviceDialog::accept()
{
    m_faultsFollow = true;
    QStringList faults;
    const DeviceRecord wanted = record(faults);
    if (faults.isEmpty())
        faults = m_save(wanted);
    else
        faults = currentFaults();
    showFaults(faults);
    if (faults.isEmpty())
        QDialog::accept();
}

void DeviceDialog::testConnection()
{
    const QStringList faults = currentFaults();
    m_faultsFollow = true;
    showFaults(faults);
    m_ui->testResult->clear();
    if (!faults.isEmpty())
        return;
    QStringList ignored;
    DeviceConfiguration configuration = record(ignored).configuration;
    configuration.number = qMax(configuration.number, 1);
    if (configuration.host.isEmpty()) {
        m_ui->testResult->setText(tr("The device has no address."));
        return;
    }
    m_ui->test->setEnabled(false);
    m_ui->testResult->setText(tr("Connecting to %1…").arg(placeText()));
    const auto result = std::make_shared<DeviceTestResult>();
    m_jobs.run([result, configuration, test = m_test] { *result = test(configuration); }, this,
               [this, result] { showTestResult(*result); });
}

void DeviceDialog::showTestResult(const DeviceTestResult &result)
{
    m_ui->test->setEnabled(true);
    m_iedName = result.iedName;
    suggestName();
    QString text = result.error;
    if (text.isEmpty()) {
        QStringList identity{result.vendor, result.model, result.revision};
        identity.removeAll(QString());
        const QLocale locale;
        text = tr("Connected to %1. Round trip: %2 ms; logical devices: %3")
                   .arg(identity.isEmpty() ? tr("a device that does not say what it is")
                                           : identity.join(QStringLiteral(", ")),
                        locale.toString(static_cast<double>(result.roundTrip.count()) / 1000.0, 'f',
                                        1),
                        locale.toString(result.logicalDevices));
    }
    m_ui->testResult->setText(text);
    makeRoom();
}
