// SPDX-License-Identifier: Apache-2.0
#include "sentences.h"

#include <QtCore/QCoreApplication>

QString wording::text(const Text &sentence)
{
    return QString::fromStdString(sentence.inLanguage([](const std::string &words) {
        return QCoreApplication::translate("IedDriver", words.c_str()).toStdString();
    }));
}
