#pragma once

#include "base/Error.h"

/** The text of the exception of type E that @p action throws; others pass and fail the test. */
template <class E, class Action>
QString messageOf(Action action)
{
    try {
        action();
    } catch (const E &error) {
        return error.toString();
    }
    return "nothing thrown";
}
