// SPDX-License-Identifier: Apache-2.0
#include "fileservice/filemodel.h"

#include <QtCore/QLocale>
#include <QtGui/QIcon>
#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QTreeView>

namespace {

enum Column { NameColumn, TimeColumn, SizeColumn };

MMSFileEntry makeEntry(const QString &name, quint32 size, quint32 lastModified = 0)
{
    MMSFileEntry entry;
    entry.directory = QStringLiteral("A\\");
    entry.size = size;
    entry.attributes = 7;
    entry.lastModified = lastModified;
    entry.name = name;
    return entry;
}

QImage shownIcon(const FileModel &model, int row)
{
    return model.index(row, NameColumn)
        .data(Qt::DecorationRole)
        .value<QIcon>()
        .pixmap(16, 16)
        .toImage();
}

} // namespace

class tst_FileModel : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void emptyListHasHeadersOnly();
    void staysConsistentWhileListsAreReplaced();
    void everyListResetsTheModelAlsoAnEqualOne();
    void resetClearsTheSelectionOfAView();
    void columnsAreTitledNameTimeAndSize();
    void verticalHeaderAndOtherRolesOfHeadersAreEmpty();
    void nameIsShownAsItIs_data();
    void nameIsShownAsItIs();
    void timeIsLocalInTheShortFormOfTheSystem_data();
    void timeIsLocalInTheShortFormOfTheSystem();
    void sizeIsShownInKilobytes_data();
    void sizeIsShownInKilobytes();
    void sizeIsGroupedByTheLocale();
    void onlyTheSizeIsAligned();
    void onlyTheNameHasAnIcon();
    void iconTellsDirectoriesFromFiles_data();
    void iconTellsDirectoriesFromFiles();
    void otherRolesAreEmpty();
    void rowsCanBeSelectedAndNothingElse();
    void listIsFlat();
    void indexesBeyondTheListAreInvalid();
    void entryGivesAllFields();
    void entryOfAnUnknownRowIsEmpty();
};

void tst_FileModel::cleanup()
{
    QLocale::setDefault(QLocale::c());
}

void tst_FileModel::emptyListHasHeadersOnly()
{
    FileModel model;
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(model.columnCount(), 3);
    QCOMPARE(model.headerData(0, Qt::Horizontal).toString(), "Name");
}

void tst_FileModel::staysConsistentWhileListsAreReplaced()
{
    FileModel model;
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setEntries({makeEntry("..", 0), makeEntry("B\\", 0), makeEntry("c.cfg", 5000)});
    QCOMPARE(model.rowCount(), 3);
    model.setEntries({makeEntry("d.dat", 10)});
    QCOMPARE(model.rowCount(), 1);
    model.setEntries({});
    QCOMPARE(model.rowCount(), 0);
}

void tst_FileModel::everyListResetsTheModelAlsoAnEqualOne()
{
    FileModel model;
    QSignalSpy aboutToReset(&model, &QAbstractItemModel::modelAboutToBeReset);
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    const QList<MMSFileEntry> entries{makeEntry("a", 1)};
    model.setEntries(entries);
    model.setEntries(entries);
    QCOMPARE(aboutToReset.count(), 2);
    QCOMPARE(reset.count(), 2);
}

void tst_FileModel::resetClearsTheSelectionOfAView()
{
    FileModel model;
    QTreeView view;
    view.setModel(&model);
    model.setEntries({makeEntry("a", 1), makeEntry("b", 1)});
    view.setCurrentIndex(model.index(1, 0));
    QCOMPARE(view.selectionModel()->selectedRows().size(), 1);
    model.setEntries({makeEntry("a", 1), makeEntry("b", 1)});
    QVERIFY(view.selectionModel()->selectedRows().isEmpty());
}

void tst_FileModel::columnsAreTitledNameTimeAndSize()
{
    const FileModel model;
    QCOMPARE(model.headerData(NameColumn, Qt::Horizontal).toString(), "Name");
    QCOMPARE(model.headerData(TimeColumn, Qt::Horizontal).toString(), "Time");
    QCOMPARE(model.headerData(SizeColumn, Qt::Horizontal).toString(), "Size");
}

