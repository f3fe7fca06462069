// SPDX-License-Identifier: Apache-2.0
#include "deviceidentity.h"

namespace {

bool agree(const QString &left, const QString &right)
{
    return left.isEmpty() || right.isEmpty() || left == right;
}

} // namespace

bool DeviceIdentity::fits(const DeviceIdentity &other) const
{
    return isKnown() && address == other.address && agree(vendor, other.vendor) &&
           agree(model, other.model) && logicalDevices == other.logicalDevices &&
           revisions == other.revisions && certificate == other.certificate;
}
