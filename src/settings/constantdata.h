#pragma once

#include "common/export.h"
#include "common/smd5.h"

#include <QColor>
#include <QString>

/// The fixed folders and files of the application, the colours of the canvas, file identities and archives.
/// Holds nothing; one object is created at start-up because hosts reach these functions through it.
class ORVANDATA_EXPORT CConstantData
{
public:
    // folders, created when missing; the path comes back even when that fails
    static QString GetSysConfigDir();
    static QString GetGamutDir();
    static QString GetProjectParamFileTemp();
    static QString GetMonitoringRecordPath();
    static QString GetBKImagePath(); ///< no trailing "/"
    static QString GetTmpFilePath(); ///< below the platform's temporary folder, no trailing "/"

    // files
    static QString GetLatestProjectDir();
    static QString GetThirdPartyInfoTextPath(); ///< makes an empty folder of that name when no file is there
    static QString GetLogPath();                ///< by the interface language; a folder is made as above
    static QString GetHelpPath();               ///< by the interface language; a folder is made as above
    /// Unpacks an archive into the temporary folder and names the document that it should have held.
    static QString GetTmpProjectDataPath(const QString& zipPath);
    /// Picture behind a sender, counted from 0; a negative index gives the one behind the whole layout.
    /// Without the path the name begins with "/", for callers that put a folder of their own in front.
    static QString GetSenderBKImgName(int index, bool withPath);
    static void ClearTmpFilePath(); ///< removes the temporary folder and all in it; never follows a link

    // colours
    static QColor GetColorByPort(int port); ///< repeats after 20 ports
    static QColor GetTileLineColor();
    static QString GetColortoQString(const QColor& color); ///< alpha, red, green, blue as one decimal number
    /// Reads signed 32 bits, so that the text of an opaque colour gives transparent black.
    static QColor GetColorFromQString(const QString& text);

    /// A level of 255 for a percentage, not clamped. Uses a gamma of 0.4 unless `linear`.
    static int GetBightnessFromPercent(int percent, bool linear);

    // files' contents
    static SMD5 GetMD5FromFile(const QString& path); ///< no type when the file cannot be read
    /// Packs a folder under its own name. Failure is not reported: look for the archive.
    static void ZipFile(const QString& folder, const QString& zipPath);
    /// Unpacks an archive below a folder, replacing files of the same name, up to the first entry that fails.
    static void UnZipFile(const QString& zipPath, const QString& folder);
};
