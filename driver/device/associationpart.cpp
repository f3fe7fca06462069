// SPDX-License-Identifier: Apache-2.0
#include "associationpart.h"

AssociationPart::~AssociationPart() = default;

asio::awaitable<void> AssociationPart::opened()
{
    co_return;
}

asio::awaitable<void> AssociationPart::leaving()
{
    co_return;
}

void AssociationPart::closed(const QString &) {}
