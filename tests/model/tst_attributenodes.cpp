// SPDX-License-Identifier: Apache-2.0
#include "devicebuilder.h"

#include "model/attributenodes.h"
#include "model/iednode.h"

#include <QtTest/QtTest>

class tst_AttributeNodes : public QObject
{
    Q_OBJECT

private slots:
    void nothingIsFoundWithoutNodes();
    void everyAttributeIsFound_data();
    void everyAttributeIsFound();
    void anotherAttributeIsNotFound();
    void theLastNodeOfAnAttributeHolds();
    void aCopyKeepsWhatTheOriginalLoses();
};

void tst_AttributeNodes::nothingIsFoundWithoutNodes()
{
    const DataAttribute attribute;
    const AttributeNodes empty;
    const AttributeNodes ofNothing{QVector<IEDNode *>()};
    for (const AttributeNodes *const nodes : {&empty, &ofNothing}) {
        QVERIFY(nodes->isEmpty());
        QCOMPARE(nodes->size(), 0);
        QVERIFY(!nodes->value(&attribute));
        QVERIFY(!nodes->value(nullptr));
        QVERIFY(!nodes->contains(&attribute));
    }
}

void tst_AttributeNodes::everyAttributeIsFound_data()
{
    QTest::addColumn<int>("count");
    for (const int count : {1, 2, 3, 4, 5, 8, 100, 20000})
        QTest::addRow("%d", count) << count;
}

void tst_AttributeNodes::everyAttributeIsFound()
{
    QFETCH(int, count);
    PhysicalDevice device;
    QList<DAO *> daos;
    QVector<IEDNode *> leaves;
    {
        IEDNode root(&device);
        for (int i = 0; i < count; ++i) {
            DAO *const dao = DeviceBuilder::addAttribute(daos, QString::number(i), QString(),
                                                         QStringLiteral("INT32"));
            leaves << new IEDNode(dao, &root);
        }
        const AttributeNodes nodes(leaves);
        QCOMPARE(nodes.size(), count);
        QVERIFY(!nodes.isEmpty());
        for (IEDNode *const node : qAsConst(leaves))
            QCOMPARE(nodes.value(node->dataAttribute()), node);
    }
    qDeleteAll(daos);
}

void tst_AttributeNodes::anotherAttributeIsNotFound()
{
    PhysicalDevice device;
    QList<DAO *> daos;
    QVector<IEDNode *> leaves;
    {
        IEDNode root(&device);
        for (int i = 0; i < 100; ++i) {
            DAO *const dao = DeviceBuilder::addAttribute(daos, QString::number(i), QString(),
                                                         QStringLiteral("INT32"));
            if (i % 2)
                leaves << new IEDNode(dao, &root);
        }
        const AttributeNodes nodes(leaves);
        QCOMPARE(nodes.size(), 50);
        for (int i = 0; i < 100; ++i)
            QCOMPARE(nodes.contains(daos.at(i)->attribute), i % 2 == 1);
        QVERIFY(!nodes.value(nullptr));
    }
    qDeleteAll(daos);
}

void tst_AttributeNodes::theLastNodeOfAnAttributeHolds()
{
    PhysicalDevice device;
    QList<DAO *> daos;
    DAO *const dao = DeviceBuilder::addAttribute(daos, QStringLiteral("q"), QString(),
                                                 QStringLiteral("Quality"));
    {
        IEDNode root(&device);
        auto *const first = new IEDNode(dao, &root);
        auto *const last = new IEDNode(dao, &root);
        const AttributeNodes nodes({first, last});
        QCOMPARE(nodes.size(), 1);
        QCOMPARE(nodes.value(dao->attribute), last);
    }
    qDeleteAll(daos);
}

void tst_AttributeNodes::aCopyKeepsWhatTheOriginalLoses()
{
    PhysicalDevice device;
    QList<DAO *> daos;
    DAO *const dao = DeviceBuilder::addAttribute(daos, QStringLiteral("q"), QString(),
                                                 QStringLiteral("Quality"));
    {
        IEDNode root(&device);
        auto *const node = new IEDNode(dao, &root);
        AttributeNodes nodes({node});
        const AttributeNodes copy = nodes;
        nodes = AttributeNodes();
        QVERIFY(nodes.isEmpty());
        QCOMPARE(copy.value(dao->attribute), node);
    }
    qDeleteAll(daos);
}

QTEST_GUILESS_MAIN(tst_AttributeNodes)
#include "tst_attributenodes.moc"
