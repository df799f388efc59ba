#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QTest>
#include <QXmlStreamReader>

using namespace Qt::Literals::StringLiterals;

namespace
{

using Table = QMap<QString, QString>;

QString read(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read", qPrintable(path));
    return QString::fromUtf8(file.readAll());
}

Table readTable(const QString &path)
{
    Table table;
    QString source;
    QXmlStreamReader xml(read(path));
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement())
            continue;
        if (xml.name() == "source"_L1)
            source = xml.readElementText();
        else if (xml.name() == "translation"_L1)
            table.insert(source, xml.readElementText());
    }
    return table;
}

/// The text of one literal or of several that stand one behind the other.
QString textOf(const QString &literals)
{
    static const QRegularExpression piece(u"u\"((?:[^\"\\\\]|\\\\.)*)\""_s);
    QString text;
    for (const auto &match : piece.globalMatch(literals))
        text += match.captured(1);
    return text.replace(u"\\n"_s, u"\n"_s).replace(u"\\\""_s, u"\""_s);
}

/// Every key that the sources look up, with the file it stands in: whatever stands in `localized`, and every text in
/// Chinese of a screen, since keys come out of tables as well. Controls only show what they are given.
QMap<QString, QString> keysInSources()
{
    static const QRegularExpression comment(u"//[^\n]*"_s);
    static const QRegularExpression literal(u"(localized\\(\\s*)?((?:u\"(?:[^\"\\\\\\n]|\\\\.)*\"\\s*)+)_s"_s);
    static const QRegularExpression chinese(u"\\p{Han}"_s);
    QMap<QString, QString> keys;
    QDirIterator sources(QStringLiteral(WT_SOURCES), {u"*.cpp"_s, u"*.h"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (sources.hasNext()) {
        const QString path = sources.next();
        const bool isScreen = path.contains(u"/wizard/"_s) && !path.contains(u"/controls/"_s);
        const QString text = read(path).remove(comment);
        for (const auto &match : literal.globalMatch(text)) {
            const QString key = textOf(match.captured(2));
            if (match.hasCaptured(1) || (isScreen && key.contains(chinese)))
                keys.insert(key, QFileInfo(path).fileName());
        }
    }
    return keys;
}

QStringList placeholders(const QString &text)
{
    static const QRegularExpression placeholder(u"%(?:Text%|[0-9]*(?:l{0,2}[diuxX]|hu|@))"_s);
    QStringList found;
    for (const auto &match : placeholder.globalMatch(text))
        found << match.captured().replace(u"%Text%"_s, u"%@"_s);
    return found;
}

/// The languages and their tables.
QMap<QString, Table> tables()
{
    QMap<QString, Table> found;
    for (const QString &folder : QDir(QStringLiteral(WT_TABLES)).entryList({u"*.lproj"_s}, QDir::Dirs))
        found.insert(folder.section(u'.', 0, 0),
                     readTable(u"%1/%2/wifitool.ts"_s.arg(QStringLiteral(WT_TABLES), folder)));
    return found;
}

} // namespace

class TranslationsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void haveEveryKey();
    void keepPlaceholders();

private:
    const QMap<QString, Table> m_tables = tables();
};

void TranslationsTest::haveEveryKey()
{
    static const QRegularExpression chinese(u"\\p{Han}"_s);
    const QMap<QString, QString> keys = keysInSources();
    QVERIFY(keys.contains(u"是否退出Wi-Fi配置工具?"_s) && m_tables.contains(u"en"_s));
    QStringList missing;
    for (const auto &[language, table] : m_tables.asKeyValueRange()) {
        for (auto key = keys.cbegin(); key != keys.cend(); ++key) {
            const bool speaksForItself = language == u"zh-Hans"_s && key.key().contains(chinese);
            if (!speaksForItself && table.value(key.key()).isEmpty())
                missing << u"%1, %2: %3"_s.arg(language, key.value(), key.key());
        }
    }
    QVERIFY2(missing.isEmpty(), qPrintable(u'\n' + missing.join(u'\n')));
}

void TranslationsTest::keepPlaceholders()
{
    QStringList broken;
    for (const auto &[language, table] : m_tables.asKeyValueRange()) {
        for (auto text = table.cbegin(); text != table.cend(); ++text) {
            if (placeholders(text.key()) != placeholders(text.value()))
                broken << u"%1: %2 -> %3"_s.arg(language, text.key(), text.value());
        }
    }
    QVERIFY2(broken.isEmpty(), qPrintable(u'\n' + broken.join(u'\n')));
}

QTEST_GUILESS_MAIN(TranslationsTest)
#include "TranslationsTest.moc"
