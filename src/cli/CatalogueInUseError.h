#pragma once

#include "base/Error.h"

/** Another process works on the catalogue, and going on would lose one side's changes. */
class CatalogueInUseError : public Error
{
public:
    using Error::Error;
};
