#include "AppDelegate.h"

#include "AppWindow.h"
#include "Localized.h"
#include "Log.h"
#include "WTApp.h"
#include "WTManager.h"

#include <QCoreApplication>
#include <QEvent>

using namespace Qt::Literals::StringLiterals;

void AppDelegate::applicationDidFinishLaunching()
{
    m_window->comeForward(!WTApp::shared().capabilities().activatesCooperatively);
    WTManager::shared().setCloseEnable(WTManager::CloseAsks);
    QCoreApplication::instance()->installEventFilter(this);
}

bool AppDelegate::eventFilter(QObject *, QEvent *event)
{
    if (event->type() != QEvent::Quit)
        return false;
    sessionEnds();
    return true;
}

void AppDelegate::sessionEnds()
{
    const bool runs = WTManager::shared().closeEnable() == WTManager::CloseIgnored;
    logWarning(runs ? "The session ends; the configuration that is under way is broken off." : "The session ends.");
    WTApp::wt_exitApp();
}

void AppDelegate::closeApplication()
{
    const qint64 state = WTManager::shared().closeEnable();
    if (state == WTManager::CloseAsks)
        askToQuit();
    else if (state == WTManager::CloseQuits)
        WTApp::wt_exitApp();
}

void AppDelegate::askToQuit()
{
    const Alert question{localized(u"温馨提示："_s),
                         localized(u"是否退出Wi-Fi配置工具?"_s),
                         {localized(u"确定"_s), localized(u"取消"_s)}};
    m_window->presentAlert(question, [](int response) {
        if (response == alertFirstButtonReturn)
            WTApp::wt_exitApp();
    });
}

void AppDelegate::applicationWillTerminate() {}

bool AppDelegate::applicationSupportsSecureRestorableState() const
{
    return true;
}

bool AppDelegate::applicationShouldTerminateAfterLastWindowClosed() const
{
    return true;
}
