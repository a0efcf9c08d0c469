#include "layout/tilegroup.h"
