#include "KSPasswordField.h"

#include "ButtonLook.h"
#include "Localized.h"
#include "Picture.h"

#include <QAction>
#include <QIcon>
#include <QKeyEvent>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr int markSize = 24;

/// An input method neither learns a password nor guesses at it, shown or hidden.
constexpr Qt::InputMethodHints privacyHints =
    Qt::ImhHiddenText | Qt::ImhNoAutoUppercase | Qt::ImhNoPredictiveText | Qt::ImhSensitiveData;

} // namespace

QString KSPasswordTextFieldCell::markName() const
{
    return u"icon_hide"_s;
}

QString KSPasswordTextFieldCell::markAction() const
{
    return localized(u"隐藏密码"_s);
}

QString KSPasswordSecureTextFieldCell::markName() const
{
    return u"icon_show"_s;
}

QString KSPasswordSecureTextFieldCell::markAction() const
{
    return localized(u"显示密码"_s);
}

KSPasswordField::KSPasswordField(QWidget *parent)
    : WTTextfield(parent)
    , m_mark(addAction(QIcon(), TrailingPosition))
    , m_markButton(findChild<QToolButton *>())
{
    m_markButton->installEventFilter(this);
    connect(m_mark, &QAction::triggered, this, &KSPasswordField::showHidePressed);
    setShowsText(false);
}

KSPasswordField::~KSPasswordField() = default;

bool KSPasswordField::showsText() const
{
    return m_cell->echoMode() == QLineEdit::Normal;
}

void KSPasswordField::setShowsText(bool shows)
{
    if (shows)
        m_cell = std::make_unique<KSPasswordTextFieldCell>();
    else
        m_cell = std::make_unique<KSPasswordSecureTextFieldCell>();
    setEchoMode(m_cell->echoMode());
    // After the echo mode, which removes the hints from a text that shows.
    setInputMethodHints(privacyHints);
    m_mark->setText(ButtonLook::spokenTitle(m_cell->markAction()));
    m_mark->setToolTip(m_mark->text());
    showMark();
}

void KSPasswordField::showMark()
{
    const QString picture = m_cell->markName() + (m_markButton->underMouse() ? u" hover"_s : QString());
    m_mark->setIcon(Picture(picture).pixmap({markSize, markSize}, devicePixelRatioF()));
}

bool KSPasswordField::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_markButton && (event->type() == QEvent::Enter || event->type() == QEvent::Leave))
        showMark();
    return WTTextfield::eventFilter(watched, event);
}

void KSPasswordField::setCapsLock(bool on)
{
    if (m_capsLock == on)
        return;
    m_capsLock = on;
    Q_EMIT capsLockChanged(on);
}

void KSPasswordField::keyPressEvent(QKeyEvent *event)
{
    // The window system does not say whether caps lock is on. A typed letter does: it is upper case without the shift
    // key, or lower case with it.
    const QString typed = event->text();
    if (event->key() == Qt::Key_CapsLock)
        setCapsLock(!m_capsLock);
    else if (typed.size() == 1 && typed[0].toLower() != typed[0].toUpper())
        setCapsLock(typed[0].isUpper() != event->modifiers().testFlag(Qt::ShiftModifier));
    WTTextfield::keyPressEvent(event);
}

void KSPasswordField::focusOutEvent(QFocusEvent *event)
{
    WTTextfield::focusOutEvent(event);
    setCapsLock(false);
}
