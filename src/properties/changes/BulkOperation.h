#pragma once

#include <QList>

class Observable;

/**
 * A bulk operation of the ChangeManager that ends with this object, whatever is thrown:
 * an operation that stayed open would hold back every later change. Main thread only.
 */
class BulkOperation
{
public:
    /** Holds back the announcements of @p observables, of all when the list is empty. */
    explicit BulkOperation(const QList<const Observable *> &observables = {});

    /** Ends what finish() did not end. What an observer throws then is logged and lost. */
    ~BulkOperation();

    BulkOperation(const BulkOperation &) = delete;
    BulkOperation &operator=(const BulkOperation &) = delete;

    /** Announces each observable once, at the place of its last change. Throws what an
        observer throws. */
    void finish();

private:
    bool m_finished = false;
};
