#include "ui/duplicates/DuplicateCardDelegate.h"

#include "preview/cache/PreviewCache.h"
#include "preview/cache/PreviewCacheListener.h"
#include "ui/duplicates/DuplicateMembersModel.h"
#include "ui/duplicates/DuplicateTexts.h"

#include <QDir>
#include <QFileInfo>
#include <QPainter>

namespace {

constexpr int PreviewSize = 180;
constexpr int Padding = 10;
constexpr int Gap = 6;
constexpr int Radius = 6;
constexpr int FrameWidth = 3;
constexpr int TextLines = 6;
constexpr double FaintText = 0.7;

class ArrivingPreviews : public PreviewCacheListener
{
public:
    explicit ArrivingPreviews(QWidget *view) : m_view(view) {}

    void previewAvailable() override { m_view->update(); }

private:
    QWidget *m_view;
};

QFont bold(QFont font)
{
    font.setBold(true);
    return font;
}

} // namespace

DuplicateCardDelegate::DuplicateCardDelegate(const DuplicateMembersModel *model, QWidget *view)
    : QStyledItemDelegate(view), m_model(model),
      m_previews(std::make_unique<ArrivingPreviews>(view))
{
}

DuplicateCardDelegate::~DuplicateCardDelegate() = default;

QSize DuplicateCardDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const
{
    return {PreviewSize + 2 * Padding,
            PreviewSize + 2 * Padding + Gap + TextLines * option.fontMetrics.lineSpacing()};
}

void DuplicateCardDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                  const QModelIndex &index) const
{
    const bool kept = option.state & QStyle::State_Selected;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    const double inset = FrameWidth / 2.0;
    painter->setPen(kept ? QPen(option.palette.highlight(), FrameWidth) : QPen(Qt::NoPen));
    painter->setBrush(option.palette.alternateBase());
    painter->drawRoundedRect(QRectF(option.rect).adjusted(inset, inset, -inset, -inset), Radius,
                             Radius);
    const QRect inner = option.rect.adjusted(Padding, Padding, -Padding, -Padding);
    paintPreview(painter, QRect(inner.topLeft(), QSize(PreviewSize, PreviewSize)), index.row());
    paintTexts(painter, option, inner.adjusted(0, PreviewSize + Gap, 0, 0), index.row());
    painter->restore();
}

void DuplicateCardDelegate::paintPreview(QPainter *painter, const QRect &place, int row) const
{
    // Previews are drawn for white paper.
    painter->setPen(Qt::NoPen);
    painter->setBrush(Qt::white);
    painter->drawRoundedRect(place, Radius, Radius);
    const QPixmap preview =
        PreviewCache::instance().previewImage(m_model->files().at(row), m_previews.get());
    if (preview.isNull())
        return;
    QRectF target(QPointF(), QSizeF(preview.size()).scaled(place.size(), Qt::KeepAspectRatio));
    target.moveCenter(QRectF(place).center());
    painter->drawPixmap(target, preview, preview.rect());
}

void DuplicateCardDelegate::paintTexts(QPainter *painter, const QStyleOptionViewItem &option,
                                       QRect line, int row) const
{
    const IFile &file = *m_model->files().at(row);
    const QFileInfo info(file.absoluteFilePath());
    const bool kept = option.state & QStyle::State_Selected;
    line.setHeight(option.fontMetrics.lineSpacing());
    const auto draw = [&](const QString &text, const QFont &font, Qt::TextElideMode mode,
                          double opacity) {
        painter->setFont(font);
        painter->setOpacity(opacity);
        painter->setPen(option.palette.color(QPalette::Text));
        painter->drawText(
            line, Qt::AlignLeft | Qt::AlignVCenter,
            QFontMetrics(font).elidedText(DuplicateTexts::singleLine(text), mode, line.width()));
        line.translate(0, line.height());
    };
    draw(info.fileName(), bold(option.font), Qt::ElideMiddle, 1);
    draw(QDir::toNativeSeparators(info.path()), option.font, Qt::ElideMiddle, FaintText);
    draw(DuplicateTexts::format(file, m_model->isImperial()), option.font, Qt::ElideRight, 1);
    draw(DuplicateTexts::counts(file), option.font, Qt::ElideRight, 1);
    const QString words = DuplicateTexts::tags(file);
    draw(words.isEmpty() ? tr("no tags") : words, option.font, Qt::ElideRight,
         words.isEmpty() ? FaintText : 1);
    painter->setOpacity(1);
    painter->setFont(bold(option.font));
    painter->setPen(option.palette.color(kept ? QPalette::Link : QPalette::Text));
    painter->setOpacity(kept ? 1 : FaintText);
    painter->drawText(line, Qt::AlignLeft | Qt::AlignVCenter,
                      kept ? tr("is kept") : tr("to the trash"));
}