void tst_FileModel::verticalHeaderAndOtherRolesOfHeadersAreEmpty()
{
    FileModel model;
    model.setEntries({makeEntry("a", 1)});
    QVERIFY(!model.headerData(0, Qt::Vertical).isValid());
    QVERIFY(!model.headerData(0, Qt::Horizontal, Qt::ToolTipRole).isValid());
    QVERIFY(!model.headerData(3, Qt::Horizontal).isValid());
    QVERIFY(!model.headerData(-1, Qt::Horizontal).isValid());
}

void tst_FileModel::nameIsShownAsItIs_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << "rec1.cfg";
    QTest::newRow("way up") << "..";
    QTest::newRow("separator in front") << "\\f";
    QTest::newRow("separator behind") << "COMTRADE\\";
    QTest::newRow("blanks") << " two words ";
    QTest::newRow("percent signs") << "%1%2.txt";
    QTest::newRow("other letters") << QStringLiteral("Störung 事件.dat");
    QTest::newRow("empty") << "";
}

void tst_FileModel::nameIsShownAsItIs()
{
    QFETCH(QString, name);
    FileModel model;
    model.setEntries({makeEntry(name, 1)});
    QCOMPARE(model.index(0, NameColumn).data().toString(), name);
}

void tst_FileModel::timeIsLocalInTheShortFormOfTheSystem_data()
{
    QTest::addColumn<quint32>("lastModified");
    QTest::addColumn<QString>("shown");
    QTest::newRow("unknown") << 0U << "";
    QTest::newRow("first second") << 1U << "1 Jan 1970 01:00:01";
    QTest::newRow("of our days") << 1700000000U << "14 Nov 2023 23:13:20";
    QTest::newRow("beyond 31 bits") << 2147483648U << "19 Jan 2038 04:14:08";
    QTest::newRow("last second") << 4294967295U << "7 Feb 2106 07:28:15";
}

void tst_FileModel::timeIsLocalInTheShortFormOfTheSystem()
{
    QFETCH(quint32, lastModified);
    QFETCH(QString, shown);
    FileModel model;
    model.setEntries({makeEntry("a", 1, lastModified)});
    QCOMPARE(model.index(0, TimeColumn).data().toString(), shown);
}

void tst_FileModel::sizeIsShownInKilobytes_data()
{
    QTest::addColumn<quint32>("size");
    QTest::addColumn<QString>("shown");
    QTest::newRow("0") << 0U << "";
    QTest::newRow("1") << 1U << "1KB";
    QTest::newRow("999") << 999U << "1KB";
    QTest::newRow("1000") << 1000U << "1KB";
    QTest::newRow("1999") << 1999U << "1KB";
    QTest::newRow("2000") << 2000U << "2KB";
    QTest::newRow("1234567") << 1234567U << "1,234KB";
    QTest::newRow("beyond 31 bits") << 2147483648U << "2,147,483KB";
    QTest::newRow("largest") << 4294967295U << "4,294,967KB";
}

void tst_FileModel::sizeIsShownInKilobytes()
{
    QFETCH(quint32, size);
    QFETCH(QString, shown);
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    FileModel model;
    model.setEntries({makeEntry("a", size)});
    QCOMPARE(model.index(0, SizeColumn).data().toString(), shown);
}

void tst_FileModel::sizeIsGroupedByTheLocale()
{
    FileModel model;
    model.setEntries({makeEntry("a", 1234567)});
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    QCOMPARE(model.index(0, SizeColumn).data().toString(), "1.234KB");
}

void tst_FileModel::onlyTheSizeIsAligned()
{
    FileModel model;
    model.setEntries({makeEntry("a", 1)});
    QCOMPARE(model.index(0, SizeColumn).data(Qt::TextAlignmentRole).toInt(), int(Qt::AlignRight));
    QVERIFY(!model.index(0, NameColumn).data(Qt::TextAlignmentRole).isValid());
    QVERIFY(!model.index(0, TimeColumn).data(Qt::TextAlignmentRole).isValid());
}

void tst_FileModel::onlyTheNameHasAnIcon()
{
    FileModel model;
    model.setEntries({makeEntry("a", 1)});
    QVERIFY(!shownIcon(model, 0).isNull());
    QVERIFY(!model.index(0, TimeColumn).data(Qt::DecorationRole).isValid());
    QVERIFY(!model.index(0, SizeColumn).data(Qt::DecorationRole).isValid());
}

