// SPDX-License-Identifier: Apache-2.0
#include "reportcontrolblock.h"

ReportControlBlockList::~ReportControlBlockList()
{
    qDeleteAll(blocks);
}
