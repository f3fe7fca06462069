// SPDX-License-Identifier: Apache-2.0
// A host destroys or closes the browser while something of it is open.
#include "browserfixture.h"

#include "support/generateddevice.h"
#include "support/modaldriver.h"

#include <remoteclient/controllercallguard.h>

#include <QtCore/QMap>
#include <QtCore/QPointer>
#include <QtTest/QTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTreeWidget>

namespace {

const QString ld = "BAYCTRL";

/// Something of a browser that is open when the browser comes to its end.
struct Place
{
    std::function<void(BrowserFixture &)> prepare; ///< before the browser is opened
    std::function<void(IEDModelView &)> open;   ///< leads to the window, returns when it has ended
    std::vector<ModalDriver::Step> before = {}; ///< what opens further windows on the way
};

void trigger(IEDModelView &view, const char *action)
{
    BrowserFixture::action(view, action)->trigger();
}

void click(QWidget *dialog, const char *button)
{
    QTest::mouseClick(dialog->findChild<QPushButton *>(button), Qt::LeftButton);
}

void accept(QWidget *dialog)
{
    const auto *buttons = dialog->findChild<QDialogButtonBox *>("buttonBox");
    QTest::mouseClick(buttons->button(QDialogButtonBox::Ok), Qt::LeftButton);
}

/// Let the mouse do it, so that the view's own functions are on the stack.
void doubleClick(IEDModelView &view)
{
    QTreeView *const tree = BrowserFixture::tree(view);
    const QPoint spot = tree->visualRect(tree->currentIndex()).center();
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, spot);
    QTest::mouseDClick(tree->viewport(), Qt::LeftButton, {}, spot);
}

void contextMenu(IEDModelView &view)
{
    QTreeView *const tree = BrowserFixture::tree(view);
    const QPoint spot = tree->visualRect(tree->currentIndex()).center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, spot, tree->viewport()->mapToGlobal(spot));
    QApplication::sendEvent(tree->viewport(), &event);
}

ModalDriver::Step chooseInMenu(const char *text)
{
    return [text](QWidget *window) {
        auto *const menu = qobject_cast<QMenu *>(window);
        QVERIFY(menu);
        const auto actions = menu->actions();
        for (QAction *action : actions) {
            if (action->text() == QLatin1String(text)) {
                QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
                return;
            }
        }
        QFAIL("The menu has no such entry.");
    };
}

/// A guard that asks in a box of its own, as a host may.
class AskingGuard : public ControllerCallGuard
{
public:
    AskingGuard() { install(this); }
    ~AskingGuard() override { install(nullptr); }

    QString refusal(const GuardedCall &) override
    {
        QMessageBox box(QMessageBox::Question, "Host", "Really?",
                        QMessageBox::Yes | QMessageBox::No);
        m_box = &box;
        return box.exec() == QMessageBox::Yes ? QString() : QStringLiteral("Not confirmed.");
    }

    void withdraw()
    {
        if (m_box)
            m_box->reject();
    }

private:
    QPointer<QMessageBox> m_box;
};

void offline(BrowserFixture &fixture)
{
    fixture.device->offline = true;
}

std::function<void(BrowserFixture &)> refusing(const char *operation)
{
    return [operation](BrowserFixture &fixture) {
        fixture.service->setAnswer(operation, OperationFailed, "The device refuses.");
    };
}

/// The position is controlled by number.
void numbered(BrowserFixture &fixture)
{
    DataObject *const pos = fixture.device->logicalDevices[0]->logicalNodes[1]->dataObjects[0];
    pos->getDAOByName("stVal")->attribute->basicType = "INT32";
    pos->getDAOByName("Oper")->getDAOByName("ctlVal")->attribute->basicType = "INT32";
}

const QStringList position = {ld, "XCBR1", "Pos"};
const QStringList block = {ld, "LLN0", "ReportControl", "brcb01"};
const QStringList settingGroups = {ld, "LLN0", "SGCB"};
const QStringList description = {ld, "XCBR1", "Pos", "d"};

