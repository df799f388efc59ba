#include "WTApp.h"

#include "Banner.h"
#include "BundleEx.h"
#include "DesktopPort.h"
#include "HostLanguages.h"
#include "HostReport.h"
#include "InfoList.h"
#include "Log.h"
#include "TextFormat.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr auto fallbackLanguage = "en"_L1;

struct Ports {
    HostWiFiPort *hostWiFi = nullptr;
    DesktopPort *desktop = nullptr;
    HostCapabilities capabilities;
};

Ports &ports()
{
    static Ports ports;
    return ports;
}

/// Which Chinese the user reads, by the first preferred language that is Chinese at all.
QString chineseLanguage(const QStringList &preferred)
{
    const auto chinese =
        std::ranges::find_if(preferred, [](const QString &entry) { return entry.startsWith("zh"_L1); });
    if (chinese == preferred.end())
        return fallbackLanguage;
    if (chinese->contains("Hans"_L1))
        return u"zh-Hans"_s;
    if (chinese->contains("Hant"_L1))
        return u"zh-Hant"_s;
    return chinese->contains("CN"_L1) ? u"zh-Hans"_s : u"zh-Hant"_s;
}

bool hasLanguageFolder(const QString &code)
{
    const QDir resources(InfoList::resourceFolder());
    QDirIterator entries(resources.path(), QDir::AllEntries | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString path = resources.relativeFilePath(entries.next());
        if (path.startsWith(code) && path.endsWith(".lproj"_L1))
            return true;
    }
    return false;
}

} // namespace

void WTApp::usePorts(HostWiFiPort &hostWiFi, DesktopPort &desktop, const HostCapabilities &capabilities)
{
    ports() = {&hostWiFi, &desktop, capabilities};
}

WTApp &WTApp::shared()
{
    static auto *app = new WTApp;
    return *app;
}

HostWiFiPort &WTApp::hostWiFi() const
{
    return *ports().hostWiFi;
}

DesktopPort &WTApp::desktop() const
{
    return *ports().desktop;
}

const HostCapabilities &WTApp::capabilities() const
{
    return ports().capabilities;
}

QString WTApp::systemVersion()
{
    if (!m_systemVersion) {
        const QString reported = deviceInfo().value(u"System Version"_s);
        m_systemVersion = reported.isEmpty() ? desktop().operatingSystemVersion() : reported;
    }
    return *m_systemVersion;
}

std::optional<QString> WTApp::systemLanguage() const
{
    return std::nullopt;
}

const WTApp::DeviceInfo &WTApp::deviceInfo()
{
    if (!m_deviceInfo)
        m_deviceInfo = parseHostReport(desktop().hostReport());
    return *m_deviceInfo;
}

std::optional<QString> WTApp::appBundleName() const
{
    return InfoList::value(u"CFBundleName"_s);
}

std::optional<QString> WTApp::appBundleID() const
{
    return InfoList::value(u"CFBundleIdentifier"_s);
}

std::optional<QString> WTApp::appVersion() const
{
    return InfoList::value(u"CFBundleShortVersionString"_s);
}

std::optional<QString> WTApp::appBuildVersion() const
{
    return InfoList::value(u"CFBundleVersion"_s);
}

QString WTApp::appFullVersion() const
{
    return formatText("%@ (%@)", appVersion(), appBuildVersion());
}

QString WTApp::currentLocale() const
{
    const std::optional<QString> code = HostLanguages::currentCode();
    logInfo("NSLocaleLanguageCode:%@", code);
    if (!code || code->isEmpty()) {
        logErrorSynchronously("Error LanguageCode");
        return fallbackLanguage;
    }

    QString language = *code == "zh"_L1 ? chineseLanguage(BundleEx::getCurrentLanguage()) : *code;
    const QStringList entries = QDir(InfoList::resourceFolder()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    if (std::ranges::any_of(entries, [&](const QString &entry) { return entry.startsWith(language); })) {
        logInfo("App Language:%@", language);
        return language;
    }
    logInfo("OS Language:%@, App Lang:en", language);
    return fallbackLanguage;
}

std::optional<QString> WTApp::appLanguage()
{
    if (!m_appLanguage) {
        const QString code = currentLocale();
        const QString shown = hasLanguageFolder(code) ? code : QString(fallbackLanguage);
        if (BundleEx::showLanguage(shown))
            m_appLanguage = code;
    }
    return m_appLanguage;
}

void WTApp::setAppLanguage(const std::optional<QString> &code)
{
    if (!code || code->isEmpty())
        return;
    m_appLanguage = BundleEx::showLanguage(code) ? code : std::nullopt;
}

void WTApp::wt_systemLog()
{
    logInfo("System Version: %@", shared().systemVersion());
    logInfo("App Version: %@", shared().appFullVersion());
    logInfo("Local Language: %@", shared().appLanguage());
}

void WTApp::wt_exitApp()
{
    for (const char *line : farewellBanner)
        logWarning("%@", line);
    QCoreApplication::exit(0);
}
