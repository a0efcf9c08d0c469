#include "layout/tile.h"
