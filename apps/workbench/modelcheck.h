// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QString>

class QIODevice;

/// Says what is in an SCL file, as one JSON object in UTF-8; needs no display.
///
/// {"file", "edition", "schemaVersion", "ieds": [{"name", "logicalDevices", "logicalNodes",
/// "dataObjects", "attributes", "dataSets", "dataSetMembers", "bufferedReports",
/// "unbufferedReports"}], "findings": [{"severity", "line", "path", "text"}], "findingsLeftOut"}
///
/// Attributes are leaf attributes with array elements counted one by one; report blocks are those
/// that the device has, so that an indexed one counts once per instance. Severities are "info",
/// "warning" and "error". A file that cannot be used gives {"file", "error"} with one sentence.
///
/// @param ied the only IED to list; empty for all. Findings are those of the whole file.
/// @return 0 when no finding is an error, 1 when one is, 2 when the file or the IED cannot be used
int checkModel(const QString &file, const QString &ied, QIODevice &out);
