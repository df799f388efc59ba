#include "PasswordStrengthView.h"

#include "KSPasswordField.h"
#include "LiveLabel.h"
#include "Localized.h"
#include "Palette.h"
#include "TextStyle.h"

#include <QHBoxLayout>
#include <QPainter>

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr int barCount = 4;
constexpr int barWidth = 32;
constexpr int barHeight = 4;
constexpr int gap = 4;

} // namespace

/// Four short bars, as many of them filled as the level says.
class PasswordStrengthView::Meter : public QWidget
{
public:
    Meter() { setFixedSize(barCount * barWidth + (barCount - 1) * gap, barHeight); }

    /// 0 to 4.
    void setLevel(int level)
    {
        m_level = level;
        QWidget::update();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        for (int bar = 0; bar < barCount; ++bar) {
            painter.setBrush(bar < m_level ? Palette::focusBlue : Palette::listHover);
            painter.drawRoundedRect(QRectF(bar * (barWidth + gap), 0, barWidth, barHeight), barHeight / 2.0,
                                    barHeight / 2.0);
        }
    }

private:
    int m_level = 0;
};

PasswordStrengthView::PasswordStrengthView(KSPasswordField *field, QWidget *parent)
    : QWidget(parent)
    , m_field(field)
    , m_meter(new Meter)
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
