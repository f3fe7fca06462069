// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "acsi/discovery.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <optional>

/// The descriptions that devices gave of themselves, one file each, named by what tells whether a
/// device is still the same. What cannot be read or written is as if it were not there. Any thread.
class DescriptionCache
{
public:
    /// Descriptions that are kept; the ones used longest ago give way.
    static constexpr int mostFiles = 200;

    /// @param folder made when it is needed; empty for no cache at all
    explicit DescriptionCache(QString folder);

    std::optional<acsi::ServerDescription> load(const QByteArray &fingerprint) const;
    void save(const QByteArray &fingerprint, const acsi::ServerDescription &description) const;

    static QByteArray toBytes(const acsi::ServerDescription &description);
    static std::optional<acsi::ServerDescription> fromBytes(const QByteArray &bytes);

private:
    QString pathOf(const QByteArray &fingerprint) const;

    QString m_folder;
};
