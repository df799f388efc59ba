#include "Story.h"

#include <algorithm>
#include <iterator>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace
{

const QString networkName = u"Quill House"_s;
const QString password = u"seven grey geese"_s;
constexpr quint16 wakeUpCommand = 0xFF21;
constexpr quint16 capabilityCommand = 0xFF81;
constexpr quint16 configurationCommand = 0xFF80;

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

/// A printer that does its job, slowly enough for the progress to be seen.
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

/// A computer that sees many networks: every kind of security, a name twice, long names and names in other scripts.
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

Visit ending(const QString &screen, const std::vector<Act> &acts)
{
    return {.screen = screen, .acts = acts, .patience = 60s};
}

const std::vector<Act> quitting{closeWindow, confirm};

/// From the start screen through manual entry to a run with that printer.
Story typedStory(const QString &name, const QString &summary, const PrinterScript &printer,
                 const std::vector<Visit> &rest)
{
    std::vector<Visit> visits{choosingUsb(true), enteringNetwork(), watchingTheRun()};
    visits.insert(visits.end(), rest.begin(), rest.end());
    return {.name = name,
            .summary = summary,
            .printer = printer,
            .visits = visits,
            .networkName = networkName.toUtf8(),
            .password = password.toUtf8()};
}

Story wpsStory(const QString &name, const QString &summary, const std::vector<Visit> &rest)
{
    std::vector<Visit> visits{{.screen = u"WTStartView"_s, .acts = {click(u"selectWPS"_s), click(u"netxtBtn"_s)}}};
    visits.insert(visits.end(), rest.begin(), rest.end());
    return {.name = name, .summary = summary, .printer = absentPrinter(), .visits = visits};
}

/// The printer's Wi-Fi is off, which it tells when it is asked. Only a model whose Wi-Fi the catalogue does not know is
/// asked.
Story wifiOffStory()
{
    PrinterScript printer;
    printer.capabilityResult = 0xFFFB;
    Story story =
        typedStory(u"wifi-off"_s, u"The printer's own Wi-Fi is switched off, and the failure screen says so"_s, printer,
                   {ending(u"WTFailedView"_s, {click(u"complateBtn"_s)})});
    story.model.model = u"QZ200"_s;
    story.visits.erase(story.visits.begin() + 2); // The run is over at once.
    story.networkName.reset();
    story.password.reset();
    return story;
}

/// The printer refuses the first password; with the second one it joins the network.
Story wrongPasswordStory()
{
    PrinterScript printer = goodPrinter();
    printer.faults = {{.command = configurationCommand, .occurrence = 1, .result = 0}};
    Story story = typedStory(u"wrong-password"_s,
                             u"The first password is wrong; the user goes back and types the right one"_s, printer,
                             {ending(u"WTConfigFailedView"_s, {click(u"previous"_s)}),
                              {.screen = u"WTNetworkWithManualAddition"_s,
                               .acts = {type(u"passwordTextField"_s, password), click(u"nextBtn"_s)}},
                              ending(u"WTCompleteView"_s, {click(u"complateBtn"_s)})});
    story.visits[1].acts[1].text = u"seven grey geeze"_s;
    return story;
}

PrinterScript unpluggedPrinter()
{
    PrinterScript script = goodPrinter();
    script.events = {{.action = BusEvent::Action::Unplug, .after = BusEvent::Cause{configurationCommand}, .delay = 1s}};
    return script;
}

PrinterScript lostPrinter()
{
    PrinterScript script = goodPrinter();
    script.addressTime = 1h;
    return script;
}

PrinterScript printerWith(BusEvent::Action event)
{
    PrinterScript script = goodPrinter();
    script.events = {{.action = event, .after = {}, .delay = 0s}};
    return script;
}

/// A run that fails before the printer is told anything; the technical line is unfolded on the last screen.
Story hopelessStory(const QString &name, const QString &summary, const PrinterScript &printer)
{
    Story story =
        typedStory(name, summary, printer, {ending(u"WTFailedView"_s, {click(u"details"_s), click(u"complateBtn"_s)})});
    story.visits.erase(story.visits.begin() + 2); // The run may be over at once.
    story.networkName.reset();
    story.password.reset();
    return story;
}

/// A printer that is on the bus and says nothing. Only a model whose Wi-Fi the catalogue does not know is asked first.
Story asleepStory()
{
    PrinterScript printer = goodPrinter();
    printer.faults = {{.command = wakeUpCommand, .silent = true}, {.command = capabilityCommand, .silent = true}};
    Story story = hopelessStory(u"asleep"_s, u"The printer is asleep and answers nothing"_s, printer);
    story.model.model = u"QZ200"_s;
    story.visits.back().patience = 100s;
    return story;
}

std::vector<Story> usbStories()
{
    const std::vector<Act> finish{click(u"complateBtn"_s)};
    return {
        {.name = u"success"_s,
         .summary = u"The computer's own network is taken with its stored password, the printer joins"_s,
         .printer = goodPrinter(),
         .host = joinedComputer(),
         .visits = {choosingUsb(true),
                    {.screen = u"WTWiFiListView"_s, .acts = {click(u"btn_nextStep"_s)}},
                    watchingTheRun(),
                    ending(u"WTCompleteView"_s, finish)},
         .networkName = networkName.toUtf8(),
         .password = password.toUtf8()},
        {.name = u"busy"_s,
         .summary = u"The printer's queue is printing, so the printer is left alone"_s,
         .printer = goodPrinter(),
         .host = printingComputer(),
         .visits = {choosingUsb(true),
                    {.screen = u"WTWiFiListView"_s,
                     .acts = {click(u"btn_nextStep"_s), confirm, closeWindow, confirm}}}},
        {.name = u"not-permitted"_s,
         .summary = u"The program may not look for networks; the settings open and the user is back at the start"_s,
         .printer = goodPrinter(),
         .host = forbiddenComputer(),
         .visits = {choosingUsb(true),
                    {.screen = u"WTWiFiListView"_s, .acts = {confirm}},
                    {.screen = u"WTStartView"_s, .acts = quitting}}},
        {.name = u"no-printer"_s,
         .summary = u"No printer is on the bus"_s,
         .printer = absentPrinter(),
         .visits = {choosingUsb(false),
                    {.screen = u"WTUnconnectView"_s, .acts = {click(u"previous"_s)}},
                    {.screen = u"WTStartView"_s, .acts = quitting}}},
        typedStory(u"manual-entry"_s, u"The network is typed in, the printer joins and reports its address"_s,
                   goodPrinter(), {ending(u"WTCompleteView"_s, finish)}),
        typedStory(u"refused"_s, u"The printer takes the network but does not join, and the user goes back"_s,
                   refusingPrinter(),
                   {ending(u"WTConfigFailedView"_s, {click(u"previous"_s)}),
                    {.screen = u"WTNetworkWithManualAddition"_s, .acts = quitting}}),
        wrongPasswordStory(),
        wifiOffStory(),
        typedStory(u"unplugged"_s, u"Someone pulls the cable while the printer joins"_s, unpluggedPrinter(),
                   {ending(u"WTFailedView"_s, finish)}),
        hopelessStory(u"held"_s, u"Another program holds the printer; the screens say so"_s,
                      printerWith(BusEvent::Action::Hold)),
        hopelessStory(u"not-permitted-usb"_s, u"The computer does not let this user use the printer"_s,
                      printerWith(BusEvent::Action::Deny)),
        asleepStory(),
        typedStory(u"no-address"_s, u"The printer joins, but its network gives it no address"_s, lostPrinter(),
                   {ending(u"WTFailedView"_s, finish)}),
    };
}

std::vector<Story> wpsStories()
{
    const Visit method{.screen = u"WTSetWPSMethodView"_s,
                       .acts = {click(u"selectPrinterMethod"_s), click(u"nextBtn"_s)}};
    const Visit success{.screen = u"WTWpsLinkStateView"_s, .acts = {click(u"wpsSuccessView"_s), click(u"finishBtn"_s)}};
    return {
        wpsStory(u"wps"_s, u"Wi-Fi Protected Setup by the buttons of router and printer"_s,
                 {{.screen = u"WTSetWPSMethodView"_s, .acts = {click(u"selectWPSMethod"_s), click(u"nextBtn"_s)}},
                  {.screen = u"WTUseWPSSetWifiView"_s, .acts = {click(u"nextButton"_s)}},
                  {.screen = u"WTConfigStateInfoView"_s,
                   .acts = {click(u"lightSuccessView"_s), click(u"stateFinishBtn"_s)}}}),
        wpsStory(u"wps-menu"_s, u"Wi-Fi Protected Setup from the printer's menu, by the router's button"_s,
                 {method,
                  {.screen = u"WTSelectPBCModelView"_s, .acts = {click(u"selectWPS"_s), click(u"nextBtn"_s)}},
                  {.screen = u"WTPrinterScreenWPSPBCView"_s, .acts = {click(u"nextBtn"_s)}},
                  success}),
        wpsStory(u"wps-pin"_s, u"Wi-Fi Protected Setup from the printer's menu, by a PIN"_s,
                 {method,
                  {.screen = u"WTSelectPBCModelView"_s, .acts = {click(u"selectPIN"_s), click(u"nextBtn"_s)}},
                  {.screen = u"WTSetPINConfigView"_s, .acts = {click(u"nextBtn"_s)}},
                  success}),
    };
}

std::vector<Story> allStories()
{
    std::vector<Story> all = usbStories();
    std::ranges::copy(wpsStories(), std::back_inserter(all));
    return all;
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
