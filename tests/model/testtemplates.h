// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "model/scltemplatestore.h"

#include <QtCore/QByteArray>
#include <QtCore/QTemporaryFile>

/// A template store with content of the test's own instead of the compiled-in one.
class TestTemplates : public SclTemplateStore
{
public:
    TestTemplates() = default;
    explicit TestTemplates(const QByteArray &xml) { loadXml(xml); }

    using SclTemplateStore::load;

    void loadXml(const QByteArray &xml)
    {
        QTemporaryFile file;
        if (!file.open() || file.write(xml) != xml.size() || !file.flush())
            qFatal("The template file of the test cannot be written");
        load(file.fileName());
    }
};
