#include "params/paramresult.h"

#include "common/texts.h"

namespace params {

QString ImportResultText(quint32 result)
{
    if (result == kTypeDiffers)
        return Texts::tr("导入失败，无法导入不同类型主控的参数。");
    if (result == kImportFailed)
        return Texts::tr("导入失败。");
    return {};
}

} // namespace params
