// Saves a picture of every screen as it looks in the middle of a job, and one sheet with all of them, for people to
// look at. The scale factor is the toolkit's: QT_SCALE_FACTOR=2 screen_pictures ...
#include "ScreenContents.h"
#include "WTView.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QPainter>
#include <QTest>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr int sheetColumns = 3;
constexpr int sheetGap = 8;
constexpr double sheetScale = 0.75;

struct Shot {
    QString name;
    QImage image;
};

Shot takeScreen(WizardBed &bed, WTView *screen)
{
    fillScreen(bed, screen);
    QTest::qWait(50);
    return {QString::fromLatin1(screen->metaObject()->className()), bed.window().grab().toImage()};
}

Shot takeMoment(WizardBed &bed, const Moment &moment)
{
    QWidget *sheet = moment.show(bed);
    QTest::qWait(50);
    QPixmap picture = bed.window().grab();
    if (sheet) {
        const QPixmap above = sheet->grab();
        const QPoint middle((bed.window().width() - sheet->width()) / 2, (bed.window().height() - sheet->height()) / 2);
        QPainter painter(&picture);
        painter.fillRect(bed.window().rect(), QColor(0, 0, 0, 64));
        painter.drawPixmap(middle, above);
        delete sheet;
    }
    return {QLatin1StringView(moment.name), picture.toImage()};
}

/// All pictures on one, each at three quarters of its size.
QImage contactSheet(const QList<Shot> &shots)
{
    const QSize cell = shots.constFirst().image.size() * sheetScale;
    const int rows = int(std::ceil(double(shots.size()) / sheetColumns));
    QImage sheet((cell.width() + sheetGap) * sheetColumns + sheetGap, (cell.height() + sheetGap) * rows + sheetGap,
                 QImage::Format_RGB32);
    sheet.fill(Qt::gray);
    QPainter painter(&sheet);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    for (int index = 0; index < shots.size(); ++index) {
        const QPoint place(sheetGap + index % sheetColumns * (cell.width() + sheetGap),
                           sheetGap + index / sheetColumns * (cell.height() + sheetGap));
        painter.drawImage(QRect(place, cell), shots[index].image);
    }
    return sheet;
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QCommandLineParser options;
    options.addPositionalArgument(u"directory"_s, u"Where the pictures go."_s);
    options.addPositionalArgument(u"language"_s, u"What the screens speak, such as zh-Hans."_s);
    const QCommandLineOption only(u"screen"_s, u"Take this screen only."_s, u"class"_s);
    options.addOption(only);
    options.addHelpOption();
    options.process(application);
    if (options.positionalArguments().size() != 2)
        options.showHelp(2);
    const QDir directory(options.positionalArguments().constFirst());
    directory.mkpath(u"."_s);

    WizardBed bed({ModelIdentity()}, options.positionalArguments().constLast());
    if (!bed.findPrinters())
        return 1;

    QList<Shot> shots;
    for (WTView *screen : bed.window().screens()) {
        if (!options.isSet(only) || options.value(only) == QLatin1StringView(screen->metaObject()->className()))
            shots << takeScreen(bed, screen);
    }
    if (!options.isSet(only)) {
        for (const Moment &moment : moments)
            shots << takeMoment(bed, moment);
        shots << Shot{u"contact-sheet"_s, contactSheet(shots)};
    }
    for (const Shot &shot : shots) {
        if (!shot.image.save(directory.filePath(shot.name + u".png"_s)))
            return 1;
    }
    return 0;
}
