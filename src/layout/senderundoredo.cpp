#include "layout/senderundoredo.h"
