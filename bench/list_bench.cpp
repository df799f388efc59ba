/// How long the network list takes from the arrival of its data to painted rows, and how long one step of scrolling
/// takes, for a growing number of networks. Prints a Markdown table.
#include "FakeHost.h"
#include "FakeSpooler.h"
#include "InfoList.h"
#include "Samples.h"
#include "SystemTime.h"
#include "WTApp.h"
#include "WTC_WLAN.h"
#include "WTListView.h"
#include "WTManager.h"
#include "WTWiFiListView.h"
#include "WTWindow.h"
#include "timesToRepeat.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QScrollBar>
#include <cstdio>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace
{

const std::size_t rounds = timesToRepeat(51), scrollSteps = timesToRepeat(200);

/// Counts how often a widget was painted.
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget *widget) { widget->installEventFilter(this); }
    int paints = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            ++paints;
        return false;
    }
};

/// Other names in each round, so that the rows change whenever a search ends.
std::vector<VisibleNetwork> networks(int count, std::size_t round)
{
    std::vector<VisibleNetwork> made;
    for (int number = 0; number < count; ++number)
        made.push_back({u"Network %1 of house %2"_s.arg(number).arg(round), number % 14, 100 - number % 100});
    return made;
}

/// The list screen in its window.
class ListScreen
{
public:
    ListScreen(const NetworkPorts &ports, DesktopPort &desktop)
        : m_screen(new WTWiFiListView(ports, desktop))
    {
        m_window.addScreen(m_screen);
        m_screen->awakeFromNib();
        m_window.setContentView(m_screen);
        m_window.show();
        m_list = m_screen->findChild<WTListView *>();
        m_counter = std::make_unique<PaintCounter>(m_list->viewport());
        paint();
    }

    WTWiFiListView &screen() { return *m_screen; }
    QScrollBar &scrollBar() { return *m_list->verticalScrollBar(); }

    /// Everything that waits is done, and the list has been painted. Ends the program when the list is not.
    void paint()
    {
        const int before = m_counter->paints;
        for (const QDeadlineTimer patience(10s); m_counter->paints == before; QCoreApplication::processEvents()) {
            if (patience.hasExpired())
                qFatal("the list was not painted");
        }
    }

private:
    WTWindow m_window;
    WTWiFiListView *m_screen;
    WTListView *m_list = nullptr;
    std::unique_ptr<PaintCounter> m_counter;
};

void printRow(int count, Samples &arrival, Samples &scroll)
{
    arrival.sort();
    scroll.sort();
    const auto milliseconds = [](const Samples &samples, double share) { return samples.percentile(share) / 1000; };
    std::printf("| %d | %.2f | %.2f | %.2f | %.2f |\n", count, milliseconds(arrival, 0.5), milliseconds(arrival, 1),
                milliseconds(scroll, 0.5), milliseconds(scroll, 1));
}

void measure(ListScreen &list, FakeHostWiFi &hostWiFi, int count)
{
    Samples arrival(rounds), scroll(scrollSteps);
    for (std::size_t round = 0; round < rounds; ++round) {
        hostWiFi.networks = networks(count, round);
        list.screen().fetchWIFIList();
        QCoreApplication::processEvents();
        arrival.measure([&] {
            hostWiFi.answerScans();
            list.paint();
        });
    }
    const int range = list.scrollBar().maximum();
    for (std::size_t step = 1; range > 0 && step <= scrollSteps; ++step) {
        const int value = int(step * std::size_t(range) / scrollSteps);
        // Nothing moves, nothing is painted.
        if (value == list.scrollBar().value())
            continue;
        scroll.measure([&] {
            list.scrollBar().setValue(value);
            list.paint();
        });
    }
    printRow(count, arrival, scroll);
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    SystemTime time;
    FakeSpooler spooler;
    FakeDesktop desktop;
    FakeHostWiFi hostWiFi;
    hostWiFi.holdsScans = true;
    InfoList::setResourceFolder(QStringLiteral(WT_RESOURCE_FOLDER));
    WTC_WLAN::usePort(hostWiFi);
    WTManager::usePorts(time);
    WTApp::usePorts(hostWiFi, desktop, {});
    WTApp::shared().setAppLanguage(u"en"_s);

    ListScreen list({hostWiFi, time, spooler}, desktop);
    std::printf("Milliseconds from the arrival of the networks to painted rows, and for one step of scrolling; %zu and "
                "%zu times each.\n\n"
                "| networks | painted, median | longest | scrolled, median | longest |\n|---|---|---|---|---|\n",
                rounds, scrollSteps);
    for (const int count : {10, 30, 100, 300, 1000, 3000, 10000})
        measure(list, hostWiFi, count);
    return 0;
}
