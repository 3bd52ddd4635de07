#include "catalogue/models/IFilterModel.h"
