#include "capacityoptions.h"

#include "command.h"
#include "console.h"

#include <QCommandLineParser>

namespace {

constexpr int kMostFrames = 1000;

} // namespace

void AddCapacityOptions(QCommandLineParser& parser)
{
    parser.addOption({QStringLiteral("port-pixels"),
                      QStringLiteral("Pixels that one port carries at 60 Hz and 8 bit; 655360 by default."),
                      QStringLiteral("N"), QStringLiteral("655360")});
    parser.addOption(
        {QStringLiteral("fps"),
         QStringLiteral("Frames a second, 60 by default; twice as many halve what a port carries."),
         QStringLiteral("N"), QStringLiteral("60")});
    parser.addOption({QStringLiteral("depth"),
                      QStringLiteral("Bits a colour: 8 (the default), 10 or 12; more of them, fewer pixels."),
                      QStringLiteral("N"), QStringLiteral("8")});
}

int ReadCapacity(const QCommandLineParser& parser, OrvanTools::PortCapacity* capacity)
{
    int pixels = 0;
    if (!ParseNumber(parser.value(QStringLiteral("port-pixels")), &pixels))
        return Fail(StatusUsage, QString(), QStringLiteral("--port-pixels takes a number"));
    capacity->pixels = pixels;
    if (!ParseNumber(parser.value(QStringLiteral("fps")), &capacity->framesPerSecond)
        || capacity->framesPerSecond < 1 || capacity->framesPerSecond > kMostFrames)
        return Fail(StatusUsage, QString(),
                    QStringLiteral("--fps takes a number from 1 to %1").arg(kMostFrames));
    if (!ParseNumber(parser.value(QStringLiteral("depth")), &capacity->colorBits)
        || (capacity->colorBits != 8 && capacity->colorBits != 10 && capacity->colorBits != 12))
        return Fail(StatusUsage, QString(), QStringLiteral("--depth takes 8, 10 or 12"));
    return StatusDone;
}
