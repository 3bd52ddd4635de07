#include "preview/grid/GridNavigation.h"

#include <algorithm>
#include <QtCore/qnamespace.h>

GridNavigation::GridNavigation(int count, int columns, int rowsPerPage)
    : m_count(count), m_columns(columns), m_rowsPerPage(rowsPerPage)
{
}

bool GridNavigation::isMovingKey(int key)
{
    switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return true;
    default:
        return false;
    }
}

int GridNavigation::target(int key, int from) const
{
    if (m_count == 0) {
        return -1;
    }
    switch (key) {
    case Qt::Key_Left:
        return std::max(from - 1, 0);
    case Qt::Key_Right:
        return std::min(from + 1, m_count - 1);
    case Qt::Key_Up:
        return verticalTarget(from, -1);
    case Qt::Key_Down:
        return verticalTarget(from, 1);
    case Qt::Key_PageUp:
        return verticalTarget(from, -m_rowsPerPage);
    case Qt::Key_PageDown:
        return verticalTarget(from, m_rowsPerPage);
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return m_count - 1;
    default:
        return from;
    }
}

int GridNavigation::verticalTarget(int from, int rows) const
{
    const int lastRow = (m_count - 1) / m_columns;
    const int row = std::clamp(from / m_columns + rows, 0, lastRow);
    return std::min(row * m_columns + from % m_columns, m_count - 1);
}
