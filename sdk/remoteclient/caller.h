// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "remoteclientglobal.h"

#include <QtCore/QString>

/// Who has a driver's service: what is done through it was done by him. Words for journals, not a
/// proof of anything. All empty: nobody but the driver itself.
struct REMOTECLIENT_EXPORT Caller
{
    QString name;    ///< of the user, as his computer knows him
    QString station; ///< name of the computer
    QString process; ///< the program and the number of its process, "iedctl 4711"

    /// The user of this process. Any thread.
    static Caller ofThisProcess();

    /// "name@station (process)" in one line, without what is not known.
    QString text() const;
};
