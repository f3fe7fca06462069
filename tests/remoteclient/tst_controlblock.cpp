// SPDX-License-Identifier: Apache-2.0
#include <remoteclient/records.h>

#include <QtCore/QDataStream>
#include <QtTest/QtTest>

class tst_ControlBlock : public QObject
{
    Q_OBJECT

private slots:
    void aNewBlockIsEmptyAndZero()
    {
        const ControlBlock block;
        QVERIFY(block.objectReference.isEmpty());
        QCOMPARE(block.controlValue, 0.0);
        QCOMPARE(block.orCat + block.check + block.test + block.controlModel, 0);
    }

    void theSixFieldsAreWrittenInOrder()
    {
        ControlBlock block;
        block.objectReference = QStringLiteral("XCBR1$CO$Pos");
        block.controlValue = 0.1;
        block.orCat = 2;
        block.check = 3;
        block.test = 1;
        block.controlModel = 4;
        QByteArray bytes;
        QDataStream out(&bytes, QIODevice::WriteOnly);
        block.toStream(out);

        QDataStream in(bytes);
        in.setVersion(QDataStream::Qt_5_12);
        QString reference;
        double value = 0;
        quint8 orCat = 0;
        quint8 check = 0;
        quint8 test = 0;
        quint8 model = 0;
        in >> reference >> value >> orCat >> check >> test >> model;
        QCOMPARE(in.status(), QDataStream::Ok);
        QVERIFY(in.atEnd());
        QCOMPARE(reference, QStringLiteral("XCBR1$CO$Pos"));
        QCOMPARE(value, 0.1);
        QCOMPARE(int(orCat), 2);
        QCOMPARE(int(check), 3);
        QCOMPARE(int(test), 1);
        QCOMPARE(int(model), 4);
    }

    void theBytesDoNotDependOnTheStreamsSettings()
    {
        ControlBlock block;
        block.objectReference = QStringLiteral("XCBR1$CO$Pos");
        block.controlValue = 0.1;
        QByteArray expected;
        QDataStream plain(&expected, QIODevice::WriteOnly);
        block.toStream(plain);

        QByteArray bytes;
        QDataStream stream(&bytes, QIODevice::WriteOnly);
        stream.setVersion(QDataStream::Qt_4_5);
        stream.setByteOrder(QDataStream::LittleEndian);
        stream.setFloatingPointPrecision(QDataStream::SinglePrecision);
        block.toStream(stream);
        QVERIFY(bytes == expected);
        QCOMPARE(stream.version(), int(QDataStream::Qt_4_5));
        QCOMPARE(stream.byteOrder(), QDataStream::LittleEndian);
        QCOMPARE(stream.floatingPointPrecision(), QDataStream::SinglePrecision);
    }
};

QTEST_APPLESS_MAIN(tst_ControlBlock)
#include "tst_controlblock.moc"
