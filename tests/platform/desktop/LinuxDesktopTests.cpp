#include "LinuxDesktop.h"
#include "Rows.h"
#include "detectHostCapabilities.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

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
    void choosesThePanelOfTheDesktopThatIsInstalled()
    {
        const QStringList everything{u"gnome-control-center"_s, u"kcmshell5"_s,
                                     u"kde-add-printer"_s,      u"system-config-printer"_s,
                                     u"nm-connection-editor"_s, u"xdg-open"_s};
        eachRow(
            {
                {"GNOME", QByteArray{"ubuntu:Gnome"}, everything, u"gnome-control-center printers"_s,
                 u"gnome-control-center wifi"_s},
                {"KDE Plasma 6", QByteArray{"KDE"}, QStringList{u"kcmshell5"_s, u"kcmshell6"_s},
                 u"kcmshell6 kcm_printer_manager"_s, u"kcmshell6 kcm_networkmanagement"_s},
                {"GNOME without its panels", QByteArray{"GNOME"}, QStringList{u"xdg-open"_s},
                 u"xdg-open http://localhost:631/admin"_s, QString{}},
                {"nothing installed", QByteArray{"GNOME"}, QStringList{}, QString{}, QString{}},
            },
            [&](const QByteArray &desktop, const QStringList &installed, const QString &addPrinter,
                const QString &privacySettings) {
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
            });
    }

    void reportsTheHostWhateverTheHostnameServiceDoes()
    {
        const QByteArray shortReport = "Kernel: " + QSysInfo::kernelType().toUtf8() + ' ';
        eachRow(
            {
                {"answers", QByteArray{"echo '  Chassis: desktop'"}, QByteArray{"  Chassis: desktop\n"}},
                {"fails", QByteArray{"echo 'Chassis: none'; exit 1"}, shortReport},
                {"hangs", QByteArray{"exec /bin/sleep 600"}, shortReport},
            },
            [&](const QByteArray &hostnamectl, const QByteArray &line) {
                ProgramFolder programs;
                programs.install(u"hostnamectl"_s, hostnamectl);
                QElapsedTimer clock;
                clock.start();
                const QString report = LinuxDesktop{500ms}.hostReport();
                QVERIFY2(report.contains(QString::fromUtf8(line)), qPrintable(report));
                QVERIFY(clock.elapsed() < 30000);
            });
    }

    void detectsWhatTheHostOffers()
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
};

QTEST_GUILESS_MAIN(LinuxDesktopTests)
#include "LinuxDesktopTests.moc"
