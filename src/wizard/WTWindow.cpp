#include "WTWindow.h"

#include "HeldKeys.h"
#include "TextStyle.h"
#include "WTApp.h"
#include "WTView.h"
#include "showAlert.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QStackedWidget>

namespace
{

constexpr QSize firstSize{880, 600};
constexpr QSize smallestSize{760, 520};

} // namespace

WTWindow::WTWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_content(new QStackedWidget)
{
    TextStyle::useGlyphsOf(WTApp::shared().appLanguage().value_or(QString()));
    setCentralWidget(m_content);
    setMinimumSize(smallestSize);
    resize(firstSize);
    QCoreApplication::instance()->installEventFilter(new HeldKeys(this));
}

void WTWindow::addScreen(WTView *view)
{
    view->setParent(m_content);
    view->hide();
    m_screens.append(view);
}

void WTWindow::setContentView(WTView *view)
{
    view->viewWillMoveToSuperview();
    // A screen becomes a page of the stack only now, because the stack lays out all its pages at once and that takes
    // time at the start of the program.
    if (m_content->indexOf(view) < 0)
        m_content->addWidget(view);
    m_contentView = view;
    m_content->setCurrentWidget(view);
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
    if (QCoreApplication::closingDown()) {
        event->accept();
        return;
    }
    event->ignore();
    Q_EMIT closeRequested();
}
