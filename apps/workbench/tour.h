// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QString>

class MainWindow;
class QModelIndex;
class QTreeView;
class QWidget;
class Workbench;

/// Opens the demonstration device and each tool in turn, the way an operator does, and saves a
/// picture of every window. Tool windows are found by their object names, since the extension is
/// loaded and not linked. Runs its own event loops; GUI thread.
class Tour
{
public:
    /// @param folder where the pictures go; made when it does not exist
    Tour(Workbench &workbench, MainWindow &window, const QString &folder);

    /// False when a window did not appear or a picture could not be saved; problem() says which.
    bool run();

    /// One sentence, empty when all went well.
    QString problem() const { return m_problem; }

private:
    bool openDevices();
    bool showBrowser();
    bool showOfflineSettingGroups();
    bool showWorkbench();

    bool triggerTool(int position, const QString &tool);
    void arrangeBrowser();
    bool doubleClick(const QModelIndex &index, const QString &dialogName, const QString &picture);
    bool save(QWidget *widget, const QString &picture);
    bool fail(const QString &sentence);

    Workbench &m_workbench;
    MainWindow &m_window;
    const QString m_folder;
    QTreeView *m_tree = nullptr; ///< of the browser; lives as long as its window is open
    QString m_problem;
};
