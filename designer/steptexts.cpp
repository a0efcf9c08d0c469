#include "steptexts.h"

#include <QCoreApplication>

namespace {

struct Step
{
    int type;
    const char* text;
};

constexpr Step kSteps[] = {
    {CSenderRecordItem::OperationAddTiles, QT_TRANSLATE_NOOP("StepText", "Add cabinets")},
    {CSenderRecordItem::OperationDeleteTiles, QT_TRANSLATE_NOOP("StepText", "Delete")},
    {CSenderRecordItem::OperationMoveTiles, QT_TRANSLATE_NOOP("StepText", "Move")},
    {CSenderRecordItem::OperationResizeTiles, QT_TRANSLATE_NOOP("StepText", "Resize")},
    {CSenderRecordItem::OperationPasteTiles, QT_TRANSLATE_NOOP("StepText", "Paste")},
    {CSenderRecordItem::OperationCutTiles, QT_TRANSLATE_NOOP("StepText", "Cut")},
    {CSenderRecordItem::OperationGroup, QT_TRANSLATE_NOOP("StepText", "Group")},
    {CSenderRecordItem::OperationUngroup, QT_TRANSLATE_NOOP("StepText", "Ungroup")},
    {CSenderRecordItem::OperationRotate, QT_TRANSLATE_NOOP("StepText", "Turn")},
    {CSenderRecordItem::OperationConnect, QT_TRANSLATE_NOOP("StepText", "Number")},
    {CSenderRecordItem::OperationAutoConnect, QT_TRANSLATE_NOOP("StepText", "Number all")},
    {CSenderRecordItem::OperationDisconnect, QT_TRANSLATE_NOOP("StepText", "Clear numbers")},
    {CSenderRecordItem::OperationImportLayout, QT_TRANSLATE_NOOP("StepText", "Import layout")},
    {CSenderRecordItem::OperationMoveToPort, QT_TRANSLATE_NOOP("StepText", "Move to port")},
};

} // namespace

QString StepText(int type)
{
    if (type < 0 || type == CSenderRecordItem::OperationBase)
        return {};
    for (const Step& step : kSteps) {
        if (step.type == type)
            return QCoreApplication::translate("StepText", step.text);
    }
    return QCoreApplication::translate("StepText", "Edit");
}
