// SPDX-License-Identifier: Apache-2.0
// What the plug-in offers, through its menus and dialogs, on a device behind the driver. Built once
// for each kind of device.
#include "interop/baystation.h"
#include "interop/operatordesk.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTreeWidget>

#include <algorithm>
#include <optional>

namespace {

const QStringList device{QStringLiteral("BAY1CTRL")};

QStringList below(const QString &path)
{
    return device + path.split(QLatin1Char('/'));
}

template <typename Widget>
Widget *child(QWidget *window, const char *name)
{
    auto *found = window->findChild<Widget *>(QLatin1String(name));
    if (!found)
        qFatal("%s has no %s", window->metaObject()->className(), name);
    return found;
}

/// Presses OK in the dialog after doing what @p prepare says.
template <typename Prepare>
OperatorDesk::Step confirm(Prepare prepare)
{
    return [prepare](QWidget *window) {
        prepare(window);
        auto *buttons = window->findChild<QDialogButtonBox *>();
        if (!buttons) {
            qWarning("Found a %s.", window->metaObject()->className());
            window->close();
            return;
        }
        QTest::mouseClick(buttons->button(QDialogButtonBox::Ok), Qt::LeftButton);
    };
}

void chooseText(QComboBox *box, const QString &text)
{
    const int entry = box->findText(text);
    if (entry < 0)
        qFatal("There is no \"%s\".", qPrintable(text));
    box->setCurrentIndex(entry);
}

/// The control dialog with a value.
OperatorDesk::Step controlWith(const QString &value)
{
    return confirm(
        [value](QWidget *window) { chooseText(child<QComboBox>(window, "ctrValue"), value); });
}

OperatorDesk::Step answerFileDialog(const QString &path)
{
    return [path](QWidget *window) {
        if (!qobject_cast<QFileDialog *>(window)) {
            window->close();
            return;
        }
        auto *name = child<QLineEdit>(window, "fileNameEdit");
        name->setText(path);
        QTest::keyClick(name, Qt::Key_Return);
    };
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
}

void store(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("%s cannot be written", qPrintable(path));
}

} // namespace

class tst_Operator : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();

    void theModelIsBrowsed();
    void aValueIsRead();
    void aWrittenValueIsReadBack();
    void aRefusedWriteSaysWhy();
    void aDataSetIsMadeReadAndDeleted();
    void anObjectIsOperatedDirectly();
    void anObjectIsSelectedAndOperated();
    void anEnhancedCommandIsTerminated();
    void aSelectedEnhancedCommandIsTerminated();
    void operatingWithoutASelectionSendsNothing();
    void aReportBringsValuesIntoTheTree();
    void aBufferedReportBringsValuesIntoTheTree();
    void aSettingGroupIsActivatedAndEdited();
    void filesAreListedFetchedSentAndDeleted();

private:
    std::unique_ptr<BayStation> m_bay;
    std::unique_ptr<OperatorDesk> m_desk;
    QString m_row;
    QString m_lack; ///< why the job cannot be done
    QJsonArray m_results;
};

namespace {

/// Set in the process that tries a job which the server is known not to be able to do.
constexpr char tryingVariable[] = "INTEROP_TRIES_WHAT_IS_LACKING";

bool isTrying()
{
    return qEnvironmentVariableIsSet(tryingVariable);
}

/// Does the job of the running test in a process of its own, whose failure is none of this one's.
/// Whether it worked; empty when it did neither work nor fail.
std::optional<bool> worksNow()
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QLatin1String(tryingVariable), QStringLiteral("1"));
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QCoreApplication::applicationFilePath(),
                  {QLatin1String(QTest::currentTestFunction())});
    if (!process.waitForFinished(120000) || process.exitStatus() != QProcess::NormalExit) {
        qWarning("%s", process.readAll().constData());
        return {};
    }
    return process.exitCode() == 0;
}

} // namespace

/// Names the row of a test. What the server is known to lack is tried apart, so that it is noticed
/// when it has learnt it.
#define DO_JOB(name)                                                                               \
    do {                                                                                           \
        m_row = QLatin1String(name);                                                               \
        m_lack = isTrying() ? QString() : m_bay->lacks(m_row);                                     \
        if (!m_lack.isEmpty()) {                                                                   \
            const std::optional<bool> works = worksNow();                                          \
            QVERIFY2(works.has_value(), "the trial broke down");                                   \
            QVERIFY2(!*works, qPrintable("it works, but is said to be lacking: " + m_lack));       \
            return;                                                                                \
        }                                                                                          \
    } while (false)

