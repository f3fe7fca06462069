// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "interop/foreignpeer.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace interop {

/// What is tried with a foreign peer: the tests of one direction, whose results become a column of
/// docs/interoperability.md. Each test names its row and asserts what the row says. What a peer is
/// known to lack or to do wrong stands in peers/NAME/differences.txt, a line each: the direction
/// (server or client, what the peer is), the row, what it is.
class MatrixTest : public testing::Test
{
public:
    MatrixTest();
    ~MatrixTest() override;

protected:
    void SetUp() override;
    void TearDown() override;

    /// The row of this test. Its result is that it works unless the test says otherwise, or fails.
    /// A row that stands among the peer's known differences is expected to fail as it says there; a
    /// peer that has mended it fails the test.
    void row(const std::string &service);
    /// The peer does not have this; @p answer is what it says. The test has asserted that.
    void peerLacksIt(const std::string &answer) { m_result = "peer lacks it: " + answer; }
    /// It works, but.
    void worksBut(const std::string &remark) { m_result = "works; " + remark; }
    /// The peer has no call for what the row needs: the row is left out, and whatever fails from
    /// now on does not count.
    void peerHasNoCall();
    /// The peer does it wrong. The test has asserted how.
    void peerDefect(const std::string &defect) { m_result = "defect of the peer: " + defect; }

private:
    struct Interception;

    std::unique_ptr<Interception> m_interception; ///< while a known difference is tried
    std::string m_service;
    std::string m_result;
};

/// Runs all tests and writes the results of @p column, unless only some of them ran. @p direction
/// is what the peer is, "server" or "client".
int runMatrix(int argc, char **argv, const std::string &direction, const std::string &column);

} // namespace interop
