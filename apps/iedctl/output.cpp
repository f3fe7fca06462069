// SPDX-License-Identifier: Apache-2.0
#include "output.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QVector>

#include <algorithm>

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
        m_results << QString::fromUtf8(QJsonDocument(objects).toJson());
        m_results.flush();
        return;
    }
    QStringList shown;
    QVector<int> widths;
    for (const QString &column : columns) {
        int width = 0;
        for (const QJsonValue &row : objects)
            width = std::max(width, plainText(row.toObject().value(column)).size());
        if (width > 0) {
            shown.append(column);
            widths.append(width);
        }
    }
    for (const QJsonValue &row : objects) {
        QString line;
        for (int i = 0; i < shown.size(); ++i) {
            const QString cell = plainText(row.toObject().value(shown.at(i)));
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
        m_results << QString::fromUtf8(QJsonDocument(object).toJson());
        m_results.flush();
        return;
    }
    int width = 0;
    for (const QString &name : names)
        width = std::max(width, name.size());
    for (const QString &name : names) {
        if (object.contains(name)) {
            m_results << (name + QLatin1Char(':')).leftJustified(width + 2)
                      << plainText(object.value(name)) << '\n';
        }
    }
    m_results.flush();
}

void Output::streamed(const QString &text, const QJsonObject &object)
{
    progress({});
    if (m_json)
        m_results << QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
    else
        m_results << text;
    m_results << '\n';
    m_results.flush();
}

void Output::note(const QString &sentence)
{
    progress({});
    if (m_json)
        return;
    m_results << sentence << '\n';
    m_results.flush();
}

void Output::complain(const QString &sentence)
{
    progress({});
    QString line = sentence;
    line.replace(QLatin1Char('\n'), QLatin1Char(' '));
    m_complaints << "iedctl: " << line << '\n';
    m_complaints.flush();
}

void Output::progress(const QString &text)
{
    if (!m_terminal || (text.isEmpty() && !m_showsProgress))
        return;
    m_complaints << "\r\x1b[K" << text;
    m_complaints.flush();
    m_showsProgress = !text.isEmpty();
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
