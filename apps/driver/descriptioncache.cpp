// SPDX-License-Identifier: Apache-2.0
#include "descriptioncache.h"

#include "acsi/reference.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QDataStream>
#include <QtCore/QDateTime>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>

namespace {

constexpr quint32 magic = 0x49444332;
constexpr int hashSize = 32;
const QString suffix = QStringLiteral(".description");

class Writer
{
public:
    explicit Writer(QByteArray &bytes)
        : m_stream(&bytes, QIODevice::WriteOnly)
    {
        m_stream.setVersion(QDataStream::Qt_5_12);
    }

    void number(std::size_t value) { m_stream << static_cast<quint32>(value); }
    void text(const std::string &value)
    {
        m_stream.writeBytes(value.data(), static_cast<uint>(value.size()));
    }
    void texts(const std::vector<std::string> &values)
    {
        number(values.size());
        for (const std::string &value : values)
            text(value);
    }
    void octets(const std::vector<std::uint8_t> &value)
    {
        m_stream.writeBytes(reinterpret_cast<const char *>(value.data()),
                            static_cast<uint>(value.size()));
    }
    /// False when a member has no reference, so that it could not be read back.
    bool dataSets(const std::vector<acsi::DataSetDescription> &sets)
    {
        number(sets.size());
        for (const acsi::DataSetDescription &set : sets) {
            number(static_cast<std::size_t>(set.name.scope));
            text(set.name.domain);
            text(set.name.item);
            m_stream << set.deletable;
            number(set.members.size());
            for (const mms::VariableAccess &member : set.members) {
                const mms::Result<acsi::Reference> reference = acsi::referenceOf(member);
                if (!reference)
                    return false;
                text(acsi::toText(*reference));
            }
        }
        return true;
    }

private:
    QDataStream m_stream;
};

class Reader
{
public:
    explicit Reader(const QByteArray &bytes)
        : m_stream(bytes)
        , m_size(bytes.size())
    {
        m_stream.setVersion(QDataStream::Qt_5_12);
    }

    bool ok() const { return m_ok && m_stream.status() == QDataStream::Ok; }
    bool atEnd() const { return m_stream.atEnd(); }

    quint32 number()
    {
        quint32 value = 0;
        m_stream >> value;
        return value;
    }
    /// A number of records of at least one byte each.
    std::size_t count()
    {
        const quint32 value = number();
        if (value > static_cast<quint32>(m_size))
            m_ok = false;
        return ok() ? value : 0;
    }
    std::string text()
    {
        QByteArray bytes;
        m_stream >> bytes;
        return bytes.toStdString();
    }
    std::vector<std::string> texts()
    {
        std::vector<std::string> values(count());
        for (std::string &value : values)
            value = text();
        return values;
    }
    mms::TypeDescription type()
    {
        QByteArray bytes;
        m_stream >> bytes;
        const mms::Result<mms::TypeDescription> result =
            mms::decodeTypeDescription({reinterpret_cast<const std::uint8_t *>(bytes.constData()),
                                        static_cast<std::size_t>(bytes.size())});
        if (!result) {
            m_ok = false;
            return {};
        }
        return *result;
    }
    std::vector<acsi::DataSetDescription> dataSets()
    {
        std::vector<acsi::DataSetDescription> sets(count());
        for (acsi::DataSetDescription &set : sets) {
            set.name.scope = static_cast<mms::Scope>(number());
            set.name.domain = text();
            set.name.item = text();
            m_stream >> set.deletable;
            const std::size_t members = count();
            for (std::size_t i = 0; i < members && ok(); ++i) {
                const mms::Result<acsi::Reference> reference = acsi::parseReference(text());
                if (reference)
                    set.members.push_back(acsi::accessOf(*reference));
                else
                    m_ok = false;
            }
        }
        return sets;
    }

private:
    QDataStream m_stream;
    int m_size;
    bool m_ok = true;
};

QByteArray hashOf(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
}

} // namespace

DescriptionCache::DescriptionCache(QString folder)
    : m_folder(std::move(folder))
{
}

QByteArray DescriptionCache::toBytes(const acsi::ServerDescription &description)
{
    QByteArray bytes;
    Writer writer(bytes);
    writer.number(magic);
    writer.text(description.identity.vendor);
    writer.text(description.identity.model);
    writer.text(description.identity.revision);
    writer.number(description.devices.size());
    bool isWhole = true;
    for (const acsi::DeviceDescription &device : description.devices) {
        writer.text(device.name);
        writer.number(device.nodes.size());
        for (const acsi::NodeDescription &node : device.nodes) {
            writer.text(node.name);
            writer.octets(mms::encode(node.type));
            writer.texts(node.inParts);
        }
        isWhole = writer.dataSets(device.dataSets) && isWhole;
        writer.texts(device.journals);
    }
    return isWhole ? bytes : QByteArray();
}

std::optional<acsi::ServerDescription> DescriptionCache::fromBytes(const QByteArray &bytes)
{
    Reader reader(bytes);
    if (reader.number() != magic)
        return std::nullopt;
    acsi::ServerDescription description;
    description.identity.vendor = reader.text();
    description.identity.model = reader.text();
    description.identity.revision = reader.text();
    description.devices.resize(reader.count());
    for (acsi::DeviceDescription &device : description.devices) {
        device.name = reader.text();
        device.nodes.resize(reader.count());
        for (acsi::NodeDescription &node : device.nodes) {
            node.name = reader.text();
            node.type = reader.type();
            node.inParts = reader.texts();
        }
        device.dataSets = reader.dataSets();
        device.journals = reader.texts();
    }
    if (!reader.ok() || !reader.atEnd())
        return std::nullopt;
    return description;
}

std::optional<acsi::ServerDescription> DescriptionCache::load(const QByteArray &fingerprint) const
{
    if (m_folder.isEmpty())
        return std::nullopt;
    QFile file(pathOf(fingerprint));
    if (!file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
        return std::nullopt;
    const QByteArray content = file.readAll();
    const QByteArray bytes = content.mid(hashSize);
    if (hashOf(bytes) != content.left(hashSize))
        return std::nullopt;
    file.setFileTime(QDateTime::currentDateTime(), QFileDevice::FileModificationTime);
    return fromBytes(bytes);
}

void DescriptionCache::save(const QByteArray &fingerprint,
                            const acsi::ServerDescription &description) const
{
    const QByteArray bytes = m_folder.isEmpty() ? QByteArray() : toBytes(description);
    if (bytes.isEmpty() || !QDir().mkpath(m_folder))
        return;
    QSaveFile file(pathOf(fingerprint));
    if (!file.open(QIODevice::WriteOnly))
        return;
    file.write(hashOf(bytes));
    file.write(bytes);
    file.commit();

    const QFileInfoList all =
        QDir(m_folder).entryInfoList({QLatin1Char('*') + suffix}, QDir::Files, QDir::Time);
    for (int i = mostFiles; i < all.size(); ++i)
        QFile::remove(all.at(i).filePath());
}

QString DescriptionCache::pathOf(const QByteArray &fingerprint) const
{
    return QDir(m_folder).filePath(QString::fromLatin1(fingerprint.toHex()) + suffix);
}
