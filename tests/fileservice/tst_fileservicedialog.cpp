// SPDX-License-Identifier: Apache-2.0
#include "fileservice/filemodel.h"
#include "fileservice/fileservicedialog.h"
#include "memoryfilestore.h"
#include "support/modaldriver.h"

#include <host/hosttaskcontext.h>
#include <remoteclient/driverconsolinterface.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTranslator>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QTreeView>

#include <memory>

#ifdef Q_OS_LINUX
#include <csignal>
#include <sys/resource.h>
#endif

namespace {

constexpr int location = 3;
constexpr int handle = 17;

class FixedConsole : public DriverConsolInterface
{
public:
    QString currentAddress() override
    {
        asked << QStringLiteral("address");
        return QStringLiteral("file-test");
    }

    OperationResult getLoc(long driverNo, long deviceNo, QString &text) override
    {
        asked << QStringLiteral("location %1 %2").arg(driverNo).arg(deviceNo);
        text = QStringLiteral("Bay 1");
        return OperationSucceeded;
    }

    QStringList asked;
};

/// A language in which every text is much longer than in English.
class LongLanguage : public QTranslator
{
public:
    QString translate(const char * /*context*/, const char *text, const char * /*comment*/,
                      int /*n*/) const override
    {
        return QString::fromUtf8(text) + QStringLiteral(" und so weiter");
    }
    bool isEmpty() const override { return false; }
};

/// What a file dialog asked for.
struct AskedFile
{
    QString title;
    QString directory;
    QString name;
    QStringList filters;
    QFileDialog::AcceptMode mode = QFileDialog::AcceptOpen;
    bool confirmsOverwrite = false;
    bool hidesFilterDetails = false;
    QWidget *parent = nullptr;
};

QLineEdit *nameEdit(QFileDialog *dialog)
{
    return dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
}

/// A step that records what a file dialog asks for and types an answer; an empty one cancels.
ModalDriver::Step answerFileDialog(const QString &answer, AskedFile *asked = nullptr)
{
    return [answer, asked](QWidget *window) {
        auto *dialog = qobject_cast<QFileDialog *>(window);
        if (!dialog) {
            qWarning("Expected a file dialog, found a %s.", window->metaObject()->className());
            window->close();
            return;
        }
        if (asked) {
            asked->title = dialog->windowTitle();
            asked->directory = dialog->directory().absolutePath();
            asked->name = nameEdit(dialog)->text();
            asked->filters = dialog->nameFilters();
            asked->mode = dialog->acceptMode();
            asked->confirmsOverwrite = !dialog->testOption(QFileDialog::DontConfirmOverwrite);
            asked->hidesFilterDetails = dialog->testOption(QFileDialog::HideNameFilterDetails);
            asked->parent = dialog->parentWidget();
        }
        if (answer.isEmpty()) {
            QTest::keyClick(dialog, Qt::Key_Escape);
            return;
        }
        nameEdit(dialog)->setText(answer);
        QTest::keyClick(nameEdit(dialog), Qt::Key_Return);
    };
}

ModalDriver::Step pressEscape(ShownMessage *message)
{
    return [message](QWidget *window) {
        auto *box = qobject_cast<QMessageBox *>(window);
        if (box)
            message->text = box->text();
        QTest::keyClick(window, Qt::Key_Escape);
    };
}

QByteArray contentOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
}

void writeLocalFile(const QString &fileName, const QByteArray &content)
{
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

/// The results of failing calls, and the text that each leaves in a message.
void addFailureRows()
{
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("error");
    QTest::addColumn<QString>("shown");
    QTest::newRow("refused") << 1 << "access denied"
                             << "access denied";
    QTest::newRow("text with percent signs") << 1 << "%1 of %2"
                                             << "%1 of %2";
    QTest::newRow("no text") << 77 << ""
                             << "";
    QTest::newRow("driver unreachable") << 10001 << "socket closed"
                                        << "Cannot connect to driver";
}

} // namespace

class tst_FileServiceDialog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void slotsAreThoseThatHostsKnow();
    void theDialogBearsTheNamesAndTextsThatHostsKnow();
    void longTranslationsAreShownWhole();
    void constructionAsksTheConsoleAndListsTheRoot();
    void failedFirstListingIsToldBeforeTheDialogIsShown();

    void rootHasNoWayUp();
    void directoryBelowBeginsWithTheWayUp();
    void doubleClickOnADirectoryAppendsItsName_data();
    void doubleClickOnADirectoryAppendsItsName();
    void doubleClickOnAFileOpensNothing();
    void goingUpCutsTwoSeparators_data();
    void goingUpCutsTwoSeparators();
    void nameIsAppendedToAPathThatLostItsSeparator();
    void failedListingShowsTheSameTextWhateverTheReason_data();
    void failedListingShowsTheSameTextWhateverTheReason();
    void failedListingKeepsListAndDirectory();
    void refreshReadsTheCurrentDirectoryAgain();

    void clickOnAFileOffersDownloadAndDelete();
    void clickOnADirectoryOrTheWayUpOffersNeither();
    void everyListingWithdrawsDownloadAndDelete();
    void clickOnAFileWithASeparatorAndASizeOffersDownload();

    void downloadWritesTheFileAndListsAgain();
    void downloadOfOddNames_data();
    void downloadOfOddNames();
    void downloadProposesTheNameBesideTheApplication();
    void nameWithoutSuffixGetsAPoint_data();
    void nameWithoutSuffixGetsAPoint();
    void cancelledDownloadCallsNothing();
    void existingLocalFileIsReplacedAfterYes();
    void noAsksAgainFromTheSameProposal();
    void escapeAtTheReplaceQuestionIsNo();
    void closedByItsHostEverythingOverItEnds_data();
    void closedByItsHostEverythingOverItEnds();
    void failedDownloadIsReportedAndWritesNothing_data();
    void failedDownloadIsReportedAndWritesNothing();
    void localFileThatCannotBeWrittenStillCountsAsDownloaded();
    void localFileThatCannotBeWrittenIsToldWithTheReason();
    void localFileThatIsOnlyHalfWrittenKeepsItsOldContent();
    void nameOfADeviceChoosesNoFolder_data();
    void nameOfADeviceChoosesNoFolder();
    void downloadAndDeleteWithoutASelectionDoNothing();

    void deleteAsksNothingAndListsAgain();
    void deleteOfAFileInADirectoryNamesItsPath();
    void failedDeleteIsReportedAndListsNothing_data();
    void failedDeleteIsReportedAndListsNothing();

    void selectedFileFillsBothFields();
    void cancelledSelectionKeepsBothFields();
    void uploadSendsTheFileAndListsAgain();
    void uploadGoesIntoTheCurrentDirectory();
    void uploadOfEmptyFieldsIsLeftToTheDriver();
    void failedUploadIsReported_data();
    void failedUploadIsReported();
    void successIsToldAlsoWhenTheListingAfterwardsFails();

    void f5ListsAgain();
    void enterOpensADirectory_data();
    void enterOpensADirectory();
    void whatKeysChooseIsOffered();
    void spaceOrEnterOnAFileIsLikeAClick_data();
    void spaceOrEnterOnAFileIsLikeAClick();
    void enterTriggersNoButton_data();
    void enterTriggersNoButton();
    void tabFollowsReadingOrder();
    void inputsAndListHaveAccessibleNames();
    void busyCursorIsShownWhileTheDriverWorks();
    void closeAndEscapeLeaveTheDialog();

