#pragma once

#include <orvantools/portload.h>

class QCommandLineParser;

void AddCapacityOptions(QCommandLineParser& parser); ///< --port-pixels, --fps, --depth

/// StatusDone, or the status of wrong usage when one of them is out of range, which was told.
int ReadCapacity(const QCommandLineParser& parser, OrvanTools::PortCapacity* capacity);
