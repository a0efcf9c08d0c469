#include "layout/projectundoredo.h"
