#include "DetailsView.h"

#include "CopyButton.h"
#include "LiveLabel.h"
#include "Localized.h"
#include "Palette.h"

#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

DetailsView::DetailsView(QWidget *parent)
    : QWidget(parent)
    , m_switch(new QToolButton)
    , m_content(new QWidget)
    , m_line(TextStyle::makeLabel({}, TextStyle::Size::Small, Palette::label))
    , m_copy(new CopyButton(localized(u"复制详细信息"_s)))
{
    m_switch->setObjectName(u"details"_s);
    m_switch->setText(localized(u"详细信息"_s));
    m_switch->setFont(TextStyle::font(TextStyle::Size::Body));
    m_switch->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_switch->setAutoRaise(true);
    m_switch->setFocusPolicy(Qt::TabFocus);
    m_line->setObjectName(u"detailsLine"_s);
    m_line->setTextFormat(Qt::PlainText);
    m_line->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_copy->setObjectName(u"copyDetails"_s);
    connect(m_switch, &QToolButton::clicked, this, [this] { unfold(!m_content->isVisibleTo(this)); });
    QPalette colors = m_switch->palette();
    colors.setColor(QPalette::ButtonText, Palette::link);
    m_switch->setPalette(colors);

    auto *copying = new QHBoxLayout;
    copying->addWidget(m_copy);
    copying->addWidget(m_copy->answer(), 1);
    auto *content = new QVBoxLayout(m_content);
    content->setContentsMargins(0, 0, 0, 0);
    content->setSpacing(8);
    content->addWidget(m_line);
    content->addLayout(copying);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 8);
    layout->setSpacing(8);
    layout->addWidget(m_switch, 0, Qt::AlignLeft);
    layout->addWidget(m_content);
    unfold(false);
}

void DetailsView::setLine(const QString &line)
{
    m_line->setText(line);
    m_copy->setCopiedText(line);
    unfold(false);
    setVisible(!line.isEmpty());
}

void DetailsView::unfold(bool open)
{
    m_switch->setArrowType(open ? Qt::DownArrow : Qt::RightArrow);
    m_content->setVisible(open);
}
