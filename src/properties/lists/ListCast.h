#pragma once

#include <iterator>
#include <QList>

/** The elements of a range as a list of To, by their implicit conversion. */
template <class To, class Iterator>
QList<To> list_cast_helper(Iterator begin, Iterator end)
{
    QList<To> result;
    result.reserve(int(std::distance(begin, end)));
    for (; begin != end; ++begin)
        result.append(*begin);
    return result;
}

/** Those elements of a range of plain pointers that are a To, by dynamic_cast. */
template <class To, class Iterator>
QList<To> dynamic_list_cast_helper(Iterator begin, Iterator end)
{
    QList<To> result;
    for (; begin != end; ++begin) {
        if (To element = dynamic_cast<To>(*begin))
            result.append(element);
    }
    return result;
}