void tst_FileModel::iconTellsDirectoriesFromFiles_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<quint32>("size");
    QTest::addColumn<bool>("folder");
    QTest::newRow("way up") << ".." << 0U << true;
    QTest::newRow("way up with a size") << ".." << 5U << true;
    QTest::newRow("separator behind") << "COMTRADE\\" << 0U << true;
    QTest::newRow("separator in front") << "\\f" << 0U << true;
    QTest::newRow("separator and size") << "COMTRADE\\" << 1U << false;
    QTest::newRow("neither") << "rec1.cfg" << 0U << false;
    QTest::newRow("other slash") << "COMTRADE/" << 0U << false;
    QTest::newRow("three dots") << "..." << 0U << false;
    QTest::newRow("file") << "rec1.cfg" << 10U << false;
}

void tst_FileModel::iconTellsDirectoriesFromFiles()
{
    QFETCH(QString, name);
    QFETCH(quint32, size);
    QFETCH(bool, folder);
    FileModel model;
    model.setEntries({makeEntry(name, size), makeEntry("..", 0), makeEntry("file", 1)});
    QVERIFY(shownIcon(model, 1) != shownIcon(model, 2));
    QCOMPARE(shownIcon(model, 0), shownIcon(model, folder ? 1 : 2));
}

void tst_FileModel::otherRolesAreEmpty()
{
    FileModel model;
    model.setEntries({makeEntry("a", 1000, 1000)});
    for (int column = NameColumn; column <= SizeColumn; ++column) {
        const QModelIndex index = model.index(0, column);
        for (int role : {int(Qt::EditRole), int(Qt::ToolTipRole), int(Qt::CheckStateRole),
                         int(Qt::ForegroundRole), int(Qt::UserRole)})
            QVERIFY(!index.data(role).isValid());
    }
}

void tst_FileModel::rowsCanBeSelectedAndNothingElse()
{
    FileModel model;
    model.setEntries({makeEntry("..", 0), makeEntry("a", 1)});
    for (int row = 0; row < 2; ++row) {
        for (int column = NameColumn; column <= SizeColumn; ++column)
            QCOMPARE(model.flags(model.index(row, column)),
                     Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    }
}

void tst_FileModel::listIsFlat()
{
    FileModel model;
    model.setEntries({makeEntry("B\\", 0)});
    const QModelIndex directory = model.index(0, 0);
    QCOMPARE(directory.internalPointer(), nullptr);
    QVERIFY(!model.parent(directory).isValid());
    QCOMPARE(model.rowCount(directory), 0);
    QCOMPARE(model.columnCount(directory), 3);
    QVERIFY(!model.index(0, 0, directory).isValid());
    QVERIFY(!model.hasChildren(directory));
}

void tst_FileModel::indexesBeyondTheListAreInvalid()
{
    FileModel model;
    model.setEntries({makeEntry("a", 1)});
    QVERIFY(!model.index(1, 0).isValid());
    QVERIFY(!model.index(-1, 0).isValid());
    QVERIFY(!model.index(0, 3).isValid());
    QVERIFY(!model.index(0, -1).isValid());
    QVERIFY(!model.data(QModelIndex()).isValid());
}

void tst_FileModel::entryGivesAllFields()
{
    FileModel model;
    model.setEntries({makeEntry("a", 1), makeEntry("b.dat", 4000000000U, 1700000000U)});
    const MMSFileEntry entry = model.entry(1);
    QCOMPARE(entry.directory, "A\\");
    QCOMPARE(entry.size, 4000000000U);
    QCOMPARE(entry.attributes, 7);
    QCOMPARE(entry.lastModified, 1700000000U);
    QCOMPARE(entry.name, "b.dat");
}

void tst_FileModel::entryOfAnUnknownRowIsEmpty()
{
    FileModel model;
    model.setEntries({makeEntry("a", 1)});
    QVERIFY(model.entry(1).name.isEmpty());
    QVERIFY(model.entry(-1).name.isEmpty());
}

int main(int argc, char *argv[])
{
    // Times are shown in the system's form and time zone; here those of a fixed one.
    qputenv("LC_ALL", "C");
    qputenv("TZ", "CET-1");
    QApplication application(argc, argv);
    tst_FileModel test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_filemodel.moc"
