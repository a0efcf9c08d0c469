#pragma once

#include "records/recordwalk.h"

#include <array>

constexpr int kRightEyeNumbers = 8;
constexpr int kLayerSignalPairs = 4;

/// Stereoscopic output: how the right eye follows the left one, and which inputs each layer shows to them.
struct Sender3D : WalkedRecord<Sender3D>
{
    struct signal : WalkedRecord<signal>
    {
        qint32 slotNum = 0;
        qint32 boardType = 0;
        qint32 boardIndex = 0;
        qint32 sourceIndex = 0;
        qint32 sourceType = 0;
        qint32 sourceTypeIndex = 0;

        template <class Fields, class... Records> static void Walk(Fields& f, Records&... r)
        {
            f.Field("slotNum", r.slotNum...);
            f.Field("boardType", r.boardType...);
            f.Field("boardIndex", r.boardIndex...);
            f.Field("sourceIndex", r.sourceIndex...);
            f.Field("sourceType", r.sourceType...);
            f.Field("sourecTypeIndex", r.sourceTypeIndex...);
        }
    };

    bool enable = false;
    bool leftEyeFirst = false; ///< files hold the opposite
    quint32 delayTime = 0;
    qint32 mode = 0;
    qint32 offsetX = 0; ///< of the right eye
    qint32 offsetY = 0;
    std::array<qint32, kRightEyeNumbers> rightNumbers{};
    std::array<signal, kLayerSignalPairs> leftSignals;
    std::array<signal, kLayerSignalPairs> rightSignals;

    template <class Fields, class... Records> static void Walk(Fields& f, Records&... r)
    {
        f.Field("Set3DEnable", r.enable...);
        f.Negated("Set3DbRightFirt", r.leftEyeFirst...);
        f.Field("Set3DDelayTime", r.delayTime...);
        f.Field("Set3DMode", r.mode...);
        f.Group("Set3DRightEyeOffset", [&] {
            f.Field("OffsetHX", r.offsetX...);
            f.Field("OffsetVY", r.offsetY...);
            f.Numbered("RightNumber", 1, r.rightNumbers...);
        });
        for (int i = 0; i < kLayerSignalPairs; ++i) {
            const auto pair = static_cast<size_t>(i);
            f.Record(FieldName("layerLeftSignal") + i, r.leftSignals[pair]...);
            f.Record(FieldName("layerRightSignal") + i, r.rightSignals[pair]...);
        }
    }
};
