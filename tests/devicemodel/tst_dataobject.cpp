// SPDX-License-Identifier: Apache-2.0
#include <devicemodel/dataobject.h>

#include <QtTest/QtTest>

namespace {

DAO *attributeNode(const QString &name, const QString &fc)
{
    auto *node = new DAO;
    node->attribute = new DataAttribute;
    node->attribute->name = name;
    node->attribute->fc = fc;
    return node;
}

DAO *subObjectNode(const QString &name)
{
    auto *node = new DAO;
    node->subDataObject = new SubDataObject;
    node->subDataObject->name = name;
    return node;
}

} // namespace

class tst_DataObject : public QObject
{
    Q_OBJECT

private slots:
    void aNewNodeIsPresentAndEmpty()
    {
        const DAO node;
        QCOMPARE(node.state, 1U);
        QVERIFY(!node.attribute);
        QVERIFY(!node.subDataObject);
        QVERIFY(node.children.isEmpty());
        QVERIFY(node.name().isNull());
        QVERIFY(DataObject().present);
        QVERIFY(DataAttribute().present);
        QVERIFY(!DataAttribute().value.isValid());
    }

    void aNodeIsNamedByItsAttributeOrItsSubDataObject()
    {
        const std::unique_ptr<DAO> attribute(attributeNode(QStringLiteral("stVal"), {}));
        const std::unique_ptr<DAO> subObject(subObjectNode(QStringLiteral("phsA")));
        QCOMPARE(attribute->name(), QStringLiteral("stVal"));
        QCOMPARE(subObject->name(), QStringLiteral("phsA"));
    }

    void aChildIsFoundByNameAmongTheDirectChildrenOnly()
    {
        DataObject object;
        DAO *phase = subObjectNode(QStringLiteral("phsA"));
        DAO *value = attributeNode(QStringLiteral("cVal"), QStringLiteral("MX"));
        phase->children << value;
        object.attributes << phase;

        QCOMPARE(object.getDAOByName(QStringLiteral("phsA")), phase);
        QCOMPARE(phase->getDAOByName(QStringLiteral("cVal")), value);
        QVERIFY(!object.getDAOByName(QStringLiteral("cVal")));
        QVERIFY(!object.getDAOByName(QStringLiteral("phsa")));
        QVERIFY(!object.getDAOByName(QString()));
    }

    void theFirstOfEqualNamesIsFound()
    {
        DataObject object;
        object.attributes << attributeNode(QStringLiteral("setMag"), QStringLiteral("SG"))
                          << attributeNode(QStringLiteral("setMag"), QStringLiteral("SE"));
        QCOMPARE(object.getDAOByName(QStringLiteral("setMag")), object.attributes.first());
        DAO parent;
        parent.subDataObject = new SubDataObject;
        parent.children << attributeNode(QStringLiteral("f"), QStringLiteral("SG"))
                        << attributeNode(QStringLiteral("f"), QStringLiteral("SE"));
        QCOMPARE(parent.getDAOByName(QStringLiteral("f")), parent.children.first());
    }

    void functionalConstraintsComeOnceInOrderOfFirstAppearanceDepthFirst()
    {
        DataObject object;
        DAO *phase = subObjectNode(QStringLiteral("phsA"));
        DAO *deeper = attributeNode(QStringLiteral("cVal"), QStringLiteral("MX"));
        deeper->children << attributeNode(QStringLiteral("mag"), QStringLiteral("SV"));
        phase->children << deeper << attributeNode(QStringLiteral("db"), QStringLiteral("CF"));
        object.attributes << phase << attributeNode(QStringLiteral("d"), QStringLiteral("DC"))
                          << attributeNode(QStringLiteral("q"), QStringLiteral("MX"))
                          << attributeNode(QStringLiteral("unknown"), QString());

        QCOMPARE(object.possibleFC().join(QLatin1Char(' ')), QStringLiteral("MX SV CF DC"));
        QCOMPARE(phase->possibleFC().join(QLatin1Char(' ')), QStringLiteral("MX SV CF"));
        QCOMPARE(deeper->children.first()->possibleFC(), QStringList{QStringLiteral("SV")});
        QVERIFY(DataObject().possibleFC().isEmpty());
    }

    void aVeryDeepTreeIsWalkedAndDestroyed()
    {
        auto object = std::make_unique<DataObject>();
        QList<DAO *> *below = &object->attributes;
        for (int depth = 0; depth < 200000; ++depth) {
            DAO *node = subObjectNode(QStringLiteral("s"));
            below->append(node);
            below = &node->children;
        }
        below->append(attributeNode(QStringLiteral("f"), QStringLiteral("MX")));
        QCOMPARE(object->possibleFC(), QStringList{QStringLiteral("MX")});
        object.reset();
    }
};

QTEST_APPLESS_MAIN(tst_DataObject)
#include "tst_dataobject.moc"