private:
    QTreeView *tree() const { return m_dialog->findChild<QTreeView *>("treeView"); }
    QLineEdit *edit(const char *name) const { return m_dialog->findChild<QLineEdit *>(name); }
    QAbstractButton *button(const char *name) const
    {
        return m_dialog->findChild<QAbstractButton *>(name);
    }
    QStringList shownNames() const;
    QStringList directoriesListed() const;
    QModelIndex find(const QString &name) const;

    void open();
    void press(const char *name);
    void click(const QString &name, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void doubleClick(const QString &name);
    void makeCurrent(const QString &name);
    QString localPath(const QString &name) const { return m_folder->filePath(name); }

    std::shared_ptr<MemoryFileStore> m_store;
    std::unique_ptr<DriverServiceRegistration> m_registration;
    std::unique_ptr<FixedConsole> m_console;
    std::unique_ptr<QTemporaryDir> m_folder;
    HostTaskContext m_context;
    std::unique_ptr<FileServiceDialog> m_dialog;
};

void tst_FileServiceDialog::initTestCase()
{
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void tst_FileServiceDialog::init()
{
    m_store = std::make_shared<MemoryFileStore>();
    m_store->addDirectory("", "A\\");
    m_store->addDirectory("A\\", "B\\");
    m_store->addFile("", "readme.txt", "hello");
    m_store->addFile("A\\", "rec1.cfg", "station,1999");
    m_store->addFile("A\\", "rec1.dat", QByteArray(5000, '\x7f'));
    m_store->addFile("A\\B\\", "deep.log", "deep");
    m_registration = std::make_unique<DriverServiceRegistration>("file-test", m_store);
    m_console = std::make_unique<FixedConsole>();
    m_context.console = m_console.get();
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void tst_FileServiceDialog::cleanup()
{
    m_dialog.reset();
    m_registration.reset();
    m_folder.reset();
}

QStringList tst_FileServiceDialog::shownNames() const
{
    QStringList names;
    for (int row = 0; row < tree()->model()->rowCount(); ++row)
        names << tree()->model()->index(row, 0).data().toString();
    return names;
}

QStringList tst_FileServiceDialog::directoriesListed() const
{
    QStringList directories;
    for (const auto &call : m_store->calls("getFileDirectory"))
        directories << call.arguments.value(1).toString();
    return directories;
}

QModelIndex tst_FileServiceDialog::find(const QString &name) const
{
    return tree()->model()->index(shownNames().indexOf(name), 0);
}

void tst_FileServiceDialog::open()
{
    m_dialog = std::make_unique<FileServiceDialog>(location, handle, &m_context, nullptr);
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
}

void tst_FileServiceDialog::press(const char *name)
{
    QTest::mouseClick(button(name), Qt::LeftButton);
}

void tst_FileServiceDialog::click(const QString &name, Qt::KeyboardModifiers modifiers)
{
    const QModelIndex index = find(name);
    QVERIFY2(index.isValid(), qPrintable(name));
    tree()->scrollTo(index);
    QTest::mouseClick(tree()->viewport(), Qt::LeftButton, modifiers,
                      tree()->visualRect(index).center());
}

void tst_FileServiceDialog::doubleClick(const QString &name)
{
    const QModelIndex index = find(name);
    QVERIFY2(index.isValid(), qPrintable(name));
    const QPoint place = tree()->visualRect(index).center();
    QTest::mouseClick(tree()->viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(tree()->viewport(), Qt::LeftButton, {}, place);
    // The button comes up over whatever the double click has brought there.
    QTest::mouseRelease(tree()->viewport(), Qt::LeftButton, {}, place);
}

void tst_FileServiceDialog::makeCurrent(const QString &name)
{
    const QModelIndex index = find(name);
    QVERIFY2(index.isValid(), qPrintable(name));
    tree()->setFocus();
    while (tree()->currentIndex().row() < index.row())
        QTest::keyClick(tree(), Qt::Key_Down);
    while (tree()->currentIndex().row() > index.row())
        QTest::keyClick(tree(), Qt::Key_Up);
}

void tst_FileServiceDialog::slotsAreThoseThatHostsKnow()
{
    const QMetaObject &meta = FileServiceDialog::staticMetaObject;
    QStringList signatures;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        signatures << QString::fromLatin1(meta.method(i).methodSignature());
    const QStringList expected = {"readDirectory()",
                                  "loadDirectory(QModelIndex)",
                                  "checkFile(QModelIndex)",
                                  "selectFile()",
                                  "download()",
                                  "deleteFile()",
                                  "upload()"};
    QCOMPARE(signatures, expected);
}

void tst_FileServiceDialog::theDialogBearsTheNamesAndTextsThatHostsKnow()
{
    open();
    QCOMPARE(m_dialog->objectName(), "FileServiceDialog");
    QCOMPARE(m_dialog->windowTitle(), "IED File Service");
    QVERIFY(!m_dialog->windowFlags().testFlag(Qt::WindowContextHelpButtonHint));

    const auto labelText = [&](const char *name) {
        return m_dialog->findChild<QLabel *>(name)->text();
    };
    QCOMPARE(labelText("label_3"), "Server Directory : ");
    QCOMPARE(labelText("label"), "Select File : ");
    QCOMPARE(labelText("label_2"), "Target File Name :");
    QCOMPARE(m_dialog->findChild<QGroupBox *>("groupBox")->title(), "IED Directory");
    QCOMPARE(m_dialog->findChild<QGroupBox *>("groupBox_2")->title(), "Upload File");
    QCOMPARE(button("refresh")->text(), "Refresh");
    QCOMPARE(button("download")->text(), "Download");
    QCOMPARE(button("deleteFile")->text(), "Delete");
    QCOMPARE(button("upload")->text(), "Upload");
    QCOMPARE(button("close")->text(), "Close");
    QCOMPARE(m_dialog->findChild<QToolButton *>("findFile")->text(), "...");

    QVERIFY(edit("directory")->isReadOnly());
    QVERIFY(!edit("sourceFile")->isReadOnly());
    QVERIFY(!edit("targetFile")->isReadOnly());
    QVERIFY(qobject_cast<FileModel *>(tree()->model()));
    QCOMPARE(tree()->columnWidth(0), 200);
    QCOMPARE(tree()->columnWidth(1), 160);
}

void tst_FileServiceDialog::longTranslationsAreShownWhole()
{
    LongLanguage language;
    QCoreApplication::installTranslator(&language);
    open();
    QList<QWidget *> texts;
    for (auto *label : m_dialog->findChildren<QLabel *>())
        texts << label;
    for (auto *pushButton : m_dialog->findChildren<QPushButton *>())
        texts << pushButton;
    QCOMPARE(texts.size(), 8);
    for (const QWidget *text : qAsConst(texts))
        QVERIFY2(text->width() >= text->sizeHint().width(), qPrintable(text->objectName()));
    QCOMPARE(edit("sourceFile")->x(), edit("targetFile")->x());
}

void tst_FileServiceDialog::constructionAsksTheConsoleAndListsTheRoot()
{
    open();
    QCOMPARE(m_console->asked, QStringList({"location 3 17", "address"}));
    QCOMPARE(m_store->operations(), QStringList("getFileDirectory"));
    const RecordingDriverService::Call call = m_store->calls().first();
    QCOMPARE(call.deviceNo, long(handle));
    QCOMPARE(call.arguments, QVariantList({"*.*", ""}));
    QCOMPARE(edit("directory")->text(), "");
}

void tst_FileServiceDialog::failedFirstListingIsToldBeforeTheDialogIsShown()
{
    m_store->addAnswer("getFileDirectory", OperationDriverUnreachable);
    bool anyDialogShown = true;
    ModalDriver driver({[&](QWidget *window) {
        anyDialogShown = window->parentWidget()->isVisible();
        ModalDriver::pressInMessageBox(QMessageBox::Ok)(window);
    }});
    m_dialog = std::make_unique<FileServiceDialog>(location, handle, &m_context, nullptr);
    QVERIFY(driver.finished());
    QVERIFY(!anyDialogShown);

    m_dialog->show();
    QVERIFY(shownNames().isEmpty());
    QVERIFY(!button("download")->isEnabled());
    QVERIFY(!button("deleteFile")->isEnabled());
    press("refresh");
    QCOMPARE(shownNames(), QStringList({"A\\", "readme.txt"}));
}

void tst_FileServiceDialog::rootHasNoWayUp()
{
    open();
    QCOMPARE(shownNames(), QStringList({"A\\", "readme.txt"}));
}

void tst_FileServiceDialog::directoryBelowBeginsWithTheWayUp()
{
    open();
    doubleClick("A\\");
    QCOMPARE(shownNames(), QStringList({"..", "B\\", "rec1.cfg", "rec1.dat"}));
    QCOMPARE(edit("directory")->text(), "A\\");
    const MMSFileEntry above = qobject_cast<FileModel *>(tree()->model())->entry(0);
    QCOMPARE(above.size, 0U);
    QCOMPARE(above.lastModified, 0U);
}

void tst_FileServiceDialog::doubleClickOnADirectoryAppendsItsName_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("separator behind") << "COMTRADE\\";
    QTest::newRow("separator in front") << "\\f";
    QTest::newRow("separator inside") << "a\\b";
    QTest::newRow("separator alone") << "\\";
    QTest::newRow("points") << "a.b.c\\";
    QTest::newRow("blanks") << " two words \\";
    QTest::newRow("percent signs") << "%2%1\\";
    QTest::newRow("other letters") << QStringLiteral("Störung 事件\\");
}

void tst_FileServiceDialog::doubleClickOnADirectoryAppendsItsName()
{
    QFETCH(QString, name);
    m_store->addDirectory("", name);
    m_store->addFile(name, "inside.txt", "x");
    open();
    m_store->forgetCalls();
    doubleClick(name);
    QCOMPARE(m_store->operations(), QStringList("getFileDirectory"));
    QCOMPARE(m_store->calls().first().deviceNo, long(handle));
    QCOMPARE(m_store->calls().first().arguments, QVariantList({"*.*", name}));
    QCOMPARE(edit("directory")->text(), name);
    QCOMPARE(shownNames(), QStringList({"..", "inside.txt"}));
}

void tst_FileServiceDialog::doubleClickOnAFileOpensNothing()
{
    m_store->addFile("", "odd\\name.dat", "has a size");
    m_store->fileEntriesOf[""].append(MMSFileEntry{"", 0, 0, 0, "empty.dat"});
    open();
    m_store->forgetCalls();
    for (const char *name : {"readme.txt", "odd\\name.dat", "empty.dat"})
        doubleClick(name);
    QVERIFY(m_store->calls().isEmpty());
    QCOMPARE(edit("directory")->text(), "");
}

void tst_FileServiceDialog::goingUpCutsTwoSeparators_data()
{
    QTest::addColumn<QStringList>("steps");
    QTest::addColumn<QStringList>("directories");
    QTest::newRow("from the first level") << QStringList({"A\\", ".."}) << QStringList({"A\\", ""});
    QTest::newRow("from the second level")
        << QStringList({"A\\", "B\\", ".."}) << QStringList({"A\\", "A\\B\\", "A"});
    QTest::newRow("twice from the second level")
        << QStringList({"A\\", "B\\", "..", ".."}) << QStringList({"A\\", "A\\B\\", "A", ""});
    QTest::newRow("separator in front") << QStringList({"\\f", ".."}) << QStringList({"\\f", ""});
    QTest::newRow("separators at both ends")
        << QStringList({"\\g\\", ".."}) << QStringList({"\\g\\", ""});
    QTest::newRow("separator inside") << QStringList({"a\\b", ".."}) << QStringList({"a\\b", ""});
    QTest::newRow("three levels in one name")
        << QStringList({"x\\y\\z\\", "..", ".."}) << QStringList({"x\\y\\z\\", "x\\y", ""});
}

void tst_FileServiceDialog::goingUpCutsTwoSeparators()
{
    QFETCH(QStringList, steps);
    QFETCH(QStringList, directories);
    for (const char *name : {"\\f", "\\g\\", "a\\b", "x\\y\\z\\"})
        m_store->addDirectory("", name);
    open();
    m_store->forgetCalls();
    for (const QString &step : steps)
        doubleClick(step);
    QCOMPARE(directoriesListed(), directories);
    QCOMPARE(edit("directory")->text(), directories.last());
    QCOMPARE(shownNames().contains(".."), !directories.last().isEmpty());
}

void tst_FileServiceDialog::nameIsAppendedToAPathThatLostItsSeparator()
{
    open();
    for (const char *step : {"A\\", "B\\", "..", "B\\"})
        doubleClick(step);
    QCOMPARE(directoriesListed().last(), "AB\\");
}

void tst_FileServiceDialog::failedListingShowsTheSameTextWhateverTheReason_data()
{
    addFailureRows();
}

void tst_FileServiceDialog::failedListingShowsTheSameTextWhateverTheReason()
{
    QFETCH(int, result);
    QFETCH(QString, error);
    open();
    m_store->addAnswer("getFileDirectory", OperationResult(result), error);
    ShownMessage message;
    ModalDriver driver({ModalDriver::pressInMessageBox(QMessageBox::Ok, &message)});
    press("refresh");
    QVERIFY(driver.finished());
    QCOMPARE(message.title, "Fail");
    QCOMPARE(message.text, "Fail to readDirectory: Cannot connect to driver");
    QCOMPARE(message.icon, QMessageBox::Warning);
    QCOMPARE(message.buttons, QMessageBox::Ok);
    QCOMPARE(message.parent, m_dialog.get());
}

void tst_FileServiceDialog::failedListingKeepsListAndDirectory()
{
    open();
    doubleClick("A\\");
    click("rec1.cfg");
    const QStringList before = shownNames();
    for (const char *step : {"B\\", ".."}) {
        m_store->addAnswer("getFileDirectory", OperationFailed, "refused");
        ModalDriver driver({ModalDriver::pressInMessageBox(QMessageBox::Ok)});
        doubleClick(step);
        QVERIFY(driver.finished());
        QCOMPARE(shownNames(), before);
        QCOMPARE(edit("directory")->text(), "A\\");
    }
    press("refresh");
    QCOMPARE(directoriesListed(), QStringList({"", "A\\", "A\\B\\", "", "A\\"}));
}

void tst_FileServiceDialog::refreshReadsTheCurrentDirectoryAgain()
{
    open();
    doubleClick("A\\");
    m_store->addFile("A\\", "new.txt", "new");
    m_store->forgetCalls();
    press("refresh");
    QCOMPARE(m_store->operations(), QStringList("getFileDirectory"));
    QCOMPARE(m_store->calls().first().arguments, QVariantList({"*.*", "A\\"}));
    QCOMPARE(shownNames(), QStringList({"..", "B\\", "rec1.cfg", "rec1.dat", "new.txt"}));
}

void tst_FileServiceDialog::clickOnAFileOffersDownloadAndDelete()
{
    open();
    QVERIFY(!button("download")->isEnabled());
    QVERIFY(!button("deleteFile")->isEnabled());
    click("readme.txt");
    QVERIFY(button("download")->isEnabled());
    QVERIFY(button("deleteFile")->isEnabled());
}

void tst_FileServiceDialog::clickOnADirectoryOrTheWayUpOffersNeither()
{
    open();
    doubleClick("A\\");
    for (const char *name : {"B\\", ".."}) {
        click("rec1.dat");
        QVERIFY(button("download")->isEnabled());
        click(name);
        QVERIFY2(!button("download")->isEnabled(), name);
        QVERIFY2(!button("deleteFile")->isEnabled(), name);
    }
}

void tst_FileServiceDialog::everyListingWithdrawsDownloadAndDelete()
{
    open();
    click("readme.txt");
    press("refresh");
    QVERIFY(!button("download")->isEnabled());
    QVERIFY(!button("deleteFile")->isEnabled());
    click("readme.txt");
    doubleClick("A\\");
    QVERIFY(!button("download")->isEnabled());
    QVERIFY(!button("deleteFile")->isEnabled());
}

void tst_FileServiceDialog::clickOnAFileWithASeparatorAndASizeOffersDownload()
{
    m_store->addFile("", "odd\\name.dat", "has a size");
    open();
    click("odd\\name.dat");
    QVERIFY(button("download")->isEnabled());
    QVERIFY(button("deleteFile")->isEnabled());
}

void tst_FileServiceDialog::downloadWritesTheFileAndListsAgain()
{
    open();
    doubleClick("A\\");
    click("rec1.dat");
    m_store->forgetCalls();
    ShownMessage message;
    ModalDriver driver({answerFileDialog(localPath("copy.dat")),
                        ModalDriver::pressInMessageBox(QMessageBox::Ok, &message)});
    press("download");
    QVERIFY(driver.finished());
    QCOMPARE(m_store->operations(), QStringList({"getFile", "getFileDirectory"}));
    QCOMPARE(m_store->calls().first().deviceNo, long(handle));
    QCOMPARE(m_store->calls().first().arguments, QVariantList({"A\\rec1.dat"}));
    QCOMPARE(contentOf(localPath("copy.dat")), QByteArray(5000, '\x7f'));
    QCOMPARE(message.title, "Success");
    QCOMPARE(message.text, "Download Finished");
    QCOMPARE(message.icon, QMessageBox::Information);
    QCOMPARE(message.parent, m_dialog.get());
}

void tst_FileServiceDialog::downloadOfOddNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("several points") << "a.b.c";
    QTest::newRow("point in front") << ".hidden";
    QTest::newRow("blanks") << "two words .txt";
    QTest::newRow("percent signs") << "%2%1.txt";
    QTest::newRow("other letters") << QStringLiteral("Störung 事件.dat");
    QTest::newRow("separator") << "odd\\name.dat";
    QTest::newRow("without suffix") << "LOG";
}

void tst_FileServiceDialog::downloadOfOddNames()
{
    QFETCH(QString, name);
    const QByteArray content = QByteArray("content of ") + name.toUtf8();
    m_store->addFile("A\\", name, content);
    open();
    doubleClick("A\\");
    click(name);
    AskedFile asked;
    ModalDriver driver({answerFileDialog(localPath("copy.txt"), &asked),
                        ModalDriver::pressInMessageBox(QMessageBox::Ok)});
    press("download");
    QVERIFY(driver.finished());
    QCOMPARE(asked.directory + QDir::separator() + asked.name,
             QCoreApplication::applicationDirPath() + QDir::separator() + name);
    QCOMPARE(m_store->calls("getFile").first().arguments, QVariantList({"A\\" + name}));
    QCOMPARE(contentOf(localPath("copy.txt")), content);
}

void tst_FileServiceDialog::downloadProposesTheNameBesideTheApplication()
{
    open();
    click("readme.txt");
    AskedFile asked;
    ModalDriver driver({answerFileDialog({}, &asked)});
    press("download");
    QVERIFY(driver.finished());
    QCOMPARE(asked.title, "Download File");
    QCOMPARE(asked.directory, QCoreApplication::applicationDirPath());
    QCOMPARE(asked.name, "readme.txt");
    QCOMPARE(asked.filters, QStringList("All Files (*)"));
    QCOMPARE(asked.mode, QFileDialog::AcceptSave);
    QVERIFY(!asked.confirmsOverwrite);
    QVERIFY(asked.hidesFilterDetails);
    QCOMPARE(asked.parent, m_dialog.get());
}

void tst_FileServiceDialog::nameWithoutSuffixGetsAPoint_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("written");
    QTest::newRow("suffix") << "a.txt"
                            << "a.txt";
    QTest::newRow("several suffixes") << "a.b.c"
                                      << "a.b.c";
    QTest::newRow("none") << "LOG"
                          << "LOG.";
    QTest::newRow("point already") << "LOG."
                                   << "LOG.";
}

