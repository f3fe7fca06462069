// SPDX-License-Identifier: Apache-2.0
#include <propertybrowser/qttreepropertybrowser.h>
#include <propertybrowser/qtvarianteditorfactory.h>
#include <propertybrowser/qtvariantproperty.h>
#include <propertybrowser/qtvariantpropertymanager.h>

#include <QtCore/QDateTime>
#include <QtGui/QClipboard>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QDateTimeEdit>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTreeWidget>
#include <QtWidgets/QVBoxLayout>

#include <limits>
#include <memory>

namespace {

/// A dialog with a browser and a default button, as an operator would have it before him.
class Window : public QDialog
{
public:
    Window()
        : browser(new QtTreePropertyBrowser(this))
        , button(new QPushButton(QStringLiteral("Send"), this))
    {
        auto *layout = new QVBoxLayout(this);
        layout->addWidget(browser);
        layout->addWidget(button);
        button->setDefault(true);
        browser->setFactoryForManager(&manager, &factory);
    }

    QtVariantProperty *add(const QString &name, const QVariant &value)
    {
        QtVariantProperty *property = manager.addProperty(value.userType(), name);
        property->setValue(value);
        browser->addProperty(property);
        return property;
    }

    bool showActive()
    {
        show();
        return QTest::qWaitForWindowActive(this);
    }

    QTreeWidget *tree() const { return browser->findChild<QTreeWidget *>(QStringLiteral("tree")); }
    QLabel *message() const { return browser->findChild<QLabel *>(QStringLiteral("message")); }

    void click(int row, int column)
    {
        const QModelIndex index = tree()->model()->index(row, column);
        QTest::mouseClick(tree()->viewport(), Qt::LeftButton, Qt::NoModifier,
                          tree()->visualRect(index).center());
    }

    /// The editor that has the focus, null when there is none.
    template <typename Editor = QWidget>
    Editor *editor() const
    {
        QWidget *focused = QApplication::focusWidget();
        const bool inside = focused && focused->parentWidget() == tree()->viewport();
        return inside ? qobject_cast<Editor *>(focused) : nullptr;
    }

    template <typename Editor = QLineEdit>
    Editor *open(int row)
    {
        click(row, 1);
        return editor<Editor>();
    }

    QtVariantPropertyManager manager;
    QtVariantEditorFactory factory;
    QtTreePropertyBrowser *browser;
    QPushButton *button;
};

void retype(QLineEdit *editor, const QString &text)
{
    editor->selectAll();
    QTest::keyClick(editor, Qt::Key_Delete);
    QTest::keyClicks(editor, text);
}

} // namespace

class tst_PropertyEditing : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qRegisterMetaType<QtProperty *>(); }
    void aClickOnTheRowOpensTheEditor_data();
    void aClickOnTheRowOpensTheEditor();
    void aKeyOnTheCurrentRowOpensTheEditor_data();
    void aKeyOnTheCurrentRowOpensTheEditor();
    void theArrowKeysWalkTheRows();
    void enterCommits();
    void losingTheFocusCommits();
    void tabCommitsAndOpensTheNextRow();
    void escapeKeepsTheValueAndTheWindow();
    void escapeWithoutAnEditorClosesTheWindow();
    void enterNeverPressesTheDefaultButton();
    void everyNumberOfTheTypeCanBeTyped_data();
    void everyNumberOfTheTypeCanBeTyped();
    void aNumberBeyondTheTypeCannotBeTyped_data();
    void aNumberBeyondTheTypeCannotBeTyped();
    void aValueThatIsOnlyLookedAtSurvives_data();
    void aValueThatIsOnlyLookedAtSurvives();
    void anUnfinishedNumberIsNotTakenOnEnter_data();
    void anUnfinishedNumberIsNotTakenOnEnter();
    void anUnfinishedNumberIsNotTakenOnLosingTheFocus();
    void aPastedNumberLosesTheBlanksAroundIt();
    void theDecimalMarkOfTheLocaleIsAPoint();
    void whatIsLeftOfARefusedNumberIsTakenOnlyWhenAskedTwice();
    void whatIsLeftOfARefusedNumberIsNotTakenOnLosingTheFocus();
    void aSinglePrecisionNumberFitsAFloat_data();
    void aSinglePrecisionNumberFitsAFloat();
    void aTextIsEdited();
    void aCharacterIsEdited();
    void aTruthIsEditedWithTheKeyboard();
    void aDateIsEdited();
    void aTimeIsEdited();
    void aMomentKeepsItsZone_data();
    void aMomentKeepsItsZone();
    void aMomentInTheHourThatSummerTimeSkipsIsTaken();
    void anEmptyMomentStaysEmptyUnlessEdited();
    void aChangeFromElsewhereDoesNotDisturbTheTyping();
    void clearingWhileAnEditorIsOpenWritesNothing();
    void deletingThePropertyWhileItsEditorIsOpenIsSafe();
    void deletingTheFactoryWhileAnEditorIsOpenIsSafe();
    void aReadOnlyRowOpensNoEditor();
    void theEditorIsNamedForAssistiveTechnology();
    void theEditorShowsItsWholeTextInTheRow();
};

