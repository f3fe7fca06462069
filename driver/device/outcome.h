// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "wording/result.h"

#include <remoteclient/operationresult.h>

#include <QtCore/QString>

/// How an operation ended; an error holds one sentence for the operator.
struct Outcome
{
    OperationResult result = OperationSucceeded;
    QString error;

    static Outcome failed(const QString &sentence);
    static Outcome failed(const wording::Error &error);

    explicit operator bool() const { return result == OperationSucceeded; }
};
