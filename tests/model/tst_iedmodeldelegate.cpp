// SPDX-License-Identifier: Apache-2.0
#include "devicebuilder.h"
#include "testtemplates.h"

#include "model/iedmodel.h"
#include "model/iedmodeldelegate.h"

#include <QtTest/QtTest>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTreeView>

#include <memory>

using namespace DeviceBuilder;

namespace {

QString s(const char *text)
{
    return QString::fromLatin1(text);
}

/// "code=text" of each entry, the current one in brackets.
QStringList described(const QComboBox *box)
{
    QStringList entries;
    for (int i = 0; i < box->count(); ++i) {
        const QString entry =
            s("%1=%2").arg(box->itemData(i, Qt::UserRole).toString(), box->itemText(i));
        entries << (i == box->currentIndex() ? s("[%1]").arg(entry) : entry);
    }
    return entries;
}

} // namespace

class tst_IEDModelDelegate : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void booleansOfferTwoWords_data();
    void booleansOfferTwoWords();
    void enumerationsOfferTheirEntries_data();
    void enumerationsOfferTheirEntries();
    void otherTypesAreEditedInALine_data();
    void otherTypesAreEditedInALine();
    void otherColumnsAndNodesHaveTheOrdinaryEditor();
    void anInvalidIndexHasNoEditor();
    void buildingAListCommitsNothing();
    void pickingAnEntryCommitsTheList();
    void onlyAListIsCommitted();
    void aListHandsItsCodeToTheModel();
    void aListOutsideTheValueColumnHandsOverItsText();
    void aListWithoutACurrentEntryHandsOverNothing();
    void aLineHandsItsTextToTheModel();
    void anOpenEditorIsNotRefilled();
    void anEditorOverlapsItsCell();

    void pickingWithTheKeyboardSendsOneRequest();
    void pickingWithTheMouseSendsOneRequest();
    void openingAndClosingAListSendsNothing();
    void leavingAListOfAnUnlistedValueSendsNothing();
    void choosingTheShownEntryOfAnUnlistedValueSendsIt();
    void editorsAreNamedForTheirAttribute();
    void anEmptyListCanBeClosedAgain();
    void aTypedTextSendsOneRequest();
    void anEmptyTextSendsNothing();
    void anAbandonedTextSendsNothing();
    void aStatusValueOpensNoEditor();
    void anOpenListStaysWhileItsValueChanges();

private:
    /// The value cell of an attribute, which is the only one of the device.
    QModelIndex cell() const
    {
        return m_model->indexForReference(s("LD/LN$FC$DO$a")).siblingAtColumn(1);
    }
    void setAttribute(const QString &basicType, const QVariant &value, const QString &enumTypeId,
                      const QString &fc = s("CF"));
    QWidget *createEditor(const QModelIndex &index);
    template <typename Editor>
    Editor *openEditor();

    std::unique_ptr<TestTemplates> m_templates;
    std::unique_ptr<PhysicalDevice> m_device;
    DataAttribute *m_attribute = nullptr;
    std::unique_ptr<IEDModel> m_model;
    std::unique_ptr<IEDModelDelegate> m_delegate;
    std::unique_ptr<QTreeView> m_view;
    std::unique_ptr<QSignalSpy> m_requests;
};

void tst_IEDModelDelegate::init()
{
    m_templates = std::make_unique<TestTemplates>(
        "<DataTypeTemplate>"
        "<EnumType id=\"Beh\"><EnumVal ord=\"5\">off</EnumVal><EnumVal ord=\"1\">on</EnumVal>"
        "<EnumVal ord=\"2\">blocked</EnumVal></EnumType>"
        "<EnumType id=\"Dbpos\"><EnumVal ord=\"2\">on</EnumVal></EnumType>"
        "<EnumType id=\"Twice\"><EnumVal ord=\"1\">first</EnumVal><EnumVal ord=\"1\">second"
        "</EnumVal><EnumVal ord=\"0\">third</EnumVal></EnumType>"
        "</DataTypeTemplate>");
    m_device = std::make_unique<PhysicalDevice>();
    addEnumeration(*m_device, s("Mode"), {{3, s("three")}, {-1, s("minus one")}, {2, s("two")}});
    DataObject *const dataObject = addDataObject(
        addLogicalNode(addLogicalDevice(*m_device, s("LD")), s("LN"), s("LN")), s("DO"), s("SPG"));
    m_attribute =
        addAttribute(dataObject->attributes, s("a"), s("CF"), s("INT32"), 0, s("LD/LN$CF$DO$a"))
            ->attribute;
    addSubDataObject(dataObject->attributes, s("sub"), s("CMV"));
    m_device->rebuildIndex();

    m_model = std::make_unique<IEDModel>(m_templates.get());
    m_model->setDevice(m_device.get());
    m_delegate = std::make_unique<IEDModelDelegate>(m_templates.get());
    m_view = std::make_unique<QTreeView>();
    m_view->setModel(m_model.get());
    m_view->setItemDelegate(m_delegate.get());
    m_view->resize(600, 400);
    m_view->setColumnWidth(1, 200);
    m_view->expandAll();
    m_requests = std::make_unique<QSignalSpy>(m_model.get(), &IEDModel::needWriteValue);
}

