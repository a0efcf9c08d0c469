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
    return {code, {}, false};
}

Outcome Told(quint32 code, const QString& why)
{
    return {code, why, true};
}

void Show(const Outcome& outcome)
{
    if (outcome.told)
        CCustomMessageBox::information(nullptr, outcome.why);
}

} // namespace params
