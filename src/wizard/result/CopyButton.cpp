#include "CopyButton.h"

#include "ButtonSchemes.h"
#include "LiveLabel.h"
#include "Localized.h"
#include "Palette.h"

#include <QClipboard>
#include <QGuiApplication>

using namespace Qt::Literals::StringLiterals;

CopyButton::CopyButton(const QString &title, QWidget *parent)
    : WTButton(parent)
    , m_answer(new LiveLabel({}, TextStyle::Size::Small, Palette::label))
{
    setTitle(title);
    ButtonSchemes::applyBlue(*this);
    connect(this, &QAbstractButton::clicked, this, [this] {
        QGuiApplication::clipboard()->setText(m_text);
        m_answer->setText(localized(u"已复制"_s));
    });
}

void CopyButton::setCopiedText(const QString &text)
{
    m_text = text;
    m_answer->setText({});
}
