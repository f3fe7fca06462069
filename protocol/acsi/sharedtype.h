// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "mms/typedescription.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <utility>

namespace acsi {

/// The type of a logical node, kept once for all nodes that have the same. A value: who changes one
/// changes no other. Any one thread at a time, copies included: what copies share is not guarded.
class SharedType
{
public:
    SharedType() = default; ///< an empty structure
    SharedType(mms::TypeDescription type)
        : m_type(std::make_shared<mms::TypeDescription>(std::move(type)))
    {
    }

    const mms::TypeDescription &operator*() const { return m_type ? *m_type : nothing(); }
    const mms::TypeDescription *operator->() const { return &**this; }
    operator const mms::TypeDescription &() const { return **this; }

    /// To be changed: a copy of its own when others have it as well. Until the next copying.
    mms::TypeDescription &edit();

    friend bool operator==(const SharedType &left, const SharedType &right)
    {
        return left.m_type == right.m_type || *left == *right;
    }
    friend bool operator==(const SharedType &left, const mms::TypeDescription &right)
    {
        return *left == right;
    }

    /// Equal types have equal ones.
    struct Hash
    {
        std::size_t operator()(const SharedType &type) const;
    };

private:
    static const mms::TypeDescription &nothing();

    std::shared_ptr<mms::TypeDescription> m_type;
};

} // namespace acsi
