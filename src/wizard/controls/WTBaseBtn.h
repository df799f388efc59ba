#pragma once

#include "WTBaseBtnColorModel.h"

#include <QPushButton>

/// A button whose title, border and fill follow what the user is doing with it.
class WTBaseBtn : public QPushButton
{
    Q_OBJECT

public:
    explicit WTBaseBtn(QWidget *parent = nullptr);

    QString title() const { return text(); }
    void setTitle(const QString &title);

    /// A disabled button takes no clicks and shows the disabled colours.
    void setDisable(bool disable) { setEnabled(!disable); }
    WTBtnState buttonState() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;

    WTBaseBtnColorModel m_title;
    WTBaseBtnColorModel m_border;
    WTBaseBtnColorModel m_bg;
};
