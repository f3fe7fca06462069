// SPDX-License-Identifier: Apache-2.0
#include "devicebuilder.h"
#include "testtemplates.h"

#include "model/iedmodel.h"
#include "model/iedmodeldelegate.h"

#include <QtGui/QClipboard>
#include <QtGui/QWheelEvent>
#include <QtTest/QtTest>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolTip>
#include <QtWidgets/QTreeView>
#include <QtWidgets/QVBoxLayout>

#include <cmath>
#include <limits>
#include <memory>

using namespace DeviceBuilder;

namespace {

QString s(const char *text)
{
    return QString::fromUtf8(text);
}

/// The number that the requests ask for, as text; several are joined.
QString asked(const QSignalSpy &requests)
{
    QStringList texts;
    for (const QList<QVariant> &request : requests)
        texts << request.at(1).toString();
    return texts.join(QLatin1Char(' '));
}

} // namespace

/// Edits values of a tree in a window with keys and the mouse, as an operator does.
class tst_ValueEditing : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void aTypedNumberIsSent_data();
    void aTypedNumberIsSent();
    void aPastedDecimalMarkIsAPoint();
    void whatIsNoNumberIsRefusedWithATip_data();
    void whatIsNoNumberIsRefusedWithATip();
    void enterOnAnUnreadableTextKeepsTheEditorOpen_data();
    void enterOnAnUnreadableTextKeepsTheEditorOpen();
    void whatIsLeftOfARefusedTextIsSentOnlyWhenAskedTwice_data();
    void whatIsLeftOfARefusedTextIsSentOnlyWhenAskedTwice();
    void aPointThatMayGroupDigitsIsAskedFor();
    void aTextOfAProgramIsLeftAsItIs();

    void aHalfTypedValueIsNotSent_data();
    void aHalfTypedValueIsNotSent();
    void anotherWindowLeavesTheEditorOpen();
    void tabAndAClickInTheTreeSend_data();
    void tabAndAClickInTheTreeSend();
    void aClickDoesNotSendAnUnreadableText();

    void aListOpensWithItsCell();
    void theWheelAndTheKeysDoNotCommand();
    void aChoiceCommandsOnce_data();
    void aChoiceCommandsOnce();
    void aListThatIsClosedTakesItsEditorWithIt();
    void aQuestionInTheMiddleOfAChoiceIsSafe();

private:
    QModelIndex cell(const char *name) const
    {
        return m_model->indexForReference(s("LD/LN$CF$DO$") + s(name)).siblingAtColumn(1);
    }
    DataAttribute *attribute(const char *name) const
    {
        return IEDModel::nodeAt(cell(name))->dataAttribute();
    }
    QPoint middleOf(const char *name) const { return m_view->visualRect(cell(name)).center(); }
    void click(const QPoint &position, Qt::MouseButton button = Qt::LeftButton) const
    {
        // A click takes the focus before the view learns of it, as it does on a screen.
        QTest::mouseClick(m_view->viewport(), button, Qt::NoModifier, position);
    }
    template <typename Editor>
    Editor *open(const char *name) const;

    std::unique_ptr<TestTemplates> m_templates;
    std::unique_ptr<PhysicalDevice> m_device;
    std::unique_ptr<IEDModel> m_model;
    std::unique_ptr<IEDModelDelegate> m_delegate;
    std::unique_ptr<QDialog> m_window;
    QTreeView *m_view = nullptr;
    QPushButton *m_close = nullptr;
    std::unique_ptr<QSignalSpy> m_requests;
};

