// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "deviceconnection.h"
#include "driver/core/settinggroupedit.h"

#include "acsi/settinggroup.h"

#include <QtCore/QHash>
#include <QtCore/QString>

#include <vector>

/// The setting groups of a device as long as an association stands: whose the edits are, and which
/// group is active. An edit is given back when the device is left and when nobody goes on with it;
/// a group that others make active reaches the model. In the strand of the connection.
class SettingGroups : public AssociationPart
{
public:
    explicit SettingGroups(DeviceConnection &connection);

    asio::awaitable<void> opened() override;
    asio::awaitable<void> leaving() override;
    void closed(const QString &reason) override;

    /// Of a logical device.
    SettingGroupEdit &edit(const QString &ldName) { return m_edits[ldName]; }
    /// Gives the edit of the logical device back, and journals it. It has ended in any case.
    asio::awaitable<void> release(QString ldName);
    /// What was read of a block, for the model; true when another group is active now.
    bool enter(const acsi::Reference &block, std::uint32_t numOfSG, std::uint32_t actSG);
    /// Reads and publishes the active settings.
    asio::awaitable<void> publishActive(QString ldName);

private:
    asio::awaitable<void> watch(std::shared_ptr<acsi::Client> client);
    asio::awaitable<void> look(std::shared_ptr<acsi::Client> client);

    DeviceConnection &m_connection;
    QHash<QString, SettingGroupEdit> m_edits; ///< by logical device
};

/// Where a device keeps its settings.
namespace SettingModel {

const acsi::DeviceDescription *device(const OnlineModel &model, const QString &ldName);
/// "LD/LLN0$SP$SGCB"; an error when the logical device has none.
mms::Result<acsi::Reference> block(const OnlineModel &model, const QString &ldName);
acsi::Reference attribute(acsi::Reference block, const char *name);
/// The logical nodes that have settings under the constraint, in the order in which they are shown.
std::vector<acsi::Reference> nodes(const OnlineModel &model, const QString &ldName,
                                   acsi::FunctionalConstraint constraint);
/// What the model shows of a setting: the edited values have the types of the active ones.
QString basicType(const OnlineModel &model, QString reference);

} // namespace SettingModel