QMap<QString, Place> places()
{
    const auto nothing = [](BrowserFixture &) {};
    const auto at = [](const QStringList &names, std::function<void(IEDModelView &)> open) {
        return [names, open](IEDModelView &view) {
            BrowserFixture::select(view, names);
            open(view);
        };
    };
    const auto doing = [](const char *action) {
        return [action](IEDModelView &view) { trigger(view, action); };
    };
    const auto pressing = [](const char *button) {
        return [button](QWidget *dialog) { click(dialog, button); };
    };
    const auto inEditor = [](IEDModelView &view) {
        QTreeView *const tree = BrowserFixture::tree(view);
        BrowserFixture::select(view, description, 1);
        tree->edit(tree->currentIndex());
        auto *const line = tree->viewport()->findChild<QLineEdit *>();
        QVERIFY(line);
        QTest::keyClicks(line, "New");
        QTest::keyClick(line, Qt::Key_Return);
    };

    QMap<QString, Place> all;
    all["context menu"] = {nothing, at(position, contextMenu)};
    all["box of a service chosen in the context menu"] = {
        refusing("readVariable"), at(position, contextMenu), {chooseInMenu("Read")}};
    all["dialog chosen in the context menu"] = {
        nothing, at(position, contextMenu), {chooseInMenu("Operate")}};
    all["choice of a functional constraint"] = {nothing, at({ld, "XCBR1"}, doing("Read"))};
    all["box of a service"] = {refusing("getServerDirectory"),
                               at({}, doing("GetServer Directory"))};
    all["box of a refused write"] = {refusing("writeVariable"), inEditor};
    all["box of a failed reading back"] = {refusing("readVariable"), inEditor};
    all["choice of members"] = {nothing, at({}, doing("Create Non-Persistent DataSet"))};
    all["box over the choice of members"] = {
        nothing, at({}, doing("Create Non-Persistent DataSet")), {accept}};
    all["control dialog"] = {nothing, at(position, doing("Operate"))};
    all["box on the typed value of a control"] = {
        numbered, at(position, doing("Operate")), {[](QWidget *dialog) {
            // A number out of range: a text that is none does not let itself be typed.
            auto *const line = dialog->findChild<QLineEdit *>("ctrEdit");
            line->setText("99999999999");
            line->setModified(true);
            accept(dialog);
        }}};
    all["report dialog"] = {nothing, at(block, doubleClick)};
    all["box instead of the report dialog"] = {refusing("getBRCBValues"), at(block, doubleClick)};
    all["box over the report dialog"] = {
        refusing("writeValue"), at(block, doubleClick), {pressing("triggerChange")}};
    all["report dialog of a file"] = {offline, at(block, doubleClick)};
    all["setting group dialog"] = {nothing, at(settingGroups, doubleClick)};
    all["box instead of the setting group dialog"] = {refusing("getSGCB"),
                                                      at(settingGroups, doubleClick)};
    all["box over the setting group dialog"] = {
        refusing("setSGCBValues"), at(settingGroups, doubleClick), {pressing("execute")}};
    all["box of the first reading of setting groups"] = {
        [](BrowserFixture &fixture) {
            fixture.service->addAnswer("getSGCB", OperationSucceeded);
            fixture.service->addAnswer("getSGCB", OperationFailed, "Lost meanwhile.");
        },
        at(settingGroups, doubleClick),
        // The dialog itself, half a second before its box.
        {[](QWidget *window) {
            const QPointer<QWidget> dialog(window);
            QTRY_VERIFY(!dialog || !dialog->isVisible());
        }}};
    all["setting group dialog of a file"] = {offline, at(settingGroups, doubleClick)};
    return all;
}

QWidgetList shownWindows()
{
    QWidgetList shown;
    const auto all = QApplication::topLevelWidgets();
    for (QWidget *window : all) {
        if (window->isVisible())
            shown << window;
    }
    return shown;
}

} // namespace

class tst_WindowEnds : public QObject
{
    Q_OBJECT

private slots:
    void destroyedInThePlace_data();
    void destroyedInThePlace();
    void closedInThePlace_data();
    void closedInThePlace();
    void destroyedWhileAHostAsks_data();
    void destroyedWhileAHostAsks();
    void destroyedDuringTheBoxOfTheOpening();
    void destroyedDuringACall_data();
    void destroyedDuringACall();
    void destroyedWhileNothingIsOpenLeavesNothing();

private:
    void run(const std::function<void(IEDModelView *)> &end);
};

void tst_WindowEnds::run(const std::function<void(IEDModelView *)> &end)
{
    const Place place = places().value(QTest::currentDataTag());
    BrowserFixture fixture;
    fixture.service->reportBlock.reference = "LLN0$BR$brcb01";
    place.prepare(fixture);
    QPointer<IEDModelView> view = fixture.open().release();
    view->setAttribute(Qt::WA_DeleteOnClose);
    view->show();
    QVERIFY(QTest::qWaitForWindowExposed(view));

    QStringList callsBefore;
    std::vector<ModalDriver::Step> steps = place.before;
    steps.push_back([&](QWidget *window) {
        QVERIFY(window->isVisible());
        callsBefore = fixture.service->operations();
        end(view);
    });
    ModalDriver driver(steps);
    place.open(*view);
    QTRY_VERIFY(driver.finished());
    QTRY_VERIFY(!view);
    QTRY_COMPARE(shownWindows(), QWidgetList());
    // Nobody is left who could want anything of the device.
    QCOMPARE(fixture.service->operations(), callsBefore);
    QVERIFY(!QApplication::overrideCursor());
}

void tst_WindowEnds::destroyedInThePlace_data()
{
    QTest::addColumn<int>("unused");
    const QStringList names = places().keys();
    for (const QString &name : names)
        QTest::newRow(qPrintable(name)) << 0;
}

void tst_WindowEnds::destroyedInThePlace()
{
    run([](IEDModelView *view) { delete view; });
}