void tst_ValueEditing::init()
{
    m_templates = std::make_unique<TestTemplates>(
        "<DataTypeTemplate><EnumType id=\"Beh\"><EnumVal ord=\"1\">on</EnumVal>"
        "<EnumVal ord=\"2\">blocked</EnumVal><EnumVal ord=\"3\">test</EnumVal>"
        "<EnumVal ord=\"5\">off</EnumVal></EnumType></DataTypeTemplate>");
    m_device = std::make_unique<PhysicalDevice>();
    DataObject *const dataObject = addDataObject(
        addLogicalNode(addLogicalDevice(*m_device, s("LD")), s("LN"), s("LN")), s("DO"), s("SPG"));
    const std::pair<const char *, const char *> attributes[] = {
        {"single", "FLOAT32"}, {"double", "FLOAT64"}, {"tiny", "INT8"},   {"word", "INT16U"},
        {"long", "INT32"},     {"wide", "INT64"},     {"step", "Tcmd"},   {"text", "VisString255"},
        {"mode", "Enum"},      {"flag", "BOOLEAN"},   {"other", "INT32U"}};
    for (const auto &[name, type] : attributes) {
        addAttribute(dataObject->attributes, s(name), s("CF"), s(type), 0,
                     s("LD/LN$CF$DO$") + s(name));
    }
    m_device->rebuildIndex();
    m_model = std::make_unique<IEDModel>(m_templates.get());
    m_model->setDevice(m_device.get());
    attribute("mode")->enumTypeId = s("Beh");
    attribute("mode")->value = 2;
    m_delegate = std::make_unique<IEDModelDelegate>(m_templates.get());

    m_window = std::make_unique<QDialog>();
    auto *const layout = new QVBoxLayout(m_window.get());
    m_view = new QTreeView;
    m_close = new QPushButton(s("&Close"));
    m_close->setAutoDefault(false);
    layout->addWidget(m_view);
    layout->addWidget(m_close);
    m_view->setModel(m_model.get());
    m_view->setItemDelegate(m_delegate.get());
    m_view->setContextMenuPolicy(Qt::CustomContextMenu);
    m_view->setColumnWidth(1, 200);
    m_view->expandAll();
    m_window->resize(600, 600);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    m_requests = std::make_unique<QSignalSpy>(m_model.get(), &IEDModel::needWriteValue);
}

void tst_ValueEditing::cleanup()
{
    QLocale::setDefault(QLocale::c());
    QToolTip::hideText();
    m_window.reset();
    m_delegate.reset();
    m_requests.reset();
    m_model.reset();
    m_device.reset();
    m_templates.reset();
}

template <typename Editor>
Editor *tst_ValueEditing::open(const char *name) const
{
    click(middleOf(name));
    QTest::mouseDClick(m_view->viewport(), Qt::LeftButton, Qt::NoModifier, middleOf(name));
    return m_view->viewport()->findChild<Editor *>();
}

void tst_ValueEditing::aTypedNumberIsSent_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QVariant>("sent");

    constexpr float largest = std::numeric_limits<float>::max();
    constexpr float infinite = std::numeric_limits<float>::infinity();
    QTest::newRow("a fraction") << "C"
                                << "single"
                                << "95.5" << QVariant(95.5F);
    QTest::newRow("a German fraction") << "de_DE"
                                       << "single"
                                       << "95,5" << QVariant(95.5F);
    QTest::newRow("a German fraction below one") << "de_DE"
                                                 << "double"
                                                 << "0,25" << QVariant(0.25);
    QTest::newRow("begun with the mark") << "de_DE"
                                         << "double"
                                         << ",25" << QVariant(0.25);
    QTest::newRow("a point in German") << "de_DE"
                                       << "double"
                                       << "0.25" << QVariant(0.25);
    QTest::newRow("an exponent") << "C"
                                 << "single"
                                 << "-1.5e3" << QVariant(-1500.0F);
    QTest::newRow("the largest float as shown") << "C"
                                                << "single"
                                                << "3.40282e+38" << QVariant(3.40282e+38F);
    QTest::newRow("the largest float in full") << "C"
                                               << "single"
                                               << "3.4028235e+38" << QVariant(largest);
    QTest::newRow("the largest float rounded up") << "C"
                                                  << "single"
                                                  << "-3.40282347e+38" << QVariant(-largest);
    QTest::newRow("infinity as such") << "C"
                                      << "single"
                                      << "-inf" << QVariant(-infinite);
    QTest::newRow("the smallest of a byte") << "C"
                                            << "tiny"
                                            << "-128" << QVariant(-128);
    QTest::newRow("the largest of a word") << "C"
                                           << "word"
                                           << "65535" << QVariant(65535);
    QTest::newRow("the smallest of 64 bits")
        << "C"
        << "wide"
        << "-9223372036854775808" << QVariant(std::numeric_limits<qlonglong>::min());
    QTest::newRow("the largest of 32 bits") << "C"
                                            << "other"
                                            << "4294967295" << QVariant(4294967295U);
    QTest::newRow("a sign") << "C"
                            << "long"
                            << "+5" << QVariant(5);
    QTest::newRow("a step command") << "C"
                                    << "step"
                                    << "2" << QVariant(2);
    QTest::newRow("any text") << "C"
                              << "text"
                              << "5 kV, \"x\"" << QVariant(s("5 kV, \"x\""));
}

