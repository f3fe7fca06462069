// SPDX-License-Identifier: Apache-2.0
// Says whether pictures of windows show something: picturecheck FILE...
// Ends with 1 and a sentence for each picture that is missing, unreadable, too small or blank.

#include <QtCore/QFileInfo>
#include <QtCore/QHash>
#include <QtCore/QTextStream>
#include <QtGui/QImage>
#include <QtGui/QImageReader>

#include <algorithm>
#include <cstdio>

namespace {

constexpr int smallestWidth = 200;
constexpr int smallestHeight = 100;
constexpr double blankShare = 0.98;

/// What is wrong with the picture; empty when nothing is.
QString problem(const QString &file)
{
    if (!QFileInfo::exists(file))
        return QStringLiteral("does not exist.");
    QImageReader reader(file);
    const QImage image = reader.read().convertToFormat(QImage::Format_RGB32);
    if (image.isNull())
        return QStringLiteral("cannot be read: %1.").arg(reader.errorString());
    if (image.width() < smallestWidth || image.height() < smallestHeight) {
        return QStringLiteral("has %1 x %2 pixels; at least %3 x %4 are expected.")
            .arg(image.width())
            .arg(image.height())
            .arg(smallestWidth)
            .arg(smallestHeight);
    }
    QHash<QRgb, int> pixels;
    for (int y = 0; y < image.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x)
            ++pixels[line[x]];
    }
    const double share = static_cast<double>(*std::max_element(pixels.cbegin(), pixels.cend())) /
                         (static_cast<double>(image.width()) * image.height());
    if (share > blankShare) {
        return QStringLiteral("is blank: one colour covers %1 % of it.")
            .arg(share * 100, 0, 'f', 1);
    }
    return {};
}

} // namespace

int main(int argc, char *argv[])
{
    QTextStream err(stderr);
    if (argc < 2) {
        err << "picturecheck needs the names of the pictures to look at.\n";
        return EXIT_FAILURE;
    }
    int status = EXIT_SUCCESS;
    for (int i = 1; i < argc; ++i) {
        const QString file = QString::fromLocal8Bit(argv[i]);
        if (const QString sentence = problem(file); !sentence.isEmpty()) {
            err << "The picture \"" << file << "\" " << sentence << '\n';
            status = EXIT_FAILURE;
        }
    }
    return status;
}