void tst_WindowEnds::closedInThePlace_data()
{
    destroyedInThePlace_data();
}

void tst_WindowEnds::closedInThePlace()
{
    run([](IEDModelView *view) { view->close(); });
}

void tst_WindowEnds::destroyedWhileAHostAsks_data()
{
    QTest::addColumn<QStringList>("node");
    QTest::addColumn<bool>("byEditor");
    QTest::addColumn<bool>("confirmed");
    QTest::newRow("service, withdrawn") << QStringList{"Temporary"} << false << false;
    QTest::newRow("service, confirmed") << QStringList{"Temporary"} << false << true;
    QTest::newRow("typed value, withdrawn") << description << true << false;
    QTest::newRow("typed value, confirmed") << description << true << true;
}

void tst_WindowEnds::destroyedWhileAHostAsks()
{
    QFETCH(QStringList, node);
    QFETCH(bool, byEditor);
    QFETCH(bool, confirmed);
    BrowserFixture fixture;
    QPointer<IEDModelView> view = fixture.open().release();
    view->show();
    QVERIFY(QTest::qWaitForWindowExposed(view));
    AskingGuard guard;
    ModalDriver driver({[&](QWidget *box) {
        delete view;
        if (confirmed)
            static_cast<QMessageBox *>(box)->button(QMessageBox::Yes)->click();
        else
            guard.withdraw();
    }});
    BrowserFixture::select(*view, node, byEditor ? 1 : 0);
    if (byEditor) {
        QTreeView *const tree = BrowserFixture::tree(*view);
        tree->edit(tree->currentIndex());
        auto *const line = tree->viewport()->findChild<QLineEdit *>();
        QTest::keyClicks(line, "New");
        QTest::keyClick(line, Qt::Key_Return);
    } else {
        trigger(*view, "Delete DataSet");
    }
    QTRY_VERIFY(driver.finished());
    QVERIFY(!view);
    QCOMPARE(shownWindows(), QWidgetList());
    // What was confirmed goes out; it is not read back for a window that is gone.
    const QString change = byEditor ? "writeVariable" : "deleteDataSet";
    QCOMPARE(fixture.service->calls(change).size(), confirmed ? 1 : 0);
    QCOMPARE(fixture.service->calls("readVariable").size(), 0);
}

void tst_WindowEnds::destroyedDuringTheBoxOfTheOpening()
{
    BrowserFixture fixture;
    fixture.service->setAnswer("getIEDModel", OperationFailed, "No.");
    QPointer<IEDModelView> view = new IEDModelView(
        BrowserFixture::driverNo, BrowserFixture::deviceNo, 0, &fixture.context, nullptr);
    ModalDriver driver({[&view](QWidget *) { delete view; }});
    QVERIFY(!view->init());
    QVERIFY(driver.finished());
    QVERIFY(!view);
}

void tst_WindowEnds::destroyedDuringACall_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QStringList>("node");
    QTest::addColumn<QByteArray>("action");
    QTest::newRow("the model") << "getIEDModel" << QStringList{} << QByteArray();
    QTest::newRow("a read") << "readVariable" << position << QByteArray("Read");
    QTest::newRow("a data set is deleted")
        << "deleteDataSet" << QStringList{"Temporary"} << QByteArray("Delete DataSet");
    QTest::newRow("a report block")
        << "getBRCBValues" << block << QByteArray("Open Report Control");
    QTest::newRow("a setting group block")
        << "getSGCB" << settingGroups << QByteArray("Open Setting Group Control");
}

void tst_WindowEnds::destroyedDuringACall()
{
    QFETCH(QString, operation);
    QFETCH(QStringList, node);
    QFETCH(QByteArray, action);
    BrowserFixture fixture;
    QPointer<IEDModelView> view;
    // A driver that lets the host go on while it waits for its device.
    fixture.service->setOnCall([&](const RecordingDriverService::Call &call) {
        if (call.operation == operation)
            delete view;
    });
    if (action.isEmpty()) {
        fixture.service->model = deviceBytes(*fixture.device);
        view = new IEDModelView(1, 2, 0, &fixture.context, nullptr);
        QVERIFY(!view->init());
    } else {
        view = fixture.open().release();
        BrowserFixture::select(*view, node);
        // A window would block here.
        trigger(*view, action);
    }
    QVERIFY(!view);
    QCOMPARE(fixture.service->operations().last(), operation);
    QCOMPARE(shownWindows(), QWidgetList());
}

void tst_WindowEnds::destroyedWhileNothingIsOpenLeavesNothing()
{
    BrowserFixture fixture;
    auto view = fixture.open();
    const QPointer<QTreeView> tree = BrowserFixture::tree(*view);
    const QPointer<QAbstractItemModel> model = tree->model();
    const QPointer<QAbstractItemDelegate> delegate = tree->itemDelegate();
    view.reset();
    QVERIFY(!tree);
    QVERIFY(!model);
    QVERIFY(!delegate);
}

QTEST_MAIN(tst_WindowEnds)
#include "tst_windowends.moc"