void tst_ValueEditing::aTypedNumberIsSent()
{
    QFETCH(QString, locale);
    QFETCH(QString, name);
    QFETCH(QString, typed);
    QFETCH(QVariant, sent);
    QLocale::setDefault(QLocale(locale));
    const QPointer<QLineEdit> line = open<QLineEdit>(name.toLatin1());
    QVERIFY(line);
    QTest::keyClicks(line, typed);
    QTest::keyClick(line, Qt::Key_Return);
    QTRY_VERIFY(!line);
    QCOMPARE(m_requests->count(), 1);
    const QVariant value = m_requests->first().at(1);
    QCOMPARE(value.userType(), sent.userType());
    // QVariant would compare fractions with a tolerance.
    if (sent.userType() == QMetaType::Float)
        QVERIFY2(value.toFloat() == sent.toFloat(), qPrintable(value.toString()));
    else
        QCOMPARE(value, sent);
    QVERIFY(m_window->isVisible());
}

void tst_ValueEditing::aPastedDecimalMarkIsAPoint()
{
    QLocale::setDefault(QLocale(s("de_DE")));
    auto *const line = open<QLineEdit>("single");
    QVERIFY(line);
    QApplication::clipboard()->setText(s(" 0,25 "));
    QTest::keyClick(line, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(line->text(), s("0.25"));
    line->clear();
    QApplication::clipboard()->setText(s("1.000,5"));
    QTest::keyClick(line, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(line->text(), QString());
}

void tst_ValueEditing::whatIsNoNumberIsRefusedWithATip_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("left");
    QTest::addColumn<QString>("tip");
    const QString fraction = s("A number with a decimal point is needed, such as 0.25 or 1e-3.");
    QTest::newRow("letters") << "single"
                             << "abc"
                             << "" << fraction;
    QTest::newRow("a comma") << "single"
                             << "95,"
                             << "95" << fraction;
    QTest::newRow("a blank") << "double"
                             << "5 "
                             << "5" << fraction;
    QTest::newRow("hexadecimal") << "long"
                                 << "0x"
                                 << "0"
                                 << s("A whole number from -2147483648 to 2147483647 is needed.");
    QTest::newRow("a fraction") << "tiny"
                                << "1."
                                << "1" << s("A whole number from -128 to 127 is needed.");
    QTest::newRow("too large for a byte")
        << "tiny"
        << "128"
        << "12" << s("A whole number from -128 to 127 is needed.");
    QTest::newRow("a sign") << "word"
                            << "-"
                            << "" << s("A whole number from 0 to 65535 is needed.");
    QTest::newRow("no step command") << "step"
                                     << "4"
                                     << "" << s("A whole number from 0 to 3 is needed.");
}

void tst_ValueEditing::whatIsNoNumberIsRefusedWithATip()
{
    QFETCH(QString, name);
    QFETCH(QString, typed);
    QFETCH(QString, left);
    QFETCH(QString, tip);
    auto *const line = open<QLineEdit>(name.toLatin1());
    QVERIFY(line);
    QTest::keyClicks(line, typed);
    QCOMPARE(line->text(), left);
    QCOMPARE(QToolTip::text(), tip);
    QCOMPARE(m_requests->count(), 0);
}

void tst_ValueEditing::enterOnAnUnreadableTextKeepsTheEditorOpen_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("tip");
    const QString fraction = s("A number with a decimal point is needed, such as 0.25 or 1e-3.");
    const QString tooLarge = s("The number is too large: the data type ends at 3.4028235e38.");
    const QString tooSmall = s("The number is too small: in this data type it would become 0.");
    QTest::newRow("an exponent begun") << "single"
                                       << "1e" << fraction;
    QTest::newRow("a sign alone") << "long"
                                  << "-"
                                  << s("A whole number from -2147483648 to 2147483647 is needed.");
    QTest::newRow("too large for a float") << "single"
                                           << "1e39" << tooLarge;
    QTest::newRow("just too large for a float") << "single"
                                                << "-3.4028236e38" << tooLarge;
    QTest::newRow("too small for a float") << "single"
                                           << "1e-50" << tooSmall;
    QTest::newRow("too large for a double") << "double"
                                            << "1e999" << fraction;
    QTest::newRow("too small for a double") << "double"
                                            << "1e-999" << fraction;
}

