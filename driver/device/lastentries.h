// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "acsi/reportblock.h"

#include <QtCore/QByteArray>
#include <QtCore/QHash>
#include <QtCore/QString>

#include <cstdint>
#include <optional>
#include <vector>

/// The last entries that came of a device's buffered report control blocks, kept between starts of
/// the driver, so that a block goes on behind them. One thread.
class LastEntries
{
public:
    using EntryId = std::vector<std::uint8_t>;

    /// Settings without which an entry says nothing: a block empties its buffer when one changes.
    struct Terms
    {
        QByteArray dataSet;
        QByteArray rptId;
        QByteArray triggers;
        std::uint32_t bufferTime = 0;
        std::uint32_t integrityPeriod = 0;

        static Terms of(const acsi::ReportBlock &block);
        friend bool operator==(const Terms &, const Terms &) = default;
    };

    /// @param folder made when it is needed; empty to forget everything at the end
    /// @param device what tells this device from others, such as its address
    LastEntries(const QString &folder, const QString &device);

    /// None when nothing is known of the block, or of other terms.
    std::optional<EntryId> find(const QString &block, const Terms &terms) const;
    void set(const QString &block, const Terms &terms, const EntryId &entry);
    void forget(const QString &block);
    /// Writes what has changed since the last time. What cannot be written is kept in memory.
    void save();

private:
    struct Known
    {
        Terms terms;
        EntryId entry;
    };

    void load();

    QString m_path; ///< empty for none
    QString m_device;
    QHash<QString, Known> m_entries; ///< by block
    bool m_isChanged = false;
};
