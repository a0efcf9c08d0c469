#include "layout/portproject.h"
