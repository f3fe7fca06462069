// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QTextStream>

class QIODevice;

/// Where results and complaints go: as aligned text for people, as JSON for scripts. Results are
/// one JSON document for each command; a stream of values is one object a line. Whatever a device
/// sends as text, nothing of it commands the terminal: see printable().
class Output
{
public:
    /// Neither device is owned; both are open. @p terminal is true when somebody watches, who wants
    /// to see progress.
    Output(QIODevice *results, QIODevice *complaints, bool json, bool terminal);

    bool isJson() const { return m_json; }

    /// A table with a line for each object. A cell without a value is "-", so that the columns
    /// behind it stay in place; columns at the end that no object has are left out.
    void rows(const QStringList &columns, const QJsonArray &objects);
    /// One "name: value" a line, in the order of @p names.
    void object(const QStringList &names, const QJsonObject &object);
    /// One result of a stream, as lines or as one object; appears at once.
    void streamed(const QStringList &lines, const QJsonObject &object);
    /// What a command did, for people only.
    void note(const QString &sentence);

    /// One line on the error stream, "iedctl: " in front.
    void complain(const QString &sentence);
    /// A question on the error stream, behind which the answer is typed.
    void ask(const QString &question);
    /// Replaces the line of the progress before; nothing when nobody watches. Empty ends it.
    void progress(const QString &text);

private:
    QTextStream m_results;
    QTextStream m_complaints;
    bool m_json;
    bool m_terminal;
    bool m_showsProgress = false;
};

/// The text with everything that does not print, control characters and marks that turn the
/// direction of writing among them, as "\u" and four hexadecimal digits, as JSON writes it.
QString printable(const QString &text);

/// Cells side by side, "-" for each that is empty.
QString cells(const QStringList &values);

/// A JSON value as people read it: "true", "3.5", texts as they are, lists joined by blanks.
QString plainText(const QJsonValue &value);