void tst_PropertyEditing::aClickOnTheRowOpensTheEditor_data()
{
    QTest::addColumn<int>("column");
    QTest::newRow("name") << 0;
    QTest::newRow("value") << 1;
}

void tst_PropertyEditing::aClickOnTheRowOpensTheEditor()
{
    QFETCH(int, column);
    Window window;
    window.add(QStringLiteral("a"), 1);
    window.add(QStringLiteral("b"), 2);
    QVERIFY(window.showActive());
    window.click(1, column);
    auto *editor = window.editor<QLineEdit>();
    QVERIFY(editor);
    QCOMPARE(editor->text(), QStringLiteral("2"));
    const QRect cell = window.tree()->visualRect(window.tree()->model()->index(1, 1));
    QVERIFY(cell.contains(editor->geometry().center()));
}

void tst_PropertyEditing::aKeyOnTheCurrentRowOpensTheEditor_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Return") << Qt::Key_Return;
    QTest::newRow("Enter") << Qt::Key_Enter;
    QTest::newRow("F2") << Qt::Key_F2;
    QTest::newRow("Space") << Qt::Key_Space;
}

void tst_PropertyEditing::aKeyOnTheCurrentRowOpensTheEditor()
{
    QFETCH(Qt::Key, key);
    Window window;
    QtVariantProperty *property = window.add(QStringLiteral("a"), 1);
    QVERIFY(window.showActive());
    window.browser->setFocus();
    QTest::keyClick(window.tree(), Qt::Key_Down);
    QTest::keyClick(window.tree(), key);
    QVERIFY(window.editor<QLineEdit>());

    retype(window.editor<QLineEdit>(), QStringLiteral("12"));
    QTest::keyClick(window.editor(), Qt::Key_Return);
    QTRY_COMPARE(property->value(), QVariant(12));
    QTRY_COMPARE(QApplication::focusWidget(), window.tree());
}

void tst_PropertyEditing::theArrowKeysWalkTheRows()
{
    Window window;
    window.add(QStringLiteral("a"), 1);
    window.add(QStringLiteral("b"), 2);
    QVERIFY(window.showActive());
    window.browser->setFocus();
    QTest::keyClick(window.tree(), Qt::Key_Home);
    QTest::keyClick(window.tree(), Qt::Key_Down);
    QTest::keyClick(window.tree(), Qt::Key_F2);
    QVERIFY(window.editor<QLineEdit>());
    QCOMPARE(window.editor<QLineEdit>()->text(), QStringLiteral("2"));
}

void tst_PropertyEditing::enterCommits()
{
    Window window;
    QtVariantProperty *property = window.add(QStringLiteral("a"), 1);
    QVERIFY(window.showActive());
    QSignalSpy changes(&window.manager, &QtVariantPropertyManager::valueChanged);
    retype(window.open(0), QStringLiteral("-77"));
    QCOMPARE(property->value(), QVariant(1));
    QTest::keyClick(window.editor(), Qt::Key_Return);
    QTRY_COMPARE(property->value(), QVariant(-77));
    QTRY_VERIFY(!window.editor());
    QCOMPARE(window.tree()->topLevelItem(0)->text(1), QStringLiteral("-77"));
    QCOMPARE(changes.size(), 1);
}

void tst_PropertyEditing::losingTheFocusCommits()
{
    Window window;
    QtVariantProperty *property = window.add(QStringLiteral("a"), 1);
    QVERIFY(window.showActive());
    retype(window.open(0), QStringLiteral("5"));
    QVariant whenPressed;
    connect(window.button, &QPushButton::released, this, [&] { whenPressed = property->value(); });
    QTest::mouseClick(window.button, Qt::LeftButton);
    QCOMPARE(whenPressed, QVariant(5));
}

