#pragma once

#include "records/comparedrecord.h"

#include <QList>

#include <array>

/// Where a signal comes from.
struct SSignalPosInfo : ComparedRecord<SSignalPosInfo>
{
    qint32 slotNum = 0;
    qint32 boardType = 0;
    qint32 boardIndex = 0;
    qint32 sourceType = 0;
    qint32 sourceIndex = 0;

    auto Values() const { return std::tie(slotNum, boardType, boardIndex, sourceType, sourceIndex); }
};

/// One input of a hot backup: where it is and which cut of it is meant.
struct SHotBackupSource : ComparedRecord<SHotBackupSource>
{
    qint32 slotNum = 0;
    qint32 boardType = 0;
    qint32 boardIndex = 0;
    qint32 sourceType = 0;
    qint32 sourceIndex = 0;
    qint32 sourceTypeIndex = 0;
    qint32 cutId = 0;

    auto Values() const
    {
        return std::tie(slotNum, boardType, boardIndex, sourceType, sourceIndex, sourceTypeIndex, cutId);
    }
};

/// An input and the one that takes its place when it fails.
struct SHotBackupPair : ComparedRecord<SHotBackupPair>
{
    qint32 id = 0;
    SHotBackupSource main;
    SHotBackupSource backup;

    auto Values() const { return std::tie(id, main, backup); }
};

/// Hot backup of a sender's inputs.
struct SInputVideoHotBackup : ComparedRecord<SInputVideoHotBackup>
{
    bool enable = false;
    QList<SHotBackupPair> pairs;

    auto Values() const { return std::tie(enable, pairs); }
};

/// Options of one video input.
struct SenderVideoInfo : ComparedRecord<SenderVideoInfo>
{
    qint32 inputNum = 0;
    qint32 flags = 0;

    auto Values() const { return std::tie(inputNum, flags); }
};

/// The part of one video input that is used, input pixels.
struct SenderVideoInputClip : ComparedRecord<SenderVideoInputClip>
{
    qint32 inputNum = 0;
    bool clip = false;
    bool edgeBlack = false;
    qint32 x = 0;
    qint32 y = 0;
    qint32 width = 0;
    qint32 height = 0;

    auto Values() const { return std::tie(inputNum, clip, edgeBlack, x, y, width, height); }
};

/// Several DVI inputs joined into one picture, pixels.
struct SenderJointOffset : ComparedRecord<SenderJointOffset>
{
    struct Dvi : ComparedRecord<Dvi>
    {
        qint32 inputNum = 0;
        qint32 cropFlags = 0;
        qint32 xSource = 0;
        qint32 ySource = 0;
        qint32 xTarget = 0;
        qint32 yTarget = 0;
        qint32 width = 0;
        qint32 height = 0;

        auto Values() const
        {
            return std::tie(inputNum, cropFlags, xSource, ySource, xTarget, yTarget, width, height);
        }
    };

    qint32 inputNum = 0;
    qint32 targetWidth = 0;
    qint32 targetHeight = 0;
    qint32 videoCount = 0;
    std::array<Dvi, 4> inputs;

    auto Values() const { return std::tie(inputNum, targetWidth, targetHeight, videoCount, inputs); }
};

/// Timing that one video input offers to its source.
struct SenderEDID : ComparedRecord<SenderEDID>
{
    qint32 inputNum = 0;
    qint32 width = 0;
    qint32 height = 0;
    qint32 rate = 0; ///< hertz
    qint32 rateConversion = 0;
    qint32 standard = 0;
    qint32 pcLink = 0;
    qint32 noteByCal = 0;

    auto Values() const
    {
        return std::tie(inputNum, width, height, rate, rateConversion, standard, pcLink, noteByCal);
    }
};

/// Cable equalisation of one video input; not in files.
struct SenderBalanced : ComparedRecord<SenderBalanced>
{
    qint32 inputNum = 0;
    qint32 bst = 0;
    qint32 de = 0;
    qint32 vod = 0;

    auto Values() const { return std::tie(inputNum, bst, de, vod); }
};