void tst_FileServiceDialog::nameWithoutSuffixGetsAPoint()
{
    QFETCH(QString, typed);
    QFETCH(QString, written);
    open();
    click("readme.txt");
    ModalDriver driver(
        {answerFileDialog(localPath(typed)), ModalDriver::pressInMessageBox(QMessageBox::Ok)});
    press("download");
    QVERIFY(driver.finished());
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), QStringList(written));
    QCOMPARE(contentOf(localPath(written)), "hello");
}

void tst_FileServiceDialog::cancelledDownloadCallsNothing()
{
    open();
    click("readme.txt");
    m_store->forgetCalls();
    ModalDriver driver({answerFileDialog({})});
    press("download");
    QVERIFY(driver.finished());
    QVERIFY(m_store->calls().isEmpty());
    QVERIFY(button("download")->isEnabled());
}

void tst_FileServiceDialog::existingLocalFileIsReplacedAfterYes()
{
    writeLocalFile(localPath("%2 copy.txt"), "something much longer than the new content");
    open();
    click("readme.txt");
    ShownMessage question;
    ModalDriver driver({answerFileDialog(localPath("%2 copy.txt")),
                        ModalDriver::pressInMessageBox(QMessageBox::Yes, &question),
                        ModalDriver::pressInMessageBox(QMessageBox::Ok)});
    press("download");
    QVERIFY(driver.finished());
    QCOMPARE(question.title, "Download File");
    QCOMPARE(question.text, "%2 copy.txt already exists.\nDo you want to replace it?");
    QCOMPARE(question.icon, QMessageBox::Warning);
    QCOMPARE(question.buttons, QMessageBox::Yes | QMessageBox::No);
    QCOMPARE(question.parent, m_dialog.get());
    QCOMPARE(contentOf(localPath("%2 copy.txt")), "hello");
}