void tst_PropertyEditing::tabCommitsAndOpensTheNextRow()
{
    Window window;
    QtVariantProperty *first = window.add(QStringLiteral("a"), 1);
    QtVariantProperty *second = window.add(QStringLiteral("b"), 2);
    QVERIFY(window.showActive());
    retype(window.open(0), QStringLiteral("10"));
    QTest::keyClick(window.editor(), Qt::Key_Tab);
    QCOMPARE(first->value(), QVariant(10));
    QTRY_VERIFY(window.editor<QLineEdit>());
    QCOMPARE(window.editor<QLineEdit>()->text(), QStringLiteral("2"));
    retype(window.editor<QLineEdit>(), QStringLiteral("20"));
    QTest::keyClick(window.editor(), Qt::Key_Return);
    QTRY_COMPARE(second->value(), QVariant(20));
}

void tst_PropertyEditing::escapeKeepsTheValueAndTheWindow()
{
    Window window;
    QtVariantProperty *property = window.add(QStringLiteral("a"), 1);
    QVERIFY(window.showActive());
    retype(window.open(0), QStringLiteral("99"));
    QTest::keyClick(window.editor(), Qt::Key_Escape);
    QTRY_VERIFY(!window.editor());
    QCOMPARE(property->value(), QVariant(1));
    QCOMPARE(window.tree()->topLevelItem(0)->text(1), QStringLiteral("1"));
    QVERIFY(window.isVisible());
}

void tst_PropertyEditing::escapeWithoutAnEditorClosesTheWindow()
{
    Window window;
    window.add(QStringLiteral("a"), 1);
    QVERIFY(window.showActive());
    window.browser->setFocus();
    QTest::keyClick(window.tree(), Qt::Key_Escape);
    QVERIFY(!window.isVisible());
}

void tst_PropertyEditing::enterNeverPressesTheDefaultButton()
{
    Window window;
    window.add(QStringLiteral("text"), QStringLiteral("x"));
    window.add(QStringLiteral("truth"), true);
    window.add(QStringLiteral("date"), QDate(2024, 1, 1));
    QtVariantProperty *group =
        window.manager.addProperty(QtVariantPropertyManager::groupTypeId(), QStringLiteral("g"));
    window.browser->addProperty(group);
    QVERIFY(window.showActive());
    QSignalSpy presses(window.button, &QPushButton::clicked);

    window.browser->setFocus();
    window.tree()->setCurrentItem(nullptr);
    QTest::keyClick(window.tree(), Qt::Key_Return);
    for (int row = 0; row < 3; ++row) {
        window.click(row, 1);
        QVERIFY(window.editor());
        QTest::keyClick(window.editor(), Qt::Key_Return);
        QTRY_VERIFY(!window.editor());
    }
    window.tree()->setCurrentItem(window.tree()->topLevelItem(3));
    QTest::keyClick(window.tree(), Qt::Key_Enter);
    QVERIFY(!window.editor());
    QCOMPARE(presses.size(), 0);
    QVERIFY(window.isVisible());
}

void tst_PropertyEditing::everyNumberOfTheTypeCanBeTyped_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVariant>("value");

    using IntLimits = std::numeric_limits<int>;
    using UIntLimits = std::numeric_limits<uint>;
    using LongLongLimits = std::numeric_limits<qlonglong>;
    using ULongLongLimits = std::numeric_limits<qulonglong>;
    QTest::newRow("int, smallest") << "-2147483648" << QVariant(IntLimits::min());
    QTest::newRow("int, largest") << "2147483647" << QVariant(IntLimits::max());
    QTest::newRow("int, with sign") << "+5" << QVariant(5);
    QTest::newRow("int, leading zeros") << "007" << QVariant(7);
    QTest::newRow("unsigned int, largest") << "4294967295" << QVariant(UIntLimits::max());
    QTest::newRow("long long, smallest")
        << "-9223372036854775808" << QVariant(LongLongLimits::min());
    QTest::newRow("long long, largest") << "9223372036854775807" << QVariant(LongLongLimits::max());
    QTest::newRow("long long, beyond 53 bits")
        << "9007199254740993" << QVariant(Q_INT64_C(9007199254740993));
    QTest::newRow("unsigned long long, largest")
        << "18446744073709551615" << QVariant(ULongLongLimits::max());
    QTest::newRow("double, seventeen digits")
        << "0.30000000000000004" << QVariant(0.30000000000000004);
    QTest::newRow("double, largest")
        << "1.7976931348623157e308" << QVariant(std::numeric_limits<double>::max());
    QTest::newRow("double, smallest")
        << "5e-324" << QVariant(std::numeric_limits<double>::denorm_min());
    QTest::newRow("double, negative") << "-1.5E-3" << QVariant(-0.0015);
    QTest::newRow("double, infinite")
        << "-inf" << QVariant(-std::numeric_limits<double>::infinity());
    QTest::newRow("double, begun with the point") << ".5" << QVariant(0.5);
}

