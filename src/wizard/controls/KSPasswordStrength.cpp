#include "KSPasswordField.h"

#include "InfoList.h"

#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTextBoundaryFinder>
#include <QXmlStreamReader>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr qsizetype shortestPassword = 8; ///< What WPA takes.
constexpr qsizetype longPassword = 12;
constexpr double variedShare = 0.4;
constexpr double bestScore = 64;

/// From this strength on a password is called so.
struct StrengthRow {
    double from;
    QLatin1StringView description;
};

constexpr std::array strengthRows{
    StrengthRow{0.6, "strong"_L1},
    StrengthRow{0.35, "fair"_L1},
    StrengthRow{0.2, "weak"_L1},
    StrengthRow{0.0, "insecure"_L1},
};

int classesIn(const QString &password)
{
    bool lower = false, upper = false, digit = false, other = false;
    for (const QChar character : password) {
        if (character.isLower())
            lower = true;
        else if (character.isUpper())
            upper = true;
        else if (character.isDigit())
            digit = true;
        else
            other = true;
    }
    return lower + upper + digit + other;
}

qsizetype distinctCharactersIn(const QString &password)
{
    QSet<QString> characters;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, password);
    qsizetype start = 0;
    for (qsizetype end = finder.toNextBoundary(); end > 0; end = finder.toNextBoundary()) {
        characters.insert(password.sliced(start, end - start));
        start = end;
    }
    return characters.size();
}

/// The texts of the property list "blacklist", in lower case.
QSet<QString> readWordList()
{
    QSet<QString> words;
    QFile file(InfoList::resourceFolder() + u"/blacklist.plist"_s);
    if (!file.open(QIODevice::ReadOnly))
        return words;
    QXmlStreamReader reader(&file);
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == "string"_L1)
            words.insert(reader.readElementText().toLower());
    }
    return words;
}

} // namespace

double KSPasswordField::strengthOfPassword(const QString &password)
{
    int score = classesIn(password);
    const double length = static_cast<double>(password.size());
    if (password.size() >= longPassword && static_cast<double>(distinctCharactersIn(password)) / length > variedShare)
        ++score;
    static const QRegularExpression repetition(u"(.{4,}).*\\1"_s, QRegularExpression::CaseInsensitiveOption);
    if (repetition.isValid() && repetition.match(password).hasMatch())
        --score;
    return qMin(score * length / bestScore, 1.0);
}

QString KSPasswordField::descriptionOfPassword(const QString &password)
{
    if (password.isEmpty())
        return {};
    if (isCommon(password))
        return u"too common"_s;
    if (password.size() < shortestPassword)
        return u"too short"_s;
    const double strength = strengthOfPassword(password);
    for (const StrengthRow &row : strengthRows) {
        if (strength >= row.from)
            return row.description;
    }
    return {};
}

bool KSPasswordField::isCommon(const QString &password)
{
    static const QSet<QString> words = readWordList();
    return words.contains(password.toLower());
}
