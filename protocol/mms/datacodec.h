// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "mms/data.h"

#include <cstdint>
#include <vector>

namespace mms {

/// Reading and writing of values as elements.
class DataCodec
{
public:
    /// The value that @a element is; an empty structure after a failure.
    static Data read(ber::Reader &reader, const ber::Element &element);
    /// The next element, which must be there, as a value.
    static Data readNext(ber::Reader &reader);
    /// Every element that is left.
    static std::vector<Data> readAll(ber::Reader &reader);
    static std::vector<AccessResult> readResults(ber::Reader &reader);
    static void write(ber::Writer &writer, const Data &data);
    static void write(ber::Writer &writer, const AccessResult &result);

private:
    /// Where the children of groups within another one are put.
    struct Room
    {
        Data *next = nullptr;
        Data *end = nullptr;
    };

    static void readInto(ber::Reader &reader, const ber::Element &element, Data &data,
                         Room *room = nullptr);
};

} // namespace mms