void tst_PropertyEditing::everyNumberOfTheTypeCanBeTyped()
{
    QFETCH(QString, text);
    QFETCH(QVariant, value);
    Window window;
    QVariant other(1);
    QVERIFY(other.convert(value.userType()));
    QtVariantProperty *property = window.add(QStringLiteral("a"), other);
    QVERIFY(window.showActive());
    QLineEdit *editor = window.open(0);
    retype(editor, text);
    QCOMPARE(editor->text(), text);
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_VERIFY(!window.editor());
    QCOMPARE(property->value().userType(), value.userType());
    // QVariant would compare doubles with a tolerance.
    if (value.userType() == QMetaType::Double)
        QVERIFY(property->value().toDouble() == value.toDouble());
    else
        QCOMPARE(property->value(), value);
}

void tst_PropertyEditing::aNumberBeyondTheTypeCannotBeTyped_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("left");

    QTest::newRow("int") << QVariant(1) << "2147483648"
                         << "214748364";
    QTest::newRow("int, negative") << QVariant(1) << "-2147483649"
                                   << "-214748364";
    QTest::newRow("int, fraction") << QVariant(1) << "1.5"
                                   << "15";
    QTest::newRow("unsigned int, sign") << QVariant(1U) << "-1"
                                        << "1";
    QTest::newRow("unsigned int") << QVariant(1U) << "4294967296"
                                  << "429496729";
    QTest::newRow("long long") << QVariant(1LL) << "9223372036854775808"
                               << "922337203685477580";
    QTest::newRow("unsigned long long") << QVariant(1ULL) << "18446744073709551616"
                                        << "1844674407370955161";
    QTest::newRow("double, letters") << QVariant(1.0) << "1x2"
                                     << "12";
    QTest::newRow("double, comma") << QVariant(1.0) << "1,5"
                                   << "15";
    QTest::newRow("double, two points") << QVariant(1.0) << "1.2.3"
                                        << "1.23";
}

void tst_PropertyEditing::aNumberBeyondTheTypeCannotBeTyped()
{
    QFETCH(QVariant, value);
    QFETCH(QString, typed);
    QFETCH(QString, left);
    Window window;
    window.add(QStringLiteral("a"), value);
    QVERIFY(window.showActive());
    QLineEdit *editor = window.open(0);
    retype(editor, typed);
    QCOMPARE(editor->text(), left);
}

void tst_PropertyEditing::aValueThatIsOnlyLookedAtSurvives_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("long long") << QVariant(Q_INT64_C(-9007199254740993));
    QTest::newRow("unsigned long long") << QVariant(std::numeric_limits<qulonglong>::max());
    QTest::newRow("double") << QVariant(0.30000000000000004);
    QTest::newRow("tiny double") << QVariant(std::numeric_limits<double>::denorm_min());
    QTest::newRow("negative zero") << QVariant(-0.0);
    QTest::newRow("text of two lines") << QVariant(QStringLiteral("one\ntwo"));
    QTest::newRow("no date") << QVariant(QDate());
    QTest::newRow("early date") << QVariant(QDate(50, 1, 1));
    QTest::newRow("no character") << QVariant(QChar());
    QTest::newRow("moment") << QVariant(
        QDateTime(QDate(2024, 2, 29), QTime(1, 2, 3, 4), Qt::OffsetFromUTC, -1800));
}

