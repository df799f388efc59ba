#include "LogBed.h"
#include "LogFileNameDate.h"
#include "Rows.h"
#include "WTLogFileManager.h"

#include <QFile>
#include <cstdio>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr char attributeName[] = "user.quillmark.log.archived";
constexpr qint64 mebibyte = 1024 * 1024;

std::shared_ptr<WTLogFileManagerDefault> managerOf(const LogBed &bed, WallClock clock = systemWallClock)
{
    return std::make_shared<WTLogFileManagerDefault>(bed.folder(), std::move(clock));
}

QString create(WTLogFileManagerDefault &manager)
{
    return manager.createNewLogFileWithError().path.value_or(QString());
}

class WithHeader : public WTLogFileManagerDefault
{
public:
    using WTLogFileManagerDefault::WTLogFileManagerDefault;
    std::optional<QString> logFileHeader() const override { return u"頭"_s; }
};

} // namespace

/// Names, dates, creation, order, marks and pruning of log files, on the real file system.
class LogFilesTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { setZone("UTC"); }

    void datesInNames()
    {
        const QByteArray berlin = "CET-1CEST,M3.5.0,M10.5.0/3";
        eachRow(
            {
                {"own zone", berlin, u"2026-11-22--22-10-34-CET"_s, u"2026-11-22T21:10:34Z"_s},
                {"repeated hour, first", berlin, u"2026-10-25--02-30-00-CEST"_s, u"2026-10-25T00:30:00Z"_s},
                {"offset", berlin, u"2026-11-22--22-10-34-+0530"_s, u"2026-11-22T16:40:34Z"_s},
                {"hours west", berlin, u"2026-11-22--22-10-34--03"_s, u"2026-11-23T01:10:34Z"_s},
                {"no zone", berlin, u"2026-11-22--22-10-34-"_s, QString()},
            },
            [&](const QByteArray &zone, const QString &text, const QString &universal) {
                setZone(zone);
                const QDateTime parsed = LogFileNameDate::parse(text);
                QCOMPARE(parsed.isValid() ? parsed.toUTC().toString(Qt::ISODate) : QString(), universal);
                const bool isSpelledHere = text.endsWith(u"CET"_s) || text.endsWith(u"CEST"_s);
                if (isSpelledHere)
                    QCOMPARE(LogFileNameDate::text(parsed), text);
            });
    }

    void datesOfAFile()
    {
        const LogBed bed;
        const QDateTime start = QDateTime::currentDateTime().addSecs(-2), longAgo = start.addYears(-9);
        QFile file(bed.leaveFile(u"a.log"_s));
        QVERIFY(file.open(QIODevice::ReadWrite) && file.setFileTime(longAgo, QFileDevice::FileModificationTime));
        const WTLogFileInfo info(file.fileName());
        QCOMPARE(info.modificationDate(), longAgo);
        if (!QFileInfo(file).birthTime().isValid())
            QSKIP("this file system keeps no date of birth");
        QVERIFY(info.creationDate() > start);
    }

    void defaultFolder()
    {
        eachRow(
            {
                {"state folder", QByteArray("/s"), QByteArray("/h"), u"/s/Logs/log_file_tests"_s},
                {"home", QByteArray(), QByteArray("/h"), u"/h/.local/state/Logs/log_file_tests"_s},
            },
            [&](const QByteArray &state, const QByteArray &home, const QString &folder) {
                QCOMPARE(defaultFolderWith(state, home), folder);
            });
    }

    void sharesNoTemporaryFolder()
    {
        eachRow(
            {
                {"our own", QByteArray("own"), true},
                {"open to others", QByteArray("open"), false},
                {"a link", QByteArray("link"), false},
                {"another user's", QByteArray("foreign"), false},
            },
            [&](const QByteArray &state, bool isTaken) {
                if (state == "foreign" && geteuid() != 0)
                    QSKIP("this user cannot make another user's folder");
                const QString logs = m_temporary.filePath(u"Logs"_s);
                const QByteArray native = QFile::encodeName(logs);
                static_cast<void>(std::remove(native));
                if (state == "link")
                    QVERIFY(QFile::link(m_temporary.path(), logs));
                else
                    QCOMPARE(mkdir(native, 0700), 0);
                if (state == "open")
                    QCOMPARE(chmod(native, 0777), 0);
                if (state == "foreign")
                    QCOMPARE(chown(native, 65534, 65534), 0);
                const QByteArray before = qgetenv("TMPDIR");
                qputenv("TMPDIR", QFile::encodeName(m_temporary.path()));
                const QString folder = defaultFolderWith({}, {});
                qputenv("TMPDIR", before);
                QCOMPARE(folder.startsWith(logs + u'/'), isTaken);
                QCOMPARE(permissionsOf(QFileInfo(folder).path()), 0700U);
            });
    }

    void createsWithoutReplacing()
    {
        const LogBed bed;
        const auto noon = [] { return QDateTime(QDate(2026, 11, 22), QTime(12, 0), Qt::UTC); };
        const auto manager = std::make_shared<WithHeader>(bed.folder(), noon);
        const QString name = WTLogFileManagerDefault::applicationName() + u" 2026-11-22--12-00-00-UTC"_s;
        QCOMPARE(create(*manager), bed.path(name + u".log"_s));
        QVERIFY(QFile::link(u"/nowhere"_s, bed.path(name + u" 2.log"_s)));
        QCOMPARE(create(*manager), bed.path(name + u" 3.log"_s));
        QCOMPARE(bed.names(), QStringList({name + u" 2.log"_s, name + u" 3.log"_s, name + u".log"_s}));
        QCOMPARE(bed.lines(), QStringList({u"頭"_s, u"頭"_s}));
        QCOMPARE(permissionsOf(bed.path(name + u".log"_s)), 0600U);
        QCOMPARE(permissionsOf(bed.folder()), 0700U);
        QCOMPARE(permissionsOf(bed.home() + u"/Logs"_s), 0700U);
        QCOMPARE(bed.console(), QString());
    }

    void sortsByNameThenByBirth()
    {
        const LogBed bed;
        const QStringList newestFirst = {
            bed.leaveFile(u"2999-01-01--00-00-00-UTC.log"_s), bed.leaveFile(u"2000-01-01--00-00-00-UTC 2.log"_s),
            bed.leaveFile(u"2000-01-02--00-00-00-UTC.log"_s), bed.leaveFile(u"2000-01-01--00-00-00-UTC.log"_s)};
        bed.leaveFile(u"notes.txt"_s);
        QCOMPARE(managerOf(bed)->sortedLogFilePaths(), newestFirst);
    }

    void prunes()
    {
        eachRow(
            {
                {"the eighth of seven", 7, 20 * mebibyte, 8, mebibyte, false, 7},
                {"no limits", 0, 0, 8, mebibyte, false, 8},
                {"quota before number", 7, 3 * mebibyte, 8, mebibyte, false, 3},
                {"newest over the quota", 7, 20 * mebibyte, 8, 100 * mebibyte, false, 1},
                {"newest over the quota, archived", 7, 20 * mebibyte, 8, 100 * mebibyte, true, 0},
            },
            [&](quint64 most, quint64 quota, int files, qint64 newestSize, bool newestIsArchived, int left) {
                const LogBed bed;
                QStringList oldestFirst;
                const QDateTime start(QDate(2026, 1, 1), QTime(0, 0), Qt::UTC);
                for (int index = 0; index < files; ++index)
                    oldestFirst.append(bed.leaveFile(LogFileNameDate::text(start.addSecs(index)) + u".log"_s,
                                                     index == files - 1 ? newestSize : mebibyte));
                const auto manager = managerOf(bed);
                WTLogFileInfo(oldestFirst.last()).setIsArchived(newestIsArchived);
                manager->setMaximumNumberOfLogFiles(most);
                manager->setLogFilesDiskQuota(quota);
                manager->deleteOldLogFiles();
                const auto kept = [&] {
                    QStringList paths = manager->sortedLogFilePaths();
                    std::reverse(paths.begin(), paths.end());
                    return paths;
                };
                // The new limits prune in the background, too, and may have begun before.
                QTRY_COMPARE(kept(), oldestFirst.last(left));
            });
    }

    void prunesOnNewLimitsAndNewFiles()
    {
        const LogBed bed;
        for (int day = 1; day <= 6; ++day)
            bed.leaveFile(u"2026-01-0%1--00-00-00-UTC.log"_s.arg(day), mebibyte);
        const auto manager = managerOf(bed);
        manager->setLogFilesDiskQuota(5 * mebibyte);
        QTRY_COMPARE(bed.names().size(), 5);
        manager->setMaximumNumberOfLogFiles(3);
        QTRY_COMPARE(bed.names().size(), 3);
        create(*manager);
        QTRY_VERIFY(!bed.names().first().contains(u"2026-01-04"_s));
        QCOMPARE(bed.names().size(), 3);
    }

    void clockThatWasSetBackSparesTheFileInUse()
    {
        const LogBed bed;
        for (int day = 1; day <= 7; ++day)
            bed.leaveFile(u"2026-01-0%1--00-00-00-UTC.log"_s.arg(day));
        const auto manager = managerOf(bed, [] { return QDateTime(QDate(2001, 1, 1), QTime(0, 0), Qt::UTC); });
        const QString inUse = create(*manager);
        manager->deleteOldLogFiles();
        QVERIFY(QFile::exists(inUse));
        QTRY_COMPARE(bed.names().size(), 6);
    }

    void archivedMark()
    {
        eachRow(
            {
                {"absent", QByteArray(), false},
                {"one", QByteArray(1, 1), true},
                {"another byte", QByteArray("x"), true},
            },
            [&](const QByteArray &value, bool isArchived) {
                const LogBed bed;
                const QString path = bed.leaveFile(u"a.log"_s);
                const QByteArray native = QFile::encodeName(path);
                if (!value.isNull())
                    QCOMPARE(setxattr(native, attributeName, value, static_cast<size_t>(value.size()), 0), 0);
                WTLogFileInfo info(path);
                QCOMPARE(info.isArchived(), isArchived);
                char stored[8] = {};
                QCOMPARE(getxattr(native, attributeName, stored, sizeof stored), isArchived ? 1 : -1);
                QCOMPARE(stored[0], char(isArchived));
                info.setIsArchived(false);
                info.setIsArchived(false);
                QVERIFY(!info.isArchived());
                WTLogFileInfo(bed.path(u"missing"_s)).setIsArchived(true);
                QCOMPARE(bed.console(), QString());
            });
    }

private:
    static QString defaultFolderWith(const QByteArray &state, const QByteArray &home)
    {
        const QByteArray stateBefore = qgetenv("XDG_STATE_HOME"), homeBefore = qgetenv("HOME");
        qputenv("XDG_STATE_HOME", state);
        qputenv("HOME", home);
        const QString folder = WTLogFileManagerDefault::defaultLogsDirectory();
        qputenv("XDG_STATE_HOME", stateBefore);
        qputenv("HOME", homeBefore);
        return folder;
    }

    const QTemporaryDir m_temporary;

    static void setZone(const QByteArray &zone)
    {
        qputenv("TZ", zone);
        tzset();
    }
};

QTEST_GUILESS_MAIN(LogFilesTests)
#include "LogFilesTests.moc"
