#include "app/base/EmptyProgressListener.h"

EmptyProgressListener emptyProgressListener;