void tst_PropertyEditing::aValueThatIsOnlyLookedAtSurvives()
{
    QFETCH(QVariant, value);
    Window window;
    QtVariantProperty *property = window.add(QStringLiteral("a"), value);
    QVERIFY(window.showActive());
    QSignalSpy changes(&window.manager, &QtVariantPropertyManager::valueChanged);

    window.click(0, 1);
    QVERIFY(window.editor());
    QTest::keyClick(window.editor(), Qt::Key_Return);
    QTRY_VERIFY(!window.editor());
    window.click(0, 1);
    QVERIFY(window.editor());
    window.button->setFocus();
    QVERIFY(!window.editor());

    QCOMPARE(changes.size(), 0);
    QCOMPARE(property->value(), value);
    QVERIFY(window.message()->isHidden());
}

void tst_PropertyEditing::anUnfinishedNumberIsNotTakenOnEnter_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("sentence");

    QTest::newRow("int, nothing") << QVariant(3) << ""
                                  << "A whole number from -2147483648 to 2147483647 is needed.";
    QTest::newRow("int, only a sign") << QVariant(3) << "-"
                                      << "A whole number from -2147483648 to 2147483647 is needed.";
    QTest::newRow("unsigned int, nothing") << QVariant(3U) << ""
                                           << "A whole number from 0 to 4294967295 is needed.";
    QTest::newRow("long long, nothing")
        << QVariant(3LL) << ""
        << "A whole number from -9223372036854775808 to 9223372036854775807 is needed.";
    QTest::newRow("unsigned long long, nothing")
        << QVariant(3ULL) << ""
        << "A whole number from 0 to 18446744073709551615 is needed.";
    QTest::newRow("double, exponent begun")
        << QVariant(3.5) << "1e"
        << "A number with a decimal point is needed, such as 0.25 or 1e-3.";
    QTest::newRow("double, too large")
        << QVariant(3.5) << "1e999"
        << "A number with a decimal point is needed, such as 0.25 or 1e-3.";
    QTest::newRow("double, too small")
        << QVariant(3.5) << "1e-999"
        << "A number with a decimal point is needed, such as 0.25 or 1e-3.";
    QTest::newRow("character, nothing") << QVariant(QChar(u'x')) << ""
                                        << "One character is needed.";
}

void tst_PropertyEditing::anUnfinishedNumberIsNotTakenOnEnter()
{
    QFETCH(QVariant, value);
    QFETCH(QString, text);
    QFETCH(QString, sentence);
    Window window;
    QtVariantProperty *property = window.add(QStringLiteral("a"), value);
    QVERIFY(window.showActive());
    QLineEdit *editor = window.open(0);
    retype(editor, text);
    QTest::keyClick(editor, Qt::Key_Return);
    QCoreApplication::processEvents();
    QCOMPARE(window.editor<QLineEdit>(), editor);
    QVERIFY(window.message()->isVisible());
    QCOMPARE(window.message()->text(), sentence);
    QCOMPARE(property->value(), value);

    retype(editor, QStringLiteral("7"));
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_VERIFY(!window.editor());
    QVERIFY(window.message()->isHidden());
    QCOMPARE(property->valueText(), QStringLiteral("7"));
}

void tst_PropertyEditing::anUnfinishedNumberIsNotTakenOnLosingTheFocus()
{
    Window window;
    QtVariantProperty *property = window.add(QStringLiteral("StrVal"), 3.5);
    QVERIFY(window.showActive());
    retype(window.open(0), QStringLiteral("1e"));
    window.button->setFocus();
    QVERIFY(!window.editor());
    QCOMPARE(property->value(), QVariant(3.5));
    QCOMPARE(window.tree()->topLevelItem(0)->text(1), QStringLiteral("3.5"));
    QCOMPARE(window.message()->text(),
             QStringLiteral("A number with a decimal point is needed, such as 0.25 or 1e-3. "
                            "\"StrVal\" keeps its value."));
    QVERIFY(window.message()->isVisible());

    QVERIFY(window.open(0));
    QVERIFY(window.message()->isHidden());
}

void tst_PropertyEditing::aPastedNumberLosesTheBlanksAroundIt()
{
    Window window;
    QtVariantProperty *property = window.add(QStringLiteral("a"), 3);
    QVERIFY(window.showActive());
    QLineEdit *editor = window.open(0);
    QApplication::clipboard()->setText(QStringLiteral(" 42 "));
    editor->selectAll();
    editor->paste();
    QCOMPARE(editor->text(), QStringLiteral("42"));
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(property->value(), QVariant(42));
}

