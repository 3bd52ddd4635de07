#include "widgets/style/SvgIconEngine.h"

#include "widgets/style/WidgetHelper.h"
#include "widgets/style/WidgetStyles.h"

#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

namespace {

// 3 : 1 on the window, in light and dark: pale, but to be seen.
constexpr qreal DisabledShare = 0.45;

struct IconColors
{
    QColor ink;
    QColor accent;
};

IconColors colorsForMode(QIcon::Mode mode)
{
    const QPalette palette = QGuiApplication::palette();
    const QColor &window = palette.color(QPalette::Active, QPalette::Window);
    const QColor &text = palette.color(QPalette::Active, QPalette::WindowText);
    switch (mode) {
    case QIcon::Disabled: {
        const QColor faded = WidgetHelper::mixed(text, window, DisabledShare);
        return {faded, faded};
    }
    case QIcon::Selected: {
        const QColor &selected = palette.color(QPalette::Active, QPalette::HighlightedText);
        return {selected, selected};
    }
    case QIcon::Normal:
    case QIcon::Active:
        break;
    }
    return {WidgetHelper::mixed(text, window, 0.8), WidgetStyles::Accent()};
}

QByteArray recolored(QByteArray svg, const IconColors &colors)
{
    const QByteArray ink = colors.ink.name().toLatin1();
    const QByteArray accent = colors.accent.name().toLatin1();
    svg.replace("currentColor", ink);
    for (const char *name : {"#46505a", "#46505A"})
        svg.replace(name, ink);
    for (const char *name : {"#2f7f86", "#2F7F86"})
        svg.replace(name, accent);
    return svg;
}

QImage render(const QString &path, const QSize &size, const IconColors &colors)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QImage();
    QSvgRenderer renderer(recolored(file.readAll(), colors));
    if (!renderer.isValid())
        return QImage();
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    const QSizeF fitted = QSizeF(renderer.defaultSize()).scaled(QSizeF(size), Qt::KeepAspectRatio);
    const QPointF topLeft((size.width() - fitted.width()) / 2,
                          (size.height() - fitted.height()) / 2);
    QPainter painter(&image);
    renderer.render(&painter, QRectF(topLeft, fitted));
    return image;
}

} // namespace

SvgIconEngine::SvgIconEngine(const QString &offPath, const QString &onPath)
    : m_offPath(offPath), m_onPath(onPath)
{
}

void SvgIconEngine::paint(QPainter *painter, const QRect &rect, QIcon::Mode mode,
                          QIcon::State state)
{
    const qreal ratio = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
    QPixmap picture = pixmap((QSizeF(rect.size()) * ratio).toSize(), mode, state);
    picture.setDevicePixelRatio(ratio);
    painter->drawPixmap(rect, picture);
}

QPixmap SvgIconEngine::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    if (size.isEmpty())
        return QPixmap();
    const IconColors colors = colorsForMode(mode);
    const QString cacheKey = QStringLiteral("hoopline-icon/%1/%2x%3/%4%5")
                                 .arg(path(state))
                                 .arg(size.width())
                                 .arg(size.height())
                                 .arg(colors.ink.name(), colors.accent.name());
    QPixmap picture;
    if (!QPixmapCache::find(cacheKey, &picture)) {
        picture = QPixmap::fromImage(render(path(state), size, colors));
        QPixmapCache::insert(cacheKey, picture);
    }
    return picture;
}

QSize SvgIconEngine::actualSize(const QSize &size, QIcon::Mode, QIcon::State)
{
    return size;
}

QIconEngine *SvgIconEngine::clone() const
{
    return new SvgIconEngine(*this);
}

QString SvgIconEngine::key() const
{
    return QStringLiteral("hoopline-svg");
}

void SvgIconEngine::virtual_hook(int id, void *data)
{
    if (id == QIconEngine::IsNullHook)
        *static_cast<bool *>(data) = !QFile::exists(m_offPath);
    else
        QIconEngine::virtual_hook(id, data);
}

const QString &SvgIconEngine::path(QIcon::State state) const
{
    return state == QIcon::On ? m_onPath : m_offPath;
}
