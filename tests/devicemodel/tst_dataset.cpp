// SPDX-License-Identifier: Apache-2.0
#include <devicemodel/dataset.h>

#include <QtTest/QtTest>

class tst_DataSet : public QObject
{
    Q_OBJECT

private slots:
    void aNewDataSetIsNotOfALogicalNodeAndNotDeletable()
    {
        const DataSet dataSet;
        QCOMPARE(int(dataSet.state), 1);
        QVERIFY(!dataSet.deletable);
        QVERIFY(dataSet.members.isEmpty());
    }

    void addedElementsAreAppendedInOrderWithStateOne_data()
    {
        QTest::addColumn<bool>("second");
        QTest::newRow("addElement") << false;
        QTest::newRow("addElement2") << true;
    }

    void addedElementsAreAppendedInOrderWithStateOne()
    {
        QFETCH(bool, second);
        const auto add = second ? &DataSet::addElement2 : &DataSet::addElement;
        DataSet dataSet;
        (dataSet.*add)({QStringLiteral("L/A$ST$x"), QStringLiteral("L/A$ST$y")});
        (dataSet.*add)({});
        (dataSet.*add)({QStringLiteral("L/A$ST$x")});

        QStringList references;
        for (const DataSetMember *member : qAsConst(dataSet.members)) {
            QCOMPARE(int(member->state), 1);
            references << member->reference;
        }
        QCOMPARE(references, (QStringList{QStringLiteral("L/A$ST$x"), QStringLiteral("L/A$ST$y"),
                                          QStringLiteral("L/A$ST$x")}));
    }

    void aGroupRemovesItsDataSet()
    {
        DataSetGroup group;
        QCOMPARE(group.name, QStringLiteral("DataSet"));
        auto *first = new DataSet;
        auto *second = new DataSet;
        group.dataSets << first << second;
        group.removeDS(first);
        QCOMPARE(group.dataSets, QList<DataSet *>{second});
    }

    void aGroupLeavesAForeignDataSetAlone()
    {
        DataSetGroup group;
        auto *own = new DataSet;
        group.dataSets << own;
        DataSet foreign;
        foreign.name = QStringLiteral("still here");
        group.removeDS(&foreign);
        group.removeDS(nullptr);
        QCOMPARE(group.dataSets, QList<DataSet *>{own});
        QCOMPARE(foreign.name, QStringLiteral("still here"));
    }
};

QTEST_APPLESS_MAIN(tst_DataSet)
#include "tst_dataset.moc"
