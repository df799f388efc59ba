#pragma once

#include "HostCapabilities.h"
#include "SpoolerPort.h"

/// The host's print spooler through libcups. "CUPS_SERVER" names another server than the host's own. A host without a
/// spooler has no destinations, and says so at once.
class CupsSpooler : public SpoolerPort
{
public:
    explicit CupsSpooler(const HostCapabilities &host)
        : m_hasConnection(host.spoolerHasConnection)
    {
    }

    std::vector<PrintDestination> destinations() override;

private:
    bool m_hasConnection;
};
