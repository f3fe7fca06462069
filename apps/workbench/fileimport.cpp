// SPDX-License-Identifier: Apache-2.0
#include "fileimport.h"

#include "simulateddevice.h"

#include "driver/model/sclimport.h"
#include "driver/service/offlinedriverservice.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QStringList>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(EmbeddedDriver) // the catalogues' name for this file's sentences
};

QString text(std::string_view bytes)
{
    return QString::fromUtf8(bytes.data(), static_cast<int>(bytes.size()));
}

ImportResult failed(const QString &sentence)
{
    ImportResult result;
    result.error = sentence;
    return result;
}

IedSummary summaryOf(const scl::Ied &ied)
{
    QStringList parts{text(ied.manufacturer), text(ied.type), text(ied.desc)};
    parts.removeAll(QString());
    return {text(ied.name), parts.join(QStringLiteral(", ")),
            static_cast<int>(scl::countsOf(ied).logicalDevices)};
}

} // namespace

ImportResult importFromFile(const ImportRequest &request, const std::atomic<bool> &cancelled,
                            const std::function<void(double)> &progress)
{
    // Reading the file is the longest part; the model and its bytes are made from it afterwards.
    constexpr double readingShare = 0.7;
    scl::ReadOptions options;
    options.cancelled = &cancelled;
    options.progress = [&progress](double fraction) { progress(readingShare * fraction); };
    const scl::ReadResult read = SclImport::readFile(request.file, options);
    if (read.error == scl::ReadError::Cancelled) {
        ImportResult result;
        result.status = ImportResult::Cancelled;
        return result;
    }
    if (!read.document)
        return failed(SclImport::errorText(read));

    ImportResult result;
    const scl::Document &document = *read.document;
    for (const scl::Ied &ied : document.ieds)
        result.ieds.append(summaryOf(ied));
    if (request.ied.isEmpty() && document.ieds.size() > 1) {
        result.status = ImportResult::ChoiceNeeded;
        SclImport::chooseIed(document, request.ied, result.error);
        return result;
    }

    QString error;
    const scl::Ied *ied = SclImport::chooseIed(document, request.ied, error);
    if (!ied)
        return failed(error);
    const scl::IedCounts counts = scl::countsOf(*ied);
    if (counts.logicalDevices == 0) {
        return failed(Texts::tr("The IED \"%1\" has no logical devices, so there is nothing to "
                                "browse.")
                          .arg(text(ied->name)));
    }
    if (request.simulate) {
        result.simulation =
            SimulatedDevice::start(*ied, document.edition() == "1", request.port, error);
        if (!result.simulation)
            return failed(error);
    } else {
        const std::unique_ptr<PhysicalDevice> device = SclImport::makeDevice(*ied);
        if (cancelled)
            return failed({});
        result.model = OfflineDriverService::offlineModel(*device);
    }
    result.status = ImportResult::Imported;
    result.ied = text(ied->name);
    result.logicalDevices = counts.logicalDevices;
    result.logicalNodes = counts.logicalNodes;
    result.attributes = counts.attributes;
    result.findings.reserve(static_cast<int>(document.findings.size()));
    for (const scl::Finding &finding : document.findings)
        result.findings.append(finding);
    return result;
}
