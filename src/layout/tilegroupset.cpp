#include "layout/tilegroupset.h"
