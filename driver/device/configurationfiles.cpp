// SPDX-License-Identifier: Apache-2.0
#include "configurationfiles.h"

#include "driver/text/sentences.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(DeviceConfiguration)
};

std::vector<std::string> encodedNames(const QStringList &files)
{
    std::vector<std::string> names;
    for (const QString &file : files)
        names.push_back(QFile::encodeName(file).toStdString());
    return names;
}

} // namespace

osi::TlsOptions ConfigurationFiles::tlsOptions(const TlsConfiguration &tls)
{
    osi::TlsOptions options;
    options.certificateFile = QFile::encodeName(tls.certificateFile).toStdString();
    options.keyFile = QFile::encodeName(tls.keyFile).toStdString();
    options.keyPassword = tls.keyPassword.toStdString();
    options.authorityFiles = encodedNames(tls.authorityFiles);
    options.revocationFiles = encodedNames(tls.revocationFiles);
    for (const QString &pin : tls.pins)
        options.pins.push_back(pin.toStdString());
    options.peerName = tls.peerName.toStdString();
    options.acceptsOtherNames = tls.acceptsOtherNames;
    return options;
}

QStringList ConfigurationFiles::faults(const DeviceConfiguration &configuration)
{
    QStringList faults;
    const QString &sclFile = configuration.sclFile;
    const bool isResource = sclFile.startsWith(QLatin1Char(':'));
    if (!sclFile.isEmpty() && !isResource && !QFileInfo(sclFile).isFile()) {
        faults.append(
            Texts::tr("The %1 \"%2\" does not exist.").arg(Texts::tr("SCL file"), sclFile));
    }
    if (configuration.tls.enabled) {
        const osi::Result<void> result = osi::validate(tlsOptions(configuration.tls));
        if (!result)
            faults.append(text(result.error().message));
    }
    return faults;
}
