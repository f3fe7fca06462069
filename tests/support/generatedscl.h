// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

/// An SCL file with one IED of any size, as engineering tools write them: types shared by the
/// logical nodes, indented lines, descriptions and configured values in the instances, a data set
/// and a report control block in each logical device. The same settings always give the same file.
struct GeneratedScl
{
    int leafAttributes = 60000; ///< at least; the last logical node is complete
    bool throughArrays = false; ///< nearly all attributes are elements of arrays
    int nodesPerDevice = 40;    ///< logical nodes of a logical device besides LLN0, at least 10
    int objectsPerNode = 12;    ///< of 12 attributes each; without arrays only

    std::string text() const;
};
