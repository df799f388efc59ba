#pragma once

#include "HostCapabilities.h"
#include "SpoolerPort.h"

#include <future>

/// The host's print spooler through libcups. "CUPS_SERVER" names another server than the host's own. A host without a
/// spooler has no destinations, and says so at once.
class CupsSpooler : public SpoolerPort
{
public:
    /// Begins to load libcups, on a thread of its own.
    explicit CupsSpooler(const HostCapabilities &host);

    std::vector<PrintDestination> destinations() override;
    /// libcups is missing, or is not the one that is wanted.
    std::optional<WTError> problem() override;
    PrinterReach printerReach(const QString &address, std::chrono::milliseconds atMost) override;

private:
    bool m_hasConnection;
    const std::shared_future<void> m_libraryIsLoaded;
};
