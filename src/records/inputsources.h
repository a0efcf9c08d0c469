#pragma once

#include "records/recordwalk.h"

#include <QList>

#include <array>

/// Where a signal comes from.
struct SSignalPosInfo : WalkedRecord<SSignalPosInfo>
{
    qint32 slotNum = 0;
    qint32 boardType = 0;
    qint32 boardIndex = 0;
    qint32 sourceType = 0;
    qint32 sourceIndex = 0;

    template <class Fields, class... Records> static void Walk(Fields& f, Records&... r)
    {
        f.Field("InputAudioslotNum", r.slotNum...);
        f.Field("InputAudioboardType", r.boardType...);
        f.Field("InputAudioboardIndex", r.boardIndex...);
        f.Field("InputAudiosourceType", r.sourceType...);
        f.Field("InputAudiosourceIndex", r.sourceIndex...);
    }
};

/// One input of a hot backup: where it is and which cut of it is meant.
struct SHotBackupSource : WalkedRecord<SHotBackupSource>
{
    qint32 slotNum = 0;
    qint32 boardType = 0;
    qint32 boardIndex = 0;
    qint32 sourceType = 0;
    qint32 sourceIndex = 0;
    qint32 sourceTypeIndex = 0;
    qint32 cutId = 0;

    template <class Fields, class... Records> static void Walk(Fields& f, Records&... r)
    {
        WalkNumbered(f, QString(), 0, r...);
    }

    /// Files set each name between the role of the input and the number of its pair.
    template <class Fields, class... Records>
    static void WalkNumbered(Fields& f, const QString& role, int pair, Records&... r)
    {
        const auto name = [&](const char* field) { return FieldName(role + QLatin1String(field)) + pair; };
        f.Field(name("slotNum"), r.slotNum...);
        f.Field(name("boardType"), r.boardType...);
        f.Field(name("boardIndex"), r.boardIndex...);
        f.Field(name("sourceType"), r.sourceType...);
        f.Field(name("sourceIndex"), r.sourceIndex...);
        f.Field(name("sourecTypeIndex"), r.sourceTypeIndex...);
        f.Field(name("cutID"), r.cutId...);
    }
};

constexpr const char* kHotBackupEnable = "outputOtherParamHotBackup";

/// An input and the one that takes its place when it fails.
struct SHotBackupPair : WalkedRecord<SHotBackupPair>
{
    qint32 id = 0;
    SHotBackupSource main;
    SHotBackupSource backup;

    template <class Fields, class... Records> static void Walk(Fields& f, Records&... r)
    {
        WalkNumbered(f, 0, r...);
    }

    template <class Fields, class... Records> static void WalkNumbered(Fields& f, int pair, Records&... r)
    {
        f.Field(FieldName("hotbackupId") + pair, r.id...);
        SHotBackupSource::WalkNumbered(f, QStringLiteral("hotbackupMain"), pair, r.main...);
        SHotBackupSource::WalkNumbered(f, QStringLiteral("hotbackupBackup"), pair, r.backup...);
    }
};

/// Hot backup of a sender's inputs.
struct SInputVideoHotBackup : WalkedRecord<SInputVideoHotBackup>
{
    bool enable = false;
    QList<SHotBackupPair> pairs;

    template <class Fields, class... Records> static void Walk(Fields& f, Records&... r)
    {
        f.Field(kHotBackupEnable, r.enable...);
        f.Unnamed(r.pairs...);
    }
};

/// Options of one video input.
struct SenderVideoInfo : WalkedRecord<SenderVideoInfo>
{
    qint32 inputNum = 0;
    qint32 flags = 0;

    template <class Fields, class... Records> static void Walk(Fields& f, Records&... r)
    {
        f.Field("InputNum", r.inputNum...);
        f.Field("Flags", r.flags...);
    }
};

/// The part of one video input that is used, input pixels.
struct SenderVideoInputClip : WalkedRecord<SenderVideoInputClip>
{
    qint32 inputNum = 0;
    bool clip = false;
    bool edgeBlack = false;
    qint32 x = 0;
    qint32 y = 0;
    qint32 width = 0;
    qint32 height = 0;

    template <class Fields, class... Records> static void Walk(Fields& f, Records&... r)
    {
        f.Field("InputNum", r.inputNum...);
        f.Field("bClip", r.clip...);
        f.Field("bEdgeBlack", r.edgeBlack...);
        f.Field("X", r.x...);
        f.Field("Y", r.y...);
        f.Field("Width", r.width...);
        f.Field("Height", r.height...);
    }
};

/// Several DVI inputs joined into one picture, pixels.
struct SenderJointOffset : WalkedRecord<SenderJointOffset>
{
    struct Dvi : WalkedRecord<Dvi>
    {
        qint32 inputNum = 0;
        qint32 cropFlags = 0;
        qint32 xSource = 0;
        qint32 ySource = 0;
        qint32 xTarget = 0;
        qint32 yTarget = 0;
        qint32 width = 0;
        qint32 height = 0;

        template <class Fields, class... Records> static void Walk(Fields& f, Records&... r)
        {
            f.Field("DVIInputNum", r.inputNum...);
            f.Field("CropFlags", r.cropFlags...);
            f.Field("DVIXSrc", r.xSource...);
            f.Field("DVIYSrc", r.ySource...);
            f.Field("DVIXDes", r.xTarget...);
            f.Field("DVIYDes", r.yTarget...);
            f.Field("Width", r.width...);
            f.Field("Height", r.height...);
        }
    };

    qint32 inputNum = 0;
    qint32 targetWidth = 0;
    qint32 targetHeight = 0;
    qint32 videoCount = 0;
    std::array<Dvi, 4> inputs;

    template <class Fields, class... Records> static void Walk(Fields& f, Records&... r)
    {
        f.Field("JointInputNum", r.inputNum...);
        f.Field("JointDesWidth", r.targetWidth...);
        f.Field("JointDesHeight", r.targetHeight...);
        f.Field("VideoCnt", r.videoCount...);
        f.Numbered("DVI", 1, r.inputs...);
    }
};

/// Timing that one video input offers to its source.
struct SenderEDID : WalkedRecord<SenderEDID>
{
    qint32 inputNum = 0;
    qint32 width = 0;
    qint32 height = 0;
    qint32 rate = 0; ///< hertz
    qint32 rateConversion = 0;
    qint32 standard = 0;
    qint32 pcLink = 0;
    qint32 noteByCal = 0;

    template <class Fields, class... Records> static void Walk(Fields& f, Records&... r)
    {
        f.Field("InputNum", r.inputNum...);
        f.Field("Width", r.width...);
        f.Field("Height", r.height...);
        f.Field("Rate", r.rate...);
        f.Field("RateConversion", r.rateConversion...);
        f.Field("Standard", r.standard...);
        f.Field("PCLink", r.pcLink...);
        f.Field("NoteByCal", r.noteByCal...);
    }
};

/// Cable equalisation of one video input; not in files.
struct SenderBalanced : WalkedRecord<SenderBalanced>
{
    qint32 inputNum = 0;
    qint32 bst = 0;
    qint32 de = 0;
    qint32 vod = 0;

    template <class Fields, class... Records> static void Walk(Fields& f, Records&... r)
    {
        f.Unnamed(r.inputNum...);
        f.Unnamed(r.bst...);
        f.Unnamed(r.de...);
        f.Unnamed(r.vod...);
    }
};
