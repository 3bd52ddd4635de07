#pragma once

#include <memory>
#include <QStyledItemDelegate>

class DuplicateMembersModel;
class PreviewCacheListener;

/** Paints a design of a group as a card: its preview, where it lies and what is known of it. */
class DuplicateCardDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /** @param view not owned; whose rows are painted */
    DuplicateCardDelegate(const DuplicateMembersModel *model, QWidget *view);
    ~DuplicateCardDelegate() override;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    void paintPreview(QPainter *painter, const QRect &place, int row) const;
    void paintTexts(QPainter *painter, const QStyleOptionViewItem &option, QRect line,
                    int row) const;

    const DuplicateMembersModel *m_model;
    const std::unique_ptr<PreviewCacheListener> m_previews;
};