void tst_ValueEditing::enterOnAnUnreadableTextKeepsTheEditorOpen()
{
    QFETCH(QString, name);
    QFETCH(QString, typed);
    QFETCH(QString, tip);
    const QPointer<QLineEdit> line = open<QLineEdit>(name.toLatin1());
    QVERIFY(line);
    QTest::keyClicks(line, typed);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab}) {
        QToolTip::hideText();
        QTest::keyClick(line, key);
        QCoreApplication::processEvents();
        QVERIFY(line && line->isVisible());
        QCOMPARE(line->text(), typed);
        QCOMPARE(QToolTip::text(), tip);
    }
    QCOMPARE(m_requests->count(), 0);
    line->selectAll();
    QTest::keyClicks(line, s("7"));
    QTest::keyClick(line, Qt::Key_Return);
    QTRY_COMPARE(asked(*m_requests), s("7"));
}

void tst_ValueEditing::whatIsLeftOfARefusedTextIsSentOnlyWhenAskedTwice_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("left");
    QTest::newRow("a comma") << "single"
                             << "95,5"
                             << "955";
    QTest::newRow("begun with a comma") << "single"
                                        << ",25"
                                        << "25";
    QTest::newRow("a unit") << "single"
                            << "5 kV"
                            << "5";
    QTest::newRow("a digit too many") << "tiny"
                                      << "1280"
                                      << "120";
}

void tst_ValueEditing::whatIsLeftOfARefusedTextIsSentOnlyWhenAskedTwice()
{
    QFETCH(QString, name);
    QFETCH(QString, typed);
    QFETCH(QString, left);
    const QPointer<QLineEdit> line = open<QLineEdit>(name.toLatin1());
    QVERIFY(line);
    QTest::keyClicks(line, typed);
    QCOMPARE(line->text(), left);
    QTest::keyClick(line, Qt::Key_Return);
    QCoreApplication::processEvents();
    QVERIFY(line && line->isVisible());
    QCOMPARE(QToolTip::text(),
             s("Not all that was typed was taken. Press Enter again if %1 is meant.").arg(left));
    QCOMPARE(m_requests->count(), 0);
    QTest::keyClick(line, Qt::Key_Return);
    QTRY_COMPARE(asked(*m_requests), left);
}

void tst_ValueEditing::aPointThatMayGroupDigitsIsAskedFor()
{
    QLocale::setDefault(QLocale(s("de_DE")));
    QPointer<QLineEdit> line = open<QLineEdit>("double");
    QVERIFY(line);
    QTest::keyClicks(line, s("1.234"));
    QTest::keyClick(line, Qt::Key_Return);
    QCoreApplication::processEvents();
    QVERIFY(line && line->isVisible());
    QCOMPARE(QToolTip::text(), s("The point in 1.234 is read as the decimal point. Press Enter "
                                 "again if this is meant."));
    QCOMPARE(m_requests->count(), 0);
    QTest::keyClick(line, Qt::Key_Return);
    QTRY_COMPARE(asked(*m_requests), s("1.234"));

    QTRY_VERIFY(!line);
    line = open<QLineEdit>("double");
    QVERIFY(line);
    QTest::keyClicks(line, s("1,235"));
    QTest::keyClick(line, Qt::Key_Return);
    QTRY_COMPARE(asked(*m_requests), s("1.234 1.235"));
}

void tst_ValueEditing::aTextOfAProgramIsLeftAsItIs()
{
    QLocale::setDefault(QLocale(s("de_DE")));
    attribute("single")->value = 3.0F;
    const QPointer<QLineEdit> line = open<QLineEdit>("single");
    QVERIFY(line);
    line->setText(s("1,5"));
    QCOMPARE(line->text(), s("1,5"));
    QTest::keyClick(line, Qt::Key_Return);
    QTRY_COMPARE(asked(*m_requests), s("0"));
}

void tst_ValueEditing::aHalfTypedValueIsNotSent_data()
{
    QTest::addColumn<QString>("how");
    for (const char *const how :
         {"a click on the button", "the key of the button", "a right click on another row",
          "the window is closed", "the focus is given away", "Escape", "another row by program"}) {
        QTest::newRow(how) << s(how);
    }
}