void tst_FileServiceDialog::noAsksAgainFromTheSameProposal()
{
    writeLocalFile(localPath("kept.txt"), "kept");
    open();
    click("readme.txt");
    AskedFile first;
    AskedFile second;
    ModalDriver driver({answerFileDialog(localPath("kept.txt"), &first),
                        ModalDriver::pressInMessageBox(QMessageBox::No),
                        answerFileDialog(localPath("other.txt"), &second),
                        ModalDriver::pressInMessageBox(QMessageBox::Ok)});
    press("download");
    QVERIFY(driver.finished());
    QCOMPARE(second.directory, QCoreApplication::applicationDirPath());
    QCOMPARE(second.directory, first.directory);
    QCOMPARE(second.name, "readme.txt");
    QCOMPARE(second.title, first.title);
    QCOMPARE(contentOf(localPath("kept.txt")), "kept");
    QCOMPARE(contentOf(localPath("other.txt")), "hello");
}

void tst_FileServiceDialog::escapeAtTheReplaceQuestionIsNo()
{
    writeLocalFile(localPath("kept.txt"), "kept");
    open();
    click("readme.txt");
    m_store->forgetCalls();
    ShownMessage question;
    AskedFile second;
    ModalDriver driver({answerFileDialog(localPath("kept.txt")), pressEscape(&question),
                        answerFileDialog({}, &second)});
    press("download");
    QVERIFY(driver.finished());
    QCOMPARE(question.text, "kept.txt already exists.\nDo you want to replace it?");
    QCOMPARE(second.name, "readme.txt");
    QCOMPARE(contentOf(localPath("kept.txt")), "kept");
    QVERIFY(m_store->calls().isEmpty());
}

