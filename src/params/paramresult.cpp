#include "params/paramresult.h"

#include <QCoreApplication>

namespace params {

QString ImportResultText(quint32 result)
{
    if (result == kTypeDiffers)
        return QCoreApplication::translate("OrvanData", "导入失败，无法导入不同类型主控的参数。");
    if (result == kImportFailed)
        return QCoreApplication::translate("OrvanData", "导入失败。");
    return {};
}

} // namespace params
