#include "WTUnconnectView.h"

#include "Localized.h"
#include "WTButton.h"

using namespace Qt::Literals::StringLiterals;

WTUnconnectView::WTUnconnectView(const QString &logFolder, QWidget *parent)
    : NoteView(WizardStep::Connect,
               {.pictureName = u"note"_s,
                .heading = localized(u"没有连接打印机"_s),
                .message = localized(u"没有找到支持无线网络的打印机。"_s),
                .advice = localized(u"请打开打印机电源，用 USB 数据线把它连到这台电脑，等待几秒。"
                                    u"然后返回，再试一次。"_s)},
               logFolder, parent)
{
    connect(previousButton(), &QAbstractButton::clicked, this, &WTUnconnectView::back);
}

void WTUnconnectView::back()
{
    backPreviousView();
}
