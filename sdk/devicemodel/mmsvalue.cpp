// SPDX-License-Identifier: Apache-2.0
#include "mmsvalue.h"

#include "attributevalue.h"
#include "streamsettings.h"

#include <QtCore/QtEndian>

#include <array>
#include <cstring>
#include <type_traits>

namespace {

constexpr quint8 formatVersion = 1;

/// Beside the types of AttributeValue: a text of which each character takes one octet.
constexpr quint8 narrowText = 0xFE;

// Version, type, device number, cause, the four lengths of texts and the alphabet of a narrow one.
constexpr int fixedBytes = 1 + 1 + 4 + 4 + 2 + 2 + 1 + 1 + 2;
constexpr int longestQuality = 15;
constexpr int longestTimeStamp = 95; // with every clock flag and the accuracy
constexpr int longestValueBesideLongReference = 255;
static_assert(fixedBytes + longestQuality + longestTimeStamp + longestValueBesideLongReference +
                      129 <=
                  MMSValue::rawSize,
              "the longest visible string and the longest reference fit uncut");

/// The room for a value's text or bytes beside a reference and other texts of so many bytes. It
/// gives way to the reference, without which it is worth nothing, but keeps room for the longest
/// visible string.
int roomForValue(int reference, int others)
{
    return qMax(longestValueBesideLongReference,
                MMSValue::rawSize - fixedBytes - others - reference);
}

/// A text of ASCII and of characters of one other alphabet: where that begins, and one octet for
/// each character, from 0x80 on for the other ones. Such a text of 255 characters fits, as long as
/// most alphabets would make it in UTF-8.
struct NarrowText
{
    quint16 alphabet = 0;
    QByteArray octets;
};

constexpr int asciiEnd = 0x80;

bool narrow(const QString &text, NarrowText &result)
{
    int least = 0x10000;
    int greatest = 0;
    for (const QChar c : text) {
        if (c.unicode() >= asciiEnd) {
            least = qMin<int>(least, c.unicode());
            greatest = qMax<int>(greatest, c.unicode());
        }
    }
    if (greatest - least >= asciiEnd)
        return false;
    result.alphabet = static_cast<quint16>(qMin(least, 0xFFFF));
    result.octets.clear();
    for (const QChar c : text) {
        const int number = c.unicode();
        result.octets.append(
            static_cast<char>(number < asciiEnd ? number : number - least + asciiEnd));
    }
    return true;
}

/// False for characters that there are not. The text ends at a zero, as one in UTF-8 does.
bool widen(quint16 alphabet, const QByteArray &octets, QString &text)
{
    text.clear();
    text.reserve(octets.size());
    for (const char c : octets) {
        const int octet = static_cast<uchar>(c);
        const int character = octet < asciiEnd ? octet : alphabet + octet - asciiEnd;
        if (character > 0xFFFF)
            return false;
        if (character == 0)
            break;
        text.append(QChar(character));
    }
    return true;
}

/// As QString::fromUtf8(), but a byte order mark at the beginning stays: it is part of the text,
/// and goes back as such.
QString fromUtf8(const QByteArray &bytes)
{
    static const QByteArray mark = QByteArrayLiteral("\xEF\xBB\xBF");
    int marks = 0;
    while (std::strncmp(bytes.constData() + marks * mark.size(), mark.constData(),
                        static_cast<std::size_t>(mark.size())) == 0)
        ++marks;
    if (marks == 0)
        return QString::fromUtf8(bytes);
    return QString(marks, QChar(QChar::ByteOrderMark)) +
           QString::fromUtf8(bytes.mid(marks * mark.size()));
}

/// UTF-8 in at most `limit` bytes; a text that has more ends in "…" behind its last whole
/// character.
QByteArray utf8Within(QByteArray bytes, int limit)
{
    static const QByteArray ellipsis = QByteArrayLiteral("\xE2\x80\xA6");
    if (bytes.size() <= limit)
        return bytes;
    int end = limit - ellipsis.size();
    while (end > 0 && (static_cast<uchar>(bytes.at(end)) & 0xC0U) == 0x80U)
        --end;
    bytes.truncate(end);
    return bytes + ellipsis;
}

quint32 bitsOfFloat(float value)
{
    quint32 bits;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

float floatOfBits(quint32 bits)
{
    float value;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

/// The bytes of one value, written one after the other. What is put in is cut to fit before.
class Writer
{
public:
    template <typename Number>
    void number(Number number)
    {
        static_assert(std::is_arithmetic<Number>::value, "a number");
        if constexpr (std::is_same<Number, bool>::value)
            *take(1) = number ? '\1' : '\0';
        else
            qToBigEndian(number, take(int(sizeof(Number))));
    }

    template <typename Length>
    void bytes(const QByteArray &bytes)
    {
        number(static_cast<Length>(bytes.size()));
        std::memcpy(take(bytes.size()), bytes.constData(), static_cast<std::size_t>(bytes.size()));
    }

    void writeTo(QDataStream &stream) const { stream.writeRawData(m_bytes.data(), m_size); }

private:
    char *take(int size)
    {
        Q_ASSERT(m_size + size <= MMSValue::rawSize);
        char *const place = m_bytes.data() + m_size;
        m_size += size;
        return place;
    }

    std::array<char, MMSValue::rawSize> m_bytes{};
    int m_size = 0;
};

class Reader
{
public:
    explicit Reader(QDataStream &stream)
        : m_stream(stream)
    {
    }

    template <typename Number>
    Number number()
    {
        Number result{};
        m_stream >> result;
        return result;
    }

    template <typename Length>
    QByteArray bytes()
    {
        const int length = number<Length>();
        std::array<char, MMSValue::rawSize> buffer;
        if (length > static_cast<int>(buffer.size())) {
            m_stream.setStatus(QDataStream::ReadCorruptData);
            return QByteArray();
        }
        if (m_stream.readRawData(buffer.data(), length) != length) {
            m_stream.setStatus(QDataStream::ReadPastEnd);
            return QByteArray();
        }
        return QByteArray(buffer.data(), length);
    }

    template <typename Length>
    QString text()
    {
        return fromUtf8(bytes<Length>());
    }

    QVariant value()
    {
        switch (number<quint8>()) {
        case AttributeValue::Invalid:
            return QVariant();
        case AttributeValue::Bool:
            return number<bool>();
        case AttributeValue::Int:
            return number<qint32>();
        case AttributeValue::UInt:
            return number<quint32>();
        case AttributeValue::LongLong:
            return number<qint64>();
        case AttributeValue::ULongLong:
            return number<quint64>();
        case AttributeValue::Double:
            return number<double>();
        case AttributeValue::Float:
            return floatOfBits(number<quint32>());
        case AttributeValue::Text:
            return text<quint16>();
        case AttributeValue::Bytes:
            return bytes<quint16>();
        case narrowText: {
            const auto alphabet = number<quint16>();
            QString text;
            if (!widen(alphabet, bytes<quint16>(), text))
                m_stream.setStatus(QDataStream::ReadCorruptData);
            return text;
        }
        default:
            m_stream.setStatus(QDataStream::ReadCorruptData);
            return QVariant();
        }
    }

private:
    QDataStream &m_stream;
};

} // namespace

MMSValue::MMSValue() = default;

MMSValue::MMSValue(const MMSValue &other) = default;

MMSValue::MMSValue(MMSValue &&other) noexcept = default;

MMSValue &MMSValue::operator=(const MMSValue &other) = default;

MMSValue &MMSValue::operator=(MMSValue &&other) noexcept = default;

MMSValue::~MMSValue() = default;

void MMSValue::fromStream(QDataStream &stream)
{
    *this = MMSValue();
    const StreamSettings settings(stream);
    Reader reader(stream);

    if (reader.number<quint8>() != formatVersion) {
        stream.setStatus(QDataStream::ReadCorruptData);
        return;
    }
    MMSValue read;
    read.value = reader.value();
    read.reference = reader.text<quint16>();
    read.quality = reader.text<quint8>();
    read.timeStamp = reader.text<quint8>();
    read.deviceNo = reader.number<qint32>();
    read.cause = reader.number<quint32>();
    if (stream.status() == QDataStream::Ok)
        *this = read;
}

void MMSValue::toStream(QDataStream &stream) const
{
    const QByteArray qualityBytes = utf8Within(quality.toUtf8(), longestQuality);
    const QByteArray timeBytes = utf8Within(timeStamp.toUtf8(), longestTimeStamp);
    QByteArray referenceBytes = reference.toUtf8();

    const int others = qualityBytes.size() + timeBytes.size();
    int left = rawSize - fixedBytes - others;
    const int valueLimit = roomForValue(referenceBytes.size(), others);

    QVariant written = AttributeValue::represented(value);
    // Bytes that do not fit become the hexadecimal text by which octet strings are represented,
    // since a text can be cut visibly.
    if (written.userType() == AttributeValue::Bytes && written.toByteArray().size() > valueLimit)
        written = QString::fromLatin1(written.toByteArray().left(rawSize).toHex());

    int type = written.userType();
    QByteArray valueBytes;
    NarrowText narrowed;
    if (type == AttributeValue::Text) {
        const QString text = written.toString();
        valueBytes = text.toUtf8();
        if (text.size() <= valueLimit && valueBytes.size() > valueLimit && narrow(text, narrowed)) {
            type = narrowText;
            valueBytes = narrowed.octets;
        }
        valueBytes = utf8Within(std::move(valueBytes), valueLimit);
    } else if (type == AttributeValue::Bytes) {
        valueBytes = written.toByteArray();
    }
    left -= qMax(valueBytes.size(), static_cast<int>(sizeof(double)));
    referenceBytes = utf8Within(std::move(referenceBytes), left);

    Writer writer;
    writer.number(formatVersion);
    writer.number(static_cast<quint8>(type));
    switch (type) {
    case AttributeValue::Bool:
        writer.number(written.toBool());
        break;
    case AttributeValue::Int:
        writer.number(static_cast<qint32>(written.toInt()));
        break;
    case AttributeValue::UInt:
        writer.number(static_cast<quint32>(written.toUInt()));
        break;
    case AttributeValue::LongLong:
        writer.number(static_cast<qint64>(written.toLongLong()));
        break;
    case AttributeValue::ULongLong:
        writer.number(static_cast<quint64>(written.toULongLong()));
        break;
    case AttributeValue::Double:
        writer.number(written.toDouble());
        break;
    case AttributeValue::Float:
        writer.number(bitsOfFloat(written.toFloat()));
        break;
    case narrowText:
        writer.number(narrowed.alphabet);
        writer.bytes<quint16>(valueBytes);
        break;
    case AttributeValue::Text:
    case AttributeValue::Bytes:
        writer.bytes<quint16>(valueBytes);
        break;
    default:
        break;
    }
    writer.bytes<quint16>(referenceBytes);
    writer.bytes<quint8>(qualityBytes);
    writer.bytes<quint8>(timeBytes);
    writer.number(deviceNo);
    writer.number(cause);
    writer.writeTo(stream);
}

bool MMSValue::keepsValueWhole() const
{
    const QVariant written = AttributeValue::represented(value);
    const int room = roomForValue(reference.toUtf8().size(), longestQuality + longestTimeStamp);
    if (written.userType() == AttributeValue::Bytes)
        return written.toByteArray().size() <= room;
    if (written.userType() != AttributeValue::Text)
        return true;
    const QString text = written.toString();
    NarrowText narrowed;
    return text.toUtf8().size() <= room || (text.size() <= room && narrow(text, narrowed));
}
