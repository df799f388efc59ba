#include "CupsLibrary.h"

#include "AlternateSignalStack.h"

#include <QLibrary>
#include <optional>

namespace
{

constexpr int interfaceVersion = 2;

std::optional<CupsLibrary> loadLibrary()
{
    QLibrary file(QStringLiteral("cups"), interfaceVersion);
    file.setLoadHints(QLibrary::PreventUnloadHint);
    const auto find = [&file]<typename Function>(Function &function, const char *name) {
        function = reinterpret_cast<Function>(file.resolve(name));
        return function != nullptr;
    };
    CupsLibrary cups{};
    const bool complete = find(cups.getDests, "cupsGetDests") && find(cups.getDests2, "cupsGetDests2") &&
                          find(cups.freeDests, "cupsFreeDests") && find(cups.getOption, "cupsGetOption");
    return complete ? std::optional(cups) : std::nullopt;
}

} // namespace

const CupsLibrary *CupsLibrary::load()
{
    const AlternateSignalStack signalStack;
    static const std::optional<CupsLibrary> library = loadLibrary();
    return library ? &*library : nullptr;
}