void tst_PropertyEditing::theDecimalMarkOfTheLocaleIsAPoint()
{
    QLocale::setDefault(QLocale(QStringLiteral("de_DE")));
    Window window;
    QtVariantProperty *property = window.add(QStringLiteral("StrVal"), 3.5);
    QVERIFY(window.showActive());
    retype(window.open(0), QStringLiteral("0,25"));
    QLocale::setDefault(QLocale::c());
    QCOMPARE(window.editor<QLineEdit>()->text(), QStringLiteral("0.25"));
    QTest::keyClick(window.editor(), Qt::Key_Return);
    QTRY_COMPARE(property->value(), QVariant(0.25));
}

void tst_PropertyEditing::whatIsLeftOfARefusedNumberIsTakenOnlyWhenAskedTwice()
{
    Window window;
    QtVariantProperty *property = window.add(QStringLiteral("StrVal"), 3.5);
    QVERIFY(window.showActive());
    QLineEdit *editor = window.open(0);
    retype(editor, QStringLiteral("0,25"));
    QCOMPARE(editor->text(), QStringLiteral("025"));
    QTest::keyClick(editor, Qt::Key_Return);
    QCoreApplication::processEvents();
    QCOMPARE(window.editor<QLineEdit>(), editor);
    QCOMPARE(
        window.message()->text(),
        QStringLiteral("Not all that was typed was taken. Press Enter again if 025 is meant."));
    QCOMPARE(property->value(), QVariant(3.5));
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(property->value(), QVariant(25.0));
}

void tst_PropertyEditing::whatIsLeftOfARefusedNumberIsNotTakenOnLosingTheFocus()
{
    Window window;
    QtVariantProperty *property = window.add(QStringLiteral("StrVal"), 3.5);
    QVERIFY(window.showActive());
    retype(window.open(0), QStringLiteral("0,25"));
    QTest::mouseClick(window.button, Qt::LeftButton);
    QVERIFY(!window.editor());
    QCOMPARE(property->value(), QVariant(3.5));
    QVERIFY(window.message()->isVisible());
}

void tst_PropertyEditing::aSinglePrecisionNumberFitsAFloat_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("sentence");
    const QString tooLarge =
        QStringLiteral("The number is too large: the data type ends at 3.4028235e38.");
    const QString tooSmall =
        QStringLiteral("The number is too small: in this data type it would become 0.");
    constexpr double largest = std::numeric_limits<float>::max();
    QTest::newRow("the largest as shown") << "3.4028235e+38" << largest << QString();
    QTest::newRow("too large") << "1e39" << 3.5 << tooLarge;
    QTest::newRow("too small") << "1e-50" << 3.5 << tooSmall;
}

void tst_PropertyEditing::aSinglePrecisionNumberFitsAFloat()
{
    QFETCH(QString, typed);
    QFETCH(double, value);
    QFETCH(QString, sentence);
    Window window;
    QtVariantProperty *property = window.add(QStringLiteral("StrVal"), 3.5);
    property->setSinglePrecision(true);
    QVERIFY(window.showActive());
    retype(window.open(0), typed);
    QTest::keyClick(window.editor(), Qt::Key_Return);
    QCoreApplication::processEvents();
    QCOMPARE(window.message()->text(), sentence);
    QVERIFY(property->value().toDouble() == value);
}

void tst_PropertyEditing::aTextIsEdited()
{
    Window window;
    QtVariantProperty *property = window.add(QStringLiteral("a"), QStringLiteral("old"));
    QVERIFY(window.showActive());
    retype(window.open(0), QStringLiteral("new text"));
    QTest::keyClick(window.editor(), Qt::Key_Return);
    QTRY_COMPARE(property->value(), QVariant(QStringLiteral("new text")));
    retype(window.open(0), QString());
    QTest::keyClick(window.editor(), Qt::Key_Return);
    QTRY_COMPARE(property->value().toString(), QString());
}

void tst_PropertyEditing::aCharacterIsEdited()
{
    Window window;
    QtVariantProperty *property = window.add(QStringLiteral("a"), QChar(u'x'));
    QVERIFY(window.showActive());
    QLineEdit *editor = window.open(0);
    retype(editor, QStringLiteral("yz"));
    QCOMPARE(editor->text(), QStringLiteral("y"));
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(property->value(), QVariant(QChar(u'y')));
}

