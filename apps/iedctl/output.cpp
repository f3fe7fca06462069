// SPDX-License-Identifier: Apache-2.0
#include "output.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QLocale>
#include <QtCore/QVector>

#include <algorithm>
#include <utility>

namespace {

constexpr int columnGap = 2;
const QString noValue = QStringLiteral("-");

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
    QVector<QStringList> lines;
    QVector<int> widths(columns.size(), 0);
    int shown = 0;
    for (const QJsonValue &row : objects) {
        QStringList line;
        for (int i = 0; i < columns.size(); ++i) {
            const QString cell = printable(plainText(row.toObject().value(columns.at(i))));
            if (!cell.isEmpty())
                shown = std::max(shown, i + 1);
            line.append(cell.isEmpty() ? noValue : cell);
            widths[i] = std::max(widths.at(i), line.last().size());
        }
        lines.append(line);
    }
    for (const QStringList &line : std::as_const(lines)) {
        for (int i = 0; i < shown; ++i) {
            m_results << (i + 1 < shown ? line.at(i).leftJustified(widths.at(i) + columnGap)
                                        : line.at(i));
        }
        m_results << '\n';
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

void Output::streamed(const QStringList &lines, const QJsonObject &object)
{
    progress({});
    if (m_json) {
        m_results << jsonText(QJsonDocument(object), QJsonDocument::Compact) << '\n';
    } else {
        for (const QString &line : lines)
            m_results << printable(line) << '\n';
    }
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

void Output::ask(const QString &question)
{
    progress({});
    m_complaints << printable(question);
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

QString cells(const QStringList &values)
{
    QStringList shown;
    for (const QString &value : values)
        shown.append(value.isEmpty() ? noValue : value);
    return shown.join(QString(columnGap, QLatin1Char(' ')));
}

QString plainText(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Bool:
        return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    case QJsonValue::Double:
        return QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest);
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
