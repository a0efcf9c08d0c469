#include "params/paramresult.h"

#include "custommessagebox.h"

#include <QCoreApplication>

namespace params {

void ShowImportResult(quint32 result)
{
    if (result == kTypeDiffers)
        CCustomMessageBox::information(
            nullptr, QCoreApplication::translate("OrvanData", "导入失败，无法导入不同类型主控的参数。"));
    else if (result == kImportFailed)
        CCustomMessageBox::information(nullptr, QCoreApplication::translate("OrvanData", "导入失败。"));
}

} // namespace params
