// SPDX-License-Identifier: Apache-2.0
#include "interop/matrix.h"

#include "interop/foreignpeer.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest-spi.h>

#include <iostream>
#include <optional>

namespace interop {

namespace {

QJsonArray &results()
{
    static QJsonArray all;
    return all;
}

/// Whether the peer of this run is the server or the client.
std::string &peerDirection()
{
    static std::string direction;
    return direction;
}

} // namespace

/// Keeps the failures of a test to itself.
struct MatrixTest::Interception
{
    std::string difference;
    testing::TestPartResultArray failures;
    std::optional<testing::ScopedFakeTestPartResultReporter> reporter;

    explicit Interception(std::string text)
        : difference(std::move(text))
    {
        reporter.emplace(testing::ScopedFakeTestPartResultReporter::INTERCEPT_ALL_THREADS,
                         &failures);
    }
};

MatrixTest::MatrixTest() = default;
MatrixTest::~MatrixTest() = default;

void MatrixTest::row(const std::string &service)
{
    m_service = service;
    const QString known =
        knownDifference(QString::fromStdString(peerDirection()), QString::fromStdString(service));
    if (!known.isEmpty())
        m_interception = std::make_unique<Interception>(known.toStdString());
}

void MatrixTest::peerHasNoCall()
{
    if (!m_interception)
        m_interception = std::make_unique<Interception>(std::string());
}

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
    if (m_interception) {
        m_interception->reporter.reset();
        int failures = 0;
        for (int i = 0; i < m_interception->failures.size(); ++i)
            failures += m_interception->failures.GetTestPartResult(i).failed() ? 1 : 0;
        if (m_interception->difference.empty())
            return;
        EXPECT_GT(failures, 0) << "\"" << m_service << "\" works, but peers/"
                               << peerName().toStdString()
                               << "/differences.txt says: " << m_interception->difference;
        m_result = m_interception->difference;
    }
    EXPECT_FALSE(m_service.empty()) << "the test names no row";
    const std::string result = HasFailure() ? "FAILED" : m_result.empty() ? "works" : m_result;
    results().append(QJsonArray{QString::fromStdString(m_service), QString::fromStdString(result)});
}

int runMatrix(int argc, char **argv, const std::string &direction, const std::string &column)
{
    peerDirection() = direction;
    testing::InitGoogleTest(&argc, argv);
    const int status = RUN_ALL_TESTS();
    const auto &unit = *testing::UnitTest::GetInstance();
    if (unit.test_to_run_count() == unit.total_test_count() && !results().isEmpty()) {
        const QString folder = QStringLiteral(INTEROP_FOLDER "/results");
        QDir().mkpath(folder);
        QFile file(folder + '/' + QString::fromStdString(column) + '-' + peerName() + ".json");
        const QByteArray text = QJsonDocument(results()).toJson();
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) {
            std::cerr << "The results cannot be written.\n";
            return 1;
        }
    }
    return status;
}

} // namespace interop
