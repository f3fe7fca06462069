// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "backgroundjobs.h"

#include <QtCore/QObject>

#include <functional>

class QIODevice;
class QWidget;
class Workbench;
struct DeviceRecord;

/// What the operator does with one device of the list and is asked about: adding, editing, removing
/// it, watching its trace, saving its capture or its values. Nothing here waits for an answer, and
/// files are written in a thread. A number that no device of the list has does nothing. GUI thread;
/// the destructor waits for files that are being written.
class DeviceCommands : public QObject
{
    Q_OBJECT

public:
    /// @param workbench has the devices; not owned, must outlive the commands
    /// @param window parent of the dialogs; not owned
    DeviceCommands(Workbench &workbench, QWidget &window);

    void add();
    void edit(int number);
    /// Ask, then take the device off the list.
    void remove(int number);
    void showTrace(int number);
    void saveCapture(int number);
    void exportValues(int number);

signals:
    /// @p name has left the list; @p hasFile when it was read from a file, which stays.
    void removed(const QString &name, bool hasFile);
    /// A file was written, said in one sentence.
    void written(const QString &sentence);

private:
    void removeNow(int number);
    void showDialog(const DeviceRecord &record);
    /// Asks for a file and lets a thread write it; what goes wrong is told in a message box.
    void writeFile(const QString &title, const QString &name, const QString &filter,
                   const std::function<QString(QIODevice &)> &write);

    Workbench &m_workbench;
    QWidget &m_window;
    BackgroundJobs m_jobs;
};
