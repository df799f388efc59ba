#pragma once

#include "Picture.h"

#include <QColor>
#include <QPushButton>

/// The wizard's coloured button with the three states on, off and mixed. A colour of a state takes effect at the next
/// `setState` or `awakeFromNib`. A state without a colour of its own keeps the colour of the state before it.
class WTButton : public QPushButton
{
    Q_OBJECT

public:
    enum State : short { StateMixed = -1, StateOff = 0, StateOn = 1 };

    explicit WTButton(QWidget *parent = nullptr);

    /// To be called once, when all colours are set. Turns on the border, applies title and state once more, remembers
    /// in `idEnabled` whether the button was enabled, and enables it.
    void awakeFromNib();

    /// The title ends with spaces, as many as the interface language asks for. Use this instead of `setText`.
    QString title() const { return text(); }
    void setTitle(const QString &title);

    short state() const { return m_state; }
    /// Keeps any value, but changes colours and `stateString` only for on, off and mixed.
    void setState(short state);
    /// "On", "Off" or "Mixed".
    QString stateString() const { return m_stateString; }

    bool isBorder() const { return m_isBorder; }
    void setIsBorder(bool isBorder);
    bool idEnabled() const { return m_idEnabled; }

    /// Pictures left of the title; both are optional. The second shows while the pointer is over the button.
    void setImages(const QString &normal, const QString &hover = {});
    QString imageName() const { return m_normalImage.name(); }

    /// Picture and title at the left edge, as in a check box, instead of the middle.
    void setLeading(bool leading);

    QColor textOnColor;
    QColor borderOnColor;
    QColor onBlackColor; ///< Background when on.
    QColor textOffColor;
    QColor borderOffColor;
    QColor offBlackColor; ///< Background when off.
    QColor textMixedColor;
    QColor borderMixedColor;
    QColor mixedBlackColor;

    // Background and border while nothing, a press or the pointer is on the button. They cover the colours of the
    // state; an invalid colour covers nothing.
    QColor defaultColor;
    QColor pressedColor;
    QColor hoverColor;
    QColor defaultBorderColor;
    QColor pressedBorderColor;
    QColor hoverBorderColor;

    qreal borderWidth = 1;
    qreal cornerRadius = 4;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    struct Colors {
        QColor text;
        QColor border;
        QColor background;
    };

    void apply(const Colors &colors, const QString &stateString);
    Colors currentColors() const;

    short m_state = StateOff;
    QString m_stateString;
    bool m_isBorder = false;
    bool m_idEnabled = true;
    Picture m_normalImage;
    Picture m_hoverImage;
    bool m_leading = false;
    Colors m_colors;
};