void tst_PropertyEditing::aTruthIsEditedWithTheKeyboard()
{
    Window window;
    QtVariantProperty *property = window.add(QStringLiteral("a"), false);
    QVERIFY(window.showActive());
    auto *editor = window.open<QCheckBox>(0);
    QVERIFY(editor);
    QCOMPARE(editor->text(), QStringLiteral("False"));
    QTest::keyClick(editor, Qt::Key_Space);
    QCOMPARE(editor->text(), QStringLiteral("True"));
    QCOMPARE(property->value(), QVariant(false));
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(property->value(), QVariant(true));
    QCOMPARE(window.tree()->topLevelItem(0)->text(1), QStringLiteral("True"));
}

void tst_PropertyEditing::aDateIsEdited()
{
    Window window;
    QtVariantProperty *property = window.add(QStringLiteral("a"), QDate(2024, 2, 29));
    QVERIFY(window.showActive());
    auto *editor = window.open<QDateTimeEdit>(0);
    QVERIFY(editor);
    QCOMPARE(editor->text(), QStringLiteral("2024-02-29"));
    editor->setSelectedSection(QDateTimeEdit::YearSection);
    QTest::keyClick(editor, Qt::Key_Up);
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(property->value(), QVariant(QDate(2025, 2, 28)));
}

void tst_PropertyEditing::aTimeIsEdited()
{
    Window window;
    QtVariantProperty *property = window.add(QStringLiteral("a"), QTime(1, 2, 3, 4));
    QVERIFY(window.showActive());
    auto *editor = window.open<QDateTimeEdit>(0);
    QVERIFY(editor);
    QCOMPARE(editor->text(), QStringLiteral("01:02:03.004"));
    editor->setSelectedSection(QDateTimeEdit::MSecSection);
    QTest::keyClick(editor, Qt::Key_Down);
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(property->value(), QVariant(QTime(1, 2, 3, 3)));
}

void tst_PropertyEditing::aMomentKeepsItsZone_data()
{
    QTest::addColumn<QDateTime>("before");
    const QDate date(2024, 2, 29);
    const QTime time(1, 2, 3, 4);
    QTest::newRow("UTC") << QDateTime(date, time, Qt::UTC);
    QTest::newRow("local") << QDateTime(date, time, Qt::LocalTime);
    QTest::newRow("offset") << QDateTime(date, time, Qt::OffsetFromUTC, 19800);
}

void tst_PropertyEditing::aMomentKeepsItsZone()
{
    QFETCH(QDateTime, before);
    Window window;
    QtVariantProperty *property = window.add(QStringLiteral("a"), before);
    QVERIFY(window.showActive());
    auto *editor = window.open<QDateTimeEdit>(0);
    QVERIFY(editor);
    QCOMPARE(editor->text(), QStringLiteral("2024-02-29 01:02:03.004"));
    editor->setSelectedSection(QDateTimeEdit::HourSection);
    QTest::keyClick(editor, Qt::Key_Up);
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(property->value().toDateTime(), before.addSecs(3600));
    QCOMPARE(property->value().toDateTime().timeSpec(), before.timeSpec());
    QCOMPARE(property->value().toDateTime().offsetFromUtc(), before.offsetFromUtc());
}

void tst_PropertyEditing::aMomentInTheHourThatSummerTimeSkipsIsTaken()
{
    Window window;
    const QDateTime before(QDate(2024, 3, 31), QTime(1, 30), Qt::UTC);
    QtVariantProperty *property = window.add(QStringLiteral("a"), before);
    QVERIFY(window.showActive());
    auto *editor = window.open<QDateTimeEdit>(0);
    QVERIFY(editor);
    editor->setSelectedSection(QDateTimeEdit::HourSection);
    QTest::keyClick(editor, Qt::Key_Up);
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(property->value().toDateTime(), before.addSecs(3600));
    QCOMPARE(property->valueText(), QStringLiteral("2024-03-31T02:30:00.000Z"));
}

void tst_PropertyEditing::anEmptyMomentStaysEmptyUnlessEdited()
{
    Window window;
    QtVariantProperty *property = window.add(QStringLiteral("a"), QDateTime());
    QVERIFY(window.showActive());
    QVERIFY(window.open<QDateTimeEdit>(0));
    QTest::keyClick(window.editor(), Qt::Key_Return);
    QTRY_VERIFY(!window.editor());
    QVERIFY(!property->value().toDateTime().isValid());

    auto *editor = window.open<QDateTimeEdit>(0);
    editor->setSelectedSection(QDateTimeEdit::DaySection);
    QTest::keyClick(editor, Qt::Key_Up);
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(property->value().toDateTime(),
                 QDateTime(QDate(1970, 1, 2), QTime(0, 0), Qt::UTC));
}

