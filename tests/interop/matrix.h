// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "interop/foreignpeer.h"

#include <gtest/gtest.h>

#include <string>

namespace interop {

/// What is tried with a foreign peer: the tests of one direction, whose results become a column of
/// docs/interoperability.md. Each test names its row and asserts what the row says.
class MatrixTest : public testing::Test
{
protected:
    void SetUp() override;
    void TearDown() override;

    /// The row of this test. Its result is that it works unless the test says otherwise, or fails.
    void row(const std::string &service) { m_service = service; }
    /// The peer does not have this; @p answer is what it says. The test has asserted that.
    void peerLacksIt(const std::string &answer) { m_result = "peer lacks it: " + answer; }
    /// It works, but.
    void worksBut(const std::string &remark) { m_result = "works; " + remark; }
    /// The peer does it wrong. The test has asserted how.
    void peerDefect(const std::string &defect) { m_result = "defect of the peer: " + defect; }

private:
    std::string m_service;
    std::string m_result;
};

/// Runs all tests and writes the results of @p column, unless only some of them ran.
int runMatrix(int argc, char **argv, const std::string &column);

} // namespace interop
