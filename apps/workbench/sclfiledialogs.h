// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "importresult.h"

#include <QtCore/QObject>
#include <QtCore/QStringList>

#include <functional>

class QWidget;
class Workbench;

/// What the operator is asked and told about SCL files: which ones to open or to simulate, which
/// IEDs of a file that holds several, and why files cannot be used. Nothing here waits for an
/// answer; the files go to the workbench when one comes. GUI thread.
class SclFileDialogs : public QObject
{
public:
    /// @param workbench gets the files; not owned, must outlive the dialogs
    /// @param window parent of the dialogs; not owned
    SclFileDialogs(Workbench &workbench, QWidget &window);

    /// Ask for files to open. @p beside is a file in whose folder the search begins, unless it is
    /// empty, a resource, or in no folder that exists.
    void open(const QString &beside);
    /// Ask for files to simulate a device of; @p beside as above.
    void simulate(const QString &beside);

private:
    struct Question
    {
        QString file;
        QVector<IedSummary> ieds;
        bool simulated = false;
    };

    void askForFiles(const QString &title, const QString &beside,
                     const std::function<void(const QString &)> &take);
    void askForIeds(const QString &file, const QVector<IedSummary> &ieds, bool simulated);
    void showNextQuestion();
    void showFailures(const QStringList &sentences);

    Workbench &m_workbench;
    QWidget &m_window;
    QList<Question> m_questions; ///< the first one is on the screen
};
