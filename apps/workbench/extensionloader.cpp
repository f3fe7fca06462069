// SPDX-License-Identifier: Apache-2.0
#include "extensionloader.h"

#include <host/driverprotocolextentioninterface.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QPluginLoader>

namespace {

constexpr int iec61850Protocol = 4;
const QString extensionKey = QStringLiteral("IEC61850Ext");

#if defined(Q_OS_WIN)
const QString librarySuffix = QStringLiteral(".dll");
#elif defined(Q_OS_MACOS)
const QString librarySuffix = QStringLiteral(".dylib");
#else
const QString librarySuffix = QStringLiteral(".so");
#endif

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ExtensionLoader)
};

LoadedExtension refused(const QString &file, const QString &reason, const QString &remedy)
{
    return {file, nullptr, reason, remedy};
}

} // namespace

LoadedExtension loadExtension(const QString &folder)
{
    const QString file = QDir(folder).absoluteFilePath(extensionKey + librarySuffix);
    const QString replaceIt =
        Texts::tr("Replace the file by the one that was built together with this workbench.");

    if (!QFileInfo(folder).isDir()) {
        return refused(file, Texts::tr("The plug-in folder does not exist."),
                       Texts::tr("Install the plug-in there, or start the workbench with "
                                 "--plugin-dir and the folder that holds it."));
    }
    if (!QFileInfo::exists(file)) {
        return refused(file, Texts::tr("The file does not exist."),
                       Texts::tr("Put the plug-in there, or start the workbench with --plugin-dir "
                                 "and the folder that holds it."));
    }

    QPluginLoader loader(file);
    const QJsonObject metaData = loader.metaData();
    if (metaData.isEmpty()) {
        return refused(file,
                       Texts::tr("The file is not a plug-in that this Qt can load: %1")
                           .arg(loader.errorString()),
                       replaceIt);
    }
    const QString iid = metaData.value(QStringLiteral("IID")).toString();
    const QString wantedIid =
        QString::fromLatin1(qobject_interface_iid<DriverProtocolExtentionInterface *>());
    if (iid != wantedIid) {
        return refused(file,
                       Texts::tr("The plug-in is of another kind: it offers \"%1\" where "
                                 "\"%2\" is needed.")
                           .arg(iid, wantedIid),
                       replaceIt);
    }
    const QJsonArray keys = metaData.value(QStringLiteral("MetaData"))
                                .toObject()
                                .value(QStringLiteral("Keys"))
                                .toArray();
    if (!keys.contains(extensionKey)) {
        return refused(file,
                       Texts::tr("The plug-in does not carry the key \"%1\".").arg(extensionKey),
                       replaceIt);
    }

    QObject *object = loader.instance();
    if (!object) {
        return refused(
            file, Texts::tr("The plug-in cannot be loaded: %1").arg(loader.errorString()),
            Texts::tr("Make sure that the libraries it needs are installed and belong to "
                      "the same version."));
    }
    auto *extension = qobject_cast<DriverProtocolExtentionInterface *>(object);
    if (!extension) {
        return refused(file,
                       Texts::tr("The plug-in's object does not have the promised interface."),
                       replaceIt);
    }
    if (!extension->supportsProtocol(iec61850Protocol)) {
        return refused(
            file,
            Texts::tr("The plug-in does not serve IEC 61850 (protocol %1).").arg(iec61850Protocol),
            replaceIt);
    }
    if (!extension->isAvailable()) {
        return refused(file, Texts::tr("The plug-in says that it is not available."),
                       Texts::tr("Try again later, or ask whoever supplied the plug-in."));
    }
    extension->initialize();
    if (extension->actions().isEmpty()) {
        return refused(file, Texts::tr("The plug-in offers no action."), replaceIt);
    }
    return {file, extension, {}, {}};
}
