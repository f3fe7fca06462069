// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QString>

/// Enumerations of IEC 61850-7-3 and 7-4 as the compiled-in data type templates list them, for
/// devices whose own model does not carry the texts. Read when the first store is made, and shared
/// by all. Reports nothing: from a missing or malformed resource nothing is taken, and every
/// enumeration is then unknown.
class SclTemplateStore
{
public:
    struct Entry
    {
        int ordinal;
        QString text;
    };

    SclTemplateStore();
    virtual ~SclTemplateStore();
    Q_DISABLE_COPY(SclTemplateStore)

    bool hasEnumeration(const QString &id) const;

    /// The entries in the order of the template file; empty for an unknown id.
    QList<Entry> entries(const QString &id) const;

    /// "text (ordinal)" of the first entry of that ordinal; "Not Represented" when the id is
    /// unknown or has no such entry. Not translated.
    QString displayText(const QString &id, int ordinal) const;

protected:
    /// Replace the content by that of another template file; leaves an empty store on failure.
    void load(const QString &path);

private:
    QHash<QString, QList<Entry>> m_enumerations;
};

Q_DECLARE_TYPEINFO(SclTemplateStore::Entry, Q_MOVABLE_TYPE);
