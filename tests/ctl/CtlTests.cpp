#include "CtlBed.h"
#include "CupsBed.h"
#include "EmulatedCommand.h"
#include "MockNetworkManager.h"
#include "Rows.h"

#include <QRegularExpression>
#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace
{

constexpr auto password = "seven-grey-geese";
constexpr QFile::Permissions ownersAlone = QFile::ReadOwner | QFile::WriteOwner;

PrinterScript withEvent(BusEvent::Action action, std::optional<BusEvent::Cause> after = {})
{
    PrinterScript script;
    script.events.push_back({action, after, 0ms});
    return script;
}

/// The result of one printer in what `join --json` wrote.
QJsonObject resultOf(CtlBed &bed, const QString &serial)
{
    for (const QJsonObject &object : bed.objects()) {
        if (object[u"event"_s] == u"result"_s && object[u"printer"_s][u"serial"_s] == serial)
            return object;
    }
    return {};
}

} // namespace

/// The program as it is shipped, by its arguments, its output and its exit status.
class CtlTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answers()
    {
        const auto join = [](const QStringList &more) { return QStringList{u"join"_s, u"--network"_s} + more; };
        const QString first = u"usb://Quillmark/QZ100?serial=QM0001"_s,
                      second = u"usb://Quillmark/QZ200?serial=QM0002"_s;
        eachRow(
            {
                {"help", {u"--help"_s}, 0, u"^usage: wifitoolctl .*information-page"_s},
                {"no command", {}, 2, u"a command is missing"_s},
                {"no such command", {u"jion"_s, u"secret"_s}, 2, u"^(?!.*secret)"_s},
                {"an option of another command", {u"printers"_s, u"--all"_s}, 2, u"Unknown option 'all'"_s},
                {"a password as an argument", join({u"Net"_s, u"secret"_s}), 2, u"^(?!.*secret).*takes no words"_s},
                {"no network", {u"join"_s, u"--open"_s}, 2, u"needs --network"_s},
                {"two networks", join({u"Net"_s, u"--network"_s, u"Den"_s, u"--open"_s}), 2, u"given once"_s},
                {"two passwords", join({u"Net"_s, u"--open"_s, u"--stored"_s}), 2, u"exclude one another"_s},
                {"again without watch", join({u"Net"_s, u"--open"_s, u"--again"_s}), 2, u"--again goes with --watch"_s},
                {"usage as JSON", {u"--json"_s, u"join"_s}, 2, u"^\\{.*\"event\":\"error\""_s},
                {"name too long", join({QString(33, u'x'), u"--open"_s}), 2, u"32 bytes"_s},
                {"name with a control character", join({u"a\nb"_s, u"--open"_s}), 2, u"control character"_s},
                {"no word of the password", join({u"Net"_s}), 2, u"say where the password comes from"_s},
                {"no such file", join({u"Net"_s, u"--password-file"_s, u"absent"_s}), 2, u"cannot be opened"_s},
                {"others may read it", join({u"Net"_s, u"--password-file"_s, u"shared"_s}), 2, u"chmod 600"_s},
                {"a pipe", join({u"Net"_s, u"--password-file"_s, u"pipe"_s}), 2, u"no regular file"_s},
                {"too long", join({u"Net"_s, u"--password-file"_s, u"long"_s}), 2, u"31 bytes"_s},
                {"two lines", join({u"Net"_s, u"--password-file"_s, u"lines"_s}), 2, u"the only line"_s},
                {"empty", join({u"Net"_s, u"--password-file"_s, u"empty"_s}), 2, u"--open"_s},
                {"no text", join({u"Net"_s, u"--password-file"_s, u"bytes"_s}), 2, u"a printer does not take"_s},
                {"empty standard input", join({u"Net"_s, u"--password-file"_s, u"-"_s}), 2, u"is empty"_s},
                {"nobody to ask", join({u"Net"_s, u"--stored"_s}), 3, u"NetworkManager cannot be asked"_s},
                {"several printers", join({u"Net"_s, u"--open"_s}), 2, u"2 printers are plugged in"_s},
                {"another printer", join({u"Net"_s, u"--open"_s, u"--printer"_s, u"usb://x"_s}), 3,
                 u"not plugged in: usb://x"_s},
                {"printers",
                 {u"printers"_s},
                 0,
                 u"^QZ100 QM0001 \\(1-1\\)  %1  Wi-Fi yes  free\nQZ200 QM0002 \\(1-2\\)  %2  Wi-Fi unknown  not permitted: "_s
                     .arg(QRegularExpression::escape(first), QRegularExpression::escape(second))},
                {"printers as JSON",
                 {u"--json"_s, u"printers"_s},
                 0,
                 u"\"state\":\"free\".*\n.*\"state\":\"not permitted\""_s},
                {"check", {u"check"_s, u"--printer"_s, first}, 0, u"can be configured"_s},
                {"address", {u"address"_s, u"--printer"_s, first}, 1, u"has no address"_s},
                {"page", {u"information-page"_s, u"--printer"_s, first}, 0, u"has been sent"_s},
                {"not permitted", {u"check"_s, u"--printer"_s, second}, 4, u"does not let you"_s},
                {"which of two", {u"address"_s}, 2, u"choose with --printer"_s},
                {"no networks", {u"networks"_s}, 3, u"NetworkManager is not running"_s},
            },
            [&](const QStringList &arguments, int status, const QString &output) {
                CtlBed bed;
                bed.addPrinter();
                bed.addPrinter(withEvent(BusEvent::Action::Deny), u"QZ200"_s);
                bed.writeFile(u"shared"_s, password, ownersAlone | QFile::ReadOther);
                bed.writeFile(u"long"_s, QByteArray(32, 'x'), ownersAlone);
                bed.writeFile(u"lines"_s, "one\ntwo\n", ownersAlone);
                bed.writeFile(u"bytes"_s, "\xFF\xFE", ownersAlone);
                const QString home = QFileInfo(bed.writeFile(u"empty"_s, {}, ownersAlone)).path();
                QCOMPARE(mkfifo(QFile::encodeName(home + u"/pipe"_s).constData(), S_IRUSR | S_IWUSR), 0);
                bed.program().setWorkingDirectory(home);

                bed.start(arguments);
                QCOMPARE(bed.end(), status);
                const QRegularExpression expected(output, QRegularExpression::DotMatchesEverythingOption);
                QVERIFY2(expected.match(QString::fromUtf8(bed.output())).hasMatch(), bed.output().constData());
            });
    }

    void findsNoPrinter()
    {
        CtlBed bed;
        bed.start({u"printers"_s});
        QCOMPARE(bed.end(), 3);
        bed.start({u"join"_s, u"--network"_s, u"Net"_s, u"--open"_s});
        QCOMPARE(bed.end(), 3);
    }

    /// One that cannot be reached, one that refuses, one that is pulled and two that share a name change nothing for
    /// the others.
    void joinsSideBySide()
    {
        CtlBed bed;
        PrinterScript joins;
        joins.joinTime = 300ms;
        PrinterScript refuses;
        refuses.configurationResult = 0;
        const int first = bed.addPrinter(joins);
        bed.addPrinter(refuses);
        bed.addPrinter(withEvent(BusEvent::Action::Unplug, BusEvent::Cause{EmulatedCommand::Configuration}));
        bed.addPrinter(withEvent(BusEvent::Action::Deny));
        const int second = bed.addPrinter(joins);
        for (int twin = 0; twin < 2; ++twin)
            bed.bus().plug(bed.bus().addPrinter(PrinterModel({.serialNumber = u"QM9999"_s}, joins)));

        bed.start({u"join"_s, u"--network"_s, u"Quill House"_s, u"--password-file"_s, u"-"_s, u"--all"_s, u"--json"_s});
        bed.program().write(password);
        QCOMPARE(bed.end(), 1);

        for (const QString &serial : {u"QM0001"_s, u"QM0005"_s}) {
            QCOMPARE(resultOf(bed, serial)[u"result"_s], u"joined"_s);
            QCOMPARE(resultOf(bed, serial)[u"address"_s], u"192.168.1.77"_s);
        }
        QCOMPARE(resultOf(bed, u"QM0002"_s)[u"code"_s], u"PrinterResult/0"_s);
        QCOMPARE(resultOf(bed, u"QM0003"_s)[u"code"_s], u"USB/4"_s);
        QCOMPARE(resultOf(bed, u"QM0004"_s)[u"code"_s], u"USB/2"_s);
        QCOMPARE(resultOf(bed, u"QM9999"_s)[u"code"_s], u"ambiguous"_s);
        const QJsonObject sum = bed.objects().constLast();
        QCOMPARE(sum[u"joined"_s].toInt() * 100 + sum[u"failed"_s].toInt(), 205);
        for (const int printer : {first, second}) {
            QCOMPARE(bed.bus().record(printer).networkName, "Quill House");
            QCOMPARE(bed.bus().record(printer).password, password);
            QCOMPARE(bed.bus().boundDriver(printer), u"usblp"_s);
        }
        QVERIFY(!bed.objects().contains(QJsonObject()));
        QVERIFY(!bed.output().contains(password));
        QVERIFY(bed.written().contains("wifitoolctl ends with 1"));
        QVERIFY(!bed.written().contains(password));
    }

    void watches()
    {
        CtlBed bed;
        bed.addPrinter();
        bed.start({u"join"_s, u"--network"_s, u"Net"_s, u"--open"_s, u"--watch"_s});
        QVERIFY(bed.waitFor("Waiting for printers"));
        bed.addPrinter();
        QTRY_COMPARE_WITH_TIMEOUT(bed.bus().record(0).count(EmulatedCommand::Configuration), 1, 20000);
        // Another one takes the port while the first one's run goes on.
        bed.bus().replacePrinter(PrinterModel({.serialNumber = u"QM0003"_s}));
        bed.bus().plug();
        QVERIFY(bed.waitFor("QM0002 (1-2): joined"));
        bed.bus().replug(1);
        QVERIFY(bed.waitFor("QM0002 (1-2): done already"));
        QVERIFY(bed.waitFor("QM0003 (1-1)"));
        kill(pid_t(bed.program().processId()), SIGINT);
        QCOMPARE(bed.end(), 5);
        QVERIFY(bed.output().contains("1 joined, 1 failed, 1 broken off"));
        QCOMPARE(bed.bus().record(1).count(EmulatedCommand::Configuration), 1);
    }

    void isBrokenOff()
    {
        CtlBed bed;
        PrinterScript slow;
        slow.joinTime = 60s;
        bed.addPrinter(slow);
        bed.start({u"join"_s, u"--network"_s, u"Net"_s, u"--open"_s});
        QTRY_COMPARE_WITH_TIMEOUT(bed.bus().record(0).count(EmulatedCommand::Configuration), 1, 20000);
        QCOMPARE(bed.bus().boundDriver(0), u"usbfs"_s);
        kill(pid_t(bed.program().processId()), SIGINT);
        QCOMPARE(bed.end(5000), 5);
        QVERIFY(bed.output().contains("QM0001 (1-1): broken off: it may have got the network"));
        QTRY_COMPARE(bed.bus().boundDriver(0), u"usblp"_s);
    }

    /// Whoever goes by the status must not take a crash for success.
    void failsWhenItCrashes()
    {
        CtlBed bed;
        bed.start({u"join"_s, u"--network"_s, u"Net"_s, u"--open"_s, u"--watch"_s});
        QVERIFY(bed.waitFor("Waiting for printers"));
        kill(pid_t(bed.program().processId()), SIGSEGV);
        QCOMPARE(bed.end(), 139);
    }

    /// The password is asked for without being shown, and a line moves.
    void asksAtATerminal()
    {
        CtlBed bed;
        bed.addPrinter();
        const int terminal = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
        QVERIFY(grantpt(terminal) == 0 && unlockpt(terminal) == 0);
        const QString name = QFile::decodeName(ptsname(terminal));
        bed.program().setStandardInputFile(name);
        bed.program().setStandardOutputFile(name);
        QProcessEnvironment environment = bed.program().processEnvironment();
        environment.insert(u"TERM"_s, u"xterm"_s);
        bed.program().setProcessEnvironment(environment);
        bed.program().start(u"setsid"_s,
                            {u"--ctty"_s, QStringLiteral(WT_CTL), u"join"_s, u"--network"_s, u"Quill House"_s});

        QByteArray shown;
        const auto readUntil = [&](const QByteArray &text) {
            std::array<char, 4096> buffer{};
            while (!shown.contains(text)) {
                const ssize_t count = read(terminal, buffer.data(), buffer.size());
                if (count <= 0)
                    return false;
                shown.append(buffer.data(), count);
            }
            return true;
        };
        QVERIFY(readUntil("Password of Quill House"));
        const QByteArray typed = QByteArray(password) + '\n';
        QCOMPARE(write(terminal, typed.constData(), size_t(typed.size())), typed.size());
        QVERIFY2(readUntil("[#") && readUntil("\x1B[1F\x1B[J"), shown.constData());
        QTRY_COMPARE(bed.bus().record(0).count(EmulatedCommand::Configuration), 1);
        close(terminal); // Hangs up.
        QCOMPARE(bed.end(), 5);
        QVERIFY(!shown.contains(password));
        QCOMPARE(bed.bus().record(0).password, password);
    }

    void asksTheHost()
    {
        MockNetworkManager host;
        const auto hex = [](const char *name) { return QString::fromLatin1(QByteArray(name).toHex()); };
        host.tell(QJsonArray{u"start"_s});
        host.tell(QJsonArray{u"device"_s, u"wlan0"_s});
        host.tell(QJsonArray{u"ap"_s, u"wlan0"_s, u"house"_s, hex("Quill House"), 70});
        host.tell(QJsonArray{u"ap"_s, u"wlan0"_s, u"other"_s, hex("Next\x1B door"), 90, 5180});
        host.tell(QJsonArray{u"profile"_s, u"wlan0"_s, u"stored"_s, u"Quill House"_s,
                             QJsonObject{{u"psk"_s, QString::fromLatin1(password)}}});
        host.tell(QJsonArray{u"join"_s, u"wlan0"_s, u"stored"_s, u"house"_s, true});
        CtlBed bed;
        bed.addPrinter();
        bed.start({u"networks"_s});
        QCOMPARE(bed.end(), 0);
        const QList<QByteArray> lines = bed.output().trimmed().split('\n');
        QCOMPARE(lines.size(), 2);
        QVERIFY2(lines[0].startsWith("*  70 %  2.4 GHz  WPA2-Personal  Quill House"), lines[0].constData());
        QVERIFY2(lines[1].contains("90 %  5 GHz") && lines[1].contains("Next\\u001B door"), lines[1].constData());

        bed.start({u"join"_s, u"--network"_s, u"Quill House"_s, u"--stored"_s});
        QTRY_COMPARE_WITH_TIMEOUT(bed.bus().record(0).count(EmulatedCommand::Configuration), 1, 20000);
        kill(pid_t(bed.program().processId()), SIGTERM);
        QCOMPARE(bed.end(), 5);
        QCOMPARE(bed.bus().record(0).password, password);

        host.tell(QJsonArray{u"permission"_s, u"no"_s});
        bed.start({u"networks"_s});
        QCOMPARE(bed.end(), 4);
        qunsetenv("DBUS_SYSTEM_BUS_ADDRESS");
    }

    void refusesABusyQueue()
    {
        CupsBed spooler;
        QVERIFY(spooler.isReady() && spooler.addQueue(u"Quillmark_QZ100"_s) &&
                spooler.holdInPrint(u"Quillmark_QZ100"_s));
        CtlBed bed;
        bed.addPrinter();
        bed.start({u"join"_s, u"--network"_s, u"Net"_s, u"--open"_s, u"--json"_s});
        QCOMPARE(bed.end(), 1);
        QCOMPARE(resultOf(bed, u"QM0001"_s)[u"code"_s], u"busy"_s);
        QCOMPARE(bed.bus().record(0).frames.size(), std::size_t{0});
    }

    /// It runs where no library of a display is installed.
    void hasNoWindow()
    {
        QProcess linked;
        linked.start(u"ldd"_s, {QStringLiteral(WT_CTL)});
        QVERIFY(linked.waitForFinished());
        const QByteArray libraries = linked.readAll();
        QVERIFY(libraries.contains("libQt6Core"));
        QVERIFY2(!libraries.contains("libQt6Gui") && !libraries.contains("libX11"), libraries.constData());
    }
};

QTEST_GUILESS_MAIN(CtlTests)

#include "CtlTests.moc"
