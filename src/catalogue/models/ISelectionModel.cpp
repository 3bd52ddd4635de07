#include "catalogue/models/ISelectionModel.h"
