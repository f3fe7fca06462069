// SPDX-License-Identifier: Apache-2.0
#include "fileservicedialog.h"

#include "filemodel.h"
#include "ui_fileservicedialog.h"

#include "toolkit/busycursor.h"
#include "toolkit/failurereport.h"
#include "toolkit/modallife.h"

#include <host/hosttaskcontext.h>
#include <remoteclient/driverconsolinterface.h>

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QShortcut>

namespace {

constexpr int nameColumnWidth = 200;
constexpr int timeColumnWidth = 160;

const QString filePattern = QStringLiteral("*.*");

/// A device's file name as a name of this system. What a device says must not choose a folder.
QString localFileName(QString name)
{
    for (QChar &c : name) {
        const bool isControl = c.category() == QChar::Other_Control;
        if (c == QLatin1Char('/') || c == QDir::separator() || isControl)
            c = QLatin1Char('_');
    }
    const bool isFolder =
        name.isEmpty() || name == QLatin1String(".") || name == QLatin1String("..");
    return isFolder ? QStringLiteral("_") : name;
}

/// Run a file dialog. \return the file that was chosen, empty when none was
QString chosenFile(QFileDialog &chooser)
{
    ModalLife life(&chooser);
    return life.exec() == QDialog::Accepted ? chooser.selectedFiles().value(0) : QString();
}

} // namespace

FileServiceDialog::FileServiceDialog(int location, int handle, HostTaskContext *host,
                                     QWidget *parent)
    : QDialog(parent)
    , m_handle(handle)
    , m_location(location)
    , m_form(std::make_unique<Ui::FileServiceDialog>())
    , m_model(new FileModel(this))
{
    QString place;
    host->console->getLoc(m_location, m_handle, place);
    const QString address = host->console->currentAddress();

    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    m_form->setupUi(this);
    m_form->treeView->setModel(m_model);
    m_form->treeView->setColumnWidth(0, nameColumnWidth);
    m_form->treeView->setColumnWidth(1, timeColumnWidth);
    // The edits of the two rows begin below one another.
    const int labelWidth =
        qMax(m_form->label->sizeHint().width(), m_form->label_2->sizeHint().width());
    m_form->label->setMinimumWidth(labelWidth);
    m_form->label_2->setMinimumWidth(labelWidth);
    m_form->treeView->setFocus();
    m_controller.setLocation(address, m_location);
    readDirectory();

    connect(m_form->close, &QPushButton::released, this, &QDialog::reject);
    connect(m_form->deleteFile, &QPushButton::released, this, &FileServiceDialog::deleteFile);
    connect(m_form->upload, &QPushButton::released, this, &FileServiceDialog::upload);
    connect(m_form->download, &QPushButton::released, this, &FileServiceDialog::download);
    connect(m_form->refresh, &QPushButton::released, this, &FileServiceDialog::readDirectory);
    connect(m_form->treeView, &QTreeView::clicked, this, &FileServiceDialog::checkFile);
    connect(m_form->treeView, &QTreeView::doubleClicked, this, &FileServiceDialog::loadDirectory);
    connect(m_form->findFile, &QToolButton::released, this, &FileServiceDialog::selectFile);

    // Clicks choose by themselves; what keys choose can be downloaded and deleted as well.
    connect(m_form->treeView->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this](const QItemSelection &selected) {
                if (!selected.isEmpty() && QApplication::mouseButtons() == Qt::NoButton)
                    checkFile(selected.indexes().first());
            });
    m_form->treeView->installEventFilter(this);
    auto *refreshKey = new QShortcut(QKeySequence(Qt::Key_F5), this);
    connect(refreshKey, &QShortcut::activated, this, &FileServiceDialog::readDirectory);
}

FileServiceDialog::~FileServiceDialog() = default;

void FileServiceDialog::readDirectory()
{
    showDirectory(m_directory);
}

void FileServiceDialog::loadDirectory(const QModelIndex &index)
{
    const MMSFileEntry entry = m_model->entry(index.row());
    if (FileModel::isParentEntry(entry)) {
        // A directory's name may hold its separator at either end, so the last one counts as the
        // name's own and the cut is made at the one before it.
        QString above = m_directory;
        const int separator = above.lastIndexOf(QLatin1Char('\\'));
        if (separator >= 0)
            above.remove(separator, 1);
        above.truncate(qMax(0, above.lastIndexOf(QLatin1Char('\\'))));
        showDirectory(above);
    } else if (FileModel::isDirectory(entry)) {
        showDirectory(m_directory + entry.name);
    }
}

void FileServiceDialog::checkFile(const QModelIndex &index)
{
    const MMSFileEntry entry = m_model->entry(index.row());
    const bool isFile = !FileModel::isParentEntry(entry) && !FileModel::isDirectory(entry);
    m_form->download->setEnabled(isFile);
    m_form->deleteFile->setEnabled(isFile);
}

void FileServiceDialog::selectFile()
{
    QFileDialog chooser(this, tr("Select file"), QCoreApplication::applicationDirPath(),
                        tr("All Files(*.*)"));
    chooser.setFileMode(QFileDialog::ExistingFile);
    const QString file = chosenFile(chooser);
    if (file.isEmpty())
        return;
    m_form->sourceFile->setText(file);
    m_form->targetFile->setText(QFileInfo(file).fileName());
}

