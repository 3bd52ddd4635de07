#include "ui/panels/TagCompleter.h"

#include "widgets/controls/ScreenReader.h"
#include "widgets/controls/WidePopup.h"

#include <QComboBox>
#include <QEvent>
#include <QListView>
#include <QSortFilterProxyModel>

TagCompleter::TagCompleter(QComboBox *box)
    : QCompleter(box), m_matches(new QSortFilterProxyModel(this))
{
    m_matches->setSourceModel(box->model());
    m_matches->setFilterCaseSensitivity(Qt::CaseInsensitive);
    setModel(m_matches);
    setCaseSensitivity(Qt::CaseSensitive);
    setCompletionMode(QCompleter::PopupCompletion);
    connect(this, QOverload<const QString &>::of(&QCompleter::highlighted), this,
            [box](const QString &tag) { ScreenReader::say(box->window(), tag); });
}

QStringList TagCompleter::splitPath(const QString &path) const
{
    m_matches->setFilterFixedString(path);
    // All that are left.
    return {QString()};
}

bool TagCompleter::eventFilter(QObject *watched, QEvent *event)
{
    const bool isPlaced = event->type() == QEvent::Show || event->type() == QEvent::Resize;
    // Of what is watched, only the popup is a list.
    auto *list = qobject_cast<QListView *>(watched);
    if (isPlaced && list)
        WidePopup::widen(list);
    return QCompleter::eventFilter(watched, event);
}
