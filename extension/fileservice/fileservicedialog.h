// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <remoteclient/iec61850controllerinterface.h>

#include <QtWidgets/QDialog>

#include <memory>
#include <optional>

class FileModel;
class QModelIndex;
struct HostTaskContext;
struct MMSFileEntry;

namespace Ui {
class FileServiceDialog;
}

/// Browses the file store of one IED; downloads, uploads and deletes files. Run it with exec(). The
/// first listing is read during construction, so that a failed connection is told before the dialog
/// is shown. GUI thread; every controller call blocks it.
class FileServiceDialog : public QDialog
{
    Q_OBJECT

public:
    /// `location` is the number of the driver, `handle` that of the IED on it.
    FileServiceDialog(int location, int handle, HostTaskContext *host, QWidget *parent);
    ~FileServiceDialog() override;

public slots:
    void readDirectory();
    void loadDirectory(const QModelIndex &index);
    void checkFile(const QModelIndex &index);
    void selectFile();
    void download();
    void deleteFile();
    void upload();

protected:
    /// Keys in the list: Space is a click on the current row, Enter a double click.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// List `directory` and make it the current one; a failure is told and changes nothing.
    void showDirectory(const QString &directory);
    template <typename Call>
    OperationResult request(Call call, QString &error);
    void showFailure(const QString &text);
    QString askLocalFile(const QString &proposal);
    std::optional<MMSFileEntry> selectedEntry() const;

    int m_handle;
    int m_location;
    IEC61850ControllerInterface m_controller;
    std::unique_ptr<Ui::FileServiceDialog> m_form;
    FileModel *m_model;
    QString m_directory; ///< empty for the root; otherwise names as the IED gave them
};
