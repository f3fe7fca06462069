// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <remoteclient/operationresult.h>

#include <QtCore/QString>

class QWidget;

/// The texts of a failure report, translated in the context of the tool that shows it.
struct FailureTexts
{
    QString title;
    QString cannotConnect; ///< shown instead of the error text when the driver is unreachable
};

/// The one way in which a tool reports a failed controller call: a modal warning box over `parent`
/// with one OK button. Shows nothing for a success.
/// \return whether the call had failed
bool reportFailure(QWidget *parent, OperationResult result, const QString &error,
                   const FailureTexts &texts);

// Modal boxes. They end by themselves when `parent` is closed or destroyed, and are not shown at
// all when it has ended (see ModalLife): `parent` may be gone when they return. While `parent` is
// not on the screen they appear over the window that it will belong to. The text is shown as it is,
// whatever it looks like; of one that would fill the screen the first lines are shown, and the
// whole of it in a list that scrolls and can be copied from. QMessageBox::text() is always the
// whole text.

/// A warning with one OK button.
void showWarning(QWidget *parent, const QString &title, const QString &text);

/// An information with one OK button; a warning when there is a `problem` to be told beside it.
void showInformation(QWidget *parent, const QString &title, const QString &text,
                     const QString &problem = {});

/// An information without a parent, which ends with `opener` all the same.
void showFreeInformation(QWidget *opener, const QString &title, const QString &text);

/// A warning that asks. \return whether the answer was Yes
bool askWarning(QWidget *parent, const QString &title, const QString &text);
