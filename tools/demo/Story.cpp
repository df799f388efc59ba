#include "Story.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace
{

const QString networkName = u"Quill House"_s;
const QString password = u"seven grey geese"_s;

Act click(const QString &widget)
{
    return {.kind = Act::Kind::Click, .widget = widget, .text = {}};
}

Act type(const QString &widget, const QString &text)
{
    return {.kind = Act::Kind::Type, .widget = widget, .text = text};
}

const Act closeWindow{.kind = Act::Kind::CloseWindow, .widget = {}, .text = {}};
const Act confirm{.kind = Act::Kind::Confirm, .widget = {}, .text = {}};

/// Takes its time to join, so that the progress can be seen.
PrinterScript goodPrinter()
{
    PrinterScript script;
    script.joinTime = 3s;
    script.addressTime = 1s;
    return script;
}

PrinterScript absentPrinter()
{
    PrinterScript script;
    script.plugged = false;
    return script;
}

PrinterScript refusingPrinter()
{
    PrinterScript script = goodPrinter();
    script.configurationResult = 0;
    return script;
}

Visit choosingUsb(bool printerIsThere)
{
    return {.screen = u"WTStartView"_s,
            .acts = {click(u"selectUSB"_s), click(u"netxtBtn"_s)},
            .awaitsPrinter = printerIsThere};
}

Visit enteringNetwork()
{
    return {
        .screen = u"WTNetworkWithManualAddition"_s,
        .acts = {type(u"ssidTextField"_s, networkName), type(u"passwordTextField"_s, password), click(u"nextBtn"_s)}};
}

Visit watchingTheRun()
{
    return {.screen = u"WTInstallingView"_s, .acts = {}, .look = 2s};
}

std::vector<Story> allStories()
{
    return {
        {.name = u"manual-entry"_s,
         .summary = u"The network is typed in, the printer joins and reports its address"_s,
         .printer = goodPrinter(),
         .visits = {choosingUsb(true),
                    enteringNetwork(),
                    watchingTheRun(),
                    {.screen = u"WTCompleteView"_s, .acts = {click(u"complateBtn"_s)}, .patience = 60s}},
         .networkName = networkName.toUtf8(),
         .password = password.toUtf8()},
        {.name = u"no-printer"_s,
         .summary = u"No printer is on the bus"_s,
         .printer = absentPrinter(),
         .visits = {choosingUsb(false),
                    {.screen = u"WTUnconnectView"_s, .acts = {click(u"previous"_s)}},
                    {.screen = u"WTStartView"_s, .acts = {closeWindow, confirm}}},
         .networkName = {},
         .password = {}},
        {.name = u"refused"_s,
         .summary = u"The printer takes the network but does not join, and the user goes back"_s,
         .printer = refusingPrinter(),
         .visits = {choosingUsb(true),
                    enteringNetwork(),
                    watchingTheRun(),
                    {.screen = u"WTConfigFailedView"_s, .acts = {click(u"previous"_s)}, .patience = 60s},
                    {.screen = u"WTNetworkWithManualAddition"_s, .acts = {closeWindow, confirm}}},
         .networkName = networkName.toUtf8(),
         .password = password.toUtf8()},
    };
}

} // namespace

std::span<const Story> stories()
{
    static const std::vector<Story> all = allStories();
    return all;
}

const Story *findStory(const QString &name)
{
    const auto found = std::ranges::find(stories(), name, &Story::name);
    return found == stories().end() ? nullptr : &*found;
}
