// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QObject>

class QLabel;
class QProgressBar;
class QStatusBar;
class QToolButton;
class Workbench;

/// What the status bar shows for as long as it lasts: that nothing may be changed, which devices
/// are away, and what is being read, with the button that ends that. GUI thread.
class ActivityMarks : public QObject
{
public:
    /// Puts the marks into @p bar, which owns them.
    /// @param workbench what is shown; not owned, must outlive the marks
    ActivityMarks(Workbench &workbench, QStatusBar &bar);

private:
    void setUpReadOnly(QStatusBar &bar);
    void setUpAway(QStatusBar &bar);
    void setUpProgress(QStatusBar &bar);
    void showAway();
    void showFileProgress(const QString &file, int permille);
    void showProgress();
    void cancel();

    Workbench &m_workbench;
    QLabel *m_away = nullptr;
    QLabel *m_progressText = nullptr;
    QProgressBar *m_progress = nullptr;
    QToolButton *m_cancel = nullptr;
    bool m_loadIsSlow = false;
};
