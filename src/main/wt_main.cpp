#include "wt_main.h"

#include "AppDelegate.h"
#include "BundleEx.h"
#include "Machine.h"
#include "TerminationRequest.h"
#include "WTLog.h"
#include "WTWindow.h"
#include "WizardScreens.h"
#include "beginProgram.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

using namespace Qt::Literals::StringLiterals;

namespace
{

/// The toolkit's own texts (context menus of fields) in the language of the program's, where the system has them.
void showToolkitTexts(QApplication &application)
{
    const QLocale language(BundleEx::shownLanguage().value_or(u"en"_s));
    auto *texts = new QTranslator(&application);
    if (texts->load(language, u"qtbase"_s, u"_"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(texts);
}

} // namespace

int wt_main(int argc, char **argv, const Machine &machine, const std::function<void(WTWindow &)> &launched)
{
    const QString logFolder = beginProgram(machine);

    QApplication application(argc, argv);
    // The desktop finds the window's icon and name in the desktop entry of this name.
    QGuiApplication::setDesktopFileName(u"com.quillmark.wifitool"_s);
    showToolkitTexts(application);
    WizardScreens screens(
        {machine.time, machine.spooler, machine.desktop, machine.hostWiFi, machine.capabilities, logFolder});
    AppDelegate delegate;
    delegate.setWindow(&screens.window());
    QObject::connect(&screens.window(), &WTWindow::closeRequested, &delegate, &AppDelegate::closeApplication);
    const TerminationRequest termination;
    QObject::connect(&termination, &TerminationRequest::arrived, &delegate, &AppDelegate::sessionEnds);
    QObject::connect(&application, &QApplication::aboutToQuit, &delegate, &AppDelegate::applicationWillTerminate);
    QApplication::setQuitOnLastWindowClosed(delegate.applicationShouldTerminateAfterLastWindowClosed());

    screens.show();
    delegate.applicationDidFinishLaunching();
    if (launched)
        launched(screens.window());
    const int status = QApplication::exec();

    // While the toolkit's own data still exist: the loggers use them.
    WTLog::flushLog();
    return status;
}