void FileServiceDialog::download()
{
    const std::optional<MMSFileEntry> entry = selectedEntry();
    if (!entry)
        return;
    const QString localName = askLocalFile(QCoreApplication::applicationDirPath() +
                                           QDir::separator() + localFileName(entry->name));
    if (localName.isEmpty())
        return;

    const QString fileName = m_directory + entry->name;
    QByteArray content;
    QString error;
    const OperationResult result =
        request([&] { return m_controller.getFile(m_handle, fileName, content, error); }, error);
    if (result != OperationSucceeded) {
        showFailure(tr("Fail to Read File: %1 error:%2").arg(fileName, error));
        return;
    }
    // Beside and renamed: a file that is only half written never has the name.
    QSaveFile local(localName);
    const bool isOpen = local.open(QIODevice::WriteOnly);
    const bool isWritten =
        isOpen && local.write(content) == content.size() && local.flush() && local.commit();
    const QString problem =
        isWritten ? QString()
                  : tr("\"%1\" cannot be written: %2")
                        .arg(QDir::toNativeSeparators(localName), local.errorString());
    if (isOpen && !isWritten) {
        showFailure(problem);
        return;
    }
    readDirectory();
    // The transfer is done, and yet there may be no file.
    showInformation(this, tr("Success"), tr("Download Finished"), problem);
}

void FileServiceDialog::deleteFile()
{
    const std::optional<MMSFileEntry> entry = selectedEntry();
    if (!entry)
        return;
    const QString fileName = m_directory + entry->name;
    QString error;
    const OperationResult result =
        request([&] { return m_controller.deleteFile(m_handle, fileName, error); }, error);
    if (result != OperationSucceeded) {
        showFailure(tr("Fail to Delete %1 %2").arg(fileName, error));
        return;
    }
    readDirectory();
    showInformation(this, tr("Success"), tr("Delete Finished"));
}

void FileServiceDialog::upload()
{
    const QString source = m_form->sourceFile->text();
    const QString target = m_directory + m_form->targetFile->text();
    QString error;
    const OperationResult result =
        request([&] { return m_controller.writeFile(m_handle, source, target, error); }, error);
    if (result != OperationSucceeded) {
        showFailure(tr("Fail to Upload File: %1 error:%2").arg(source, error));
        return;
    }
    readDirectory();
    showFreeInformation(this, tr("Success"), tr("Upload Finished"));
}

bool FileServiceDialog::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_form->treeView && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        const QModelIndex current = m_form->treeView->currentIndex();
        if ((key == Qt::Key_Return || key == Qt::Key_Enter) && current.isValid()) {
            checkFile(current);
            loadDirectory(current);
            return true;
        }
        if (key == Qt::Key_Space && current.isValid())
            checkFile(current);
    }
    return QDialog::eventFilter(watched, event);
}

void FileServiceDialog::showDirectory(const QString &directory)
{
    QList<MMSFileEntry> entries;
    QString error;
    const OperationResult result = request(
        [&] {
            return m_controller.getFileDirectory(m_handle, filePattern, directory, entries, error);
        },
        error);
    if (result != OperationSucceeded) {
        showFailure(tr("Fail to readDirectory: Cannot connect to driver"));
        return;
    }

    // Only now: names in the list must never be joined to the path of another directory.
    m_directory = directory;
    if (!m_directory.isEmpty()) {
        MMSFileEntry above;
        above.name = QStringLiteral("..");
        entries.prepend(above);
    }
    m_model->setEntries(entries);
    m_form->download->setEnabled(false);
    m_form->deleteFile->setEnabled(false);
    m_form->directory->setText(m_directory);
}

template <typename Call>
OperationResult FileServiceDialog::request(Call call, QString &error)
{
    const BusyCursor busy;
    const OperationResult result = call();
    if (result == OperationDriverUnreachable)
        error = tr("Cannot connect to driver");
    return result;
}

void FileServiceDialog::showFailure(const QString &text)
{
    showWarning(this, tr("Fail"), text);
}

QString FileServiceDialog::askLocalFile(const QString &proposal)
{
    const QString caption = tr("Download File");
    for (;;) {
        QFileDialog chooser(this, caption, QFileInfo(proposal).path(), tr("All Files (*)"));
        chooser.setAcceptMode(QFileDialog::AcceptSave);
        chooser.setFileMode(QFileDialog::AnyFile);
        chooser.setOptions(QFileDialog::DontConfirmOverwrite | QFileDialog::HideNameFilterDetails);
        chooser.selectFile(QFileInfo(proposal).fileName());
        QString name = chosenFile(chooser);
        if (name.isEmpty())
            return {};
        // The default suffix is empty, so only its point is added.
        if (QFileInfo(name).suffix().isEmpty() && !name.endsWith(QLatin1Char('.')))
            name += QLatin1Char('.');
        if (!QFileInfo::exists(name))
            return name;
        const bool replaces = askWarning(
            this, caption,
            tr("%1 already exists.\nDo you want to replace it?").arg(QFileInfo(name).fileName()));
        if (replaces)
            return name;
    }
}

std::optional<MMSFileEntry> FileServiceDialog::selectedEntry() const
{
    const QModelIndexList rows = m_form->treeView->selectionModel()->selectedRows(0);
    if (rows.isEmpty())
        return std::nullopt;
    return m_model->entry(rows.first().row());
}
