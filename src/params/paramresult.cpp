#include "params/paramresult.h"

#include "common/texts.h"
#include "custommessagebox.h"

namespace params {

Outcome Told(quint32 code)
{
    if (code == kTypeDiffers)
        return Told(code, Texts::tr("导入失败，无法导入不同类型主控的参数。"));
    if (code == kImportFailed)
        return Told(code, Texts::tr("导入失败。"));
    return {code, {}};
}

Outcome Told(quint32 code, const QString& why)
{
    CCustomMessageBox::information(nullptr, why);
    return {code, why};
}

} // namespace params
