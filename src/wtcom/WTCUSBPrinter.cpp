#include "WTCUSBPrinter.h"

#include "AclExchange.h"
#include "LibraryError.h"
#include "SendWorkers.h"
#include "WTCServer.h"

#include <algorithm>

void WTCUSBPrinter::IOKit_sendACLWithURI(const QString &URI, const QByteArray &data, quint8 headSize, int timeout,
                                         HeadCallback headCallback, DataCallback dataCallback)
{
    const WTCServer &server = WTCServer::shared();
    const AclEnvironment environment{server.usb(), server.time(), server.log(), server.turns(), server.vendorIDs()};
    const TimePort::Duration limit{std::max(timeout, 0)};
    SendWorkers::shared().start(std::make_shared<AclExchange>(
        environment, AclRequest{URI, data, headSize, limit, std::move(headCallback), std::move(dataCallback)}));
}

std::optional<WTError> WTCUSBPrinter::obstacle(const QString &URI)
{
    const WTCServer &server = WTCServer::shared();
    const auto device = deviceNamed(URI, server.usb().devices(server.vendorIDs()));
    if (!device)
        return noSuchPrinter(URI);
    const auto refused = server.usb().obstacle(*device);
    return refused ? std::optional(libraryErrorFromBus(URI, *refused)) : std::nullopt;
}
