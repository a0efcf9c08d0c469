// What QDebug shows of the shared records.
#include "common/debugline.h"
#include "common/guidcompare.h"
#include "common/rotateparam.h"
#include "common/smd5.h"

QDebug operator<<(QDebug debug, const SMD5& md5)
{
    return DebugLine(debug, "SMD5(", qUtf8Printable(md5.ToString()), ')');
}

QDebug operator<<(QDebug debug, const CPointEx<double>& point)
{
    return DebugLine(debug, "CPointEx(", point.x, ',', point.y, ')');
}

QDebug operator<<(QDebug debug, const CPointEx<int>& point)
{
    return DebugLine(debug, "CPointEx(", point.x, ',', point.y, ')');
}

QDebug operator<<(QDebug debug, const SRotateParam& param)
{
    return DebugLine(debug, "SRotateParam(", param.rotated ? "turned " : "", param.angle, " about ",
                     param.centerX, ',', param.centerY, ", ", param.width, 'x', param.height, " at ",
                     param.leftTopX, ',', param.leftTopY, ')');
}

QDebug operator<<(QDebug debug, const SGuidCompare& record)
{
    return DebugLine(debug, "SGuidCompare(", record.oldId, " now ", record.newId, ')');
}
