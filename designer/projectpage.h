#pragma once

#include "pageform.h"

/// What the printed form of the project says.
class ProjectPage : public PageForm
{
    Q_OBJECT

public:
    ProjectPage(DocumentController& document, SenderEdits& edits, QWidget* parent); ///< [keep] both
};
