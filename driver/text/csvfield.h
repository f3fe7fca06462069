// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QString>

/// The text as a field of CSV (RFC 4180). Spreadsheets take texts that begin with certain
/// characters for formulas; a quotation mark before them keeps such a text a text.
QString csvField(QString text);
