// SPDX-License-Identifier: Apache-2.0
#include "demonstrationfiles.h"

#include <QtCore/QDateTime>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QVector>

#include <cmath>

namespace {

constexpr double pi = 3.14159265358979323846;
constexpr int samplesPerSecond = 2000;
constexpr int samples = 1200;
constexpr int faultBegin = 400; // samples
constexpr int faultEnd = 520;
constexpr int scale = 100; // stored counts for each ampere or volt of the secondary side

struct Channel
{
    const char *name;
    const char *unit;
    double before; ///< secondary peak value in service
    double during; ///< the same during the fault
    int phase;     ///< multiples of 120 degrees
};

QVector<Channel> channels()
{
    return {{"IL1", "A", 1.1, 14.2, 0},  {"IL2", "A", 1.1, 1.3, 2},   {"IL3", "A", 1.1, 1.2, 1},
            {"UL1", "V", 81.6, 22.4, 0}, {"UL2", "V", 81.6, 80.1, 2}, {"UL3", "V", 81.6, 79.8, 1}};
}

bool writeFile(const QString &path, const QByteArray &content, const QDateTime &modified)
{
    QFile file(path);
    return file.open(QIODevice::ReadWrite) && file.write(content) == content.size() &&
           file.flush() && file.setFileTime(modified, QFileDevice::FileModificationTime);
}

QByteArray stamp(const QDateTime &time)
{
    return time.toString(QStringLiteral("dd/MM/yyyy,HH:mm:ss.zzz000")).toLatin1();
}

QByteArray recordConfiguration(const QString &device, const QDateTime &begin)
{
    const QVector<Channel> analogue = channels();
    QByteArray text = device.toUtf8() + ",1,1999\r\n" + QByteArray::number(analogue.size() + 1) +
                      ',' + QByteArray::number(analogue.size()) + "A,1D\r\n";
    for (int i = 0; i < analogue.size(); ++i) {
        const Channel &channel = analogue[i];
        const bool isCurrent = *channel.unit == 'A';
        text += QByteArray::number(i + 1) + ',' + channel.name + ",,," + channel.unit + ',' +
                QByteArray::number(1.0 / scale) + ",0,0,-32767,32767," +
                (isCurrent ? "600,1" : "110000,100") + ",S\r\n";
    }
    text += "1,TRIP,,,0\r\n50\r\n1\r\n" + QByteArray::number(samplesPerSecond) + ',' +
            QByteArray::number(samples) + "\r\n" + stamp(begin) + "\r\n" +
            stamp(begin.addMSecs(1000 * faultBegin / samplesPerSecond)) + "\r\nASCII\r\n1\r\n";
    return text;
}

QByteArray recordSamples()
{
    constexpr int microseconds = 1000000 / samplesPerSecond;
    constexpr double frequency = 50;
    const QVector<Channel> analogue = channels();
    QByteArray text;
    for (int n = 0; n < samples; ++n) {
        text += QByteArray::number(n + 1) + ',' + QByteArray::number(n * microseconds);
        const bool isFault = n >= faultBegin && n < faultEnd;
        for (const Channel &channel : analogue) {
            const bool isOpen = n >= faultEnd && *channel.unit == 'A';
            const double peak = isOpen ? 0.0 : isFault ? channel.during : channel.before;
            const double angle = 2 * pi * (frequency * n / samplesPerSecond + channel.phase / 3.0);
            const long value = std::lround(scale * peak * std::sin(angle));
            text += ',' + QByteArray::number(static_cast<int>(value));
        }
        text += isFault && n > faultBegin + 60 ? ",1\r\n" : ",0\r\n";
    }
    return text;
}

} // namespace

bool writeDemonstrationFiles(const QString &folder, const QString &device)
{
    const QDir root(folder);
    if (!root.mkpath(QStringLiteral("COMTRADE")))
        return false;
    const QDateTime first(QDate(2024, 5, 14), QTime(8, 31, 7, 212), Qt::UTC);
    bool done = true;
    QByteArray events;
    for (int i = 0; i < 3; ++i) {
        const QDateTime begin = first.addSecs(200000LL * i);
        const QString record =
            root.filePath(QStringLiteral("COMTRADE/FRA%1").arg(17 + i, 5, 10, QLatin1Char('0')));
        done =
            writeFile(record + QStringLiteral(".cfg"), recordConfiguration(device, begin), begin) &&
            writeFile(record + QStringLiteral(".dat"), recordSamples(), begin) && done;
        const QByteArray time = begin.toString(Qt::ISODateWithMs).toLatin1();
        events += time + " overcurrent L1 start\r\n" + time + " trip\r\n";
    }
    const QByteArray settings = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<settings device=\"" +
                                device.toHtmlEscaped().toUtf8() +
                                "\">\n  <group number=\"1\" name=\"Winter\"/>\n"
                                "  <group number=\"2\" name=\"Summer\"/>\n</settings>\n";
    done = writeFile(root.filePath(QStringLiteral("settings.xml")), settings, first.addDays(-40)) &&
           done;
    return writeFile(root.filePath(QStringLiteral("events.log")), events, first.addSecs(400000)) &&
           done;
}
