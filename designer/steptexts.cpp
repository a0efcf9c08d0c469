#include "steptexts.h"

#include <QCoreApplication>

namespace {

const char* SourceOf(int type)
{
    switch (type) {
    case CSenderRecordItem::OperationAddTiles:
        return QT_TRANSLATE_NOOP("StepText", "Add cabinets");
    case CSenderRecordItem::OperationDeleteTiles:
        return QT_TRANSLATE_NOOP("StepText", "Delete");
    case CSenderRecordItem::OperationMoveTiles:
        return QT_TRANSLATE_NOOP("StepText", "Move");
    case CSenderRecordItem::OperationResizeTiles:
        return QT_TRANSLATE_NOOP("StepText", "Resize");
    case CSenderRecordItem::OperationPasteTiles:
        return QT_TRANSLATE_NOOP("StepText", "Paste");
    case CSenderRecordItem::OperationCutTiles:
        return QT_TRANSLATE_NOOP("StepText", "Cut");
    case CSenderRecordItem::OperationGroup:
        return QT_TRANSLATE_NOOP("StepText", "Group");
    case CSenderRecordItem::OperationUngroup:
        return QT_TRANSLATE_NOOP("StepText", "Ungroup");
    case CSenderRecordItem::OperationRotate:
    case CSenderRecordItem::OperationRotateCentre:
        return QT_TRANSLATE_NOOP("StepText", "Turn");
    case CSenderRecordItem::OperationConnect:
        return QT_TRANSLATE_NOOP("StepText", "Number");
    case CSenderRecordItem::OperationAutoConnect:
        return QT_TRANSLATE_NOOP("StepText", "Number all");
    case CSenderRecordItem::OperationDisconnect:
        return QT_TRANSLATE_NOOP("StepText", "Clear numbers");
    case CSenderRecordItem::OperationMoveToPort:
        return QT_TRANSLATE_NOOP("StepText", "Move to port");
    case CSenderRecordItem::OperationImportLayout:
        return QT_TRANSLATE_NOOP("StepText", "Import");
    case CSenderRecordItem::OperationClear:
        return QT_TRANSLATE_NOOP("StepText", "Clear");
    default:
        return QT_TRANSLATE_NOOP("StepText", "Edit");
    }
}

} // namespace

QString StepText(int type)
{
    if (type < 0 || type == CSenderRecordItem::OperationBase)
        return {};
    return QCoreApplication::translate("StepText", SourceOf(type));
}
