#include "PasswordStrengthView.h"

#include "KSPasswordField.h"
#include "LiveLabel.h"
#include "Localized.h"
#include "Palette.h"
#include "StrengthMeter.h"
#include "TextStyle.h"

#include <QHBoxLayout>

using namespace Qt::Literals::StringLiterals;

PasswordStrengthView::PasswordStrengthView(KSPasswordField *field, QWidget *parent)
    : QWidget(parent)
    , m_field(field)
    , m_meter(new StrengthMeter)
    , m_word(TextStyle::makeLabel({}, TextStyle::Size::Small, Palette::label))
    , m_capsLock(new LiveLabel(localized(u"大写锁定已打开"_s), TextStyle::Size::Small, Palette::red))
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(m_meter);
    layout->addWidget(m_word, 1);
    layout->addWidget(m_capsLock, 1, Qt::AlignRight);
    m_word->setObjectName(u"passwordStrength"_s);
    m_word->setWordWrap(false);
    m_capsLock->setWordWrap(false);
    m_capsLock->setVisible(false);
    setFixedHeight(m_word->fontMetrics().height());
    connect(field, &QLineEdit::textChanged, this, &PasswordStrengthView::update);
    connect(field, &KSPasswordField::capsLockChanged, m_capsLock, &QWidget::setVisible);
    update();
}

QString PasswordStrengthView::word() const
{
    return m_word->text();
}

void PasswordStrengthView::update()
{
    const QString password = m_field->text();
    const QString description = KSPasswordField::descriptionOfPassword(password);
    m_meter->setVisible(!password.isEmpty());
    m_meter->setLevel(KSPasswordField::levelOfPassword(password));
    m_word->setText(description.isEmpty() ? QString() : localized(description));
}
