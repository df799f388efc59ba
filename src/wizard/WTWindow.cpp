#include "WTWindow.h"

#include "TextStyle.h"
#include "WTApp.h"
#include "WTView.h"
#include "showAlert.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QStackedWidget>

namespace
{

constexpr QSize firstSize{880, 600};
constexpr QSize smallestSize{760, 520};

} // namespace

WTWindow::WTWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_screens(new QStackedWidget)
{
    TextStyle::useGlyphsOf(WTApp::shared().appLanguage().value_or(QString()));
    setCentralWidget(m_screens);
    setMinimumSize(smallestSize);
    resize(firstSize);
}

void WTWindow::addScreen(WTView *view)
{
    m_screens->addWidget(view);
}

void WTWindow::setContentView(WTView *view)
{
    view->viewWillMoveToSuperview();
    if (m_screens->indexOf(view) < 0)
        addScreen(view);
    m_contentView = view;
    m_screens->setCurrentWidget(view);
    view->viewDidMoveToWindow();
}

void WTWindow::comeForward(bool byForce)
{
    if (byForce)
        raise();
    activateWindow();
}

void WTWindow::presentAlert(const Alert &alert, std::function<void(int response)> answered)
{
    showAlert(this, alert, std::move(answered));
}

void WTWindow::setReleasedWhenClosed(bool) {}

void WTWindow::closeEvent(QCloseEvent *event)
{
    if (QCoreApplication::closingDown() || qGuiApp->isSavingSession()) {
        event->accept();
        return;
    }
    event->ignore();
    Q_EMIT closeRequested();
}
