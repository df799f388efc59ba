#include "Autopilot.h"

#include "WTManager.h"
#include "WTView.h"
#include "WTWindow.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QMessageBox>
#include <QTest>
#include <algorithm>
#include <cstdio>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace
{

constexpr auto reactionTime = 5s;
/// In milliseconds. A screen that has just appeared needs some turns of the event loop until its texts are laid out.
constexpr int settlingTime = 50;

/// Lets the event loop run until `condition` holds; false when `limit` has passed before.
template <typename Condition>
bool waitFor(Condition condition, std::chrono::milliseconds limit)
{
    return QTest::qWaitFor(condition, static_cast<int>(limit.count()));
}

QString screenName(const WTWindow &window)
{
    const WTView *screen = window.contentView();
    return screen ? QString::fromLatin1(screen->metaObject()->className()) : QString();
}

} // namespace

Autopilot::Autopilot(const Story &story, WTWindow &window, const QDir &pictures, int speed)
    : m_story(story)
    , m_window(window)
    , m_pictures(pictures)
    , m_speed(speed)
{
}

void Autopilot::start()
{
    QMetaObject::invokeMethod(this, &Autopilot::walk, Qt::QueuedConnection);
}

void Autopilot::walk()
{
    for (const Visit &next : m_story.visits) {
        const QString problem = visit(next);
        if (!problem.isEmpty()) {
            std::fprintf(stderr, "%s: %s\n", qPrintable(next.screen), qPrintable(problem));
            QCoreApplication::exit(1);
            return;
        }
    }
    m_arrived = true;
}

QString Autopilot::visit(const Visit &visit)
{
    if (!waitFor([&] { return screenName(m_window) == visit.screen; }, visit.patience))
        return u"did not come; %1 shows"_s.arg(screenName(m_window));
    if (visit.awaitsPrinter && !waitFor([] { return WTManager::shared().printerList().count() > 0; }, visit.patience))
        return u"no printer was found"_s;
    QTest::qWait(static_cast<int>(std::chrono::milliseconds(visit.look).count() / m_speed));

    for (const Act &act : visit.acts) {
        if (&act == &visit.acts.back())
            savePicture(m_window, visit.screen);
        QString problem = perform(act);
        if (!problem.isEmpty())
            return problem;
    }
    if (visit.acts.empty())
        savePicture(m_window, visit.screen);
    return {};
}

QString Autopilot::perform(const Act &act)
{
    switch (act.kind) {
    case Act::Kind::Click:
        return click(act.widget);
    case Act::Kind::Type: {
        QString problem = click(act.widget);
        if (problem.isEmpty()) {
            QTest::keySequence(visibleWidget(act.widget), QKeySequence::SelectAll);
            QTest::keyClicks(visibleWidget(act.widget), act.text);
        }
        return problem;
    }
    case Act::Kind::CloseWindow:
        m_window.close();
        return {};
    case Act::Kind::Confirm:
        return confirm();
    }
    Q_UNREACHABLE();
}

QString Autopilot::click(const QString &name)
{
    if (!waitFor([&] { return visibleWidget(name) && visibleWidget(name)->isEnabled(); }, reactionTime))
        return u"nobody can click on '%1'"_s.arg(name);
    QTest::mouseClick(visibleWidget(name), Qt::LeftButton);
    return {};
}

QString Autopilot::confirm()
{
    const auto sheet = [this] { return qobject_cast<QMessageBox *>(visibleWidget(u"alert"_s)); };
    if (!waitFor([&] { return sheet() != nullptr; }, reactionTime))
        return u"no sheet asks anything"_s;
    savePicture(*sheet(), u"alert"_s);
    QTest::mouseClick(sheet()->buttons().constFirst(), Qt::LeftButton);
    return {};
}

QWidget *Autopilot::visibleWidget(const QString &name) const
{
    const QList<QWidget *> named = m_window.findChildren<QWidget *>(name);
    const auto visible = std::ranges::find_if(named, &QWidget::isVisible);
    return visible == named.end() ? nullptr : *visible;
}

void Autopilot::savePicture(QWidget &shown, const QString &name)
{
    QTest::qWait(settlingTime);
    const QString file = u"%1-%2.png"_s.arg(++m_pictureCount, 2, 10, QLatin1Char('0')).arg(name);
    if (!shown.grab().save(m_pictures.filePath(file)))
        std::fprintf(stderr, "%s could not be saved\n", qPrintable(m_pictures.filePath(file)));
}
