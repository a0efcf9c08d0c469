#include "params/deviceblocks.h"

#include "custommessagebox.h"
#include "layout/sender.h"
#include "params/elementfields.h"
#include "params/elementnames.h"
#include "params/paramresult.h"
#include "params/sharedblocks.h"

namespace params {

quint32 SaveBasicInfoParam(QDomDocument& document, const CSender* sender, QDomElement* element)
{
    if (!sender || !element)
        return kFailed;
    ElementWriter writer(document, *element);
    writer.Field(kDeviceClass, sender->GetDeviceClass()); // for others; never read back
    writer.Field(kDeviceType, sender->GetProcessorType());
    return kDone;
}

quint32 CheckBasicInfo(const QDomElement& element, const CSender& sender)
{
    return CheckTypeElement(element, kDeviceType, sender);
}

quint32 LoadBasicInfoParam(QDomDocument&, const QDomElement* element, const CSender* sender)
{
    if (!sender || !element)
        return kFailed;
    const quint32 result = CheckBasicInfo(*element, *sender);
    if (result == kDone)
        return kDone;
    CCustomMessageBox::information(nullptr, ImportResultText(result));
    return kFailed;
}

quint32 SaveDeviceSetParam(QDomDocument& document, QDomElement* element, const CSender* sender)
{
    if (!sender || !element)
        return kFailed;
    ElementWriter writer(document, *element);
    SVSyncParam::Walk(writer, sender->Params().vSync);
    return kDone;
}

quint32 LoadDeviceSetParam(QDomDocument&, const QDomElement* element, CSender* sender)
{
    if (!sender || !element)
        return kFailed;
    ElementReader reader(*element);
    SVSyncParam::Walk(reader, sender->Params().vSync);
    return kDone;
}

quint32 SaveMultiParam(QDomDocument& document, QDomElement* element, const CSender* sender)
{
    if (!sender || !element)
        return kFailed;
    ElementWriter(document, *element).Record(kMultiRoot, sender->Params().multi);
    return kDone;
}

quint32 LoadMultiParam(QDomDocument&, const QDomElement& element, CSender* sender)
{
    if (!sender || element.isNull())
        return kFailed;
    ElementReader reader(SelfOrChild(element, kMultiRoot));
    SFrequencyFrameMultiParam multi;
    SFrequencyFrameMultiParam::Walk(reader, multi);
    sender->SetFrequencyFrameMultiParam(multi);
    return kDone;
}

quint32 Save3DParam(QDomDocument& document, QDomElement* element, const CSender* sender)
{
    if (!sender || !element)
        return kFailed;
    ElementWriter(document, *element).Record(k3DRoot, sender->Params().stereo);
    return kDone;
}

quint32 Load3DParam(QDomDocument&, const QDomElement& element, CSender* sender)
{
    if (!sender || element.isNull())
        return kFailed;
    ElementReader reader(SelfOrChild(element, k3DRoot));
    Sender3D stereo;
    Sender3D::Walk(reader, stereo);
    sender->Set3D(stereo);
    return kDone;
}

} // namespace params
