#include "CupsSpooler.h"

#include "AlternateSignalStack.h"
#include "CupsLibrary.h"
#include "knockAt.h"

#include <span>

namespace
{

/// The spooler's answer; gives the array back to libcups when it goes.
class DestinationArray
{
public:
    DestinationArray(const CupsLibrary &cups, bool onConnection)
        : m_cups(cups)
        , m_count(onConnection ? cups.getDests2(CUPS_HTTP_DEFAULT, &m_first) : cups.getDests(&m_first))
    {
    }
    ~DestinationArray() { m_cups.freeDests(m_count, m_first); }
    DestinationArray(const DestinationArray &) = delete;
    DestinationArray &operator=(const DestinationArray &) = delete;

    std::span<const cups_dest_t> all() const { return {m_first, static_cast<std::size_t>(m_count)}; }

private:
    const CupsLibrary &m_cups;
    cups_dest_t *m_first = nullptr;
    int m_count;
};

PrintDestination destinationOf(const CupsLibrary &cups, const cups_dest_t &queue)
{
    PrintDestination destination{.name = queue.name, .printerState = std::nullopt};
    if (const char *state = cups.getOption("printer-state", queue.num_options, queue.options))
        destination.printerState = state;
    return destination;
}

} // namespace

CupsSpooler::CupsSpooler(const HostCapabilities &host)
    : m_hasConnection(host.spoolerHasConnection)
    , m_libraryIsLoaded(std::async(std::launch::async, [] {
        const AlternateSignalStack signalStack;
        (void)CupsLibrary::load();
    }))
{
}

std::vector<PrintDestination> CupsSpooler::destinations()
{
    const WTResult<CupsLibrary> &cups = CupsLibrary::load();
    if (!cups)
        return {};
    const DestinationArray queues{cups.value(), m_hasConnection};
    std::vector<PrintDestination> destinations;
    for (const cups_dest_t &queue : queues.all())
        destinations.push_back(destinationOf(cups.value(), queue));
    return destinations;
}

std::optional<WTError> CupsSpooler::problem()
{
    const WTResult<CupsLibrary> &cups = CupsLibrary::load();
    return cups ? std::nullopt : std::optional(cups.error());
}

PrinterReach CupsSpooler::printerReach(const QString &address, std::chrono::milliseconds atMost)
{
    // The "any" addresses mean this computer here, and no address at all in a printer's reply.
    if (address == u"0.0.0.0" || address == u"::")
        return PrinterReach::Silent;
    // Not what ippPort() says, which is where this computer's own spooler listens.
    return knockAt(address, IPP_PORT, atMost);
}
