#pragma once

#include "figure.h"

#include <QString>

// The figures of each concern. They are measured while the six shared objects are up, with an empty product
// folder.
void CommandFigures(const QString& folder);
void FileFigures(const QString& folder);
void UndoFigures();
void ChainFigures();
void QueryFigures();
void EditFigures();
void ProductFigures(); ///< leaves the product folder empty
