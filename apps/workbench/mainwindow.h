// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "activitymarks.h"
#include "devicecommands.h"
#include "extensiontools.h"
#include "findingspane.h"
#include "sclfiledialogs.h"

#include <QtCore/QPointer>
#include <QtWidgets/QMainWindow>

#include <memory>

namespace Ui {
class MainWindow;
}
class GuideViewer;
class Workbench;

/// The window of the workbench: puts together the list of devices, the tools of the extension,
/// findings and journals, and leads its actions to what they do.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// @param workbench not owned; must outlive the window
    /// @param pluginFolder where the extension is
    MainWindow(Workbench &workbench, const QString &pluginFolder, QWidget *parent = nullptr);
    ~MainWindow() override;

    /// Load the extension and show its actions, or say in the window why that is impossible.
    void loadExtension();

    const LoadedExtension &extension() const { return m_tools.loaded(); }

    /// The extension's actions as this window offers them: enabled while a device with a model is
    /// selected, of which the extension is told before its own action runs.
    QList<QAction *> extensionActions() const { return m_tools.actions(); }

    /// Number of the selected device, 0 when none is.
    int selectedDevice() const;
    void selectDevice(int number);

    /// Take the usual size, or less where @p available does not have as much, in the middle of it.
    void fitInto(const QRect &available);

public slots:
    void openFile();
    /// Ask for an SCL file and simulate a device of it.
    void simulateFile();

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void setUpDevices();
    void setUpJournals();
    void setUpDocks();
    void setUpIcons();
    void setUpActions();
    void setUpDeviceActions();
    void setUpConfirmation();
    void setUpMessages();
    void showSelection();
    void enableDeviceActions(const DeviceListModel::Device *device);
    void showDeviceMenu(const QPoint &position);
    void showRemoved(const QString &name, bool hasFile);
    void showUndo();
    QString selectedFile() const;
    void showGuide();
    void showAbout();

    const std::unique_ptr<Ui::MainWindow> m_ui;
    Workbench &m_workbench;
    const QString m_pluginFolder;
    ExtensionTools m_tools;
    SclFileDialogs m_files;
    DeviceCommands m_commands;
    FindingsPane m_findings;
    ActivityMarks m_marks;
    QPointer<GuideViewer> m_guide;
};
