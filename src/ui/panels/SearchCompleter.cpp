#include "ui/panels/SearchCompleter.h"

#include "catalogue/query/QueryLexer.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollBar>
#include <QStringListModel>

SearchCompleter::SearchCompleter(QLineEdit *field, const std::function<QStringList()> &tags)
    : QCompleter(field), m_field(field), m_tags(tags), m_candidates(new QStringListModel(this))
{
    setModel(m_candidates);
    setCompletionMode(UnfilteredPopupCompletion);
    setWidget(field);
    popup()->setAccessibleName(tr("Completions"));
    field->installEventFilter(this);
    connect(field, &QLineEdit::textEdited, this, &SearchCompleter::narrowCandidates);
    connect(this, QOverload<const QString &>::of(&QCompleter::activated), this,
            &SearchCompleter::choose);
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
        if (watched == popup() && (tab || enter)) {
            choose(popup()->currentIndex().data().toString());
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
    QRect place = m_field->inputMethodQuery(Qt::ImCursorRectangle).toRect();
    const QAbstractItemView *list = popup();
    place.setWidth(list->sizeHintForColumn(0) + list->verticalScrollBar()->sizeHint().width() +
                   2 * list->frameWidth());
    QCompleter::complete(place);
    popup()->setCurrentIndex(popup()->model()->index(0, 0));
}

void SearchCompleter::narrowCandidates()
{
    if (!popup()->isVisible())
        return;
    const QueryCompletion found = completion();
    if (found.isEmpty())
        popup()->hide();
    else
        showCandidates(found);
}

void SearchCompleter::choose(const QString &shown)
{
    popup()->hide();
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
