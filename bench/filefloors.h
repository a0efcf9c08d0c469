#pragma once

#include <QString>

#include <string>
#include <vector>

/// One cabinet as plain fields, with all that the project file says of it.
struct FloorTile
{
    char ids[2][40] = {};
    char type[34] = {};
    int numbers[26] = {};
    double rotation[7] = {};
};

/// What any loader must do: unpack the archive and read every attribute of every cabinet into plain
/// structures.
std::vector<FloorTile> LoadFloor(const QString& path);

/// A quicker way that takes ten times the memory: unpack, build a tree in place, read every attribute as a
/// number. The sum of these keeps the compiler from leaving it out.
double LoadTreeFloor(const QString& path);

/// What any saver must do: every attribute into one buffer, packed at level 6 and flushed to the disk.
void SaveFloor(const QString& path, const std::vector<FloorTile>& tiles);

/// Size of the document in the archive, in bytes.
size_t DocumentSize(const QString& path);
