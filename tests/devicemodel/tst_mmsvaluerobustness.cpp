// SPDX-License-Identifier: Apache-2.0
#include <devicemodel/mmsvalue.h>

#include <QtCore/QDataStream>
#include <QtTest/QtTest>

#include <random>

extern "C" int LLVMFuzzerTestOneInput(const quint8 *data, std::size_t size);

namespace {

constexpr int mutatedInputs = 20000;

QByteArray recordOf(const QVariant &variant)
{
    MMSValue value;
    value.value = variant;
    value.reference = QStringLiteral("IED1LD0/XCBR1$ST$Pos$stVal");
    value.quality = QStringLiteral("0000000000000");
    value.timeStamp = QStringLiteral("2021-03-04T05:06:07.123Z");
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    value.toStream(stream);
    return bytes.leftJustified(MMSValue::rawSize, '\0');
}

} // namespace

class tst_MMSValueRobustness : public QObject
{
    Q_OBJECT

private slots:
    void mutatedRecordsAreReadOrRefused()
    {
        const QList<QByteArray> seeds{recordOf(true), recordOf(1.5F), recordOf(QByteArray("ab")),
                                      recordOf(QStringLiteral("text")), recordOf(QVariant())};
        std::mt19937 random(20240229);
        for (int i = 0; i < mutatedInputs; ++i) {
            QByteArray bytes = seeds.at(i % seeds.size());
            const auto below = [&random](int limit) {
                return static_cast<int>(random() % static_cast<quint32>(limit));
            };
            for (int flips = 1 + below(6); flips > 0; --flips) {
                const int position = below(2) ? below(20) : below(bytes.size());
                bytes[position] = static_cast<char>(bytes.at(position) ^ (1 << below(8)));
            }
            if (below(4) == 0)
                bytes.truncate(below(bytes.size()));
            LLVMFuzzerTestOneInput(reinterpret_cast<const quint8 *>(bytes.constData()),
                                   static_cast<std::size_t>(bytes.size()));
        }
    }
};

QTEST_APPLESS_MAIN(tst_MMSValueRobustness)
#include "tst_mmsvaluerobustness.moc"
