// SPDX-License-Identifier: Apache-2.0
#include "interop/matrix.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <iostream>

namespace interop {

namespace {

QJsonArray &results()
{
    static QJsonArray all;
    return all;
}

} // namespace

void MatrixTest::SetUp()
{
    const Installation &installation = Installation::get();
    ASSERT_FALSE(installation.failed) << installation.reason.toStdString();
    if (installation.python.isEmpty()) {
        GTEST_SKIP() << "The foreign peer is not there: no package registry answers ("
                     << installation.reason.toStdString() << ").";
    }
}

void MatrixTest::TearDown()
{
    if (IsSkipped())
        return;
    EXPECT_FALSE(m_service.empty()) << "the test names no row";
    const std::string result = HasFailure() ? "FAILED" : m_result.empty() ? "works" : m_result;
    results().append(
        QJsonArray{QString::fromStdString(m_service), QString::fromStdString(result)});
}

int runMatrix(int argc, char **argv, const std::string &column)
{
    testing::InitGoogleTest(&argc, argv);
    const int status = RUN_ALL_TESTS();
    const auto &unit = *testing::UnitTest::GetInstance();
    if (unit.test_to_run_count() == unit.total_test_count() && !results().isEmpty()) {
        const QString folder = QStringLiteral(INTEROP_FOLDER "/results");
        QDir().mkpath(folder);
        QFile file(folder + '/' + QString::fromStdString(column) + ".json");
        const QByteArray text = QJsonDocument(results()).toJson();
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) {
            std::cerr << "The results cannot be written.\n";
            return 1;
        }
    }
    return status;
}

} // namespace interop