void tst_IEDModelDelegate::cleanup()
{
    m_view.reset();
    m_delegate.reset();
    m_requests.reset();
    m_model.reset();
    m_device.reset();
    m_templates.reset();
}

void tst_IEDModelDelegate::setAttribute(const QString &basicType, const QVariant &value,
                                        const QString &enumTypeId, const QString &fc)
{
    m_attribute->basicType = basicType;
    m_attribute->value = value;
    m_attribute->enumTypeId = enumTypeId;
    m_attribute->fc = fc;
}

QWidget *tst_IEDModelDelegate::createEditor(const QModelIndex &index)
{
    return m_delegate->createEditor(m_view->viewport(), QStyleOptionViewItem(), index);
}

/// Open the cell as an operator does, by a double click, and find what opens.
template <typename Editor>
Editor *tst_IEDModelDelegate::openEditor()
{
    if (!m_view->isVisible()) {
        m_view->show();
        if (!QTest::qWaitForWindowActive(m_view.get()))
            return nullptr;
    }
    const QPoint center = m_view->visualRect(cell()).center();
    QTest::mouseClick(m_view->viewport(), Qt::LeftButton, Qt::NoModifier, center);
    QTest::mouseDClick(m_view->viewport(), Qt::LeftButton, Qt::NoModifier, center);
    return m_view->viewport()->findChild<Editor *>();
}

void tst_IEDModelDelegate::booleansOfferTwoWords_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QStringList>("entries");
    const QStringList isFalse = {s("[0=False]"), s("1=true")};
    const QStringList isTrue = {s("0=False"), s("[1=true]")};
    QTest::newRow("false") << QVariant(false) << isFalse;
    QTest::newRow("true") << QVariant(true) << isTrue;
    QTest::newRow("0") << QVariant(0) << isFalse;
    QTest::newRow("2") << QVariant(2) << isTrue;
    QTest::newRow("no value known") << QVariant() << isFalse;
}

void tst_IEDModelDelegate::booleansOfferTwoWords()
{
    QFETCH(QVariant, value);
    setAttribute(s("BOOLEAN"), value, QString());
    const std::unique_ptr<QWidget> editor(createEditor(cell()));
    const auto *const box = qobject_cast<QComboBox *>(editor.get());
    QVERIFY(box);
    QTEST(described(box), "entries");
}

void tst_IEDModelDelegate::enumerationsOfferTheirEntries_data()
{
    QTest::addColumn<QString>("basicType");
    QTest::addColumn<QString>("enumTypeId");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QStringList>("entries");
    for (const char *const type : {"Enum", "Dbpos", "Check"}) {
        QTest::addRow("%s of the device, ascending", type)
            << s(type) << "Mode" << QVariant(2)
            << QStringList({s("-1=minus one"), s("[2=two]"), s("3=three")});
        QTest::addRow("%s of the templates, as stored", type)
            << s(type) << "Beh" << QVariant(1)
            << QStringList({s("5=off"), s("[1=on]"), s("2=blocked")});
        QTest::addRow("%s nobody knows", type)
            << s(type) << "Nowhere" << QVariant(1) << QStringList();
        QTest::addRow("%s without an id", type) << s(type) << "" << QVariant(1) << QStringList();
    }
    QTest::newRow("none of the entries is stored")
        << "Enum"
        << "Beh" << QVariant(9) << QStringList({s("[5=off]"), s("1=on"), s("2=blocked")});
    QTest::newRow("the last of equal entries")
        << "Enum"
        << "Twice" << QVariant(1) << QStringList({s("1=first"), s("[1=second]"), s("0=third")});
    QTest::newRow("stored as text")
        << "Enum"
        << "Beh" << QVariant(s("2")) << QStringList({s("5=off"), s("1=on"), s("[2=blocked]")});
}

