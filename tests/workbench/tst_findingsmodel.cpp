// SPDX-License-Identifier: Apache-2.0
#include "workbench/findingsmodel.h"

#include <QtCore/QSortFilterProxyModel>
#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QtTest>

namespace {

scl::Finding finding(scl::Severity severity, std::uint32_t line, const std::string &text)
{
    return {severity, line, "SCL/IED[BAY1]", wording::verbatim(text)};
}

QString cell(const QAbstractItemModel &model, int row, int column)
{
    return model.index(row, column).data().toString();
}

} // namespace

class tst_FindingsModel : public QObject
{
    Q_OBJECT

private slots:
    void aFindingShowsSeverityLineElementAndSentence();
    void aFindingWithoutALineShowsNone();
    void theSummaryCountsBySeverity();
    void theSeverestComeFirstWhenSortedBySeverity();
    void linesAreSortedAsNumbers();
    void newFindingsReplaceTheOldOnes();
};

void tst_FindingsModel::aFindingShowsSeverityLineElementAndSentence()
{
    FindingsModel model;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setFindings({finding(scl::Severity::Warning, 12, "Größe fehlt.")});
    QCOMPARE(model.rowCount(), 1);
    QCOMPARE(cell(model, 0, FindingsModel::SeverityColumn), QStringLiteral("Warning"));
    QCOMPARE(cell(model, 0, FindingsModel::LineColumn), QStringLiteral("12"));
    QCOMPARE(cell(model, 0, FindingsModel::ElementColumn), QStringLiteral("SCL/IED[BAY1]"));
    QCOMPARE(cell(model, 0, FindingsModel::TextColumn), QStringLiteral("Größe fehlt."));
    const QVariant icon = model.index(0, FindingsModel::SeverityColumn).data(Qt::DecorationRole);
    QVERIFY(!icon.value<QIcon>().isNull());
}

void tst_FindingsModel::aFindingWithoutALineShowsNone()
{
    FindingsModel model;
    model.setFindings({finding(scl::Severity::Info, 0, "x")});
    QCOMPARE(cell(model, 0, FindingsModel::LineColumn), QString());
}

void tst_FindingsModel::theSummaryCountsBySeverity()
{
    FindingsModel model;
    QCOMPARE(model.summary(), QString());
    model.setFindings({finding(scl::Severity::Error, 1, "a"), finding(scl::Severity::Info, 2, "b"),
                       finding(scl::Severity::Error, 3, "c")});
    QCOMPARE(model.summary(), QStringLiteral("2 errors, 1 note"));
    model.setFindings({finding(scl::Severity::Warning, 1, "a")});
    QCOMPARE(model.summary(), QStringLiteral("1 warning"));
}

void tst_FindingsModel::theSeverestComeFirstWhenSortedBySeverity()
{
    FindingsModel model;
    model.setFindings({finding(scl::Severity::Info, 1, "note"),
                       finding(scl::Severity::Error, 2, "error"),
                       finding(scl::Severity::Warning, 3, "warning")});
    QSortFilterProxyModel sorted;
    sorted.setSourceModel(&model);
    sorted.setSortRole(FindingsModel::SortRole);
    sorted.sort(FindingsModel::SeverityColumn);
    QCOMPARE(cell(sorted, 0, FindingsModel::TextColumn), QStringLiteral("error"));
    QCOMPARE(cell(sorted, 1, FindingsModel::TextColumn), QStringLiteral("warning"));
    QCOMPARE(cell(sorted, 2, FindingsModel::TextColumn), QStringLiteral("note"));
}

void tst_FindingsModel::linesAreSortedAsNumbers()
{
    FindingsModel model;
    model.setFindings(
        {finding(scl::Severity::Info, 100, "late"), finding(scl::Severity::Info, 9, "early")});
    QSortFilterProxyModel sorted;
    sorted.setSourceModel(&model);
    sorted.setSortRole(FindingsModel::SortRole);
    sorted.sort(FindingsModel::LineColumn);
    QCOMPARE(cell(sorted, 0, FindingsModel::TextColumn), QStringLiteral("early"));
}

void tst_FindingsModel::newFindingsReplaceTheOldOnes()
{
    FindingsModel model;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setFindings({finding(scl::Severity::Info, 1, "a"), finding(scl::Severity::Info, 2, "b")});
    model.setFindings({finding(scl::Severity::Info, 3, "c")});
    QCOMPARE(model.rowCount(), 1);
    QCOMPARE(cell(model, 0, FindingsModel::TextColumn), QStringLiteral("c"));
}

QTEST_MAIN(tst_FindingsModel)
#include "tst_findingsmodel.moc"