void tst_FileServiceDialog::closedByItsHostEverythingOverItEnds_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<bool>("atTheQuestion");
    QTest::newRow("download, name") << QByteArray("download") << false;
    QTest::newRow("download, question") << QByteArray("download") << true;
    QTest::newRow("upload, file") << QByteArray("findFile") << false;
    QTest::newRow("upload, box") << QByteArray("upload") << false;
    QTest::newRow("delete, box") << QByteArray("deleteFile") << false;
}

void tst_FileServiceDialog::closedByItsHostEverythingOverItEnds()
{
    QFETCH(QByteArray, button);
    QFETCH(bool, atTheQuestion);
    writeLocalFile(localPath("kept.txt"), "kept");
    open();
    click("readme.txt");
    const auto closeAll = [this](QWidget *) { m_dialog->close(); };
    std::vector<ModalDriver::Step> steps;
    if (atTheQuestion)
        steps.push_back(answerFileDialog(localPath("kept.txt")));
    steps.push_back(closeAll);
    ModalDriver driver(steps);
    emit m_dialog->findChild<QAbstractButton *>(button)->released();
    QVERIFY(driver.finished());
    QVERIFY(!m_dialog->isVisible());
    QVERIFY(!QApplication::activeModalWidget());
    QCOMPARE(contentOf(localPath("kept.txt")), "kept");
}

void tst_FileServiceDialog::failedDownloadIsReportedAndWritesNothing_data()
{
    addFailureRows();
}

void tst_FileServiceDialog::failedDownloadIsReportedAndWritesNothing()
{
    QFETCH(int, result);
    QFETCH(QString, error);
    QFETCH(QString, shown);
    m_store->addFile("A\\", "%2.txt", "content");
    open();
    doubleClick("A\\");
    click("%2.txt");
    m_store->addAnswer("getFile", OperationResult(result), error);
    m_store->forgetCalls();
    ShownMessage message;
    ModalDriver driver({answerFileDialog(localPath("copy.txt")),
                        ModalDriver::pressInMessageBox(QMessageBox::Ok, &message)});
    press("download");
    QVERIFY(driver.finished());
    QCOMPARE(message.title, "Fail");
    QCOMPARE(message.text, "Fail to Read File: A\\%2.txt error:" + shown);
    QCOMPARE(message.icon, QMessageBox::Warning);
    QCOMPARE(message.buttons, QMessageBox::Ok);
    QCOMPARE(message.parent, m_dialog.get());
    QCOMPARE(m_store->operations(), QStringList("getFile"));
    QVERIFY(!QFile::exists(localPath("copy.txt")));
    QVERIFY(button("download")->isEnabled());
}

