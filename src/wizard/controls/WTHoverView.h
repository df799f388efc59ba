#pragma once

#include "Picture.h"

#include <QAbstractButton>
#include <QPointer>

class PictureView;
class WTHoverView;

/// Is told that a tile was chosen.
class WTHoverViewDelegate
{
public:
    virtual ~WTHoverViewDelegate() = default;
    virtual void selectDone(WTHoverView *item) = 0;
};

/// A selectable tile: a picture, a title, a line of help and a radio mark. To a screen reader it is a radio button.
/// Choosing it never deselects another tile: its delegate does that.
class WTHoverView : public QAbstractButton
{
    Q_OBJECT

public:
    WTHoverView(const QString &pictureName, const QString &title, const QString &help, QWidget *parent = nullptr);

    bool isSelect() const { return m_isSelect; }
    void setIsSelect(bool select);

    /// Whether the tile reacts to the pointer.
    bool isHover() const { return m_isHover; }
    void setIsHover(bool reacts) { m_isHover = reacts; }

    /// The delegate must not be destroyed before the tile or before another one is set. A tile without a delegate emits
    /// `clicked` instead.
    void setDelegate(WTHoverViewDelegate *delegate) { m_delegate = delegate; }

    QColor borderColor() const { return m_border; }
    QColor bLayerColor() const { return m_bLayer; }
    QColor cLayerColor() const { return m_cLayer; }
    QString radioImageName() const;
    QString help() const { return m_help; }

    /// The height that the texts leave for the picture. Tiles side by side both take the smaller of their two heights,
    /// so that their titles are level.
    int roomForPicture() const;
    void setPictureHeight(int height);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    friend class WTHoverViewAccessible;

    struct Texts {
        int titleHeight;
        int helpHeight;
    };

    Texts measureTexts() const;
    void choose();
    void setHover(bool hover);
    void updateBorders();

    Picture m_picture;
    QString m_help;
    bool m_isSelect = false;
    bool m_isHover = true;
    bool m_hover = false;
    WTHoverViewDelegate *m_delegate = nullptr;
    QPointer<PictureView> m_radioImage;
    QRect m_area;
    int m_pictureHeight = 0;
    QColor m_border;
    QColor m_bLayer;
    QColor m_cLayer;
};