void tst_ValueEditing::aHalfTypedValueIsNotSent()
{
    QFETCH(QString, how);
    for (const char *const name : {"single", "text"}) {
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        const QPointer<QLineEdit> line = open<QLineEdit>(name);
        QVERIFY(line);
        QTest::keyClicks(line, s("12"));
        if (how.contains(s("click on the button"))) {
            // QTest gives the focus to nobody, a mouse does.
            m_close->setFocus(Qt::MouseFocusReason);
            QTest::mouseClick(m_close, Qt::LeftButton);
        } else if (how.contains(s("key of the button"))) {
            m_close->setFocus(Qt::ShortcutFocusReason);
        } else if (how.contains(s("right click"))) {
            m_view->setFocus(Qt::MouseFocusReason);
            click(middleOf("other"), Qt::RightButton);
        } else if (how.contains(s("closed"))) {
            m_window->close();
        } else if (how.contains(s("given away"))) {
            m_view->setFocus();
        } else if (how == s("Escape")) {
            QTest::keyClick(line, Qt::Key_Escape);
        } else {
            m_view->setCurrentIndex(cell("other"));
        }
        QTRY_VERIFY(!line || !line->isVisible());
        QCoreApplication::processEvents();
        QCOMPARE(m_requests->count(), 0);
    }
}

void tst_ValueEditing::anotherWindowLeavesTheEditorOpen()
{
    const QPointer<QLineEdit> line = open<QLineEdit>("single");
    QVERIFY(line);
    QTest::keyClicks(line, s("1"));
    QWidget other;
    other.show();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    QCOMPARE(m_requests->count(), 0);
    QVERIFY(line && line->isVisible());
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QTRY_VERIFY(line->hasFocus());
    QTest::keyClicks(line, s("2"));
    QTest::keyClick(line, Qt::Key_Return);
    QTRY_COMPARE(asked(*m_requests), s("12"));
}

void tst_ValueEditing::tabAndAClickInTheTreeSend_data()
{
    QTest::addColumn<QString>("how");
    QTest::newRow("Tab") << s("Tab");
    QTest::newRow("Backtab") << s("Backtab");
    QTest::newRow("another row") << s("row");
    QTest::newRow("the name of the row") << s("name");
    QTest::newRow("below the rows") << s("below");
}

void tst_ValueEditing::tabAndAClickInTheTreeSend()
{
    QFETCH(QString, how);
    const QPointer<QLineEdit> line = open<QLineEdit>("single");
    QVERIFY(line);
    QTest::keyClicks(line, s("1.5"));
    if (how.endsWith(s("ab"))) {
        QTest::keyClick(line, how == s("Tab") ? Qt::Key_Tab : Qt::Key_Backtab);
    } else {
        m_view->setFocus(Qt::MouseFocusReason);
        click(how == s("row")    ? middleOf("other")
              : how == s("name") ? m_view->visualRect(cell("single").siblingAtColumn(0)).center()
                                 : QPoint(100, m_view->viewport()->height() - 3));
    }
    QTRY_VERIFY(!line || !line->isVisible());
    QTRY_COMPARE(asked(*m_requests), s("1.5"));
    QCOMPARE(m_requests->first().at(0).toModelIndex(), cell("single"));
}

void tst_ValueEditing::aClickDoesNotSendAnUnreadableText()
{
    const QPointer<QLineEdit> line = open<QLineEdit>("single");
    QVERIFY(line);
    QTest::keyClicks(line, s("1e39"));
    m_view->setFocus(Qt::MouseFocusReason);
    click(middleOf("other"));
    QCoreApplication::processEvents();
    QVERIFY(line && line->isVisible());
    QVERIFY(line->hasFocus());
    QCOMPARE(QToolTip::text(), s("The number is too large: the data type ends at 3.4028235e38."));
    QCOMPARE(m_requests->count(), 0);
    QTest::keyClick(line, Qt::Key_Escape);
    QTRY_VERIFY(!line);
    QCOMPARE(m_requests->count(), 0);
}

void tst_ValueEditing::aListOpensWithItsCell()
{
    auto *const box = open<QComboBox>("mode");
    QVERIFY(box);
    QTRY_VERIFY(box->view()->isVisible());
    QCOMPARE(box->currentText(), s("blocked"));
    QCOMPARE(m_requests->count(), 0);
}