void tst_FileServiceDialog::localFileThatCannotBeWrittenStillCountsAsDownloaded()
{
    open();
    click("readme.txt");
    m_store->forgetCalls();
    const QString impossible = localPath("no such folder/copy.txt");
    ShownMessage message;
    ModalDriver driver(
        {answerFileDialog(impossible), ModalDriver::pressInMessageBox(QMessageBox::Ok, &message)});
    press("download");
    QVERIFY(driver.finished());
    QCOMPARE(message.title, "Success");
    QCOMPARE(message.text, "Download Finished");
    QCOMPARE(m_store->operations(), QStringList({"getFile", "getFileDirectory"}));
    QVERIFY(!QFile::exists(impossible));
}

void tst_FileServiceDialog::localFileThatCannotBeWrittenIsToldWithTheReason()
{
    open();
    click("readme.txt");
    const QString impossible = localPath("no such folder/copy.txt");
    QString reason;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    ModalDriver driver({answerFileDialog(impossible), [&](QWidget *window) {
                            auto *const box = qobject_cast<QMessageBox *>(window);
                            reason = box ? box->informativeText() : QString();
                            icon = box ? box->icon() : QMessageBox::NoIcon;
                            window->close();
                        }});
    press("download");
    QVERIFY(driver.finished());
    QCOMPARE(icon, QMessageBox::Warning);
    const QString beginning = QString("\"%1\" cannot be written: ").arg(impossible);
    QVERIFY2(reason.startsWith(beginning), qPrintable(reason));
    QVERIFY(reason.size() > beginning.size());
}

void tst_FileServiceDialog::localFileThatIsOnlyHalfWrittenKeepsItsOldContent()
{
#ifdef Q_OS_LINUX
    open();
    click("readme.txt");
    // Larger than what this process may write.
    const QByteArray old("what was there before");
    QFile file(localPath("copy.txt"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(old);
    file.close();
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    rlimit little = before;
    little.rlim_cur = 2;
    const auto handler = signal(SIGXFSZ, SIG_IGN);
    ShownMessage message;
    ModalDriver driver({[&](QWidget *window) {
                            setrlimit(RLIMIT_FSIZE, &little);
                            answerFileDialog(localPath("copy.txt"))(window);
                        },
                        ModalDriver::pressInMessageBox(QMessageBox::Yes),
                        ModalDriver::pressInMessageBox(QMessageBox::Ok, &message)});
    press("download");
    setrlimit(RLIMIT_FSIZE, &before);
    signal(SIGXFSZ, handler);
    QVERIFY(driver.finished());
    QCOMPARE(message.title, "Fail");
    QVERIFY2(message.text.contains("cannot be written: "), qPrintable(message.text));
    QCOMPARE(contentOf(localPath("copy.txt")), old);
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), QStringList("copy.txt"));
#else
    QSKIP("The size of files is limited on Linux only.");
#endif
}

void tst_FileServiceDialog::nameOfADeviceChoosesNoFolder_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("proposed");
    QTest::newRow("folders above") << "../../etc/passwd.txt"
                                   << ".._.._etc_passwd.txt";
    QTest::newRow("an absolute path") << "/etc/passwd.txt"
                                      << "_etc_passwd.txt";
    QTest::newRow("a line feed") << "a\nb.txt"
                                 << "a_b.txt";
}

void tst_FileServiceDialog::nameOfADeviceChoosesNoFolder()
{
    QFETCH(QString, name);
    QFETCH(QString, proposed);
    m_store->addFile("", name, "content");
    open();
    click(name);
    AskedFile asked;
    ModalDriver driver({answerFileDialog({}, &asked)});
    press("download");
    QVERIFY(driver.finished());
    QCOMPARE(asked.directory, QCoreApplication::applicationDirPath());
    QCOMPARE(asked.name, proposed);
}

void tst_FileServiceDialog::downloadAndDeleteWithoutASelectionDoNothing()
{
    open();
    click("readme.txt");
    click("readme.txt", Qt::ControlModifier);
    QVERIFY(tree()->selectionModel()->selectedRows().isEmpty());
    QVERIFY(button("download")->isEnabled());
    m_store->forgetCalls();
    press("download");
    press("deleteFile");
    QVERIFY(m_store->calls().isEmpty());
}

void tst_FileServiceDialog::deleteAsksNothingAndListsAgain()
{
    open();
    click("readme.txt");
    m_store->forgetCalls();
    ShownMessage message;
    ModalDriver driver({ModalDriver::pressInMessageBox(QMessageBox::Ok, &message)});
    press("deleteFile");
    QVERIFY(driver.finished());
    QCOMPARE(m_store->operations(), QStringList({"deleteFile", "getFileDirectory"}));
    QCOMPARE(m_store->calls().first().deviceNo, long(handle));
    QCOMPARE(m_store->calls().first().arguments, QVariantList({"readme.txt"}));
    QCOMPARE(m_store->calls().last().arguments, QVariantList({"*.*", ""}));
    QCOMPARE(message.title, "Success");
    QCOMPARE(message.text, "Delete Finished");
    QCOMPARE(message.icon, QMessageBox::Information);
    QCOMPARE(message.parent, m_dialog.get());
    QCOMPARE(shownNames(), QStringList("A\\"));
}

void tst_FileServiceDialog::deleteOfAFileInADirectoryNamesItsPath()
{
    const QString name = QStringLiteral("Störung 1 %2.a.b");
    m_store->addFile("A\\B\\", name, "x");
    open();
    doubleClick("A\\");
    doubleClick("B\\");
    click(name);
    ModalDriver driver({ModalDriver::pressInMessageBox(QMessageBox::Ok)});
    press("deleteFile");
    QVERIFY(driver.finished());
    QCOMPARE(m_store->calls("deleteFile").first().arguments, QVariantList({"A\\B\\" + name}));
    QCOMPARE(m_store->namesIn("A\\B\\"), QStringList("deep.log"));
    QCOMPARE(shownNames(), QStringList({"..", "deep.log"}));
}

void tst_FileServiceDialog::failedDeleteIsReportedAndListsNothing_data()
{
    addFailureRows();
}

