#include "DemoMachine.h"
#include "Rows.h"
#include "WTFileLogger.h"
#include "WTLog.h"
#include "WTManager.h"
#include "WTWindow.h"
#include "wt_main.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QThread>
#include <csignal>
#include <cstdio>
#include <sys/resource.h>

using namespace Qt::Literals::StringLiterals;

namespace
{

const QString walkArgument = u"--walk"_s;

// The walking process tells on standard output what a user sees.

QMessageBox *sheet(const WTWindow &window)
{
    auto *box = window.findChild<QMessageBox *>(u"alert"_s);
    return box && box->isVisible() ? box : nullptr;
}

void tellOfTheLog()
{
    for (const auto &logger : WTLog::allLoggers()) {
        std::puts(qPrintable(logger->loggerName()));
        if (const auto file = std::dynamic_pointer_cast<WTFileLogger>(logger))
            std::printf("%.0f s, %llu bytes, %zu files\n", file->rollingFrequency(),
                        static_cast<unsigned long long>(file->maximumFileSize()),
                        file->logFileManager()->maximumNumberOfLogFiles());
    }
    rlimit core{};
    getrlimit(RLIMIT_CORE, &core);
    std::printf("%llu bytes of a core\n", static_cast<unsigned long long>(core.rlim_cur));
}

void pressClose(WTWindow &window)
{
    window.close();
    QCoreApplication::processEvents();
    std::puts(sheet(window) ? "asks" : "does not ask");
}

void answer(const WTWindow &window, int button)
{
    QTest::mouseClick(sheet(window)->buttons().at(button), Qt::LeftButton);
    QCoreApplication::processEvents();
    std::puts(window.isVisible() ? "stays" : "is gone");
}

void walk(WTWindow &window, const QString &way)
{
    WTManager &manager = WTManager::shared();
    if (way == u"log out"_s || way == u"terminate"_s) {
        manager.setCloseEnable(WTManager::CloseIgnored);
        if (way == u"log out"_s)
            QCoreApplication::quit();
        else
            raise(SIGTERM);
        return;
    }
    if (way == u"confirm"_s) {
        pressClose(window);
        answer(window, 0);
        return;
    }
    pressClose(window);
    answer(window, 1);
    for (const qint64 state : {qint64{WTManager::CloseIgnored}, qint64{7}, qint64{WTManager::CloseQuits}}) {
        manager.setCloseEnable(state);
        pressClose(window);
        std::printf("state %lld\n", static_cast<long long>(manager.closeEnable()));
    }
}

int walkingProcess(int argc, char **argv)
{
    const QString way = QString::fromLocal8Bit(argv[2]);
    rlimit core{};
    getrlimit(RLIMIT_CORE, &core);
    core.rlim_cur = core.rlim_max;
    setrlimit(RLIMIT_CORE, &core);
    PrinterScript noPrinter;
    noPrinter.plugged = false;
    static auto *demo = new DemoMachine(noPrinter, {});
    Machine machine = demo->machine();
    machine.capabilities.hasUnifiedLog = way != u"refuse"_s;
    return wt_main(argc, argv, machine, [&](WTWindow &window) {
        QMetaObject::invokeMethod(
            &window,
            [&window, way] {
                tellOfTheLog();
                walk(window, way);
            },
            Qt::QueuedConnection);
    });
}

/// The lines of the one log file in the folder, without date and thread.
QStringList logLines(const QDir &folder)
{
    static const QRegularExpression stamp(u"^\\[[^\\]]*\\] "_s, QRegularExpression::MultilineOption);
    const QStringList files = folder.entryList({u"com.quillmark.wifitool *.log"_s});
    QFile file(folder.filePath(files.value(0)));
    if (files.size() != 1 || !file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(file.readAll()).remove(stamp).split(u'\n', Qt::SkipEmptyParts);
}

} // namespace

class StartAndEndTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void closesByTheCloseState()
    {
        const QStringList start{u"com.wtlog.osLogger"_s, u"com.wtlog.fileLogger"_s,
                                u"86400 s, 104857600 bytes, 7 files"_s, u"0 bytes of a core"_s};
        const QString asks = u"asks"_s, stays = u"stays"_s, silent = u"does not ask"_s;
        eachRow(
            {
                {"log out", u"log out"_s, start},
                {"terminate", u"terminate"_s, start},
                {"confirm", u"confirm"_s, start + QStringList{asks, stays}},
                {"refuse", u"refuse"_s,
                 QStringList{u"com.wtlog.aslLogger"_s} + start.sliced(1) +
                     QStringList{asks, stays, silent, u"state 2"_s, silent, u"state 7"_s, silent, u"state 1"_s}},
            },
            [&](const QString &way, const QStringList &told) {
                const QTemporaryDir folder;
                QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
                environment.insert(u"XDG_STATE_HOME"_s, folder.path());
                environment.insert(u"LC_ALL"_s, u"en_US.UTF-8"_s);
                QProcess process;
                process.setProcessEnvironment(environment);
                process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
                process.start(QCoreApplication::applicationFilePath(), {walkArgument, way});
                QVERIFY(process.waitForFinished());
                QCOMPARE(QString::fromUtf8(process.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts), told);
                QCOMPARE(process.exitStatus(), QProcess::NormalExit);
                QCOMPARE(process.exitCode(), 0);

                const QDir logs(folder.filePath(u"Logs/main_tests"_s));
                // The bus is watched to the very end: its news may come at any place, behind the farewell, too.
                QStringList lines = logLines(logs);
                lines.removeIf([](const QString &line) { return line.contains(u"USB Printers count"_s); });
                QVERIFY2(lines.size() > 15, qPrintable(lines.join(u'\n')));
                QVERIFY(lines[0].startsWith(u"🟢 ╔══"_s) && lines[8].startsWith(u"🟢 ╚══"_s));
                QCOMPARE(lines.sliced(9, 5),
                         QStringList({u"🟢 System Version: Demo machine"_s, u"🟢 App Version: 1.0.0 (100)"_s,
                                      u"🟢 NSLocaleLanguageCode:en"_s, u"🟢 App Language:en"_s,
                                      u"🟢 Local Language: en"_s}));
                const QString libraryLog = logs.filePath(u"WTCore-WiFiTool.log"_s);
                QVERIFY2(lines[14].endsWith(u"设置中间日志的路径："_s + libraryLog), qPrintable(lines[14]));
                QVERIFY(QFile::exists(libraryLog));

                QStringList warnings = lines.filter(QRegularExpression(u"^⚠️ "_s));
                if (!told.contains(asks))
                    QCOMPARE(warnings.takeFirst(),
                             u"⚠️ The session ends; the configuration that is under way is broken off."_s);
                QCOMPARE(warnings.size(), 10);
                QVERIFY(warnings.first().startsWith(u"⚠️ ╔══"_s));
                QVERIFY(warnings.last().startsWith(u"⚠️ ╚══"_s));
                QCOMPARE(lines.last(), warnings.last());
            });
    }
};

int main(int argc, char **argv)
{
    // The toolkit takes the first thread that it meets for the main one, and the demo's machine has threads.
    QThread::currentThread();
    if (argc == 3 && QString::fromLocal8Bit(argv[1]) == walkArgument)
        return walkingProcess(argc, argv);
    QCoreApplication application(argc, argv);
    StartAndEndTests test;
    return QTest::qExec(&test, argc, argv);
}

#include "StartAndEndTests.moc"
