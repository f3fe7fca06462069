// SPDX-License-Identifier: Apache-2.0
#include <QtTest>

#include <QColor>
#include <QDir>
#include <QFile>
#include <QIcon>
#include <QImage>
#include <QTranslator>

#include <cmath>

namespace {

const char *const iconNames[] = {"PD",   "LD", "LN",       "CDC", "BR", "RP", "BR-d",
                                 "RP-d", "DS", "Data-Set", "cf",  "co", "dc", "ex",
                                 "mx",   "sg", "sp",       "st",  "sv"};

const char *const languages[] = {"de", "es", "fr", "pt_BR", "ru", "zh_CN"};

QString iconPath(const char *name, const char *suffix = "")
{
    return QStringLiteral(":/850Ext/image/%1%2.png")
        .arg(QLatin1String(name), QLatin1String(suffix));
}

QImage onBackground(const QString &path, const QColor &background)
{
    const QImage icon(path);
    QImage result(icon.size(), QImage::Format_RGB32);
    for (int y = 0; y < icon.height(); ++y) {
        for (int x = 0; x < icon.width(); ++x) {
            const QColor pixel = icon.pixelColor(x, y);
            const double a = pixel.alphaF();
            result.setPixelColor(
                x, y,
                QColor::fromRgbF(pixel.redF() * a + background.redF() * (1 - a),
                                 pixel.greenF() * a + background.greenF() * (1 - a),
                                 pixel.blueF() * a + background.blueF() * (1 - a)));
        }
    }
    return result;
}

double luminance(const QColor &colour)
{
    const auto linear = [](double c) {
        return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double contrast(const QColor &first, const QColor &second)
{
    const double a = luminance(first);
    const double b = luminance(second);
    return (qMax(a, b) + 0.05) / (qMin(a, b) + 0.05);
}

double meanDifference(const QImage &first, const QImage &second)
{
    double sum = 0;
    for (int y = 0; y < first.height(); ++y) {
        for (int x = 0; x < first.width(); ++x) {
            const QColor a = first.pixelColor(x, y);
            const QColor b = second.pixelColor(x, y);
            sum += std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) +
                   std::abs(a.blue() - b.blue());
        }
    }
    return sum / (3.0 * first.width() * first.height());
}

} // namespace

class tst_Resources : public QObject
{
    Q_OBJECT

private slots:
    void everyIconComesInBothScales();
    void aScreenWithTwoPixelsPerUnitGetsTheFineIcon();
    void noTwoIconsLookAlikeAtSixteenPixels();
    void iconsStandOut_data();
    void iconsStandOut();
    void everyCatalogueIsCompiledInAndBesideTheWorkbench();
    void everyLanguageExplainsTheStandard();
};

void tst_Resources::everyIconComesInBothScales()
{
    for (const char *name : iconNames) {
        QCOMPARE(QImage(iconPath(name)).size(), QSize(16, 16));
        QCOMPARE(QImage(iconPath(name, "@2x")).size(), QSize(32, 32));
    }
    const QDir folder(QStringLiteral(":/850Ext/image"));
    QCOMPARE(folder.entryList().size(), 2 * int(std::size(iconNames)));
}

void tst_Resources::aScreenWithTwoPixelsPerUnitGetsTheFineIcon()
{
    const QImage fine(iconPath("PD", "@2x"));
    QCOMPARE(fine.devicePixelRatio(), 2.0);
    QVERIFY(QIcon(iconPath("PD")).availableSizes().contains(QSize(16, 16)));
}

void tst_Resources::noTwoIconsLookAlikeAtSixteenPixels()
{
    for (size_t i = 0; i < std::size(iconNames); ++i) {
        for (size_t j = i + 1; j < std::size(iconNames); ++j) {
            const QImage first = onBackground(iconPath(iconNames[i]), Qt::white);
            const QImage second = onBackground(iconPath(iconNames[j]), Qt::white);
            const QString pair = QStringLiteral("%1 %2").arg(QLatin1String(iconNames[i]),
                                                             QLatin1String(iconNames[j]));
            QVERIFY2(meanDifference(first, second) > 12, qPrintable(pair));
        }
    }
}

void tst_Resources::iconsStandOut_data()
{
    QTest::addColumn<QColor>("background");
    QTest::newRow("light") << QColor(Qt::white);
    QTest::newRow("dark") << QColor(0x2b, 0x2b, 0x2b);
}

void tst_Resources::iconsStandOut()
{
    QFETCH(QColor, background);
    for (const char *name : iconNames) {
        const QImage image = onBackground(iconPath(name), background);
        int clear = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                clear += contrast(image.pixelColor(x, y), background) >= 2.5;
        }
        // A quarter of the square: less would be a line drawing that is lost in a row of text.
        QVERIFY2(clear >= 16 * 16 / 4,
                 qPrintable(QStringLiteral("%1: %2").arg(QLatin1String(name)).arg(clear)));
    }
}

void tst_Resources::everyCatalogueIsCompiledInAndBesideTheWorkbench()
{
    const QDir compiledIn(QStringLiteral(":/850Ext/translation"));
    const QStringList names = compiledIn.entryList();
    for (const char *language : languages)
        QVERIFY(names.contains(QStringLiteral("iec61850ext_%1.qm").arg(QLatin1String(language))));
    const QDir folder(QStringLiteral(TRANSLATION_FOLDER));
    for (const QString &name : names) {
        QFile inside(compiledIn.filePath(name));
        QFile beside(folder.filePath(name));
        QVERIFY(inside.open(QIODevice::ReadOnly));
        QVERIFY2(beside.open(QIODevice::ReadOnly), qPrintable(beside.fileName()));
        QCOMPARE(beside.readAll(), inside.readAll());
    }
}

void tst_Resources::everyLanguageExplainsTheStandard()
{
    const char english[] = "Controls voltage, for example by the excitation of a generator.";
    QStringList sentences;
    for (const char *language : languages) {
        QTranslator catalogue;
        QVERIFY2(catalogue.load(QStringLiteral("explanations_") + QLatin1String(language),
                                QStringLiteral(":/850Ext/model")),
                 language);
        const QString sentence = catalogue.translate("SclExplanations", english);
        QVERIFY2(!sentence.isEmpty() && sentence != QLatin1String(english), language);
        QVERIFY2(!sentences.contains(sentence), language);
        sentences << sentence;
    }
}

QTEST_MAIN(tst_Resources)
#include "tst_resources.moc"