void tst_IEDModelDelegate::enumerationsOfferTheirEntries()
{
    QFETCH(QString, basicType);
    QFETCH(QString, enumTypeId);
    QFETCH(QVariant, value);
    setAttribute(basicType, value, enumTypeId);
    const std::unique_ptr<QWidget> editor(createEditor(cell()));
    const auto *const box = qobject_cast<QComboBox *>(editor.get());
    QVERIFY(box);
    QTEST(described(box), "entries");
}

void tst_IEDModelDelegate::otherTypesAreEditedInALine_data()
{
    QTest::addColumn<QString>("basicType");
    for (const char *const type :
         {"INT32", "INT64U", "FLOAT32", "FLOAT64", "Tcmd", "Quality", "VisString255", "Boolean"}) {
        QTest::newRow(type) << s(type);
    }
}

void tst_IEDModelDelegate::otherTypesAreEditedInALine()
{
    QFETCH(QString, basicType);
    setAttribute(basicType, 1, s("Beh"));
    const std::unique_ptr<QWidget> editor(createEditor(cell()));
    QVERIFY(qobject_cast<QLineEdit *>(editor.get()));
}

void tst_IEDModelDelegate::otherColumnsAndNodesHaveTheOrdinaryEditor()
{
    setAttribute(s("BOOLEAN"), true, QString());
    const IEDModel empty(m_templates.get());
    for (const QModelIndex &index :
         {cell().siblingAtColumn(0), cell().siblingAtColumn(2), m_model->index(0, 1),
          m_model->indexForReference(s("LD/LN$CF$DO")).siblingAtColumn(1),
          m_model->indexForReference(s("LD/LN$CF$DO$sub")).siblingAtColumn(1), empty.index(0, 1)}) {
        const std::unique_ptr<QWidget> editor(createEditor(index));
        QVERIFY(qobject_cast<QLineEdit *>(editor.get()));
    }
}

void tst_IEDModelDelegate::anInvalidIndexHasNoEditor()
{
    QVERIFY(!createEditor(QModelIndex()));
}

void tst_IEDModelDelegate::buildingAListCommitsNothing()
{
    QSignalSpy committed(m_delegate.get(), &IEDModelDelegate::commitData);
    setAttribute(s("Enum"), 2, s("Beh"));
    const std::unique_ptr<QWidget> enumeration(createEditor(cell()));
    setAttribute(s("BOOLEAN"), true, QString());
    const std::unique_ptr<QWidget> boolean(createEditor(cell()));
    m_delegate->setEditorData(enumeration.get(), cell());
    QCOMPARE(committed.count(), 0);
    QCOMPARE(m_requests->count(), 0);
}

void tst_IEDModelDelegate::pickingAnEntryCommitsTheList()
{
    setAttribute(s("Enum"), 2, s("Beh"));
    const std::unique_ptr<QWidget> editor(createEditor(cell()));
    QSignalSpy committed(m_delegate.get(), &IEDModelDelegate::commitData);
    qobject_cast<QComboBox *>(editor.get())->setCurrentIndex(0);
    QCOMPARE(committed.count(), 1);
    QCOMPARE(committed.first().first().value<QWidget *>(), editor.get());
}

void tst_IEDModelDelegate::onlyAListIsCommitted()
{
    QSignalSpy committed(m_delegate.get(), &IEDModelDelegate::commitData);
    QLineEdit line;
    connect(&line, &QLineEdit::textChanged, m_delegate.get(), &IEDModelDelegate::emitCommitData);
    line.setText(s("x"));
    m_delegate->emitCommitData();
    QCOMPARE(committed.count(), 0);
}

void tst_IEDModelDelegate::aListHandsItsCodeToTheModel()
{
    setAttribute(s("INT32"), 0, QString());
    QComboBox box;
    box.addItem(s("entry"), 42);
    m_delegate->setModelData(&box, m_model.get(), cell());
    QCOMPARE(m_requests->count(), 1);
    QCOMPARE(m_requests->first().at(1), QVariant(42));
}

void tst_IEDModelDelegate::aListOutsideTheValueColumnHandsOverItsText()
{
    setAttribute(s("VisString255"), s("old"), QString());
    QComboBox box;
    box.addItem(s("entry"), 42);
    m_delegate->setModelData(&box, m_model.get(), cell().siblingAtColumn(0));
    QCOMPARE(m_requests->count(), 1);
    QCOMPARE(m_requests->first().at(1), QVariant(s("entry")));
}

