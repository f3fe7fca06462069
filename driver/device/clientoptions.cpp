// SPDX-License-Identifier: Apache-2.0
#include "clientoptions.h"

#include "configurationfiles.h"

#include <QtCore/QStringList>

namespace {

mms::Octets octetsOf(const QByteArray &bytes)
{
    return {bytes.begin(), bytes.end()};
}

osi::acse::Title titleOf(const AssociationAddress &address)
{
    osi::acse::Title title;
    if (!address.apTitle.isEmpty()) {
        osi::acse::ObjectIdentifier identifier;
        const QStringList numbers = address.apTitle.split(QLatin1Char('.'));
        for (const QString &number : numbers)
            identifier.push_back(number.toUInt());
        title.apTitle = std::move(identifier);
    }
    if (address.aeQualifier)
        title.aeQualifier = *address.aeQualifier;
    return title;
}

} // namespace

acsi::ClientOptions clientOptionsFor(const DeviceConfiguration &configuration)
{
    acsi::ClientOptions options;
    options.callTimeout = configuration.callTimeout;
    options.outstandingFileReads = configuration.outstandingFileReads;
    mms::AssociationOptions &association = options.association;
    association.maxPduSize = configuration.maxPduSize;
    association.maxOutstandingCalling = static_cast<std::int16_t>(configuration.outstandingCalls);
    // Whoever waits shorter for answers takes a device sooner for one that never answers.
    association.grace = 2 * configuration.callTimeout;
    association.link.establishTimeout = configuration.connectTimeout;
    if (configuration.tls.enabled)
        association.link.tls = ConfigurationFiles::tlsOptions(configuration.tls);
    osi::StackOptions &stack = association.link.stack;
    stack.transport.localSelector = octetsOf(configuration.local.transportSelector);
    stack.transport.remoteSelector = octetsOf(configuration.remote.transportSelector);
    stack.session.localSelector = octetsOf(configuration.local.sessionSelector);
    stack.session.remoteSelector = octetsOf(configuration.remote.sessionSelector);
    stack.presentation.localSelector = octetsOf(configuration.local.presentationSelector);
    stack.presentation.remoteSelector = octetsOf(configuration.remote.presentationSelector);
    stack.association.own = titleOf(configuration.local);
    stack.association.peer = titleOf(configuration.remote);
    if (!configuration.password.isEmpty()) {
        osi::acse::Authentication authentication;
        authentication.value = octetsOf(configuration.password.toUtf8());
        stack.association.authentication = std::move(authentication);
    }
    return options;
}
