#pragma once

#include <QList>
#include <QString>

class GUndoStack;
class Observable;

/**
 * A macro of an undo stack whose announcements wait for its end. Both end with this
 * object, whatever is thrown. Main thread only.
 */
class BulkMacro
{
public:
    /** Holds back the announcements of @p observables, of all when the list is empty. */
    BulkMacro(GUndoStack *stack, const QString &text,
              const QList<const Observable *> &observables = {});

    /** Ends what finish() did not end. What an observer throws then is logged and lost. */
    ~BulkMacro();

    BulkMacro(const BulkMacro &) = delete;
    BulkMacro &operator=(const BulkMacro &) = delete;

    /** Delivers the announcements, then ends the macro. Throws what an observer throws. */
    void finish();

private:
    GUndoStack *m_stack; ///< null once the macro has ended
};
