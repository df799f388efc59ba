#include "CupsLibrary.h"

#include <QLibrary>

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr int interfaceVersion = 2;

WTResult<CupsLibrary> loadLibrary()
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
    if (!complete)
        return WTError{u"CUPS"_s, 1, u"libcups cannot be used: %1"_s.arg(file.errorString())};
    return cups;
}

} // namespace

const WTResult<CupsLibrary> &CupsLibrary::load()
{
    static const WTResult<CupsLibrary> library = loadLibrary();
    return library;
}
