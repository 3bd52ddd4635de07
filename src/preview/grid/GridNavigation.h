#pragma once

/**
 * Where the moving keys lead to on a sheet of cards, which are numbered from 0 in
 * the order of reading and stand in rows of equal length, but for the last one.
 */
class GridNavigation
{
public:
    /** @p columns and @p rowsPerPage are at least 1. */
    GridNavigation(int count, int columns, int rowsPerPage);

    /** Whether @p key is an arrow, Home, End or a page key. */
    static bool isMovingKey(int key);

    /**
     * The card that a moving key leads to from the card @p from; a key that leads off
     * the sheet stays at its edge. -1 where there is no card.
     */
    int target(int key, int from) const;

private:
    int verticalTarget(int from, int rows) const;

    int m_count;
    int m_columns;
    int m_rowsPerPage;
};
