#include "PrintQueueBusyCheck.h"
#include "Rows.h"
#include "ScannerLock.h"
#include "WTCommand.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;
using Queues = std::vector<PrintDestination>;

/// What this computer is asked: its shell, its print queues, its locks.
class HostQuestionTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answersWhatTheCommandWrote()
    {
        eachRow(
            {
                {"two lines", u"echo 网络; echo two"_s, u"网络\ntwo\n"_s},
                {"more than one read takes", u"head -c 60000 /dev/zero | tr '\\0' x"_s, QString(60000, u'x')},
                {"no UTF-8", u"printf '\\377\\376'"_s, std::nullopt},
            },
            [&](const QString &commandLine, const std::optional<QString> &output) {
                QCOMPARE(WTCommand::executeShellScript(commandLine), output);
            });
    }

    void waitsForTheCommandButNotForADetachedOne()
    {
        QElapsedTimer clock;
        clock.start();
        QVERIFY(WTCommand::executeShellScript(u"setsid sleep 10 >/dev/null 2>&1 </dev/null &"_s));
        QVERIFY(clock.restart() < 9000);
        QVERIFY(WTCommand::executeShellScript(u"sleep 1"_s));
        QVERIFY(clock.elapsed() >= 1000);
    }

    void findsThePrintingQueue()
    {
        const auto queue = [](const char *name, const char *state) {
            return PrintDestination{.name = name, .printerState = state};
        };
        const Queues printing{queue("QZ100_USB", "4")}, two{queue("QZ100_A", "3"), queue("QZ100_B", "4")};
        eachRow(
            {
                {"printing", u"QZ100"_s, printing, true, true},
                {"another printer is printing", u"QZ200"_s, printing, false, false},
                {"the second queue is printing", u"QZ100"_s, two, true, true},
                {"spaces are removed from the type", u"Q Z 100"_s, {queue("QZ100", "4")}, true, true},
                {"series is cut off", u"M1234 series"_s, {queue("M1234 USB", "4")}, true, true},
                {"Series is not", u"M1234 Series"_s, {queue("M1234 USB", "4")}, false, false},
                {"vendor twice", u"quillmark quillmark QZ100"_s, printing, true, true},
                {"vendor in front, not in lower case", u"Quillmark QZ100"_s, printing, false, false},
                {"nothing is left of the type", u"series"_s, printing, false, false},
                {"queue name beyond ASCII", u"QZ100"_s, {queue("QZ100_\xE5\x8A\x9E", "4")}, false, false},
                {"hyphen in the type only", u"QZ-100"_s, printing, false, true},
                {"hyphen in both", u"QZ-100"_s, {queue("QZ-100_USB", "4")}, true, false},
            },
            [&](const QString &printerType, const Queues &queues, bool busyForList, bool busyForManualEntry) {
                QCOMPARE(isWorking(queues, printerType, u"Quillmark"_s, BusyCheckVariant::List), busyForList);
                QCOMPARE(isWorking(queues, printerType, u"Quillmark"_s, BusyCheckVariant::ManualEntry),
                         busyForManualEntry);
            });
    }

    void onlyALockedFileIsHeld()
    {
        QFile lock(m_folder.filePath(u"lock"_s));
        QVERIFY(lock.open(QIODevice::WriteOnly));
        QCOMPARE(flock(lock.handle(), LOCK_SH), 0);
        QVERIFY(ScannerLock::isHeld({u"/nowhere/lock"_s, lock.fileName()}));
        const auto openFiles = [] { return QDir(u"/proc/self/fd"_s).entryList(QDir::Files).size(); };
        const auto before = openFiles();
        QVERIFY(ScannerLock::isHeld({lock.fileName()}));
        QCOMPARE(openFiles(), before);

        // What another user may put at a lock's path: a link to a lock of his own, a pipe that nobody writes to.
        const QString link = m_folder.filePath(u"link"_s), pipe = m_folder.filePath(u"pipe"_s);
        QVERIFY(QFile::link(lock.fileName(), link));
        QCOMPARE(mkfifo(QFile::encodeName(pipe), 0600), 0);
        const int folder = open(QFile::encodeName(m_folder.path()), O_RDONLY | O_DIRECTORY);
        QCOMPARE(flock(folder, LOCK_EX), 0);
        QVERIFY(!ScannerLock::isHeld({link, pipe, m_folder.path()}));
        close(folder);

        // A driver that makes a new lock file, not locked yet, while the old one is still locked.
        QVERIFY(QFile::rename(lock.fileName(), link + u"2"_s) && QFile::copy(link + u"2"_s, lock.fileName()));
        QVERIFY(!ScannerLock::isHeld({lock.fileName()}));
    }

private:
    QTemporaryDir m_folder;
};

QTEST_APPLESS_MAIN(HostQuestionTests)
#include "HostQuestionTests.moc"
