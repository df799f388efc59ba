#pragma once

#include <QAccessibleWidget>

class WTHoverView;

/// The tile as a screen reader sees it: a radio button that can be pressed.
class WTHoverViewAccessible : public QAccessibleWidget
{
public:
    explicit WTHoverViewAccessible(WTHoverView *tile);

    /// Tells Qt's accessibility layer to use this class for tiles. Only the first call has an effect.
    static void install();

    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString &actionName) override;

private:
    WTHoverView *tile() const;
};
