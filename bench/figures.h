#pragma once

#include "table.h"

#include <QString>

// The figures of each concern. The six shared objects are up, with an empty product folder.
void FileFigures(Table& table, const QString& folder);
void UndoFigures(Table& table);
void ChainFigures(Table& table);
void QueryFigures(Table& table);
void EditFigures(Table& table);
void ProductFigures(Table& table); ///< leaves the product folder empty