void tst_IEDModelDelegate::aListWithoutACurrentEntryHandsOverNothing()
{
    setAttribute(s("Enum"), 3, s("Beh"));
    QComboBox box;
    m_delegate->setModelData(&box, m_model.get(), cell());
    box.addItem(s("entry"), 42);
    box.setCurrentIndex(-1);
    m_delegate->setModelData(&box, m_model.get(), cell());
    QCOMPARE(m_requests->count(), 0);
    QCOMPARE(m_attribute->value, QVariant(3));
}

void tst_IEDModelDelegate::aLineHandsItsTextToTheModel()
{
    setAttribute(s("INT32"), 0, QString());
    const std::unique_ptr<QWidget> editor(createEditor(cell()));
    qobject_cast<QLineEdit *>(editor.get())->setText(s("-17"));
    m_delegate->setModelData(editor.get(), m_model.get(), cell());
    QCOMPARE(m_requests->count(), 1);
    QCOMPARE(m_requests->first().at(1), QVariant(-17));
}

void tst_IEDModelDelegate::anOpenEditorIsNotRefilled()
{
    setAttribute(s("INT32"), 5, QString());
    const std::unique_ptr<QWidget> editor(createEditor(cell()));
    auto *const line = qobject_cast<QLineEdit *>(editor.get());
    m_delegate->setEditorData(line, cell());
    QCOMPARE(line->text(), QString());
    line->setText(s("1"));
    m_delegate->setEditorData(line, cell());
    QCOMPARE(line->text(), s("1"));
}

void tst_IEDModelDelegate::anEditorOverlapsItsCell()
{
    QWidget editor;
    QStyleOptionViewItem option;
    option.rect = QRect(10, 20, 100, 30);
    m_delegate->updateEditorGeometry(&editor, option, cell());
    QCOMPARE(editor.geometry(), QRect(8, 18, 104, 34));
}

void tst_IEDModelDelegate::pickingWithTheKeyboardSendsOneRequest()
{
    setAttribute(s("Enum"), 5, s("Beh"));
    auto *const box = openEditor<QComboBox>();
    QVERIFY(box);
    QCOMPARE(m_requests->count(), 0);
    QTest::keyClick(box, Qt::Key_Down);
    QCOMPARE(m_requests->count(), 1);
    QCOMPARE(m_requests->first().at(0).toModelIndex(), cell());
    QCOMPARE(m_requests->first().at(1), QVariant(1));
    QTest::keyClick(box, Qt::Key_Return);
    QCOMPARE(m_requests->count(), 1);
    QCOMPARE(m_attribute->value, QVariant(1));
}

void tst_IEDModelDelegate::pickingWithTheMouseSendsOneRequest()
{
    setAttribute(s("BOOLEAN"), false, QString());
    auto *const box = openEditor<QComboBox>();
    QVERIFY(box);
    box->showPopup();
    QTRY_VERIFY(box->view()->isVisible());
    const QModelIndex entry = box->model()->index(1, 0);
    QTest::mouseClick(box->view()->viewport(), Qt::LeftButton, Qt::NoModifier,
                      box->view()->visualRect(entry).center());
    QTRY_COMPARE(m_requests->count(), 1);
    QCOMPARE(m_requests->first().at(1), QVariant(1));
    m_view->setFocus();
    QCOMPARE(m_requests->count(), 1);
}

void tst_IEDModelDelegate::openingAndClosingAListSendsNothing()
{
    setAttribute(s("Enum"), 2, s("Beh"));
    QPointer<QComboBox> box = openEditor<QComboBox>();
    QVERIFY(box);
    QTest::keyClick(box, Qt::Key_Return);
    QTRY_VERIFY(!box);
    box = openEditor<QComboBox>();
    QVERIFY(box);
    QTest::keyClick(box, Qt::Key_Escape);
    QTRY_VERIFY(!box);
    QCOMPARE(m_requests->count(), 0);
}

void tst_IEDModelDelegate::leavingAListOfAnUnlistedValueSendsNothing()
{
    setAttribute(s("Enum"), 99, s("Beh"));
    const QPointer<QComboBox> box = openEditor<QComboBox>();
    QVERIFY(box);
    QCOMPARE(box->currentIndex(), 0);
    QTest::keyClick(box, Qt::Key_Return);
    QTRY_VERIFY(!box);
    QCOMPARE(m_requests->count(), 0);
}

