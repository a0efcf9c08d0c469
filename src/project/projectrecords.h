#pragma once

#include "common/export.h"
#include "common/smd5.h"
#include "monitor/monitorinterfacedata.h"

#include <QList>
#include <QMetaType>
#include <QString>
#include <QUuid>

class QDebug;

/// A group of senders in the host's sender tree.
struct SSenderGroupInfo
{
    QUuid id;
    QString name;
    bool expanded = true;
};

/// Gamma of one cabinet product type.
struct SRcvParamGamma
{
    SMD5 type;
    float gamma = 0;
};

/// A receiver parameter file the project carries, kept in the work folder as name + ".rcvbp".
struct SParameterFileInfo
{
    QString name; ///< without suffix
    SMD5 type;
};

/// One line of the printed layout form.
struct SPrintLine
{
    bool enable = false;
    QString text;
};

/// The printed layout form.
struct SPrintFormData
{
    SPrintLine projectName;
    SPrintLine designer;
    SPrintLine designDate;
    SPrintLine approver;
    SPrintLine approveDate;
};

/// Demo mode and the sender type it shows.
struct SDemoMode
{
    bool enable = false;
    int senderType = 0;
};

/// What a project file stores beside the senders.
struct ProjectFields
{
    SDemoMode demo;
    QList<SSenderGroupInfo> groups;
    QList<SRcvParamGamma> gamma;
    SPrintFormData print;
    QList<SVideoInput> videoInputs; ///< stand among the monitoring settings
    QList<SParameterFileInfo> parameterFiles;
};

/// What a project holds beside its senders. A copy takes all of it; reading a file changes the fields alone.
struct ProjectState : ProjectFields
{
    QUuid id;
    QString deviceSetName;
    QString projectName;
    int currentSender = -1;
};

ORVANDATA_EXPORT QDebug operator<<(QDebug debug, const SSenderGroupInfo& group);
ORVANDATA_EXPORT QDebug operator<<(QDebug debug, const SRcvParamGamma& gamma);
ORVANDATA_EXPORT QDebug operator<<(QDebug debug, const SParameterFileInfo& file);

Q_DECLARE_METATYPE(SSenderGroupInfo)
Q_DECLARE_METATYPE(SRcvParamGamma)
Q_DECLARE_METATYPE(SParameterFileInfo)
Q_DECLARE_METATYPE(SPrintFormData)
