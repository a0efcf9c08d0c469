#include "layout/port.h"
