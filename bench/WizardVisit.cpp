#include "WizardVisit.h"

#include "SendWorkers.h"
#include "WTManager.h"
#include "WTView.h"
#include "WTWindow.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

namespace
{

/// Runs the main thread's events until the condition holds; it is asked after each round of them.
template <typename Condition>
void waitFor(const Condition &condition)
{
    while (!condition())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

/// For what another thread changes without a word to this one.
template <typename Condition>
void askUntil(const Condition &condition)
{
    QTimer again;
    again.start(1);
    waitFor(condition);
}

} // namespace

WizardVisit::WizardVisit(const ScreenPorts &ports, Entry entry)
    : m_entry(entry)
    , m_screens(ports)
{
    m_screens.show();
    askUntil([] { return WTManager::shared().printerList().count() == 1; });
}

WizardVisit::~WizardVisit()
{
    WTManager::shared().wt_stopDiscoverPrinter();
    askUntil([] { return SendWorkers::shared().isIdle(); });
}

void WizardVisit::enter()
{
    click("netxtBtn");
    if (m_entry == Entry::Manual) {
        QTest::keyClicks(find<QLineEdit>("ssidTextField"), networkName);
        QTest::keyClicks(find<QLineEdit>("passwordTextField"), password);
    } else {
        waitFor([this] { return find<QAbstractButton>("btn_nextStep")->isEnabled(); });
    }
}

void WizardVisit::run()
{
    click(m_entry == Entry::List ? "btn_nextStep" : "nextBtn");
    waitFor([this] { return !shows("WTInstallingView"); });
    if (!shows("WTCompleteView"))
        qFatal("The run failed.");
}

bool WizardVisit::shows(const char *screen)
{
    return QLatin1StringView(m_screens.window().contentView()->metaObject()->className()) == QLatin1StringView(screen);
}

template <typename Widget>
Widget *WizardVisit::find(const char *name)
{
    return m_screens.window().contentView()->findChild<Widget *>(QLatin1StringView(name));
}

void WizardVisit::click(const char *name)
{
    QTest::mouseClick(find<QAbstractButton>(name), Qt::LeftButton);
}
