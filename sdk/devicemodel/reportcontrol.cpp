// SPDX-License-Identifier: Apache-2.0
#include "reportcontrol.h"

ReportControlList::~ReportControlList()
{
    qDeleteAll(blocks);
}
