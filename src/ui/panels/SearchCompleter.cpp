#include "ui/panels/SearchCompleter.h"

#include "catalogue/query/QueryLexer.h"
#include "widgets/controls/ScreenReader.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QScrollBar>
#include <QStringListModel>
#include <QStyledItemDelegate>

namespace {

/** Rows as high as those of menus. */
class RoomyDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(4, 2);
    }
};

} // namespace

SearchCompleter::SearchCompleter(QLineEdit *field, const std::function<QStringList()> &tags)
    : QCompleter(field), m_field(field), m_tags(tags), m_candidates(new QStringListModel(this)),
      m_list(new QListView)
{
    setModel(m_candidates);
    setCompletionMode(UnfilteredPopupCompletion);
    setPopup(m_list);
    m_list->setItemDelegate(new RoomyDelegate(m_list));
    setWidget(field);
    m_list->setAccessibleName(tr("Completions"));
    field->installEventFilter(this);
    connect(field, &QLineEdit::textEdited, this, &SearchCompleter::narrowCandidates);
    connect(this, QOverload<const QString &>::of(&QCompleter::activated), this,
            &SearchCompleter::choose);
    // The keyboard stays in the field, where nothing tells what the list has come to.
    connect(this, QOverload<const QString &>::of(&QCompleter::highlighted), this,
            [this](const QString &shown) { ScreenReader::say(m_field->window(), shown); });
}

bool SearchCompleter::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        const bool tab = key->key() == Qt::Key_Tab && key->modifiers() == Qt::NoModifier;
        if (watched == m_field && tab && complete())
            return true;
        // The list would leave these keys to the field first.
        const bool enter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
        if (watched == m_list && (tab || enter)) {
            choose(m_list->currentIndex().data().toString());
            return true;
        }
    }
    return QCompleter::eventFilter(watched, event);
}

QueryCompletion SearchCompleter::completion() const
{
    return m_field->hasSelectedText()
               ? QueryCompletion()
               : QueryCompletion::at(m_field->text(), m_field->cursorPosition(), m_tags());
}

bool SearchCompleter::complete()
{
    const QueryCompletion found = completion();
    if (found.candidates.count() == 1) {
        replace(found, found.candidates.constFirst().written);
    } else if (!found.isEmpty()) {
        const QString beginning = found.commonBeginning();
        // Not quotation marks around it: the word goes on.
        QString written = QueryLexer::quoted(beginning);
        if (written != beginning)
            written.chop(1);
        if (!beginning.isEmpty())
            replace(found, written);
        showCandidates(found);
    }
    return !found.isEmpty();
}

void SearchCompleter::showCandidates(const QueryCompletion &completion)
{
    QStringList shown;
    for (const QueryCompletion::Candidate &candidate : completion.candidates)
        shown.append(candidate.shown);
    m_candidates->setStringList(shown);
    const int cursor = m_field->inputMethodQuery(Qt::ImCursorRectangle).toRect().left();
    const int width = m_list->sizeHintForColumn(0) + 2 * m_list->frameWidth() +
                      m_list->verticalScrollBar()->sizeHint().width();
    QCompleter::complete(QRect(cursor, 0, width, m_field->height()));
    m_list->setCurrentIndex(m_list->model()->index(0, 0));
}

void SearchCompleter::narrowCandidates()
{
    if (!m_list->isVisible())
        return;
    const QueryCompletion found = completion();
    if (found.isEmpty())
        m_list->hide();
    else
        showCandidates(found);
}

void SearchCompleter::choose(const QString &shown)
{
    m_list->hide();
    const QueryCompletion found = completion();
    for (const QueryCompletion::Candidate &candidate : found.candidates) {
        if (candidate.shown == shown) {
            replace(found, candidate.written);
            return;
        }
    }
}

void SearchCompleter::replace(const QueryCompletion &completion, QString text)
{
    const int end = completion.position + completion.length;
    // A blank that follows already does.
    if (end < m_field->text().length() && text.endsWith(QLatin1Char(' ')))
        text.chop(1);
    m_field->setSelection(completion.position, completion.length);
    m_field->insert(text);
}
