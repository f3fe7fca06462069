// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "wording/text.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace wording {

/// In the operator's language, by the table of sentences (sentencetable.cpp). Any thread.
QString text(const Text &sentence);
/// The English words of all sentences that are made below: what there is to translate.
QStringList allWords();

} // namespace wording
