#include "DemoMachine.h"
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
#include <QTest>
#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace
{

const QString walkArgument = u"--walk"_s;

// -- the walking process: tells on standard output what a user sees
// -----------------------------------------------------

QMessageBox *sheet(const WTWindow &window)
{
    auto *box = window.findChild<QMessageBox *>(u"alert"_s);
    return box && box->isVisible() ? box : nullptr;
}

void tell(const char *what)
{
    std::puts(what);
}

void pressClose(WTWindow &window)
{
    window.close();
    QCoreApplication::processEvents();
    tell(sheet(window) ? "asks" : "does not ask");
}

void answer(const WTWindow &window, int button)
{
    QTest::mouseClick(sheet(window)->buttons().at(button), Qt::LeftButton);
    QCoreApplication::processEvents();
    tell(window.isVisible() ? "stays" : "is gone");
}

void walk(WTWindow &window, const QString &way)
{
    WTManager &manager = WTManager::shared();
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
    PrinterScript noPrinter;
    noPrinter.plugged = false;
    static auto *demo = new DemoMachine(noPrinter, {});
    Machine machine = demo->machine();
    machine.capabilities.hasUnifiedLog = way == u"confirm"_s;
    return wt_main(argc, argv, machine, [&](WTWindow &window) {
        QMetaObject::invokeMethod(
            &window,
            [&window, way] {
                for (const auto &logger : WTLog::allLoggers())
                    tell(qPrintable(logger->loggerName()));
                walk(window, way);
            },
            Qt::QueuedConnection);
    });
}

/// The lines without date and thread.
QStringList readLines(const QString &path)
{
    static const QRegularExpression stamp(u"^\\[[^\\]]*\\] "_s, QRegularExpression::MultilineOption);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(file.readAll()).remove(stamp).split(u'\n', Qt::SkipEmptyParts);
}

} // namespace

class StartAndEndTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void closesByTheCloseState_data();
    void closesByTheCloseState();
    void logsTheStartInOrder();

private:
    QStringList run(const QString &way, int *exitCode);
    QString logFolder() const { return m_folder->filePath(u"Logs/main_tests"_s); }
    QStringList logLines() const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void StartAndEndTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

QStringList StartAndEndTest::run(const QString &way, int *exitCode)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"XDG_STATE_HOME"_s, m_folder->path());
    environment.insert(u"LC_ALL"_s, u"en_US.UTF-8"_s);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(), {walkArgument, way});
    if (!process.waitForFinished())
        return {};
    *exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    return QString::fromUtf8(process.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
}

QStringList StartAndEndTest::logLines() const
{
    const QDir folder(logFolder());
    const QStringList files = folder.entryList({u"com.quillmark.wifitool *.log"_s});
    return files.size() == 1 ? readLines(folder.filePath(files[0])) : QStringList();
}

void StartAndEndTest::closesByTheCloseState_data()
{
    QTest::addColumn<QStringList>("told");

    const QString file = u"com.wtlog.fileLogger"_s;
    QTest::newRow("confirm") << QStringList{u"com.wtlog.osLogger"_s, file, u"asks"_s, u"stays"_s};
    QTest::newRow("refuse") << QStringList{u"com.wtlog.aslLogger"_s, file,         u"asks"_s,         u"stays"_s,
                                           u"does not ask"_s,        u"state 2"_s, u"does not ask"_s, u"state 7"_s,
                                           u"does not ask"_s,        u"state 1"_s};
}

void StartAndEndTest::closesByTheCloseState()
{
    QFETCH(QStringList, told);
    int exitCode = -1;
    QCOMPARE(run(QString::fromLatin1(QTest::currentDataTag()), &exitCode), told);
    QCOMPARE(exitCode, 0);

    const QStringList warnings = logLines().filter(QRegularExpression(u"^⚠️ "_s));
    QCOMPARE(warnings.size(), 10);
    QVERIFY(warnings.first().startsWith(u"⚠️ ╔══"_s));
    QCOMPARE(logLines().last(), warnings.last());
    QVERIFY(warnings.last().startsWith(u"⚠️ ╚══"_s));
}

void StartAndEndTest::logsTheStartInOrder()
{
    int exitCode = -1;
    run(u"confirm"_s, &exitCode);
    const QStringList lines = logLines();
    QVERIFY2(lines.size() > 15, qPrintable(lines.join(u'\n')));
    QVERIFY(lines[0].startsWith(u"🟢 ╔══"_s));
    QVERIFY(lines[8].startsWith(u"🟢 ╚══"_s));
    QCOMPARE(lines[9], u"🟢 System Version: Demo machine"_s);
    QCOMPARE(lines[10], u"🟢 App Version: 1.0.0 (100)"_s);
    QCOMPARE(lines[11], u"🟢 NSLocaleLanguageCode:en"_s);
    QCOMPARE(lines[12], u"🟢 App Language:en"_s);
    QCOMPARE(lines[13], u"🟢 Local Language: en"_s);
    const QString libraryLog = logFolder() + u"/WTCore-WiFiTool.log"_s;
    QVERIFY2(lines[14].endsWith(u"设置中间日志的路径："_s + libraryLog), qPrintable(lines[14]));
    QVERIFY(QFile::exists(libraryLog));
}

int main(int argc, char **argv)
{
    if (argc == 3 && QString::fromLocal8Bit(argv[1]) == walkArgument)
        return walkingProcess(argc, argv);
    QCoreApplication application(argc, argv);
    StartAndEndTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "StartAndEndTest.moc"
