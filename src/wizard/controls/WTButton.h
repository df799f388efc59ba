#pragma once

#include "Picture.h"

#include <QColor>
#include <QPushButton>

/// The wizard's coloured button with the three states on, off and mixed. Colours are read by the next `setState`, so
/// set them first. A colour that was never set changes nothing when its state is applied.
class WTButton : public QPushButton
{
    Q_OBJECT

public:
    enum State : short { StateMixed = -1, StateOff = 0, StateOn = 1 };

    explicit WTButton(QWidget *parent = nullptr);

    /// Turns on the border, applies title and state once more, and enables the button after keeping in `idEnabled`
    /// whether it was. Called once, when the colours are set.
    void awakeFromNib();

    /// The title with the spaces that its language wants behind it; `setText` is not used.
    QString title() const { return text(); }
    void setTitle(const QString &title);

    short state() const { return m_state; }
    /// Any value is kept; only on, off and mixed change colours and `stateString`.
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

    // Background and border by interaction; the invalid colour leaves those of the state.
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
