#include "layout/rotation.h"
