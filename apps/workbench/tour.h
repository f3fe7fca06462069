// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QString>
#include <QtCore/QTemporaryDir>

#include <functional>
#include <utility>

class MainWindow;
class QAction;
class QModelIndex;
class QPixmap;
class QTreeView;
class QWidget;
class Workbench;

/// Opens the demonstration device and each tool in turn, the way an operator does, and saves a
/// picture of every window: first without a connection, with the model of the SCL file, then
/// connected to the simulated device. Tool windows are found by their object names, since the
/// extension is loaded and not linked. Runs its own event loops; GUI thread.
class Tour
{
public:
    /// @param folder where the pictures go; made when it does not exist
    Tour(Workbench &workbench, MainWindow &window, const QString &folder);

    using Witness = std::function<void(const QWidget &window, const QString &picture)>;

    /// Called for every window but the context menu, shown as its picture is about to be taken.
    void setWitness(Witness witness) { m_witness = std::move(witness); }

    /// False when a window did not appear or a picture could not be saved; problem() says which.
    bool run();

    /// One sentence, empty when all went well.
    QString problem() const { return m_problem; }

private:
    using Preparation = std::function<void(QWidget *)>;

    bool openDevices();
    bool showWithoutConnection();
    bool showConnected();
    bool connectDevice();

    bool openBrowser();
    bool showBrowser();
    bool showContextMenu();
    bool showFunctionalConstraint();
    bool showControl();
    bool showDataSetMembers();
    bool showSettingGroups(const QString &dialogName, const QString &picture);
    bool showReportControl(const QString &picture);
    bool showFileService();
    bool showDeviceForm();
    bool showTrace();
    bool showWorkbench();

    QAction *tool(int position);
    bool triggerInBrowser(const char *entry, const QModelIndex &index);
    void arrangeBrowser();
    bool showDialog(const std::function<void()> &open, const QString &dialogName,
                    const QString &picture, const Preparation &prepare = {});
    bool save(QWidget *widget, const QString &picture);
    bool savePixmap(const QPixmap &pixmap, const QString &picture);
    bool fail(const QString &sentence);

    Workbench &m_workbench;
    MainWindow &m_window;
    const QString m_folder;
    const QTemporaryDir m_files; ///< holds an SCL file of the tour's own
    int m_device = 0;            ///< number of the device that is shown
    QTreeView *m_tree = nullptr; ///< of the browser; lives as long as its window is open
    Witness m_witness;
    QString m_problem;
};
