#include "WTView.h"

#include "LiveLabel.h"
#include "Log.h"
#include "Palette.h"
#include "ScreenHost.h"

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

ScreenHost *WTView::ostraWindow() const
{
    auto *host = dynamic_cast<ScreenHost *>(window());
    const WTView *content = host ? host->contentView() : nullptr;
    return content && (content == this || content->isAncestorOf(this)) ? host : nullptr;
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
    const ScreenHost *window = ostraWindow();
    if (window && window->contentView() == this)
        viewDidApear();
}

void WTView::viewDidApear() {}

void WTView::pushView(WTView *target)
{
    target->setPreView(this);
    logInfo("go to 👉🏻%@", description(target));
    if (ScreenHost *window = ostraWindow())
        window->setContentView(target);
}

void WTView::backPreviousView()
{
    if (!m_preView)
        return;
    logInfo("pre step👉🏻%@", description(m_preView));
    if (ScreenHost *window = ostraWindow())
        window->setContentView(m_preView);
}
