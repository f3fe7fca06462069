// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "changegate.h"

#include "acsi/settinggroup.h"

#include <remoteclient/records.h>

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <optional>
#include <vector>

/// The settings of a logical device: what they are, what of them an operator has changed, and how
/// they are written one by one.
namespace SettingValues {

struct Setting
{
    QString reference;
    std::optional<mms::Data> data;
    QString reason; ///< why there is no data
};

/// Every setting under the constraint in the order of the model, also those that cannot be read; an
/// error when the device could not be asked.
asio::awaitable<mms::Result<std::vector<Setting>>> read(std::shared_ptr<DeviceConnection> device,
                                                        QString ldName,
                                                        acsi::FunctionalConstraint constraint);

/// The value as property editors know it; invalid without data.
QVariant shown(const OnlineModel &model, const Setting &setting);

/// What a tool calls a setting, with or without its logical device.
mms::Result<acsi::Reference> reference(const QString &ldName, const QString &name);

/// A setting that is to be written.
struct Value
{
    acsi::Reference reference; ///< under SE
    mms::Data data;
    QString oldText;
    QString newText;
};

/// What the tool wants to be otherwise in the group; the error names a setting that cannot be that.
mms::Result<std::vector<Value>> changes(const OnlineModel &model, const QString &ldName,
                                        const QList<SGCBValue> &values,
                                        const std::vector<Setting> &known);

/// Writes the values and journals each; one sentence names those that were refused.
asio::awaitable<Outcome> write(ChangePointer change, const std::vector<Value> &values);

} // namespace SettingValues
