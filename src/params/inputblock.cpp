#include "params/inputblock.h"

#include "layout/sender.h"
#include "params/elementfields.h"
#include "params/paramresult.h"

#include <QMap>

namespace params {

namespace {

constexpr quint32 kNullArgument = 1;

constexpr const char* kCardCount = "inputBoardCardCount";
constexpr const char* kCard = "inputBoardOneCardParmXmlRootBase";
constexpr const char* kCardSlot = "inputBoardCardSlotNum";
constexpr const char* kVideo = "inputBoardOneVideoParmXmlRootBase";
constexpr const char* kVideoCount = "inputBoardVideoCountOnCard";

void WriteCard(ElementWriter& writer, int slot, const QVector<const SInputVideoParam*>& videos)
{
    writer.Field(kCardSlot, slot);
    for (int v = 0; v < videos.size(); ++v)
        writer.Record(FieldName(kVideo) + (v + 1), *videos[v]);
    writer.Field(kVideoCount, videos.size());
}

void ReadCard(const QDomElement& element, QList<SInputVideoParam>& videos)
{
    ElementReader card(element);
    const int count = card.Value<int>(kVideoCount);
    const auto elements = card.NumberedChildren(QLatin1String(kVideo), 1, count);
    for (const auto& numbered : elements) {
        SInputVideoParam video;
        ElementReader reader(numbered.second);
        SInputVideoParam::Walk(reader, video);
        videos.append(video);
    }
}

} // namespace

quint32 SaveInputParam(QDomDocument& document, QDomElement* element, const CSender* sender)
{
    if (!sender || !element || sender->Params().inputVideos.isEmpty())
        return kFailed;
    QMap<int, QVector<const SInputVideoParam*>> cards;
    for (const SInputVideoParam& video : sender->Params().inputVideos)
        cards[video.cardSlot].append(&video);

    ElementWriter writer(document, *element);
    writer.Field(kCardCount, cards.size());
    int number = 0;
    for (auto card = cards.constBegin(); card != cards.constEnd(); ++card)
        writer.Group(FieldName(kCard) + ++number, [&] { WriteCard(writer, card.key(), card.value()); });
    return kDone;
}

quint32 LoadInputParam(QDomDocument&, const QDomElement* element, CSender* sender)
{
    if (!sender || !element)
        return kNullArgument;
    ElementReader reader(*element);
    const int count = reader.Value<int>(kCardCount);
    QList<SInputVideoParam> videos;
    const auto cards = reader.NumberedChildren(QLatin1String(kCard), 1, count);
    for (const auto& card : cards)
        ReadCard(card.second, videos);
    sender->SetInputVideoInfo(videos);
    return kDone;
}

} // namespace params
