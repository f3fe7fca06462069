// SPDX-License-Identifier: Apache-2.0
#include "outcome.h"

#include "driver/text/sentences.h"

Outcome Outcome::failed(const QString &sentence)
{
    return {OperationFailed, sentence};
}

Outcome Outcome::failed(const wording::Error &error)
{
    return {OperationFailed, wording::text(error.message)};
}
