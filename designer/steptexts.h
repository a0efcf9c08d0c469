#pragma once

#include <OrvanData/orvandata.h>

#include <QString>

/// What a step of the history is called: "Move", "Number" … Empty for a type that is no edit.
QString StepText(int type);
