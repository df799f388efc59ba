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

/// A computer in a house with neighbours: every kind of security, a name twice, long and multi-byte names.
DemoHost joinedComputer()
{
    return {.wifi = {.interfaceName = u"wlan0"_s,
                     .poweredOn = true,
                     .band = 2,
                     .ssid = networkName,
                     .rssi = -58,
                     .security = 4},
            .networks = {{networkName, 7, 84},
                         {u"Neighbour with a network name of"_s, 9, 76},
                         {networkName, 9, 71},
                         {u"咖啡馆 ☕ Café"_s, 1, 68},
                         {u"Office"_s, 8, 61},
                         {u"Campus"_s, 10, 55},
                         {u"Town hall"_s, 12, 52},
                         {u"Library"_s, 13, 47},
                         {u"Garden"_s, 11, 40},
                         {u"Workshop"_s, 5, 33},
                         {u"Cellar"_s, 3, 28},
                         {u"Attic"_s, 4, 22},
                         {u"Barn"_s, 6, 17},
                         {u"Old router"_s, 2, 12},
                         {u"Something else"_s, 0, 5}},
            .storedPassword = password,
            .permission = ScanPermission::Allowed};
}

DemoHost printingComputer()
{
    DemoHost host = joinedComputer();
    host.isPrinting = true;
    return host;
}

DemoHost forbiddenComputer()
{
    DemoHost host = joinedComputer();
    host.permission = ScanPermission::Denied;
    return host;
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
        {.name = u"network-list"_s,
         .summary = u"The computer's own network is taken with its stored password, the printer joins"_s,
         .printer = goodPrinter(),
         .host = joinedComputer(),
         .visits = {choosingUsb(true),
                    {.screen = u"WTWiFiListView"_s, .acts = {click(u"btn_nextStep"_s)}},
                    watchingTheRun(),
                    {.screen = u"WTCompleteView"_s, .acts = {click(u"complateBtn"_s)}, .patience = 60s}},
         .networkName = networkName.toUtf8(),
         .password = password.toUtf8()},
        {.name = u"busy"_s,
         .summary = u"The printer's queue is printing, so the printer is left alone"_s,
         .printer = goodPrinter(),
         .host = printingComputer(),
         .visits = {choosingUsb(true),
                    {.screen = u"WTWiFiListView"_s, .acts = {click(u"btn_nextStep"_s), confirm, closeWindow, confirm}}},
         .networkName = {},
         .password = {}},
        {.name = u"not-permitted"_s,
         .summary = u"The program may not look for networks; the settings open and the user is back at the start"_s,
         .printer = goodPrinter(),
         .host = forbiddenComputer(),
         .visits = {choosingUsb(true),
                    {.screen = u"WTWiFiListView"_s, .acts = {confirm}},
                    {.screen = u"WTStartView"_s, .acts = {closeWindow, confirm}}},
         .networkName = {},
         .password = {}},
        {.name = u"manual-entry"_s,
         .summary = u"The network is typed in, the printer joins and reports its address"_s,
         .printer = goodPrinter(),
         .host = {},
         .visits = {choosingUsb(true),
                    enteringNetwork(),
                    watchingTheRun(),
                    {.screen = u"WTCompleteView"_s, .acts = {click(u"complateBtn"_s)}, .patience = 60s}},
         .networkName = networkName.toUtf8(),
         .password = password.toUtf8()},
        {.name = u"no-printer"_s,
         .summary = u"No printer is on the bus"_s,
         .printer = absentPrinter(),
         .host = {},
         .visits = {choosingUsb(false),
                    {.screen = u"WTUnconnectView"_s, .acts = {click(u"previous"_s)}},
                    {.screen = u"WTStartView"_s, .acts = {closeWindow, confirm}}},
         .networkName = {},
         .password = {}},
        {.name = u"refused"_s,
         .summary = u"The printer takes the network but does not join, and the user goes back"_s,
         .printer = refusingPrinter(),
         .host = {},
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