void tst_PropertyEditing::aChangeFromElsewhereDoesNotDisturbTheTyping()
{
    Window window;
    QtVariantProperty *property = window.add(QStringLiteral("a"), 1);
    QVERIFY(window.showActive());
    QLineEdit *editor = window.open(0);
    retype(editor, QStringLiteral("50"));
    property->setValue(7);
    QCOMPARE(editor->text(), QStringLiteral("50"));
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(property->value(), QVariant(50));
}

void tst_PropertyEditing::clearingWhileAnEditorIsOpenWritesNothing()
{
    Window window;
    QtVariantProperty *property = window.add(QStringLiteral("a"), 1);
    QVERIFY(window.showActive());
    retype(window.open(0), QStringLiteral("50"));
    window.browser->clear();
    QVERIFY(!window.editor());
    QCOMPARE(property->value(), QVariant(1));
    window.browser->addProperty(property);
    QCOMPARE(window.tree()->topLevelItem(0)->text(1), QStringLiteral("1"));
}

void tst_PropertyEditing::deletingThePropertyWhileItsEditorIsOpenIsSafe()
{
    Window window;
    QtVariantProperty *property = window.add(QStringLiteral("a"), 1);
    QtVariantProperty *other = window.add(QStringLiteral("b"), 2);
    QVERIFY(window.showActive());
    retype(window.open(0), QStringLiteral("50"));
    QTest::keyClick(window.editor(), Qt::Key_Return);
    delete property;
    QCoreApplication::processEvents();
    QVERIFY(!window.editor());
    QCOMPARE(window.browser->properties(), QList<QtProperty *>{other});
    QCOMPARE(other->value(), QVariant(2));
}

void tst_PropertyEditing::deletingTheFactoryWhileAnEditorIsOpenIsSafe()
{
    Window window;
    QtVariantProperty *property = window.add(QStringLiteral("a"), 1);
    auto factory = std::make_unique<QtVariantEditorFactory>();
    window.browser->setFactoryForManager(&window.manager, factory.get());
    QVERIFY(window.showActive());
    retype(window.open(0), QStringLiteral("50"));
    factory.reset();
    QTest::keyClick(window.editor(), Qt::Key_Return);
    QTRY_VERIFY(!window.editor());
    QCOMPARE(property->value(), QVariant(1));
}

void tst_PropertyEditing::aReadOnlyRowOpensNoEditor()
{
    Window window;
    QtVariantProperty *disabled = window.add(QStringLiteral("disabled"), 1);
    disabled->setEnabled(false);
    QtVariantPropertyManager without;
    window.browser->addProperty(without.addProperty(QMetaType::Int, QStringLiteral("no factory")));
    QVERIFY(window.showActive());
    for (int row = 0; row < 2; ++row) {
        window.click(row, 1);
        QVERIFY(!window.editor());
    }
    window.browser->editProperty(disabled);
    QVERIFY(!window.editor());
}

void tst_PropertyEditing::theEditorIsNamedForAssistiveTechnology()
{
    Window window;
    QtVariantProperty *property = window.add(QStringLiteral("StrVal"), 1);
    QVERIFY(window.showActive());
    window.browser->editProperty(property);
    QVERIFY(window.editor());
    QCOMPARE(window.editor()->accessibleName(), QStringLiteral("StrVal"));
}

void tst_PropertyEditing::theEditorShowsItsWholeTextInTheRow()
{
    Window window;
    window.add(QStringLiteral("number"), 1);
    window.add(QStringLiteral("moment"), QDateTime(QDate(2024, 1, 1), QTime(0, 0), Qt::UTC));
    window.add(QStringLiteral("truth"), true);
    window.resize(500, 300);
    QVERIFY(window.showActive());
    for (int row = 0; row < 3; ++row) {
        window.click(row, 1);
        QVERIFY(window.editor());
        QVERIFY(window.editor()->height() >= window.editor()->fontMetrics().height());
        QVERIFY(window.editor()->width() > 100);
    }
}

QTEST_MAIN(tst_PropertyEditing)
#include "tst_propertyediting.moc"
