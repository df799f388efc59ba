#include "WTView.h"

#include "Log.h"
#include "Palette.h"
#include "WTWindow.h"
#include "accessibleRole.h"

namespace
{

QString description(const WTView *view)
{
    return QString::fromLatin1(view->metaObject()->className());
}

} // namespace

WTView::WTView(QWidget *parent)
    : QWidget(parent)
{
    setAccessibleRole(*this, QAccessible::Pane);
}

WTWindow *WTView::ostraWindow() const
{
    auto *window = qobject_cast<WTWindow *>(this->window());
    WTView *content = window ? window->contentView() : nullptr;
    return content && (content == this || content->isAncestorOf(this)) ? window : nullptr;
}

void WTView::awakeFromNib()
{
    QPalette colors = palette();
    colors.setColor(QPalette::Window, Palette::white);
    setPalette(colors);
    setAutoFillBackground(true);
}

void WTView::viewWillMoveToSuperview() {}

void WTView::viewDidMoveToWindow()
{
    const WTWindow *window = ostraWindow();
    if (window && window->contentView() == this)
        viewDidApear();
}

void WTView::viewDidApear() {}

void WTView::pushView(WTView *target)
{
    target->setPreView(this);
    logInfo("go to 👉🏻%@", description(target));
    if (WTWindow *window = ostraWindow())
        window->setContentView(target);
}

void WTView::backPreviousView()
{
    if (!m_preView)
        return;
    logInfo("pre step👉🏻%@", description(m_preView));
    if (WTWindow *window = ostraWindow())
        window->setContentView(m_preView);
}
