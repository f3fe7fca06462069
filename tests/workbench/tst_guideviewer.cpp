// SPDX-License-Identifier: Apache-2.0
#include "workbench/guideviewer.h"

#include <QtCore/QUrl>
#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>
#include <QtTest/QtTest>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTextBrowser>
#include <QtWidgets/QToolButton>

class tst_GuideViewer : public QObject
{
    Q_OBJECT

private slots:
    void theGuideIsShownWithEveryPicture();
    void aLinkGoesToTheHeadingOfAnotherPageAndBack();
    void everyLinkLeadsToAPage();
    void findingGoesOnFromTheTop();
};

namespace {

QTextBrowser *browserOf(GuideViewer &viewer)
{
    return viewer.findChild<QTextBrowser *>();
}

/// Formats of all pieces of text.
QVector<QTextCharFormat> formatsOf(const QTextDocument *document)
{
    QVector<QTextCharFormat> formats;
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        for (auto piece = block.begin(); !piece.atEnd(); ++piece)
            formats << piece.fragment().charFormat();
    }
    return formats;
}

} // namespace

void tst_GuideViewer::theGuideIsShownWithEveryPicture()
{
    GuideViewer viewer;
    const QTextBrowser *browser = browserOf(viewer);
    QCOMPARE(browser->document()->begin().text(), QStringLiteral("Operator guide"));
    int pictures = 0;
    for (const QTextCharFormat &format : formatsOf(browser->document())) {
        if (!format.isImageFormat())
            continue;
        const QUrl name(format.toImageFormat().name());
        const QImage image =
            browser->document()->resource(QTextDocument::ImageResource, name).value<QImage>();
        const QImage file(QLatin1String(":/guide/") + name.path());
        QVERIFY2(!image.isNull() || !file.isNull(), qPrintable(name.toString()));
        ++pictures;
    }
    QVERIFY(pictures >= 8);
}

void tst_GuideViewer::aLinkGoesToTheHeadingOfAnotherPageAndBack()
{
    GuideViewer viewer;
    viewer.show();
    QTextBrowser *browser = browserOf(viewer);
    viewer.open(QUrl(QStringLiteral("messages.md#the-workbench")));
    QCOMPARE(browser->source().fileName(), QStringLiteral("messages.md"));
    QCOMPARE(browser->textCursor().block().text(), QStringLiteral("The workbench"));
    QVERIFY(qAbs(browser->cursorRect().top()) < 10);

    viewer.findChild<QToolButton *>()->click();
    QCOMPARE(browser->source().fileName(), QStringLiteral("operator-guide.md"));
}

void tst_GuideViewer::everyLinkLeadsToAPage()
{
    GuideViewer viewer;
    QTextBrowser *browser = browserOf(viewer);
    for (const char *page : {"operator-guide.md", "messages.md"}) {
        viewer.open(QUrl(page));
        int links = 0;
        for (const QTextCharFormat &format : formatsOf(browser->document())) {
            if (!format.isAnchor())
                continue;
            ++links;
            const QUrl link(format.anchorHref());
            viewer.open(link);
            QString heading = browser->textCursor().block().text().toLower();
            heading.replace(QLatin1Char(' '), QLatin1Char('-'));
            if (link.hasFragment())
                QCOMPARE(heading.remove(','), link.fragment());
            else
                QCOMPARE(browser->source().fileName(), link.fileName());
            viewer.open(QUrl(page));
        }
        QVERIFY(links > 0);
    }
}

void tst_GuideViewer::findingGoesOnFromTheTop()
{
    GuideViewer viewer;
    QTextBrowser *browser = browserOf(viewer);
    auto *pattern = viewer.findChild<QLineEdit *>();
    pattern->setText("Glossary");
    browser->moveCursor(QTextCursor::End);
    QTest::keyClick(pattern, Qt::Key_Return);
    QCOMPARE(browser->textCursor().selectedText().toLower(), QStringLiteral("glossary"));
}

QTEST_MAIN(tst_GuideViewer)
#include "tst_guideviewer.moc"
