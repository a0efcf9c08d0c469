#pragma once

#include "layout/sender.h"
#include "params/elementreader.h"
#include "params/elementwriter.h"

#include <QMap>

/// The inputs of a sender.
namespace params {

// Each part of an input repeats the slot and the index, so that it can be read alone.
template <class F> void DescribePlace(F& f, const char* slot, const char* index, Ref<F, SInputVideoParam> r)
{
    f.Field(slot, r.cardSlot, FieldUse::IfPresent);
    f.Field(index, r.videoIndexOnCard, FieldUse::IfPresent);
}

template <class F> void DescribeSignal(F& f, Ref<F, SInputVideoParam> r)
{
    f.Group("inputVideoSignalParamXmlRoot", [&] {
        DescribePlace(f, "inputVideoSignalVideoCardSlot", "inputVideoSignalVideoIndexOnCard", r);
        f.Field("inputVideoSignalSourceType", r.sourceType);
        f.Field("inputVideoSignalbNoDelay", r.noDelay);
        f.Field("inputVideoSignalbGrayExpand", r.grayExpand);
    });
    f.Group("inputVideoCropParamXmlRoot", [&] {
        DescribePlace(f, "inputVideoCropVideoCardSlot", "inputVideoCropVideoIndexOnCard", r);
        f.Field("inputVideoCropEnableFlag", r.cropEnable);
        f.Field("inputVideoCropX", r.cropX);
        f.Field("inputVideoCropY", r.cropY);
        f.Field("inputVideoCropWidth", r.cropWidth);
        f.Field("inputVideoCropHeigth", r.cropHeight);
    });
    f.Group("inputVideoRenameParamXmlRoot", [&] {
        DescribePlace(f, "inputVideoRenameVideoCardSlot", "inputVideoRenameVideoIndexOnCard", r);
        f.Field("inputVideoRenameName", r.name);
    });
}

template <class F> void DescribeBrightColor(F& f, Ref<F, SInputVideoParam> r)
{
    f.Group("inputVideoBrightColorParamXmlRoot", [&] {
        DescribePlace(f, "inputVideoBrightColorVideoCardSlot", "inputVideoBrightColorVideoIndexOnCard", r);
        f.Field("inputVideoBrightColorBrightness", r.brightness);
        f.Field("inputVideoBrightColorContrast", r.contrast);
        f.Field("inputVideoBrightColorBrightnessCompensation", r.brightnessCompensation);
        f.Field("inputVideoBrightColorHue", r.hue);
        f.Field("inputVideoBrightColorSaturation", r.saturation);
        f.Field("inputVideoBrightColorEnable", r.brightColorEnable);
        f.Field("inputVideoBrightColorColorTemperature", r.colorTemperature);
        f.Field("inputVideoBrightColorRed", r.red);
        f.Field("inputVideoBrightColorGreen", r.green);
        f.Field("inputVideoBrightColorBlue", r.blue);
    });
}

template <class F> void DescribeEdid(F& f, Ref<F, SInputVideoParam> r)
{
    f.Group("inputVideoEdidParamXmlRoot", [&] {
        DescribePlace(f, "inputVideoEdidParamVideoCardSlot", "inputVideoEdidParamVideoIndexOnCard", r);
        f.Field("inputVideoEdidWidth", r.edidWidth);
        f.Field("inputVideoEdidHeight", r.edidHeight);
        f.Field("inputVideoEdidRate", r.edidRate);
        f.Field("inputVideoEdidColorDepth", r.colorDepth);
        f.Field("inputVideoEdidStandard", r.standard);
        f.Field("inputVideoEdidEdidLen", r.edidLength);
        f.Field("inputVideoEdidBExtenMode", r.extendedMode);
        f.Field("inputVideoEdidEdidType", r.edidType);
        f.Field("inputVideoEdidHFrontPorch", r.hFrontPorch);
        f.Field("inputVideoEdidVFrontPorch", r.vFrontPorch);
        f.Field("inputVideoEdidHSyncWidth", r.hSyncWidth);
        f.Field("inputVideoEdidVSyncWidth", r.vSyncWidth);
        f.Field("inputVideoEdidHsyncPol", r.hSyncPolarity);
        f.Field("inputVideoEdidVsyncPol", r.vSyncPolarity);
        f.Field("inputVideoEdidHBackPorch", r.hBackPorch);
        f.Field("inputVideoEdidVBackPorch", r.vBackPorch);
        f.Field("inputVideoEdidHTotal", r.hTotal);
        f.Field("inputVideoEdidVTotal", r.vTotal);
        f.Field("inputVideoEdidPixelFreq", r.pixelFrequency);
    });
}

template <class F> void Describe(F& f, Ref<F, SInputVideoParam> r)
{
    DescribeSignal(f, r);
    DescribeBrightColor(f, r);
    DescribeEdid(f, r);
    f.Group("BalanceParam", [&] {
        f.Field("balance_bst", r.balanceBst);
        f.Field("balance_de", r.balanceDe);
        f.Field("balance_vod", r.balanceVod);
    });
}

/// The inputs of one card, as processor files group them.
struct InputCard
{
    int slot = 0;
    QList<SInputVideoParam> videos;
};

template <class F> void Describe(F& f, Ref<F, InputCard> card)
{
    f.Field("inputBoardCardSlotNum", card.slot);
    f.CountedBehind("inputBoardVideoCountOnCard", "inputBoardOneVideoParmXmlRootBase", 1, card.videos);
}

inline QList<InputCard> CardsOf(const QList<SInputVideoParam>& videos)
{
    QMap<int, InputCard> cards;
    for (const SInputVideoParam& video : videos) {
        InputCard& card = cards[video.cardSlot];
        card.slot = video.cardSlot;
        card.videos.append(video);
    }
    return cards.values();
}

/// A sender without inputs leaves the block empty.
template <class F> void DescribeInputs(F& f, Ref<F, CSender> sender)
{
    auto& videos = sender.Params().inputVideos;
    QList<InputCard> cards = CardsOf(videos);
    if (F::kReads || !videos.isEmpty())
        f.Counted("inputBoardCardCount", "inputBoardOneCardParmXmlRootBase", 1, cards);
    if constexpr (F::kReads) {
        videos.clear();
        for (const InputCard& card : cards)
            videos += card.videos;
    }
}

template <class F> void Describe(F& f, Ref<F, SSignalPosInfo> r)
{
    f.Field("InputAudioslotNum", r.slotNum);
    f.Field("InputAudioboardType", r.boardType);
    f.Field("InputAudioboardIndex", r.boardIndex);
    f.Field("InputAudiosourceType", r.sourceType);
    f.Field("InputAudiosourceIndex", r.sourceIndex);
}

template <class F, class Data> void DescribeAudio(F& f, Data& data)
{
    f.Group("InputAudioParam", [&] {
        f.Field("InputAudio", data.inputAudio);
        f.Record("InputAudioParamV", data.inputAudioV);
        f.Group("AudioVolumeParam", [&] { f.Field("HeadphoneVolume", data.inputVolume); });
    });
}

} // namespace params
