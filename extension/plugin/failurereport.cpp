// SPDX-License-Identifier: Apache-2.0
#include "failurereport.h"

#include <QtWidgets/QMessageBox>

bool reportFailure(QWidget *parent, OperationResult result, const QString &error,
                   const FailureTexts &texts)
{
    if (result == OperationSucceeded)
        return false;
    showWarning(parent, texts.title,
                result == OperationDriverUnreachable ? texts.cannotConnect : error);
    return true;
}

void showWarning(QWidget *parent, const QString &title, const QString &text)
{
    QMessageBox box(QMessageBox::Warning, title, text, QMessageBox::Ok, parent);
    // What a device or a file says must not be taken for markup.
    box.setTextFormat(Qt::PlainText);
    box.exec();
}
