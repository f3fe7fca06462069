// SPDX-License-Identifier: Apache-2.0
#include "failurereport.h"

#include <QtWidgets/QMessageBox>

bool reportFailure(QWidget *parent, OperationResult result, const QString &error,
                   const FailureTexts &texts)
{
    if (result == OperationSucceeded)
        return false;
    QMessageBox::warning(parent, texts.title,
                         result == OperationDriverUnreachable ? texts.cannotConnect : error,
                         QMessageBox::Ok);
    return true;
}