void tst_IEDModelDelegate::choosingTheShownEntryOfAnUnlistedValueSendsIt()
{
    setAttribute(s("Enum"), 99, s("Beh"));
    const QPointer<QComboBox> box = openEditor<QComboBox>();
    QVERIFY(box);
    const int code = box->itemData(0, Qt::UserRole).toInt();
    box->showPopup();
    QTest::keyClick(box->view(), Qt::Key_Return);
    QTest::keyClick(box, Qt::Key_Return);
    QTRY_VERIFY(!box);
    QCOMPARE(m_requests->count(), 1);
    QCOMPARE(m_requests->first().at(1).toInt(), code);
}

void tst_IEDModelDelegate::editorsAreNamedForTheirAttribute()
{
    setAttribute(s("Enum"), 1, s("Beh"));
    QPointer<QWidget> editor = openEditor<QComboBox>();
    QVERIFY(editor);
    QCOMPARE(editor->accessibleName(), m_attribute->reference);
    QTest::keyClick(editor, Qt::Key_Escape);
    QTRY_VERIFY(!editor);
    setAttribute(s("INT32"), 1, QString());
    editor = openEditor<QLineEdit>();
    QVERIFY(editor);
    QCOMPARE(editor->accessibleName(), m_attribute->reference);
}

void tst_IEDModelDelegate::anEmptyListCanBeClosedAgain()
{
    setAttribute(s("Enum"), 2, s("Nowhere"));
    const QPointer<QComboBox> box = openEditor<QComboBox>();
    QVERIFY(box);
    QCOMPARE(box->count(), 0);
    QTest::keyClick(box, Qt::Key_Down);
    QTest::keyClick(box, Qt::Key_Return);
    QTRY_VERIFY(!box);
    QCOMPARE(m_requests->count(), 0);
    QCOMPARE(m_attribute->value, QVariant(2));
}

void tst_IEDModelDelegate::aTypedTextSendsOneRequest()
{
    setAttribute(s("INT32"), 5, QString());
    auto *const line = openEditor<QLineEdit>();
    QVERIFY(line);
    QCOMPARE(line->text(), QString());
    QTest::keyClicks(line, s("12"));
    QCOMPARE(m_requests->count(), 0);
    QTest::keyClick(line, Qt::Key_Return);
    QTRY_COMPARE(m_requests->count(), 1);
    QCOMPARE(m_requests->first().at(1), QVariant(12));
}

void tst_IEDModelDelegate::anEmptyTextSendsNothing()
{
    setAttribute(s("INT32"), 5, QString());
    const QPointer<QLineEdit> line = openEditor<QLineEdit>();
    QVERIFY(line);
    QTest::keyClick(line, Qt::Key_Return);
    QTRY_VERIFY(!line);
    QCOMPARE(m_requests->count(), 0);
    QCOMPARE(m_attribute->value, QVariant(5));
}

void tst_IEDModelDelegate::anAbandonedTextSendsNothing()
{
    setAttribute(s("INT32"), 5, QString());
    const QPointer<QLineEdit> line = openEditor<QLineEdit>();
    QVERIFY(line);
    QTest::keyClicks(line, s("12"));
    QTest::keyClick(line, Qt::Key_Escape);
    QTRY_VERIFY(!line);
    QCOMPARE(m_requests->count(), 0);
}

void tst_IEDModelDelegate::aStatusValueOpensNoEditor()
{
    for (const char *const fc : {"ST", "SG", "SV"}) {
        setAttribute(s("BOOLEAN"), true, QString(), s(fc));
        QVERIFY(!openEditor<QWidget>());
    }
    setAttribute(s("BOOLEAN"), true, QString(), s("MX"));
    QVERIFY(openEditor<QComboBox>());
}

void tst_IEDModelDelegate::anOpenListStaysWhileItsValueChanges()
{
    setAttribute(s("Enum"), 2, s("Beh"));
    auto *const box = openEditor<QComboBox>();
    QVERIFY(box);
    MMSValue live;
    live.reference = m_attribute->reference;
    live.value = 5;
    m_model->updateValues({live});
    QCOMPARE(m_attribute->value, QVariant(5));
    QCOMPARE(box->currentText(), s("blocked"));
    QCOMPARE(m_requests->count(), 0);
}

QTEST_MAIN(tst_IEDModelDelegate)
#include "tst_iedmodeldelegate.moc"
