#include "CupsSpooler.h"

#include <cups/cups.h>
#include <span>

namespace
{

/// The spooler's answer; gives the array back to libcups when it goes.
class DestinationArray
{
public:
    explicit DestinationArray(bool onConnection)
        : m_count(onConnection ? cupsGetDests2(CUPS_HTTP_DEFAULT, &m_first) : cupsGetDests(&m_first))
    {
    }
    ~DestinationArray() { cupsFreeDests(m_count, m_first); }
    DestinationArray(const DestinationArray &) = delete;
    DestinationArray &operator=(const DestinationArray &) = delete;

    std::span<const cups_dest_t> all() const { return {m_first, static_cast<std::size_t>(m_count)}; }

private:
    cups_dest_t *m_first = nullptr;
    int m_count;
};

PrintDestination destinationOf(const cups_dest_t &queue)
{
    PrintDestination destination{.name = queue.name, .printerState = std::nullopt};
    if (const char *state = cupsGetOption("printer-state", queue.num_options, queue.options))
        destination.printerState = state;
    return destination;
}

} // namespace

std::vector<PrintDestination> CupsSpooler::destinations()
{
    const DestinationArray queues{m_hasConnection};
    std::vector<PrintDestination> destinations;
    for (const cups_dest_t &queue : queues.all())
        destinations.push_back(destinationOf(queue));
    return destinations;
}
