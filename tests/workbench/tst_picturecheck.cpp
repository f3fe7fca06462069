// SPDX-License-Identifier: Apache-2.0

#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtTest/QtTest>

class tst_PictureCheck : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void aPictureThatShowsSomethingPasses();
    void whatShowsNothingIsRefused_data();
    void whatShowsNothingIsRefused();
    void oneBadPictureAmongGoodOnesFails();
    void noPictureAtAllFails();

private:
    struct Outcome
    {
        int status = -1;
        QString sentence;
    };

    static Outcome check(const QStringList &files);
    QString saved(const QString &name, const QSize &size, double paintedShare) const;

    QTemporaryDir m_folder;
};

tst_PictureCheck::Outcome tst_PictureCheck::check(const QStringList &files)
{
    QProcess process;
    process.start(QStringLiteral(PICTURECHECK), files);
    if (!process.waitForFinished())
        return {};
    return {process.exitCode(), QString::fromLocal8Bit(process.readAllStandardError())};
}

/// A white picture of which that share, from the left, is painted black.
QString tst_PictureCheck::saved(const QString &name, const QSize &size, double paintedShare) const
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter(&image).fillRect(0, 0, qRound(paintedShare * size.width()), size.height(), Qt::black);
    const QString file = m_folder.filePath(name);
    return image.save(file) ? file : QString();
}

void tst_PictureCheck::initTestCase()
{
    QVERIFY(m_folder.isValid());
}

void tst_PictureCheck::aPictureThatShowsSomethingPasses()
{
    const Outcome outcome = check({saved(QStringLiteral("good.png"), QSize(400, 200), 0.05)});
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.sentence, QString());
}

void tst_PictureCheck::whatShowsNothingIsRefused_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("reason");
    QTest::newRow("missing") << m_folder.filePath(QStringLiteral("missing.png"))
                             << QStringLiteral("does not exist");
    QTest::newRow("too low") << saved(QStringLiteral("low.png"), QSize(400, 99), 0.5)
                             << QStringLiteral("400 x 99 pixels");
    QTest::newRow("too narrow") << saved(QStringLiteral("narrow.png"), QSize(199, 200), 0.5)
                                << QStringLiteral("199 x 200 pixels");
    QTest::newRow("blank") << saved(QStringLiteral("blank.png"), QSize(400, 200), 0)
                           << QStringLiteral("blank");
    QTest::newRow("nearly blank") << saved(QStringLiteral("nearly.png"), QSize(400, 200), 0.01)
                                  << QStringLiteral("99.0 %");

    const QString text = m_folder.filePath(QStringLiteral("text.png"));
    QFile file(text);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("This is no picture.");
    QTest::newRow("unreadable") << text << QStringLiteral("cannot be read");
}

void tst_PictureCheck::whatShowsNothingIsRefused()
{
    QFETCH(const QString, file);
    QFETCH(const QString, reason);
    const Outcome outcome = check({file});
    QCOMPARE(outcome.status, 1);
    QVERIFY2(outcome.sentence.contains(reason), qPrintable(outcome.sentence));
}

void tst_PictureCheck::oneBadPictureAmongGoodOnesFails()
{
    const QString good = saved(QStringLiteral("good.png"), QSize(400, 200), 0.5);
    QCOMPARE(check({good, m_folder.filePath(QStringLiteral("missing.png")), good}).status, 1);
}

void tst_PictureCheck::noPictureAtAllFails()
{
    QCOMPARE(check({}).status, 1);
}

QTEST_GUILESS_MAIN(tst_PictureCheck)
#include "tst_picturecheck.moc"
