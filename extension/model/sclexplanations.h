// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QList>
#include <QtCore/QPair>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <memory>

class QTranslator;

/// What logical-node classes, common data classes, data objects, attributes and enumerations of
/// IEC 61850-7-3 and 7-4 mean, in a sentence each, from the compiled-in data type templates. The
/// sentences end with a full stop; they are English unless another language was set.
///
/// Read at the first question, since most windows are never asked; that takes about as long as
/// painting the tree once. From a missing or malformed resource nothing is taken, and every text is
/// then empty. GUI thread.
class SclExplanations
{
public:
    /// A data object of a class, or an attribute of a common data class or attribute type.
    struct Member
    {
        QString text;
        QString type;        ///< common data class, basic type or attribute type
        QString presence;    ///< the standard's code of the presence condition; may be empty
        QString enumeration; ///< id of the enumeration of its values; may be empty
        bool transient = false;
    };

    struct Enumeration
    {
        QString text;
        QList<QPair<int, QString>> values; ///< in the order of the template file
    };

    SclExplanations();
    /// From another template file.
    explicit SclExplanations(const QString &path);
    ~SclExplanations();
    Q_DISABLE_COPY(SclExplanations)

    /// Answer from now on in the language of a locale name such as "de_DE", as far as a catalogue
    /// "explanations_LANGUAGE.qm" beside the template file has the sentences. Empty means English.
    void setLanguage(const QString &localeName);

    QString logicalNodeClass(const QString &lnClass) const;
    QString commonDataClass(const QString &cdc) const;
    QString attributeType(const QString &type) const;
    Enumeration enumeration(const QString &id) const;

    /// A data object by its name, with or without an instance number ("Ind3"). One that the class
    /// lacks has the text of that name in other classes, and nothing else.
    Member dataObject(const QString &lnClass, const QString &name) const;

    /// An attribute or sub data object by the names from the data object down; an array is followed
    /// by its element ("har", "har(3)") or not. One that the standard lacks there has the text of
    /// that attribute name elsewhere, and nothing else.
    Member attribute(const QString &cdc, const QStringList &path) const;

private:
    struct Content;

    const Content &content() const;
    QString translated(const QString &sentence) const;
    Member translated(Member member) const;

    const QString m_path;
    QString m_language;
    mutable std::unique_ptr<const QTranslator> m_catalogue; ///< null until a sentence is asked for
    mutable std::unique_ptr<const Content> m_content;
};