void tst_FileServiceDialog::failedDeleteIsReportedAndListsNothing()
{
    QFETCH(int, result);
    QFETCH(QString, error);
    QFETCH(QString, shown);
    m_store->addFile("A\\", "%2.txt", "content");
    open();
    doubleClick("A\\");
    click("%2.txt");
    m_store->addAnswer("deleteFile", OperationResult(result), error);
    m_store->forgetCalls();
    ShownMessage message;
    ModalDriver driver({ModalDriver::pressInMessageBox(QMessageBox::Ok, &message)});
    press("deleteFile");
    QVERIFY(driver.finished());
    QCOMPARE(message.title, "Fail");
    QCOMPARE(message.text, "Fail to Delete A\\%2.txt " + shown);
    QCOMPARE(message.icon, QMessageBox::Warning);
    QCOMPARE(message.buttons, QMessageBox::Ok);
    QCOMPARE(message.parent, m_dialog.get());
    QCOMPARE(m_store->operations(), QStringList("deleteFile"));
    QVERIFY(shownNames().contains("%2.txt"));
    QVERIFY(button("deleteFile")->isEnabled());
}

void tst_FileServiceDialog::selectedFileFillsBothFields()
{
    const QString name = QStringLiteral("Störung 1.a.b");
    writeLocalFile(localPath(name), "x");
    open();
    m_store->forgetCalls();
    AskedFile asked;
    ModalDriver driver({answerFileDialog(localPath(name), &asked)});
    press("findFile");
    QVERIFY(driver.finished());
    QCOMPARE(asked.title, "Select file");
    QCOMPARE(asked.directory, QCoreApplication::applicationDirPath());
    QCOMPARE(asked.name, "");
    QCOMPARE(asked.filters, QStringList("All Files(*.*)"));
    QCOMPARE(asked.mode, QFileDialog::AcceptOpen);
    QCOMPARE(asked.parent, m_dialog.get());
    QCOMPARE(edit("sourceFile")->text(), localPath(name));
    QCOMPARE(edit("targetFile")->text(), name);
    QVERIFY(m_store->calls().isEmpty());
}

void tst_FileServiceDialog::cancelledSelectionKeepsBothFields()
{
    open();
    QTest::keyClicks(edit("sourceFile"), "/a/b.txt");
    QTest::keyClicks(edit("targetFile"), "c.txt");
    ModalDriver driver({answerFileDialog({})});
    press("findFile");
    QVERIFY(driver.finished());
    QCOMPARE(edit("sourceFile")->text(), "/a/b.txt");
    QCOMPARE(edit("targetFile")->text(), "c.txt");
}

void tst_FileServiceDialog::uploadSendsTheFileAndListsAgain()
{
    writeLocalFile(localPath("settings.txt"), "new settings");
    open();
    ModalDriver selection({answerFileDialog(localPath("settings.txt"))});
    press("findFile");
    QVERIFY(selection.finished());
    m_store->forgetCalls();
    ShownMessage message;
    message.parent = m_dialog.get();
    QStringList namesBehindTheBox;
    ModalDriver driver({[&](QWidget *window) {
        namesBehindTheBox = shownNames();
        ModalDriver::pressInMessageBox(QMessageBox::Ok, &message)(window);
    }});
    press("upload");
    QVERIFY(driver.finished());
    QCOMPARE(m_store->operations(), QStringList({"writeFile", "getFileDirectory"}));
    QCOMPARE(m_store->calls().first().deviceNo, long(handle));
    QCOMPARE(m_store->calls().first().arguments,
             QVariantList({localPath("settings.txt"), "settings.txt"}));
    QCOMPARE(message.title, "Success");
    QCOMPARE(message.text, "Upload Finished");
    QCOMPARE(message.icon, QMessageBox::Information);
    QCOMPARE(message.parent, nullptr);
    QVERIFY(namesBehindTheBox.contains("settings.txt"));
    QCOMPARE(m_store->files.value("settings.txt"), "new settings");
}

void tst_FileServiceDialog::uploadGoesIntoTheCurrentDirectory()
{
    open();
    doubleClick("A\\");
    edit("sourceFile")->setText(QStringLiteral("/tmp/Störung %1.dat"));
    edit("targetFile")->setText(QStringLiteral("ü %2.dat"));
    m_store->forgetCalls();
    ModalDriver driver({ModalDriver::pressInMessageBox(QMessageBox::Ok)});
    press("upload");
    QVERIFY(driver.finished());
    QCOMPARE(m_store->calls("writeFile").first().arguments,
             QVariantList({QStringLiteral("/tmp/Störung %1.dat"), QStringLiteral("A\\ü %2.dat")}));
    QCOMPARE(m_store->calls("getFileDirectory").first().arguments, QVariantList({"*.*", "A\\"}));
}

void tst_FileServiceDialog::uploadOfEmptyFieldsIsLeftToTheDriver()
{
    open();
    doubleClick("A\\");
    m_store->addAnswer("writeFile", OperationFailed, "no such file");
    ShownMessage message;
    ModalDriver driver({ModalDriver::pressInMessageBox(QMessageBox::Ok, &message)});
    press("upload");
    QVERIFY(driver.finished());
    QCOMPARE(m_store->calls("writeFile").first().arguments, QVariantList({"", "A\\"}));
    QCOMPARE(message.text, "Fail to Upload File:  error:no such file");
}

void tst_FileServiceDialog::failedUploadIsReported_data()
{
    addFailureRows();
}

void tst_FileServiceDialog::failedUploadIsReported()
{
    QFETCH(int, result);
    QFETCH(QString, error);
    QFETCH(QString, shown);
    open();
    QTest::keyClicks(edit("sourceFile"), "/a/%2.txt");
    QTest::keyClicks(edit("targetFile"), "c.txt");
    m_store->addAnswer("writeFile", OperationResult(result), error);
    m_store->forgetCalls();
    ShownMessage message;
    ModalDriver driver({ModalDriver::pressInMessageBox(QMessageBox::Ok, &message)});
    press("upload");
    QVERIFY(driver.finished());
    QCOMPARE(message.title, "Fail");
    QCOMPARE(message.text, "Fail to Upload File: /a/%2.txt error:" + shown);
    QCOMPARE(message.icon, QMessageBox::Warning);
    QCOMPARE(message.buttons, QMessageBox::Ok);
    QCOMPARE(message.parent, m_dialog.get());
    QCOMPARE(m_store->operations(), QStringList("writeFile"));
    QCOMPARE(edit("sourceFile")->text(), "/a/%2.txt");
    QCOMPARE(edit("targetFile")->text(), "c.txt");
}

