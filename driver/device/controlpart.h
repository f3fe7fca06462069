// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "deviceconnection.h"
#include "driver/core/controlstate.h"

#include "acsi/control.h"

#include <map>
#include <memory>
#include <string>

/// What the operations on controllable objects share, and what outlives them.
namespace Controls {

using Service = ControlState::Service;

/// The controller operation, for the journal.
QString operationName(Service service);
/// What is to be said when nobody knows what became of it.
QString unknownSentence(Service service);

/// The object under the constraint of its status; nothing where it has none.
std::optional<acsi::Reference> statusOf(const OnlineModel &model, acsi::Reference object);
/// Reads and publishes the status of an object, for whoever looks at it; nobody waits for that.
void showStatus(std::shared_ptr<DeviceConnection> device, const acsi::Reference &object);

/// What was selected and is being operated on a device; it ends with the association.
class Part : public AssociationPart
{
public:
    struct Object
    {
        ControlState state;
        /// The device's side of it; null until it is first needed in the present association.
        std::shared_ptr<acsi::ControlObject> control;
    };

    explicit Part(DeviceConnection &device);

    Object &object(const std::string &name) { return m_objects[name]; }
    /// What the state of the device says of the object; @p sentence may be empty.
    void setProblem(const std::string &name, const QString &sentence);
    /// Tells the journal and the state of the device what the device says of commands of the object
    /// that nobody waits for any more.
    void listen(const acsi::Reference &reference);

    void closed(const QString &reason) override;

private:
    void heardLate(const acsi::Reference &reference, const std::string &name, std::uint8_t ctlNum,
                   const acsi::ControlResult &result);

    DeviceConnection &m_device;
    std::map<std::string, Object> m_objects;
};

} // namespace Controls
