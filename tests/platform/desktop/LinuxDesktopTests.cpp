#include "LinuxDesktop.h"
#include "detectHostCapabilities.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace
{

/// A search path of its own, with scripts for programs.
class ProgramFolder
{
public:
    ProgramFolder()
        : m_searchPath(qgetenv("PATH"))
    {
        qputenv("PATH", m_folder.path().toLocal8Bit());
    }
    ~ProgramFolder() { qputenv("PATH", m_searchPath); }

    void install(const QString &name, const QByteArray &script = ":")
    {
        QFile program{m_folder.filePath(name)};
        QVERIFY(program.open(QIODevice::WriteOnly));
        program.write("#!/bin/sh\n" + script + '\n');
        program.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

private:
    QTemporaryDir m_folder;
    QByteArray m_searchPath;
};

} // namespace

class LinuxDesktopTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void choosesThePanelOfTheDesktopThatIsInstalled_data();
    void choosesThePanelOfTheDesktopThatIsInstalled();
    void reportsTheHostWhateverTheHostnameServiceDoes_data();
    void reportsTheHostWhateverTheHostnameServiceDoes();
    void namesTheOperatingSystem();
    void detectsWhatTheHostOffers();
};

void LinuxDesktopTests::choosesThePanelOfTheDesktopThatIsInstalled_data()
{
    QTest::addColumn<QByteArray>("desktop");
    QTest::addColumn<QStringList>("installed");
    QTest::addColumn<QString>("addPrinter");
    QTest::addColumn<QString>("privacySettings");

    const QStringList everything{u"gnome-control-center"_s, u"kcmshell5"_s,
                                 u"kde-add-printer"_s,      u"system-config-printer"_s,
                                 u"nm-connection-editor"_s, u"xdg-open"_s};
    QTest::newRow("GNOME") << QByteArray{"GNOME"} << everything << u"gnome-control-center printers"_s
                           << u"gnome-control-center wifi"_s;
    QTest::newRow("a desktop derived from GNOME")
        << QByteArray{"ubuntu:GNOME"} << everything << u"gnome-control-center printers"_s
        << u"gnome-control-center wifi"_s;
    QTest::newRow("KDE") << QByteArray{"KDE"} << everything << u"kcmshell5 kcm_printer_manager"_s
                         << u"kcmshell5 kcm_networkmanagement"_s;
    QTest::newRow("KDE Plasma 6") << QByteArray{"KDE"} << QStringList{u"kcmshell5"_s, u"kcmshell6"_s}
                                  << u"kcmshell6 kcm_printer_manager"_s << u"kcmshell6 kcm_networkmanagement"_s;
    QTest::newRow("KDE without its shell for modules")
        << QByteArray{"KDE"} << QStringList{u"kde-add-printer"_s, u"nm-connection-editor"_s}
        << u"kde-add-printer --addprinter"_s << u"nm-connection-editor"_s;
    QTest::newRow("another desktop") << QByteArray{"XFCE"} << everything << u"system-config-printer"_s
                                     << u"nm-connection-editor"_s;
    QTest::newRow("GNOME without its panels")
        << QByteArray{"GNOME"} << QStringList{u"xdg-open"_s} << u"xdg-open http://localhost:631/admin"_s << QString{};
    QTest::newRow("nothing installed") << QByteArray{"GNOME"} << QStringList{} << QString{} << QString{};
}

void LinuxDesktopTests::choosesThePanelOfTheDesktopThatIsInstalled()
{
    QFETCH(QByteArray, desktop);
    QFETCH(QStringList, installed);
    QFETCH(QString, addPrinter);
    QFETCH(QString, privacySettings);

    qputenv("XDG_CURRENT_DESKTOP", desktop);
    ProgramFolder programs;
    for (const QString &name : installed)
        programs.install(name);

    const auto detached = [](const QString &command) {
        return command.isEmpty() ? command : u"setsid "_s + command + u" >/dev/null 2>&1 </dev/null &"_s;
    };
    LinuxDesktop linux;
    QCOMPARE(linux.addPrinterCommandLine(), detached(addPrinter));
    QCOMPARE(linux.privacySettingsCommandLine(), detached(privacySettings));
}

void LinuxDesktopTests::reportsTheHostWhateverTheHostnameServiceDoes_data()
{
    QTest::addColumn<QByteArray>("hostnamectl");
    QTest::addColumn<QByteArray>("line");

    const QByteArray shortReport = "Kernel: " + QSysInfo::kernelType().toUtf8() + ' ';
    QTest::newRow("answers") << QByteArray{"echo '  Chassis: desktop'"} << QByteArray{"  Chassis: desktop\n"};
    QTest::newRow("absent") << QByteArray{} << shortReport;
    QTest::newRow("fails") << QByteArray{"echo 'Chassis: none'; exit 1"} << shortReport;
    QTest::newRow("says nothing") << QByteArray{":"} << shortReport;
    QTest::newRow("hangs") << QByteArray{"exec /bin/sleep 600"} << shortReport;
}

void LinuxDesktopTests::reportsTheHostWhateverTheHostnameServiceDoes()
{
    QFETCH(QByteArray, hostnamectl);
    QFETCH(QByteArray, line);

    ProgramFolder programs;
    if (!hostnamectl.isEmpty())
        programs.install(u"hostnamectl"_s, hostnamectl);
    QElapsedTimer clock;
    clock.start();
    const QString report = LinuxDesktop{500ms}.hostReport();
    QVERIFY2(report.contains(QString::fromUtf8(line)), qPrintable(report));
    QVERIFY(clock.elapsed() < 30000);
}

void LinuxDesktopTests::namesTheOperatingSystem()
{
    QFile release{u"/etc/os-release"_s};
    if (!release.open(QIODevice::ReadOnly))
        QSKIP("This system has no /etc/os-release.");
    const QString version = LinuxDesktop{}.operatingSystemVersion();
    QVERIFY(!version.isEmpty());
    QVERIFY(QString::fromUtf8(release.readAll()).contains(u"PRETTY_NAME=\""_s + version + u'"'));
}

void LinuxDesktopTests::detectsWhatTheHostOffers()
{
    qunsetenv("WAYLAND_DISPLAY");
    QVERIFY(!detectHostCapabilities().activatesCooperatively);
    qputenv("WAYLAND_DISPLAY", "wayland-0");
    const HostCapabilities host = detectHostCapabilities();
    QVERIFY(host.activatesCooperatively);
    // NetworkManager lets no program look for networks unasked.
    QVERIFY(host.scanNeedsPermission);
    QCOMPARE(host.hasUnifiedLog, QFile::exists(u"/run/systemd/journal/socket"_s));
}

QTEST_GUILESS_MAIN(LinuxDesktopTests)
#include "LinuxDesktopTests.moc"
