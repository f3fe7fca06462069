// SPDX-License-Identifier: Apache-2.0
#include "modelcheck.h"

#include "driver/model/sclimport.h"

#include <QtCore/QIODevice>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

namespace {

constexpr int withoutErrors = 0;
constexpr int withErrors = 1;
constexpr int unusable = 2;

QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
}

QString severityName(scl::Severity severity)
{
    switch (severity) {
    case scl::Severity::Info:
        return QStringLiteral("info");
    case scl::Severity::Warning:
        return QStringLiteral("warning");
    case scl::Severity::Error:
        break;
    }
    return QStringLiteral("error");
}

QJsonValue number(std::uint64_t value)
{
    return static_cast<qint64>(value);
}

QJsonObject toJson(const scl::Ied &ied)
{
    const scl::IedCounts counts = scl::countsOf(ied);
    return {{QStringLiteral("name"), text(ied.name)},
            {QStringLiteral("logicalDevices"), number(counts.logicalDevices)},
            {QStringLiteral("logicalNodes"), number(counts.logicalNodes)},
            {QStringLiteral("dataObjects"), number(counts.dataObjects)},
            {QStringLiteral("attributes"), number(counts.attributes)},
            {QStringLiteral("dataSets"), number(counts.dataSets)},
            {QStringLiteral("dataSetMembers"), number(counts.dataSetMembers)},
            {QStringLiteral("bufferedReports"), number(counts.bufferedReports)},
            {QStringLiteral("unbufferedReports"), number(counts.unbufferedReports)}};
}

QJsonObject toJson(const scl::Finding &finding)
{
    return {{QStringLiteral("severity"), severityName(finding.severity)},
            {QStringLiteral("line"), static_cast<qint64>(finding.line)},
            {QStringLiteral("path"), QString::fromStdString(finding.path)},
            {QStringLiteral("text"), QString::fromStdString(finding.text.english())}};
}

int write(QIODevice &out, const QJsonObject &object, int status)
{
    const QByteArray bytes = QJsonDocument(object).toJson();
    return out.write(bytes) == bytes.size() ? status : unusable;
}

int writeError(QIODevice &out, const QString &file, const QString &error)
{
    return write(out, {{QStringLiteral("file"), file}, {QStringLiteral("error"), error}}, unusable);
}

} // namespace

int checkModel(const QString &file, const QString &ied, QIODevice &out)
{
    const scl::ReadResult result = SclImport::readFile(file);
    if (!result.document)
        return writeError(out, file, SclImport::errorText(result));
    const scl::Document &document = *result.document;

    QJsonArray ieds;
    if (ied.isEmpty()) {
        for (const scl::Ied &each : document.ieds)
            ieds.append(toJson(each));
    } else {
        QString error;
        const scl::Ied *chosen = SclImport::chooseIed(document, ied, error);
        if (!chosen)
            return writeError(out, file, error);
        ieds.append(toJson(*chosen));
    }
    QJsonArray findings;
    for (const scl::Finding &finding : document.findings)
        findings.append(toJson(finding));

    return write(
        out,
        {{QStringLiteral("file"), file},
         {QStringLiteral("edition"), text(document.edition())},
         {QStringLiteral("schemaVersion"), QString::fromStdString(document.schemaVersion())},
         {QStringLiteral("ieds"), ieds},
         {QStringLiteral("findings"), findings},
         {QStringLiteral("findingsLeftOut"), number(document.findingsLeftOut)}},
        document.hasErrors ? withErrors : withoutErrors);
}
