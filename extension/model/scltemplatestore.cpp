// SPDX-License-Identifier: Apache-2.0
#include "scltemplatestore.h"

#include <QtCore/QFile>
#include <QtCore/QXmlStreamReader>
#include <QtXml/QDomDocument>

namespace {

QString firstAttribute(const QDomElement &element)
{
    return element.attributes().item(0).nodeValue();
}

QList<SclTemplateStore::Entry> readEntries(const QDomElement &enumeration)
{
    QList<SclTemplateStore::Entry> entries;
    for (QDomElement value = enumeration.firstChildElement(); !value.isNull();
         value = value.nextSiblingElement()) {
        // What is no number counts as 0.
        entries.append({firstAttribute(value).toInt(), value.text()});
    }
    return entries;
}

} // namespace

SclTemplateStore::SclTemplateStore()
{
    load(QStringLiteral(":/850Ext/model/61850Details EDITION 2.xml"));
}

SclTemplateStore::~SclTemplateStore() = default;

void SclTemplateStore::load(const QString &path)
{
    m_enumerations.clear();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return;
    // The same document as from the file itself, in about half the time.
    QXmlStreamReader reader(file.readAll());
    QDomDocument document;
    if (!document.setContent(&reader, true))
        return;
    const QDomElement templates = document.firstChildElement(QStringLiteral("DataTypeTemplate"));
    const QString enumerationTag = QStringLiteral("EnumType");
    for (QDomElement element = templates.firstChildElement(); !element.isNull();
         element = element.nextSiblingElement()) {
        if (element.nodeName() != enumerationTag ||
            element.attribute(QStringLiteral("id")).isEmpty()) {
            continue;
        }
        m_enumerations.insert(firstAttribute(element), readEntries(element));
    }
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
