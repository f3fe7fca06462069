// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <remoteclient/records.h>

#include <QtCore/QJsonArray>
#include <QtCore/QList>

class Output;

/// The entries that a directory service gave.
QJsonArray directoryRows(const QList<NameVaildValue> &list);
void showDirectory(Output &output, const QList<NameVaildValue> &list);
