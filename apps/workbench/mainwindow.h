// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "backgroundjobs.h"
#include "extensionloader.h"
#include "findingsmodel.h"
#include "importresult.h"

#include <host/hosttaskcontext.h>

#include <QtCore/QPointer>
#include <QtCore/QStringList>
#include <QtWidgets/QMainWindow>

#include <functional>
#include <memory>

namespace Ui {
class MainWindow;
}
class GuideViewer;
class QIODevice;
class QLabel;
class QProgressBar;
class QSortFilterProxyModel;
class QToolButton;
class ToolWindows;
class Workbench;
struct DeviceRecord;

/// The window of the workbench: list of devices, tools of the extension, findings, journals.
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

    const LoadedExtension &extension() const { return m_extension; }

    /// The extension's actions as this window offers them: enabled while a device with a model is
    /// selected, of which the extension is told before its own action runs.
    QList<QAction *> extensionActions() const { return m_extensionActions; }

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
    void setUpViews();
    void setUpActions();
    void offerExtensionAction(QAction *action);
    void showSelection();
    void showDeviceMenu(const QPoint &position);
    void setUpConfirmation();
    void setUpStatusBar();
    void askForFiles(const QString &title, const std::function<void(const QString &)> &take);
    void askForIeds(const QString &file, const QVector<IedSummary> &ieds, bool simulated);
    void showProgress();
    void showReadOnly();
    void showAway();
    void showNextQuestion();
    void showFailures(const QStringList &sentences);
    void addDevice();
    void editSelected();
    void showDeviceDialog(const DeviceRecord &record);
    void showTrace();
    void saveCapture(int number);
    void exportValues(int number);
    /// Asks for a file and lets a thread write it; what goes wrong is told in a message box.
    void writeFile(const QString &title, const QString &name, const QString &filter,
                   const std::function<QString(QIODevice &)> &write);
    void showGuide();
    void showAbout();
    void removeSelected();
    void remove(int number);
    void showUndo();

    const std::unique_ptr<Ui::MainWindow> m_ui;
    Workbench &m_workbench;
    const QString m_pluginFolder;
    HostTaskContext &m_context;
    LoadedExtension m_extension;
    QList<QAction *> m_extensionActions;
    ToolWindows *m_toolWindows;
    FindingsModel *m_findings;
    QSortFilterProxyModel *m_sortedFindings;
    QPointer<GuideViewer> m_guide;
    QLabel *m_progressText = nullptr;
    QProgressBar *m_progress = nullptr;
    QToolButton *m_cancel = nullptr;
    QLabel *m_readOnly = nullptr;
    QLabel *m_away = nullptr;
    bool m_loadIsSlow = false;

    struct Question
    {
        QString file;
        QVector<IedSummary> ieds;
        bool simulated = false;
    };
    BackgroundJobs m_jobs;
    QList<Question> m_questions; ///< the first one is on the screen
};
