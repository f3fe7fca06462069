// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtWidgets/QApplication>

/// Shows the busy cursor while it lives: around a controller call, which blocks the window.
class BusyCursor
{
public:
    BusyCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~BusyCursor() { QApplication::restoreOverrideCursor(); }
    Q_DISABLE_COPY(BusyCursor)
};