void tst_FileServiceDialog::successIsToldAlsoWhenTheListingAfterwardsFails()
{
    open();
    click("readme.txt");
    m_store->addAnswer("getFileDirectory", OperationFailed);
    ShownMessage failure;
    ShownMessage success;
    ModalDriver driver({ModalDriver::pressInMessageBox(QMessageBox::Ok, &failure),
                        ModalDriver::pressInMessageBox(QMessageBox::Ok, &success)});
    press("deleteFile");
    QVERIFY(driver.finished());
    QCOMPARE(failure.text, "Fail to readDirectory: Cannot connect to driver");
    QCOMPARE(success.text, "Delete Finished");
}

void tst_FileServiceDialog::f5ListsAgain()
{
    open();
    doubleClick("A\\");
    for (QWidget *focused :
         {static_cast<QWidget *>(tree()), static_cast<QWidget *>(edit("targetFile"))}) {
        focused->setFocus();
        m_store->forgetCalls();
        QTest::keyClick(focused, Qt::Key_F5);
        QCOMPARE(directoriesListed(), QStringList("A\\"));
    }
}

void tst_FileServiceDialog::enterOpensADirectory_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("return") << int(Qt::Key_Return);
    QTest::newRow("keypad") << int(Qt::Key_Enter);
}

void tst_FileServiceDialog::enterOpensADirectory()
{
    QFETCH(int, key);
    open();
    QCOMPARE(m_dialog->focusWidget(), tree());
    m_store->forgetCalls();
    makeCurrent("A\\");
    QTest::keyClick(tree(), Qt::Key(key));
    QCOMPARE(edit("directory")->text(), "A\\");
    makeCurrent("..");
    QTest::keyClick(tree(), Qt::Key(key));
    QCOMPARE(directoriesListed(), QStringList({"A\\", ""}));
    QVERIFY(m_dialog->isVisible());
}

void tst_FileServiceDialog::spaceOrEnterOnAFileIsLikeAClick_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("space") << int(Qt::Key_Space);
    QTest::newRow("return") << int(Qt::Key_Return);
}

void tst_FileServiceDialog::spaceOrEnterOnAFileIsLikeAClick()
{
    QFETCH(int, key);
    open();
    m_store->forgetCalls();
    makeCurrent("readme.txt");
    button("download")->setEnabled(false);
    button("deleteFile")->setEnabled(false);
    QTest::keyClick(tree(), Qt::Key(key));
    QVERIFY(button("download")->isEnabled());
    QVERIFY(button("deleteFile")->isEnabled());
    makeCurrent("readme.txt");
    QTest::keyClick(tree(), Qt::Key_Up);
    QTest::keyClick(tree(), Qt::Key_Space);
    QVERIFY(!button("download")->isEnabled());
    QVERIFY(m_store->calls().isEmpty());
}

void tst_FileServiceDialog::whatKeysChooseIsOffered()
{
    open();
    m_store->forgetCalls();
    makeCurrent("readme.txt");
    QVERIFY(button("download")->isEnabled());
    QVERIFY(button("deleteFile")->isEnabled());
    makeCurrent("A\\");
    QVERIFY(!button("download")->isEnabled());
    QVERIFY(!button("deleteFile")->isEnabled());
    QVERIFY(m_store->calls().isEmpty());
    // A listing withdraws it, and the focus alone chooses nothing.
    makeCurrent("readme.txt");
    press("refresh");
    QVERIFY(!button("download")->isEnabled());
    m_dialog->findChild<QWidget *>("targetFile")->setFocus();
    tree()->setFocus();
    QVERIFY(!button("download")->isEnabled());
}

void tst_FileServiceDialog::enterTriggersNoButton_data()
{
    QTest::addColumn<QString>("focused");
    for (const char *name : {"treeView", "directory", "sourceFile", "targetFile"})
        QTest::newRow(name) << name;
}

void tst_FileServiceDialog::enterTriggersNoButton()
{
    QFETCH(QString, focused);
    open();
    click("readme.txt");
    m_store->forgetCalls();
    auto *widget = m_dialog->findChild<QWidget *>(focused);
    widget->setFocus();
    QTest::keyClick(widget, Qt::Key_Return);
    QVERIFY(m_store->calls().isEmpty());
    QVERIFY(m_dialog->isVisible());
    for (const QPushButton *found : m_dialog->findChildren<QPushButton *>()) {
        QVERIFY2(!found->autoDefault(), qPrintable(found->objectName()));
        QVERIFY2(!found->isDefault(), qPrintable(found->objectName()));
    }
}

void tst_FileServiceDialog::tabFollowsReadingOrder()
{
    open();
    click("readme.txt");
    edit("directory")->setFocus();
    QStringList order;
    do {
        order << m_dialog->focusWidget()->objectName();
        QTest::keyClick(m_dialog->focusWidget(), Qt::Key_Tab);
    } while (m_dialog->focusWidget() != edit("directory") && order.size() < 20);
    QCOMPARE(order, QStringList({"directory", "refresh", "treeView", "download", "deleteFile",
                                 "sourceFile", "findFile", "targetFile", "upload", "close"}));
}

void tst_FileServiceDialog::inputsAndListHaveAccessibleNames()
{
    open();
    for (const char *name : {"directory", "treeView", "sourceFile", "findFile", "targetFile"})
        QVERIFY2(!m_dialog->findChild<QWidget *>(name)->accessibleName().isEmpty(), name);
}

void tst_FileServiceDialog::busyCursorIsShownWhileTheDriverWorks()
{
    open();
    int busyCalls = 0;
    m_store->setOnCall([&](const RecordingDriverService::Call &) {
        const QCursor *cursor = QApplication::overrideCursor();
        busyCalls += cursor && cursor->shape() == Qt::WaitCursor ? 1 : 0;
    });
    press("refresh");
    click("readme.txt");
    ModalDriver driver({ModalDriver::pressInMessageBox(QMessageBox::Ok)});
    press("deleteFile");
    QVERIFY(driver.finished());
    QCOMPARE(busyCalls, 3);
    QVERIFY(!QApplication::overrideCursor());
    m_store->setOnCall({});
}

void tst_FileServiceDialog::closeAndEscapeLeaveTheDialog()
{
    open();
    QSignalSpy rejected(m_dialog.get(), &QDialog::rejected);
    press("close");
    QCOMPARE(rejected.count(), 1);
    QVERIFY(!m_dialog->isVisible());
    m_dialog->show();
    QTest::keyClick(tree(), Qt::Key_Escape);
    QCOMPARE(rejected.count(), 2);
    QVERIFY(!m_dialog->isVisible());
}

QTEST_MAIN(tst_FileServiceDialog)
#include "tst_fileservicedialog.moc"
