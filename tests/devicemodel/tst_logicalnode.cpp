// SPDX-License-Identifier: Apache-2.0
#include <devicemodel/logicalnode.h>

#include <QtTest/QtTest>

class tst_LogicalNode : public QObject
{
    Q_OBJECT

private slots:
    void aNewNodeHasItsGroupAndListButNoSettingGroup()
    {
        const LogicalNode node;
        QVERIFY(node.present);
        QVERIFY(node.dataSetGroup);
        QVERIFY(node.reportControls);
        QVERIFY(!node.settingGroup);
    }

    void anAddedDataSetIsEmptyAndHeldByTheNode()
    {
        LogicalNode node;
        node.addDataSet(QStringLiteral("ds1"));
        const DataSet *added = node.dataSet(QStringLiteral("ds1"));
        QVERIFY(added);
        QCOMPARE(int(added->state), 0);
        QVERIFY(!added->deletable);
        QVERIFY(added->members.isEmpty());
        QCOMPARE(node.dataSetGroup->dataSets.size(), 1);
    }

    void addingANameThatExistsChangesNothing()
    {
        LogicalNode node;
        node.addDataSet(QStringLiteral("ds1"));
        DataSet *existing = node.dataSet(QStringLiteral("ds1"));
        existing->deletable = true;
        existing->addElement({QStringLiteral("L/A$ST$x")});
        node.addDataSet(QStringLiteral("ds1"));
        QCOMPARE(node.dataSetGroup->dataSets, QList<DataSet *>{existing});
        QVERIFY(existing->deletable);
        QCOMPARE(existing->members.size(), 1);
    }

    void anUnknownDataSetIsNull()
    {
        LogicalNode node;
        node.addDataSet(QStringLiteral("ds1"));
        QVERIFY(!node.dataSet(QStringLiteral("DS1")));
        QVERIFY(!node.dataSet(QString()));
    }

    void functionalConstraintsOfAllObjectsComeOnceInOrderOfFirstAppearance()
    {
        LogicalNode node;
        const QList<QStringList> constraints{
            {QStringLiteral("ST"), QStringLiteral("DC")},
            {QStringLiteral("MX"), QStringLiteral("ST"), QStringLiteral("CF")},
            {QStringLiteral("DC")}};
        for (const QStringList &ofObject : constraints) {
            auto *object = new DataObject;
            for (const QString &fc : ofObject) {
                auto *attribute = new DAO;
                attribute->attribute = new DataAttribute;
                attribute->attribute->fc = fc;
                object->attributes << attribute;
            }
            node.dataObjects << object;
        }
        QCOMPARE(node.posibleFC().join(QLatin1Char(' ')), QStringLiteral("ST DC MX CF"));
    }
};

QTEST_APPLESS_MAIN(tst_LogicalNode)
#include "tst_logicalnode.moc"
