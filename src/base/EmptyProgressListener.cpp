#include "base/EmptyProgressListener.h"

EmptyProgressListener emptyProgressListener;
