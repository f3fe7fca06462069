// SPDX-License-Identifier: Apache-2.0
#include "material.h"

#include "driver/device/lastentries.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

namespace {

using fuzz::require;

const QString device = QStringLiteral("127.0.0.1:102");

/// The file of the device, in memory where the system has such a folder.
struct Place
{
    Place()
        : folder(QDir(QStringLiteral("/dev/shm")).exists()
                     ? QStringLiteral("/dev/shm/fuzz_lastentries-XXXXXX")
                     : QDir::temp().filePath(QStringLiteral("fuzz_lastentries-XXXXXX")))
    {
        require(folder.isValid());
        const QByteArray name =
            QCryptographicHash::hash(device.toUtf8(), QCryptographicHash::Sha256).toHex();
        path = folder.filePath(QString::fromLatin1(name) + QStringLiteral(".entries"));
    }

    QTemporaryDir folder;
    QString path;
};

} // namespace

/// A file of kept entries that holds anything: whatever is read of it can be asked for, is written
/// again and read back the same, and what is no entry is none.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const Place place;
    {
        QFile file(place.path);
        require(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        require(file.write(reinterpret_cast<const char *>(data), static_cast<qint64>(size)) ==
                static_cast<qint64>(size));
    }
    const LastEntries::Terms terms{"LD/LLN0$ds", "id", "0100110", 5, 1000};
    const QString block = QStringLiteral("LD/LLN0$BR$brcb01");
    const QString other = QStringLiteral("LD/LLN0$BR$brcb02");
    const LastEntries::EntryId entry{0, 1, 2, 3, 4, 5, 6, 255};
    LastEntries::EntryId before;
    {
        LastEntries entries(place.folder.path(), device);
        if (const auto found = entries.find(block, terms)) {
            require(!found->empty());
            before = *found;
        }
        entries.set(other, terms, entry);
        entries.save();
    }
    LastEntries again(place.folder.path(), device);
    const auto kept = again.find(other, terms);
    require(kept && *kept == entry);
    const auto found = again.find(block, terms);
    require(found ? *found == before : before.empty());
    again.forget(other);
    require(!again.find(other, terms));
    return 0;
}