void tst_Operator::initTestCase()
{
    QString reason;
    m_bay = makeBayStation(reason);
    if (!m_bay)
        QSKIP(qPrintable(reason));
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void tst_Operator::init()
{
    DeviceConfiguration configuration;
    configuration.number = 1;
    configuration.name = QStringLiteral("BAY1");
    configuration.host = QStringLiteral("127.0.0.1");
    configuration.port = m_bay->port();
    // What comes has been asked for, or reported.
    configuration.pollInterval = std::chrono::milliseconds(0);
    m_desk = std::make_unique<OperatorDesk>(configuration);
    QVERIFY2(m_desk->problem().isEmpty(), qPrintable(m_desk->problem()));
    QVERIFY(m_desk->openBrowser());
    m_row.clear();
    m_lack.clear();
}

void tst_Operator::cleanup()
{
    m_desk.reset();
    if (!m_row.isEmpty()) {
        m_results.append(QJsonArray{m_row, QTest::currentTestFailed() ? QStringLiteral("FAILED")
                                           : m_lack.isEmpty()         ? QStringLiteral("works")
                                                                      : m_lack});
    }
}

void tst_Operator::cleanupTestCase()
{
    if (!m_bay || isTrying())
        return;
    const QString folder = QStringLiteral(RESULTS_FOLDER);
    QVERIFY(QDir().mkpath(folder));
    store(folder + QLatin1Char('/') + m_bay->column() + QStringLiteral(".json"),
          QJsonDocument(m_results).toJson());
}

void tst_Operator::theModelIsBrowsed()
{
    DO_JOB("Browse");
    for (const char *path :
         {"LLN0", "GGIO1/AnIn1/mag/f", "GGIO1/SPCSO4/Oper/origin/orCat", "CSWI1/Pos/stVal",
          "PTOC1/StrVal", "LLN0/States", "LLN0/urcbMeasured01", "LLN0/brcbStates01"})
        QVERIFY2(m_desk->has(below(QLatin1String(path))), path);
    QVERIFY(m_desk->has({QStringLiteral("BAY1MANY"), QStringLiteral("GGIO10")}));
    QVERIFY(!m_desk->has(below(QStringLiteral("GGIO10"))));
    for (const char *entry : {"GetLogicalDevice Directory", "Get SGCB"})
        QVERIFY2(m_desk->choose(device, QLatin1String(entry)), entry);
    for (const char *entry : {"Get BRCB", "Get URCB"}) {
        const QModelIndex block = m_desk->node(below(QStringLiteral("LLN0/urcbMeasured01")));
        QVERIFY2(m_desk->choose(below(QStringLiteral("LLN0/") + block.parent().data().toString()),
                                QLatin1String(entry)),
                 entry);
    }
}

void tst_Operator::aValueIsRead()
{
    DO_JOB("Read");
    const QStringList value = below(QStringLiteral("GGIO1/AnIn1/mag/f"));
    m_bay->setFloat(QStringLiteral("GGIO1.AnIn1.mag.f"), QStringLiteral("MX"), 17.5);
    QVERIFY(m_desk->choose(below(QStringLiteral("GGIO1")), QStringLiteral("Read"),
                           {confirm([](QWidget *window) {
                               chooseText(child<QComboBox>(window, "fcList"), QStringLiteral("MX"));
                           })}));
    QTRY_COMPARE(m_desk->valueOf(value), QStringLiteral("17.5"));
    m_bay->setFloat(QStringLiteral("GGIO1.AnIn1.mag.f"), QStringLiteral("MX"), 18.25);
    QVERIFY(m_desk->choose(value, QStringLiteral("Read")));
    QTRY_COMPARE(m_desk->valueOf(value), QStringLiteral("18.25"));
}

void tst_Operator::aWrittenValueIsReadBack()
{
    DO_JOB("Write with read-back");
    const QStringList setting = below(QStringLiteral("GGIO2/All/i32"));
    QVERIFY(m_desk->enterValue(setting, QStringLiteral("-123456")));
    QTRY_COMPARE(m_desk->valueOf(setting), QStringLiteral("-123456"));
    QCOMPARE(m_bay->number(QStringLiteral("GGIO2.All.i32"), QStringLiteral("SP")), -123456.0);
    // Through another request, so that it is the device's value and not the typed one.
    QVERIFY(m_desk->choose(setting, QStringLiteral("Read")));
    QTRY_COMPARE(m_desk->valueOf(setting), QStringLiteral("-123456"));
}

void tst_Operator::aRefusedWriteSaysWhy()
{
    DO_JOB("Write that the device refuses");
    const QStringList value = below(QStringLiteral("GGIO1/AnIn2/mag/f"));
    QString message;
    QVERIFY(m_desk->enterValue(value, QStringLiteral("99"), {OperatorDesk::read(message)}));
    QVERIFY2(message.contains(QLatin1String("denied")), qPrintable(message));
    QVERIFY(m_bay->number(QStringLiteral("GGIO1.AnIn2.mag.f"), QStringLiteral("MX")) != 99.0);
}

void tst_Operator::aDataSetIsMadeReadAndDeleted()
{
    DO_JOB("Data sets");
    const QString name = QStringLiteral("Evening");
    const QModelIndex existing = m_desk->node(below(QStringLiteral("LLN0/States")));
    const QStringList group = below(QStringLiteral("LLN0/") + existing.parent().data().toString());
    const auto pick = confirm([&](QWidget *window) {
        child<QLineEdit>(window, "lineEdit")->setText(name);
        auto *tree = child<QTreeWidget>(window, "treeWidget");
        const auto found =
            tree->findItems(QStringLiteral("Ind1"), Qt::MatchExactly | Qt::MatchRecursive);
        QVERIFY(!found.isEmpty());
        found.first()->setCheckState(0, Qt::Checked);
    });
    QVERIFY(m_desk->choose(group, QStringLiteral("Create Persistent DataSet"), {pick}));
    const QStringList made = group + QStringList{name + QStringLiteral("(Deletable)")};
    QVERIFY2(m_desk->has(made), qPrintable(group.join(QLatin1Char('/'))));

    const bool before = m_bay->boolean(QStringLiteral("GGIO1.Ind1.stVal"), QStringLiteral("ST"));
    m_bay->setBoolean(QStringLiteral("GGIO1.Ind1.stVal"), QStringLiteral("ST"), !before);
    const QStringList value = below(QStringLiteral("GGIO1/Ind1/stVal"));
    const QString shownBefore = m_desk->valueOf(value);
    QVERIFY(m_desk->choose(made, QStringLiteral("Read")));
    QTRY_VERIFY(m_desk->valueOf(value) != shownBefore);
    QVERIFY(m_desk->choose(made, QStringLiteral("GetDataSet Directory")));
    QVERIFY(m_desk->choose(made, QStringLiteral("Delete DataSet")));
    QVERIFY(!m_desk->has(made));
    // It is gone on the device as well: another one of that name can be made.
    QVERIFY(m_desk->choose(group, QStringLiteral("Create Persistent DataSet"), {pick}));
    QVERIFY(m_desk->choose(made, QStringLiteral("Delete DataSet")));
}

void tst_Operator::anObjectIsOperatedDirectly()
{
    DO_JOB("Control: direct, normal security");
    QVERIFY(m_desk->choose(below(QStringLiteral("GGIO1/SPCSO1")), QStringLiteral("Operate"),
                           {controlWith(QStringLiteral("true"))}));
    QTRY_VERIFY(m_bay->boolean(QStringLiteral("GGIO1.SPCSO1.stVal"), QStringLiteral("ST")));
}

void tst_Operator::anObjectIsSelectedAndOperated()
{
    DO_JOB("Control: select before operate, normal security");
    const QStringList object = below(QStringLiteral("GGIO1/SPCSO2"));
    QVERIFY(m_desk->choose(object, QStringLiteral("Select")));
    QVERIFY(
        m_desk->choose(object, QStringLiteral("Operate"), {controlWith(QStringLiteral("true"))}));
    QTRY_VERIFY(m_bay->boolean(QStringLiteral("GGIO1.SPCSO2.stVal"), QStringLiteral("ST")));
}

void tst_Operator::anEnhancedCommandIsTerminated()
{
    DO_JOB("Control: direct, enhanced security");
    QVERIFY(m_desk->choose(below(QStringLiteral("GGIO1/SPCSO3")), QStringLiteral("Operate"),
                           {controlWith(QStringLiteral("true"))}));
    // The operation has waited for the command termination.
    QVERIFY(m_bay->boolean(QStringLiteral("GGIO1.SPCSO3.stVal"), QStringLiteral("ST")));
}

void tst_Operator::aSelectedEnhancedCommandIsTerminated()
{
    DO_JOB("Control: select before operate, enhanced security");
    const QStringList object = below(QStringLiteral("GGIO1/SPCSO4"));
    QVERIFY(
        m_desk->choose(object, QStringLiteral("Select"), {controlWith(QStringLiteral("true"))}));
    QVERIFY(m_desk->choose(object, QStringLiteral("Operate")));
    QVERIFY(m_bay->boolean(QStringLiteral("GGIO1.SPCSO4.stVal"), QStringLiteral("ST")));
}

void tst_Operator::operatingWithoutASelectionSendsNothing()
{
    DO_JOB("Control: refusal");
    m_bay->setBoolean(QStringLiteral("GGIO1.SPCSO4.stVal"), QStringLiteral("ST"), false);
    QString message;
    QVERIFY(m_desk->choose(below(QStringLiteral("GGIO1/SPCSO4")), QStringLiteral("Operate"),
                           {OperatorDesk::read(message)}));
    QVERIFY2(message.contains(QLatin1String("Select the object first")), qPrintable(message));
    QVERIFY(!m_bay->boolean(QStringLiteral("GGIO1.SPCSO4.stVal"), QStringLiteral("ST")));
}

void tst_Operator::aReportBringsValuesIntoTheTree()
{
    DO_JOB("Unbuffered report");
    const QStringList value = below(QStringLiteral("GGIO1/AnIn3/mag/f"));
    const auto work = [&](QWidget *window) {
        auto *enable = child<QPushButton>(window, "enableReport");
        QCOMPARE(enable->text(), QStringLiteral("Enable"));
        QTest::mouseClick(enable, Qt::LeftButton);
        QCOMPARE(enable->text(), QStringLiteral("Disable"));
        m_bay->setFloat(QStringLiteral("GGIO1.AnIn3.mag.f"), QStringLiteral("MX"), 123.5);
        QTRY_COMPARE(m_desk->valueOf(value), QStringLiteral("123.5"));
        m_bay->setFloat(QStringLiteral("GGIO1.AnIn3.mag.f"), QStringLiteral("MX"), 124.5);
        QTRY_COMPARE(m_desk->valueOf(value), QStringLiteral("124.5"));
        QTest::mouseClick(enable, Qt::LeftButton);
        QCOMPARE(enable->text(), QStringLiteral("Enable"));
        QTest::mouseClick(child<QPushButton>(window, "close"), Qt::LeftButton);
    };
    QVERIFY(m_desk->choose(below(QStringLiteral("LLN0/urcbMeasured01")),
                           QStringLiteral("Open Report Control"), {work}));
}

void tst_Operator::aBufferedReportBringsValuesIntoTheTree()
{
    DO_JOB("Buffered report");
    const QStringList value = below(QStringLiteral("GGIO1/Ind2/stVal"));
    m_bay->setBoolean(QStringLiteral("GGIO1.Ind2.stVal"), QStringLiteral("ST"), false);
    const auto work = [&](QWidget *window) {
        auto *enable = child<QPushButton>(window, "enableReport");
        QTest::mouseClick(enable, Qt::LeftButton);
        QCOMPARE(enable->text(), QStringLiteral("Disable"));
        m_bay->setBoolean(QStringLiteral("GGIO1.Ind2.stVal"), QStringLiteral("ST"), true);
        QTRY_COMPARE(m_desk->valueOf(value).toLower(), QStringLiteral("true"));
        QTest::mouseClick(child<QPushButton>(window, "GI"), Qt::LeftButton);
        QTest::mouseClick(enable, Qt::LeftButton);
        QCOMPARE(enable->text(), QStringLiteral("Enable"));
        QTest::mouseClick(child<QPushButton>(window, "close"), Qt::LeftButton);
    };
    QVERIFY(m_desk->choose(below(QStringLiteral("LLN0/brcbStates01")),
                           QStringLiteral("Open Report Control"), {work}));
}

void tst_Operator::aSettingGroupIsActivatedAndEdited()
{
    DO_JOB("Setting groups");
    const QString item = QStringLiteral("PTOC1.StrVal.setMag.f");
    const QModelIndex group = m_desk->node(device + QStringList{QStringLiteral("SGCB")});
    QVERIFY(group.isValid());
    QString confirmed;
    const auto settings = [](QWidget *window) {
        return child<QWidget>(window, "treeWidget")->findChild<QTreeWidget *>();
    };
    const auto shown = [&](QWidget *window) {
        QString text;
        for (int i = 0; i < settings(window)->topLevelItemCount(); ++i) {
            const QTreeWidgetItem *each = settings(window)->topLevelItem(i);
            if (each->text(0).contains(QLatin1String("StrVal")))
                text = each->text(1);
        }
        return text;
    };
    const auto work = [&](QWidget *window) {
        auto *active = child<QComboBox>(window, "acCombo");
        auto *edited = child<QComboBox>(window, "edCombo");
        QTRY_COMPARE(active->count(), 3);
        QTRY_COMPARE(shown(window), QStringLiteral("1"));
        active->setCurrentIndex(2);
        QTRY_COMPARE(shown(window), QStringLiteral("3"));
        QCOMPARE(m_bay->number(item, QStringLiteral("SG")), 3.0);
        // The group to be edited is the one before the active list's entry.
        edited->setCurrentIndex(2);
        QTRY_COMPARE(shown(window), QStringLiteral("2"));
        QTreeWidget *tree = settings(window);
        for (int i = 0; i < tree->topLevelItemCount(); ++i) {
            if (!tree->topLevelItem(i)->text(0).contains(QLatin1String("StrVal")))
                continue;
            const QModelIndex cell = tree->model()->index(i, 1);
            QTest::mouseClick(tree->viewport(), Qt::LeftButton, {},
                              tree->visualRect(cell).center());
            auto *editor = qobject_cast<QLineEdit *>(QApplication::focusWidget());
            QVERIFY(editor);
            editor->selectAll();
            QTest::keyClicks(editor, QStringLiteral("2.5"));
            QTest::keyClick(editor, Qt::Key_Return);
        }
        QTest::mouseClick(child<QPushButton>(window, "execute"), Qt::LeftButton);
        // The edited group is put into force: what was written shows.
        active->setCurrentIndex(1);
        QTRY_COMPARE(shown(window), QStringLiteral("2.5"));
        QCOMPARE(m_bay->number(item, QStringLiteral("SG")), 2.5);
        active->setCurrentIndex(0);
        QTRY_COMPARE(shown(window), QStringLiteral("1"));
        QTest::mouseClick(child<QPushButton>(window, "close"), Qt::LeftButton);
    };
    QVERIFY(m_desk->choose(device + QStringList{QStringLiteral("SGCB")},
                           QStringLiteral("Open Setting Group Control"), {work}));
}

void tst_Operator::filesAreListedFetchedSentAndDeleted()
{
    DO_JOB("Files");
    QTemporaryDir local;
    store(m_bay->filePath(QStringLiteral("record.txt")), "a disturbance");
    const QString source = local.filePath(QStringLiteral("settings.txt"));
    const QString fetched = local.filePath(QStringLiteral("fetched.txt"));
    store(source, QByteArray(5000, 's'));

    const auto select = [](QWidget *window, const QString &name) {
        auto *list = child<QTreeView>(window, "treeView");
        for (int i = 0; i < list->model()->rowCount(); ++i) {
            const QModelIndex index = list->model()->index(i, 0);
            if (!index.data().toString().endsWith(name))
                continue;
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                              list->visualRect(index).center());
            return true;
        }
        return false;
    };
    QString downloaded;
    QString uploaded;
    QString deleted;
    const auto work = [&](QWidget *window) {
        // A device that offers no files is told before the dialog is there.
        if (!window->findChild<QTreeView *>(QStringLiteral("treeView"))) {
            window->close();
            return;
        }
        QVERIFY(select(window, QStringLiteral("record.txt")));
        QTest::mouseClick(child<QPushButton>(window, "download"), Qt::LeftButton);
        QCOMPARE(contentOf(fetched), QByteArray("a disturbance"));

        child<QLineEdit>(window, "sourceFile")->setText(source);
        child<QLineEdit>(window, "targetFile")->setText(QStringLiteral("settings.txt"));
        QTest::mouseClick(child<QPushButton>(window, "upload"), Qt::LeftButton);
        QCOMPARE(contentOf(m_bay->filePath(QStringLiteral("settings.txt"))), QByteArray(5000, 's'));

        QVERIFY(select(window, QStringLiteral("record.txt")));
        QTest::mouseClick(child<QPushButton>(window, "deleteFile"), Qt::LeftButton);
        QVERIFY(!QFile::exists(m_bay->filePath(QStringLiteral("record.txt"))));
        QVERIFY(!select(window, QStringLiteral("record.txt")));
        QTest::mouseClick(child<QPushButton>(window, "close"), Qt::LeftButton);
    };
    QVERIFY(m_desk->useFileService({work, answerFileDialog(fetched), OperatorDesk::read(downloaded),
                                    OperatorDesk::read(uploaded), OperatorDesk::read(deleted)}));
    QCOMPARE(downloaded, QStringLiteral("Download Finished"));
    QCOMPARE(uploaded, QStringLiteral("Upload Finished"));
    QCOMPARE(deleted, QStringLiteral("Delete Finished"));
}

QTEST_MAIN(tst_Operator)
#include "tst_operator.moc"
