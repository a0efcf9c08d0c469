#include "layout/sender.h"
