#include "ScreenFrame.h"

#include "Palette.h"
#include "TextStyle.h"

#include <QKeyEvent>
#include <QPushButton>
#include <QVBoxLayout>

namespace
{

constexpr int pageMargin = 40;
constexpr int barHeight = 72;
constexpr int ringRoom = 4; ///< Transparent edge of a button, which the margins of the bar leave out.

QWidget *makeRule()
{
    auto *rule = new QWidget;
    rule->setFixedHeight(1);
    QPalette colors;
    colors.setColor(QPalette::Window, Palette::frame);
    rule->setPalette(colors);
    rule->setAutoFillBackground(true);
    return rule;
}

} // namespace

ScreenFrame::ScreenFrame(QWidget *screen, WizardStep step)
    : QWidget(screen)
    , m_screen(screen)
    , m_heading(TextStyle::makeLabel({}, TextStyle::Size::Heading, Palette::heading))
    , m_instruction(TextStyle::makeLabel({}, TextStyle::Size::Body, Palette::label))
    , m_content(new QVBoxLayout)
    , m_bar(new QHBoxLayout)
{
    m_instruction->hide();
    auto *whole = new QVBoxLayout(screen);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(this);

    auto *page = new QVBoxLayout;
    page->setContentsMargins(pageMargin, 8, pageMargin, 16);
    page->setSpacing(0);
    page->addWidget(m_heading);
    page->addSpacing(8);
    page->addWidget(m_instruction);
    page->addSpacing(16);
    page->addLayout(m_content, 1);

    auto *bottom = new QWidget;
    bottom->setFixedHeight(barHeight);
    bottom->setLayout(m_bar);
    m_bar->setContentsMargins(pageMargin - ringRoom, 0, pageMargin - ringRoom, 0);
    m_bar->setSpacing(16);
    m_bar->addStretch(1);
    auto *ruled = new QHBoxLayout;
    ruled->setContentsMargins(pageMargin, 0, pageMargin, 0);
    ruled->addWidget(makeRule());

    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(new StepMarks(step));
    rows->addLayout(page, 1);
    rows->addLayout(ruled);
    rows->addWidget(bottom);
}

void ScreenFrame::setHeading(const QString &text)
{
    m_heading->setText(text);
    m_screen->setAccessibleName(text);
}

void ScreenFrame::setInstruction(const QString &text)
{
    m_instruction->setText(text);
    m_instruction->setVisible(!text.isEmpty());
    m_screen->setAccessibleDescription(text);
}

QString ScreenFrame::heading() const
{
    return m_heading->text();
}

void ScreenFrame::setCenteredContent(QWidget *widget)
{
    m_content->addStretch(1);
    m_content->addWidget(widget);
    m_content->addStretch(1);
}

void ScreenFrame::setBackButton(QAbstractButton *button)
{
    m_back = button;
    button->installEventFilter(this);
    m_bar->insertWidget(0, button);
}

void ScreenFrame::setMainButton(QAbstractButton *button)
{
    m_main = button;
    button->installEventFilter(this);
    if (auto *pushButton = qobject_cast<QPushButton *>(button))
        pushButton->setDefault(true);
    m_bar->addWidget(button);
}

void ScreenFrame::addToBar(QWidget *widget)
{
    m_bar->insertWidget(m_main ? m_bar->indexOf(m_main) : m_bar->count(), widget);
}

void ScreenFrame::showEvent(QShowEvent *)
{
    if (m_firstFocus && !m_screen->focusWidget())
        m_firstFocus->setFocus();
}

bool ScreenFrame::eventFilter(QObject *, QEvent *event)
{
    return event->type() == QEvent::MouseButtonDblClick;
}

void ScreenFrame::keyPressEvent(QKeyEvent *event)
{
    QAbstractButton *target = nullptr;
    if (event->key() == Qt::Key_Escape)
        target = m_back;
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        target = buttonForEnter();
    if (target && target->isEnabled())
        target->click();
    else
        QWidget::keyPressEvent(event);
}

QAbstractButton *ScreenFrame::buttonForEnter() const
{
    auto *focused = qobject_cast<QPushButton *>(focusWidget());
    return focused && focused->hasFocus() && !focused->isCheckable() ? focused : m_main;
}
