// SPDX-License-Identifier: Apache-2.0
#include "output.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QVector>

#include <algorithm>

namespace {

/// Whether a character does something else than to be seen.
bool isSeen(QChar c)
{
    switch (c.category()) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return false;
    default:
        return true;
    }
}

void appendEscaped(QString &result, QChar c)
{
    result += QStringLiteral("\\u%1").arg(c.unicode(), 4, 16, QLatin1Char('0'));
}

/// A document as text. What Qt leaves as it is can only be within the strings of the document; its
/// own line ends stay.
QString jsonText(const QJsonDocument &document, QJsonDocument::JsonFormat format)
{
    const QString text = QString::fromUtf8(document.toJson(format));
    QString result;
    result.reserve(text.size());
    for (const QChar c : text) {
        if (isSeen(c) || c == QLatin1Char('\n'))
            result += c;
        else
            appendEscaped(result, c);
    }
    return result;
}

} // namespace

Output::Output(QIODevice *results, QIODevice *complaints, bool json, bool terminal)
    : m_results(results)
    , m_complaints(complaints)
    , m_json(json)
    , m_terminal(terminal)
{
    m_results.setCodec("UTF-8");
    m_complaints.setCodec("UTF-8");
}

void Output::rows(const QStringList &columns, const QJsonArray &objects)
{
    progress({});
    if (m_json) {
        m_results << jsonText(QJsonDocument(objects), QJsonDocument::Indented);
        m_results.flush();
        return;
    }
    QStringList shown;
    QVector<int> widths;
    for (const QString &column : columns) {
        int width = 0;
        for (const QJsonValue &row : objects)
            width = std::max(width, printable(plainText(row.toObject().value(column))).size());
        if (width > 0) {
            shown.append(column);
            widths.append(width);
        }
    }
    for (const QJsonValue &row : objects) {
        QString line;
        for (int i = 0; i < shown.size(); ++i) {
            const QString cell = printable(plainText(row.toObject().value(shown.at(i))));
            line += i + 1 < shown.size() ? cell.leftJustified(widths.at(i) + 2) : cell;
        }
        while (line.endsWith(QLatin1Char(' ')))
            line.chop(1);
        m_results << line << '\n';
    }
    m_results.flush();
}

void Output::object(const QStringList &names, const QJsonObject &object)
{
    progress({});
    if (m_json) {
        m_results << jsonText(QJsonDocument(object), QJsonDocument::Indented);
        m_results.flush();
        return;
    }
    int width = 0;
    for (const QString &name : names)
        width = std::max(width, name.size());
    for (const QString &name : names) {
        if (object.contains(name)) {
            m_results << (name + QLatin1Char(':')).leftJustified(width + 2)
                      << printable(plainText(object.value(name))) << '\n';
        }
    }
    m_results.flush();
}

void Output::streamed(const QString &text, const QJsonObject &object)
{
    progress({});
    if (m_json)
        m_results << jsonText(QJsonDocument(object), QJsonDocument::Compact);
    else
        m_results << printable(text);
    m_results << '\n';
    m_results.flush();
}

void Output::note(const QString &sentence)
{
    progress({});
    if (m_json)
        return;
    m_results << printable(sentence) << '\n';
    m_results.flush();
}

void Output::complain(const QString &sentence)
{
    progress({});
    QString line = sentence;
    line.replace(QLatin1Char('\n'), QLatin1Char(' '));
    m_complaints << "iedctl: " << printable(line) << '\n';
    m_complaints.flush();
}

void Output::progress(const QString &text)
{
    if (!m_terminal || (text.isEmpty() && !m_showsProgress))
        return;
    m_complaints << "\r\x1b[K" << printable(text);
    m_complaints.flush();
    m_showsProgress = !text.isEmpty();
}

QString printable(const QString &text)
{
    if (std::all_of(text.cbegin(), text.cend(), isSeen))
        return text;
    QString result;
    for (const QChar c : text) {
        if (isSeen(c))
            result += c;
        else
            appendEscaped(result, c);
    }
    return result;
}

QString plainText(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Bool:
        return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    case QJsonValue::Double:
        return QString::number(value.toDouble(), 'g', 15);
    case QJsonValue::String:
        return value.toString();
    case QJsonValue::Array: {
        QStringList parts;
        for (const QJsonValue &part : value.toArray())
            parts.append(plainText(part));
        return parts.join(QLatin1Char(' '));
    }
    default:
        return {};
    }
}
