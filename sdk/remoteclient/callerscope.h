// SPDX-License-Identifier: Apache-2.0
// Of the library itself; not for its users.
#pragma once

#include <QtCore/QtGlobal>

/// While it lives, calls of this thread are those of @a caller.
class CallerScope
{
public:
    explicit CallerScope(quint64 caller);
    ~CallerScope();
    Q_DISABLE_COPY(CallerScope)

private:
    quint64 m_before;
};
