// SPDX-License-Identifier: Apache-2.0
#include "scltemplatestore.h"

#include <QtCore/QFile>
#include <QtCore/QXmlStreamReader>

namespace {

using Enumerations = QHash<QString, QList<SclTemplateStore::Entry>>;

QString firstAttribute(const QXmlStreamAttributes &attributes)
{
    return attributes.isEmpty() ? QString() : attributes.first().value().toString();
}

QList<SclTemplateStore::Entry> readEntries(QXmlStreamReader &xml)
{
    QList<SclTemplateStore::Entry> entries;
    while (xml.readNextStartElement()) {
        // What is no number counts as 0.
        const int ordinal = firstAttribute(xml.attributes()).toInt();
        const QString text = xml.readElementText(QXmlStreamReader::IncludeChildElements);
        entries.append({ordinal, text.trimmed().isEmpty() ? QString() : text});
    }
    return entries;
}

/// Nothing at all from a file that is malformed anywhere. The file describes much more than
/// enumerations: it is read in passing and not kept as a document.
Enumerations readFile(const QString &path)
{
    Enumerations enumerations;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return enumerations;
    QXmlStreamReader xml(&file);
    const bool isTemplate =
        xml.readNextStartElement() && xml.qualifiedName() == QLatin1String("DataTypeTemplate");
    while (isTemplate && xml.readNextStartElement()) {
        const QXmlStreamAttributes attributes = xml.attributes();
        if (xml.qualifiedName() == QLatin1String("EnumType") &&
            !attributes.value(QLatin1String("id")).isEmpty()) {
            const QString id = firstAttribute(attributes);
            enumerations.insert(id, readEntries(xml));
        } else {
            xml.skipCurrentElement();
        }
    }
    while (!xml.atEnd())
        xml.readNext();
    return xml.hasError() ? Enumerations() : enumerations;
}

} // namespace

SclTemplateStore::SclTemplateStore()
{
    // Every browser window has a store, and all of them the same content.
    static const Enumerations compiledIn =
        readFile(QStringLiteral(":/850Ext/model/61850Details EDITION 2.xml"));
    m_enumerations = compiledIn;
}

SclTemplateStore::~SclTemplateStore() = default;

void SclTemplateStore::load(const QString &path)
{
    m_enumerations = readFile(path);
}

bool SclTemplateStore::hasEnumeration(const QString &id) const
{
    return m_enumerations.contains(id);
}

QList<SclTemplateStore::Entry> SclTemplateStore::entries(const QString &id) const
{
    return m_enumerations.value(id);
}

QString SclTemplateStore::displayText(const QString &id, int ordinal) const
{
    const auto enumeration = m_enumerations.constFind(id);
    if (enumeration != m_enumerations.constEnd()) {
        for (const Entry &entry : *enumeration) {
            if (entry.ordinal == ordinal)
                return QStringLiteral("%1 (%2)").arg(entry.text, QString::number(ordinal));
        }
    }
    return QStringLiteral("Not Represented");
}
