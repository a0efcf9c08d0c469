#pragma once

#include <QString>

#include <functional>

/// A program of figures: measures those that `add` registers, while the six shared objects are up, and prints
/// the table. `add` is told the home folder, which is empty and goes with the program. The exit status.
int RunFigures(int argc, char** argv, const std::function<void(const QString& home)>& add);
