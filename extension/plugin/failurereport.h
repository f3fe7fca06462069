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

/// A modal warning box with one OK button that shows `text` as it is, whatever it looks like.
void showWarning(QWidget *parent, const QString &title, const QString &text);
