#include "layout/tileset.h"
