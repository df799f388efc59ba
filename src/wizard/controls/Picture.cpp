#include "Picture.h"

#include "InfoList.h"

#include <QHash>
#include <QPainter>
#include <QSvgRenderer>
#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace
{

/// Each drawing is read once, when it is first shown.
QSvgRenderer &rendererOf(const QString &name)
{
    static auto &renderers = *new QHash<QString, std::shared_ptr<QSvgRenderer>>;
    auto &renderer = renderers[name];
    if (!renderer)
        renderer = std::make_shared<QSvgRenderer>(InfoList::resourceFolder() + u"/pictures/"_s + name + u".svg"_s);
    return *renderer;
}

} // namespace

Picture::Picture(QString name)
    : m_name(std::move(name))
{
}

void Picture::paint(QPainter &painter, const QRectF &area) const
{
    if (isNull())
        return;
    QSvgRenderer &renderer = rendererOf(m_name);
    if (!renderer.isValid())
        return;
    QRectF target({}, QSizeF(renderer.defaultSize()).scaled(area.size(), Qt::KeepAspectRatio));
    target.moveCenter(area.center());
    renderer.render(&painter, target);
}

QPixmap Picture::pixmap(QSize size, qreal devicePixelRatio) const
{
    QPixmap pixmap(size * devicePixelRatio);
    pixmap.setDevicePixelRatio(devicePixelRatio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    paint(painter, QRectF({}, QSizeF(size)));
    return pixmap;
}
