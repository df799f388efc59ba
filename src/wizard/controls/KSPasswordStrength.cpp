#include "KSPasswordField.h"

#include "InfoList.h"

#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTextBoundaryFinder>
#include <QXmlStreamReader>
#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr qsizetype shortestPassword = 8; ///< The shortest that WPA accepts.
constexpr qsizetype longPassword = 12;
constexpr double variedShare = 0.4;
constexpr double bestScore = 64;

struct Rating {
    QLatin1StringView description;
    int level;
};

/// The word for passwords of at least this strength.
struct StrengthRow {
    double from;
    Rating rating;
};

constexpr std::array strengthRows{
    StrengthRow{0.6, {"strong"_L1, 4}},
    StrengthRow{0.35, {"fair"_L1, 3}},
    StrengthRow{0.2, {"weak"_L1, 2}},
    StrengthRow{0.0, {"insecure"_L1, 1}},
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

Rating ratingOf(const QString &password)
{
    if (password.isEmpty())
        return {""_L1, 0};
    if (KSPasswordField::isCommon(password))
        return {"too common"_L1, 1};
    if (password.size() < shortestPassword)
        return {"too short"_L1, 1};
    const double strength = KSPasswordField::strengthOfPassword(password);
    return std::ranges::find_if(strengthRows, [strength](const StrengthRow &row) { return strength >= row.from; })
        ->rating;
}

} // namespace

double KSPasswordField::strengthOfPassword(const QString &password)
{
    int score = classesIn(password);
    const auto length = static_cast<double>(password.size());
    if (password.size() >= longPassword && static_cast<double>(distinctCharactersIn(password)) / length > variedShare)
        ++score;
    static const QRegularExpression repetition(u"(.{4,}).*\\1"_s, QRegularExpression::CaseInsensitiveOption);
    if (repetition.isValid() && repetition.match(password).hasMatch())
        --score;
    return qMin(score * length / bestScore, 1.0);
}

QString KSPasswordField::descriptionOfPassword(const QString &password)
{
    return ratingOf(password).description;
}

int KSPasswordField::levelOfPassword(const QString &password)
{
    return ratingOf(password).level;
}

bool KSPasswordField::isCommon(const QString &password)
{
    static const QSet<QString> words = readWordList();
    return words.contains(password.toLower());
}
