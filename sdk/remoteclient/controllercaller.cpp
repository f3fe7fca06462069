// SPDX-License-Identifier: Apache-2.0
#include "controllercaller.h"

#include "callerscope.h"

#include <utility>

namespace {

thread_local quint64 currentCaller = 0;

} // namespace

quint64 ControllerCaller::current()
{
    return currentCaller;
}

CallerScope::CallerScope(quint64 caller)
    : m_before(std::exchange(currentCaller, caller))
{
}

CallerScope::~CallerScope()
{
    currentCaller = m_before;
}