void tst_ValueEditing::theWheelAndTheKeysDoNotCommand()
{
    QPointer<QComboBox> box = open<QComboBox>("mode");
    QVERIFY(box);
    const auto turnTheWheel = [&] {
        const QPoint middle = box->rect().center();
        QWheelEvent wheel(middle, box->mapToGlobal(middle), QPoint(), QPoint(0, -120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(box, &wheel);
    };
    turnTheWheel();
    QTRY_VERIFY(box->view()->isVisible());
    turnTheWheel();
    for (const Qt::Key key :
         {Qt::Key_Down, Qt::Key_Up, Qt::Key_End, Qt::Key_Home, Qt::Key_PageDown, Qt::Key_O}) {
        QTest::keyClick(box, key);
        QTest::keyClick(box->view(), key);
    }
    QCOMPARE(m_requests->count(), 0);
    QTest::keyClick(box->view(), Qt::Key_Escape);
    QTRY_VERIFY(!box);
    QCOMPARE(m_requests->count(), 0);
    QCOMPARE(attribute("mode")->value, QVariant(2));
}

void tst_ValueEditing::aChoiceCommandsOnce_data()
{
    QTest::addColumn<bool>("isRefused");
    QTest::newRow("done") << false;
    QTest::newRow("refused, and the device's value shown again") << true;
}

void tst_ValueEditing::aChoiceCommandsOnce()
{
    QFETCH(bool, isRefused);
    QPointer<QComboBox> box = open<QComboBox>("mode");
    QVERIFY(box);
    QTRY_VERIFY(box->view()->isVisible());
    QTest::keyClick(box->view(), Qt::Key_Down);
    QCOMPARE(m_requests->count(), 0);
    QTest::keyClick(box->view(), Qt::Key_Return);
    QCOMPARE(asked(*m_requests), s("3"));
    if (isRefused) {
        MMSValue known;
        known.reference = attribute("mode")->reference;
        known.value = 2;
        m_model->updateValues({known});
    }
    click(middleOf("other"));
    QTRY_VERIFY(!box);
    QCOMPARE(asked(*m_requests), s("3"));

    // Wanted again, sent again.
    box = open<QComboBox>("mode");
    QVERIFY(box);
    QTRY_VERIFY(box->view()->isVisible());
    QTest::keyClick(box->view(), isRefused ? Qt::Key_Down : Qt::Key_Up);
    QTest::keyClick(box->view(), Qt::Key_Return);
    QCOMPARE(asked(*m_requests), isRefused ? s("3 3") : s("3 2"));
}

void tst_ValueEditing::aListThatIsClosedTakesItsEditorWithIt()
{
    const QPointer<QComboBox> box = open<QComboBox>("flag");
    QVERIFY(box);
    QTRY_VERIFY(box->view()->isVisible());
    box->hidePopup();
    QTRY_VERIFY(!box);
    QCOMPARE(m_requests->count(), 0);
}

void tst_ValueEditing::aQuestionInTheMiddleOfAChoiceIsSafe()
{
    int questions = 0;
    connect(m_model.get(), &IEDModel::needWriteValue, m_window.get(), [&] {
        ++questions;
        QDialog question(m_window.get());
        QTimer::singleShot(0, &question, [&question] {
            // Deferred deletions of the window below may come in here.
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            question.accept();
        });
        question.exec();
    });
    const QPointer<QComboBox> box = open<QComboBox>("flag");
    QVERIFY(box);
    QTRY_VERIFY(box->view()->isVisible());
    QTest::keyClick(box->view(), Qt::Key_Down);
    QTest::keyClick(box->view(), Qt::Key_Return);
    QTRY_VERIFY(!box);
    QCOMPARE(questions, 1);
    QCOMPARE(asked(*m_requests), s("1"));

    const QPointer<QLineEdit> line = open<QLineEdit>("single");
    QVERIFY(line);
    QTest::keyClicks(line, s("2.5"));
    m_view->setFocus(Qt::MouseFocusReason);
    click(middleOf("other"));
    QTRY_COMPARE(asked(*m_requests), s("1 2.5"));
    QCOMPARE(questions, 2);
}

QTEST_MAIN(tst_ValueEditing)
#include "tst_valueediting.moc"
